#include "shared/LocalZone.h"

#include <QByteArray>
#include <QtGlobal>

#include <unicode/timezone.h>

#include <array>
#include <chrono>
#include <ctime>
#include <mutex>
#include <utility>

namespace tessarine {

namespace {

// How far the local clock is ahead of UTC in each summer and winter from 2000 to 2040, in seconds.
using Offsets = std::array<long, 80>;

Offsets offsetsNow() {
    constexpr std::time_t halfYear = 15778800;
    constexpr std::time_t january2000 = 946684800;
    Offsets offsets{};
    std::time_t moment = january2000;
    for (long& offset : offsets) {
        std::tm local{};
        if (localtime_r(&moment, &local))
            offset = local.tm_gmtoff;
        moment += halfYear;
    }
    return offsets;
}

class ZoneWatch {
public:
    int number() {
        const std::lock_guard lock(mutex_);
        const auto now = std::chrono::steady_clock::now();
        QByteArray variable = qgetenv("TZ");
        if (now < looksAgainAt_ && variable == variable_)
            return number_;
        tzset();
        looksAgainAt_ = now + std::chrono::seconds(1);
        variable_ = std::move(variable);
        const Offsets offsets = offsetsNow();
        if (std::exchange(offsets_, offsets) != offsets)
            ++number_;
        return number_;
    }

private:
    std::mutex mutex_;
    std::chrono::steady_clock::time_point looksAgainAt_;
    QByteArray variable_;
    Offsets offsets_{};
    int number_ = 1;
};

} // namespace

int localZoneNumber() {
    static ZoneWatch watch;
    return watch.number();
}

void followLocalZone() {
    static std::mutex mutex;
    static int followed = 0;
    const std::lock_guard lock(mutex);
    const int number = localZoneNumber();
    if (std::exchange(followed, number) != number)
        icu::TimeZone::adoptDefault(icu::TimeZone::detectHostTimeZone());
}

} // namespace tessarine
