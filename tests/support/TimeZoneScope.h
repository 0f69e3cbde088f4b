#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <ctime>

namespace tessarine::testing {

// Makes a time zone that of the process, for the length of a scope, as a user would: ICU, which
// keeps the zone that it has found once, isn't told.
class TimeZoneScope {
public:
    explicit TimeZoneScope(const char* zone)
        : before_(qgetenv("TZ"))
        , wasSet_(qEnvironmentVariableIsSet("TZ")) {
        qputenv("TZ", zone);
        tzset();
    }
    TimeZoneScope(const TimeZoneScope&) = delete;
    TimeZoneScope& operator=(const TimeZoneScope&) = delete;
    ~TimeZoneScope() {
        if (wasSet_)
            qputenv("TZ", before_);
        else
            qunsetenv("TZ");
        tzset();
    }

private:
    QByteArray before_;
    bool wasSet_;
};

} // namespace tessarine::testing
