#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace tessarine::testing {

// Sets the variable TZ for the length of a scope. Nobody is told: what has found another zone
// before must find this one by itself.
class TimeZoneScope {
public:
    explicit TimeZoneScope(const char* zone)
        : before_(qgetenv("TZ"))
        , wasSet_(qEnvironmentVariableIsSet("TZ")) {
        qputenv("TZ", zone);
    }
    TimeZoneScope(const TimeZoneScope&) = delete;
    TimeZoneScope& operator=(const TimeZoneScope&) = delete;
    ~TimeZoneScope() {
        if (wasSet_)
            qputenv("TZ", before_);
        else
            qunsetenv("TZ");
    }

private:
    QByteArray before_;
    bool wasSet_;
};

} // namespace tessarine::testing
