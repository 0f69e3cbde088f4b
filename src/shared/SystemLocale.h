#pragma once

#include <QByteArray>

namespace tessarine {

// The name of the locale in which the system shows dates to the user, in POSIX form:
// "de_AT.UTF-8", "sr_RS@latin". Each system's folder defines it. Any thread.
QByteArray systemDateLocaleName();

} // namespace tessarine
