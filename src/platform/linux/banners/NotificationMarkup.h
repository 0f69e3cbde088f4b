#pragma once

#include <QString>

#include <string_view>

namespace tessarine {

// The body of a notification as a reader sees it. The tags b, i, u, a and img of the Desktop
// Notifications Specification go, in either case of letters, with or without their counterpart;
// the five entities of XML and the numeric ones become their characters, once. Everything else
// stays as it was sent: other tags, "1 < 2 & <3", entities that name no character. Kept are so many
// characters, as of any text from the bus, and no more is decoded than that takes. Takes time in
// proportion to the length, whatever the text.
QString withoutMarkup(std::string_view utf8, qsizetype characters);

} // namespace tessarine
