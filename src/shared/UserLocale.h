#pragma once

#include <QByteArray>

namespace tessarine {

// The ICU name of the locale in which the user reads dates, in the script that the system's name of
// it asks for: "sr_RS@latin" is "sr_Latn_RS". Any thread.
QByteArray userDateLocale();

} // namespace tessarine
