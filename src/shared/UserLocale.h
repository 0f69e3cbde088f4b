#pragma once

#include <QByteArray>

namespace tessarine {

// The ICU name of the locale in which the user reads dates.
QByteArray userDateLocale();

} // namespace tessarine
