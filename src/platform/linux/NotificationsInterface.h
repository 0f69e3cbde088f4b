#pragma once

// Names that the Desktop Notifications Specification fixes.
namespace tessarine::notifications {

inline constexpr char name[] = "org.freedesktop.Notifications";
inline constexpr char interface[] = "org.freedesktop.Notifications";
inline constexpr char path[] = "/org/freedesktop/Notifications";
inline constexpr char notify[] = "Notify";
inline constexpr char notificationClosed[] = "NotificationClosed";
inline constexpr char notifySignature[] = "susssasa{sv}i";
inline constexpr char desktopEntryHint[] = "desktop-entry";

} // namespace tessarine::notifications
