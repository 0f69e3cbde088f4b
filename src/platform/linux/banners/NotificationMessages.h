#pragma once

#include "platform/linux/banners/BannerCall.h"

#include <QString>

#include <dbus/dbus.h>

#include <optional>

namespace tessarine {

// Reads what applications send to the services that draw banners. Texts are kept within their
// bounds; of the message, which may hold pictures and far more, nothing else is copied. Arguments
// that are not what the interface has make no announcement.

// An announcement as it was sent, without the moment.
struct SentAnnouncement {
    BannerCall call;
    QString desktopEntry; // the id of the application's entry, where its name isn't told; or empty
};

// Which service a call is meant for, by its interface, or its path where it names none. Nothing
// when it is for neither.
std::optional<NotificationService> calledService(DBusMessage* call);

// A call of Notify (the body with markup) or AddNotification (as plain text) that calls this
// service.
std::optional<SentAnnouncement> readAnnouncement(DBusMessage* call, NotificationService service);

// A call of RemoveNotification.
std::optional<BannerName> readRemoval(DBusMessage* call);

// A signal NotificationClosed: the banner's number.
std::optional<std::uint32_t> readClosed(DBusMessage* signal);

// The number that a message begins with. Nothing when it begins with something else.
std::optional<std::uint32_t> firstNumber(DBusMessage* message);

// Which call a reply answers: its destination and its serial.
AnnouncementKey answeredCall(DBusMessage* reply);

// Empty where the message has none.
const char* senderOf(DBusMessage* message);
const char* destinationOf(DBusMessage* message);

} // namespace tessarine
