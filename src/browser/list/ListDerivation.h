#pragma once

#include "shared/CapturedNotification.h"

#include <QMap>
#include <QStringList>

#include <array>
#include <vector>

namespace tessarine {

// How the browser's list is made of the loaded notifications: filter, sort, group. Pure functions;
// nothing is remembered from one use to the next.

enum class GroupMode { none, app, date };
enum class SortMode { newest, oldest, app };

inline constexpr std::array allGroupModes{GroupMode::none, GroupMode::app, GroupMode::date};
inline constexpr std::array allSortModes{SortMode::newest, SortMode::oldest, SortMode::app};

QString rawValue(GroupMode mode);
QString rawValue(SortMode mode);

// The text that the user reads for the mode.
QString label(GroupMode mode);
QString label(SortMode mode);

// The choice of the app filter that keeps every application.
inline const QString everyApp = QStringLiteral("All");

struct NotificationGroup {
    QString key;
    NotificationList notifications;

    bool operator==(const NotificationGroup&) const = default;
};

// The rows of the application with exactly this shown name, or of every one.
NotificationList keepingApp(NotificationList rows, const QString& selectedApp);

// The rows whose title, body or application name holds the text, both in lower case. Blanks count,
// accents are not folded. An empty text keeps all.
NotificationList keepingMatches(NotificationList rows, const QString& searchText);

// Stable under every mode. A timestamp that is no number counts as before all others.
NotificationList sortedBy(SortMode mode, NotificationList rows);

// Groups keep the order of the rows; applications come by name in plain text order, days newest
// first.
std::vector<NotificationGroup> groupedByApp(const NotificationList& rows);
std::vector<NotificationGroup> groupedByDate(const NotificationList& rows);

QStringList uniqueApps(const NotificationList& rows); // ascending in plain text order
QStringList uniqueDays(const NotificationList& rows); // day keys, newest first
QMap<QString, qsizetype> dayCounts(const NotificationList& rows);

} // namespace tessarine
