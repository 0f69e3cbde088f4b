#pragma once

#include "platform/linux/banners/BannerCall.h"

// Names that the Desktop Notifications Specification fixes, and those of the service that GLib's
// applications use where a shell offers it.
namespace tessarine {

// Where a service is found on the bus.
struct NotificationInterface {
    const char* name; // of whoever serves, and of the interface
    const char* path;
};

constexpr NotificationInterface interfaceOf(NotificationService service) {
    return service == NotificationService::freedesktop
               ? NotificationInterface{"org.freedesktop.Notifications",
                                       "/org/freedesktop/Notifications"}
               : NotificationInterface{"org.gtk.Notifications", "/org/gtk/Notifications"};
}

namespace notifications {

// org.freedesktop.Notifications
inline constexpr char notify[] = "Notify";
inline constexpr char notifySignature[] = "susssasa{sv}i";
inline constexpr char notificationClosed[] = "NotificationClosed";
inline constexpr char desktopEntryHint[] = "desktop-entry";

// org.gtk.Notifications
inline constexpr char addNotification[] = "AddNotification";
inline constexpr char addNotificationSignature[] = "ssa{sv}";
inline constexpr char removeNotification[] = "RemoveNotification";
inline constexpr char removeNotificationSignature[] = "ss";
inline constexpr char titleKey[] = "title";
inline constexpr char bodyKey[] = "body";

} // namespace notifications

} // namespace tessarine
