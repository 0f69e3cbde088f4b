#pragma once

#include "shared/DateFormatter.h"

#include <QByteArray>
#include <QString>

#include <array>

namespace tessarine {

// When a line was logged: "14:03:59.120", with the digits of a locale given by its ICU name, as the
// user's clock shows it. Made once for many lines. One thread at a time.
class LogTimeFormatter {
public:
    explicit LogTimeFormatter(const QByteArray& locale);

    // Of a moment in seconds since the reference date.
    QString text(double timestamp) const;

private:
    DateFormatter seconds_;
    std::array<QString, 10> digits_;
};

} // namespace tessarine
