#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace tessarine::testing {

// Makes a locale that of the process's dates, for the length of a scope.
class DateLocaleScope {
public:
    explicit DateLocaleScope(const char* locale)
        : before_(qgetenv("LC_ALL"))
        , wasSet_(qEnvironmentVariableIsSet("LC_ALL")) {
        qputenv("LC_ALL", locale);
    }
    DateLocaleScope(const DateLocaleScope&) = delete;
    DateLocaleScope& operator=(const DateLocaleScope&) = delete;
    ~DateLocaleScope() {
        if (wasSet_)
            qputenv("LC_ALL", before_);
        else
            qunsetenv("LC_ALL");
    }

private:
    QByteArray before_;
    bool wasSet_;
};

} // namespace tessarine::testing
