#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace tessarine {

struct CapturedNotification;

// What an application's link depends on besides the notification.
struct LinkQuestions {
    double now = 0; // seconds since the reference date
    std::function<bool(const QString& bundleIdentifier)> isInstalled;
};

// The address that leads into the notification's application, where it is one of those that are
// known to have some, and is installed. A calendar opens at the date that the texts speak of, mail
// at the message; others come to the front. None for a date that no calendar shows. A timestamp
// that is no number of seconds ends the process, where the texts name no other date.
std::optional<QString> deepLink(const CapturedNotification& notification,
                                const LinkQuestions& questions);

// The id of a mail message, as it stands in the text between angle brackets.
std::optional<QString> mailMessageId(const QString& body);

// Whether the text is an address by RFC 3986, with a scheme and "//": each character is one that it
// allows in its place.
bool isAddress(const QString& text);

} // namespace tessarine
