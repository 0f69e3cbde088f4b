#pragma once

#include "platform/linux/AnnouncementFilter.h"

#include <QString>

#include <dbus/dbus.h>

#include <optional>

namespace tessarine {

// Reads the announcement out of a call of org.freedesktop.Notifications.Notify: the application
// and the summary as sent, the body without its markup. Nothing else is copied. Nothing when the
// message isn't such a call, or its arguments are not what the interface has.
std::optional<Announcement> readNotify(DBusMessage* message);

// The id of the sender's desktop entry, as the hint tells it. Empty when there is none.
QString desktopEntryHint(DBusMessage* notify);

// Which call a reply answers: its destination and its serial.
AnnouncementKey answeredCall(DBusMessage* reply);

} // namespace tessarine
