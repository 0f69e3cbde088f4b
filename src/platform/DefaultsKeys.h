#pragma once

#include <QString>

namespace tessarine {

// All keys of the defaults domain, and what each of them holds. A key keeps its spelling and its
// type for ever: later versions read what earlier ones have written.
namespace defaultsKeys {

// The settings, each written by PreferencesStore alone.
inline const QString retentionDays = QStringLiteral("retentionDays");               // integer
inline const QString globalPrivacyMode = QStringLiteral("globalPrivacyMode");       // bool
inline const QString privacyApps = QStringLiteral("privacyApps");                   // bundle ids
inline const QString excludedBundleIds = QStringLiteral("excludedBundleIds");       // bundle ids
inline const QString otpRetentionHours = QStringLiteral("otpRetentionHours");       // integer
inline const QString appearanceMode = QStringLiteral("appearanceMode");             // text
inline const QString hasAcceptedEULA = QStringLiteral("hasAcceptedEULA");           // bool
inline const QString hasSeenOnboarding = QStringLiteral("hasSeenOnboarding");       // bool
inline const QString hasSeenPrivacyNotice = QStringLiteral("hasSeenPrivacyNotice"); // bool
inline const QString launchLoginPromptSuppressed =
    QStringLiteral("launchLoginPromptSuppressed"); // bool

// How far the capture has come, written by HoardStore.
inline const QString lastSeenUsernotedTimestamp =
    QStringLiteral("lastSeenUsernotedTimestamp"); // number: seconds since the reference date
inline const QString lastSeenUsernotedRecIds =
    QStringLiteral("lastSeenUsernotedRecIds"); // integers: the keys at that time
inline const QString lastSeenUsernotedRecId = QStringLiteral("lastSeenUsernotedRecId"); // integer
inline const QString lastSeenSystemNoteId = QStringLiteral("lastSeenSystemNoteId");     // integer

// Whether the user wants no more questions for access to the system's database. Bool, written by
// PermissionFlow and by the status item's menu.
inline const QString fdaSkipped = QStringLiteral("fdaSkipped");

// The number of rows that the status item has shown last, written by MenuBarController. Integer.
inline const QString menuBarLastSeenCount = QStringLiteral("menuBarLastSeenCount");

// How far the status panel is from the lower right corner, where the desktop has no tray. Integers:
// points to the left and upwards.
inline const QString statusPanelOffset = QStringLiteral("statusPanelOffset");

// Whether the desktop's portal has granted a start at login, written by LinuxConfinedLoginItem: in
// a sandbox the desktop can't be asked. Bool.
inline const QString startsAtLoginByPortal = QStringLiteral("startsAtLoginByPortal");

// Whether the system brings windows back at the next start, written at launch. Bool, false.
inline const QString restoresWindows = QStringLiteral("NSQuitAlwaysKeepsWindows");

// The frame of a window with this name, as text.
inline QString windowFrame(const QString& name) {
    return QStringLiteral("NSWindow Frame ") + name;
}

} // namespace defaultsKeys

} // namespace tessarine
