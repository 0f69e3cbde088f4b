#pragma once

#include "shared/DateStyle.h"

#include <QByteArray>
#include <QString>

#include <optional>

// How the user reads dates, as the system is set. Each system's folder defines both. Any thread.

namespace tessarine {

// The ICU name of the locale, in the script that the system's name of it asks for: "sr_RS@latin" is
// "sr_Latn_RS".
QByteArray userDateLocale();

// The Unicode date pattern of such a text, where the user can set it apart from the locale. Nothing
// where the locale alone decides.
std::optional<QString> userDatePattern(DateStyle date, DateStyle time);

} // namespace tessarine
