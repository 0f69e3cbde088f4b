#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <unicode/timezone.h>

#include <ctime>

namespace tessarine::testing {

// Makes a time zone that of the process, for the length of a scope. The libraries that keep the
// zone they have found once are made to look again.
class TimeZoneScope {
public:
    explicit TimeZoneScope(const char* zone)
        : before_(qgetenv("TZ"))
        , wasSet_(qEnvironmentVariableIsSet("TZ")) {
        qputenv("TZ", zone);
        lookAgain();
    }
    TimeZoneScope(const TimeZoneScope&) = delete;
    TimeZoneScope& operator=(const TimeZoneScope&) = delete;
    ~TimeZoneScope() {
        if (wasSet_)
            qputenv("TZ", before_);
        else
            qunsetenv("TZ");
        lookAgain();
    }

private:
    static void lookAgain() {
        tzset();
        icu::TimeZone::adoptDefault(icu::TimeZone::detectHostTimeZone());
    }

    QByteArray before_;
    bool wasSet_;
};

} // namespace tessarine::testing
