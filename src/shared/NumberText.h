#pragma once

#include <QByteArray>
#include <QString>

namespace tessarine {

// A whole number in groups and digits as the readers of a locale, given by its ICU name, are used
// to: "1,234,567". By ICU. Any thread.
QString groupedNumber(qint64 number, const QByteArray& locale);

} // namespace tessarine
