#include "diagnostics/LogTimeFormatter.h"

#include "shared/NumberText.h"

#include <cmath>

namespace tessarine {

LogTimeFormatter::LogTimeFormatter(const QByteArray& locale)
    : seconds_(DateFormatter::withPattern(QStringLiteral("HH:mm:ss"), locale)) {
    for (std::size_t digit = 0; digit < digits_.size(); ++digit)
        digits_[digit] = groupedNumber(qint64(digit), locale);
}

// A moment given in milliseconds may be a little less in binary. To the microsecond it isn't.
QString LogTimeFormatter::text(double timestamp) const {
    constexpr double microseconds = 1e6;
    const double exact = std::round(timestamp * microseconds) / microseconds;
    const double second = std::floor(exact);
    const auto thousandths = std::size_t(std::round((exact - second) * microseconds)) / 1000;
    return seconds_.text(second) + u'.' + digits_[thousandths / 100] +
           digits_[thousandths / 10 % 10] + digits_[thousandths % 10];
}

} // namespace tessarine
