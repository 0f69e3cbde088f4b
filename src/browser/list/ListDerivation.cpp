#include "browser/list/ListDerivation.h"

#include "shared/DayKey.h"
#include "shared/Text.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace tessarine {

namespace {

struct ModeTexts {
    const char16_t* rawValue;
    const char* labelId;
};

constexpr std::array<ModeTexts, 3> groupModeTexts{{
    {u"none", QT_TRID_NOOP("toolbar.group.none")},
    {u"app", QT_TRID_NOOP("toolbar.group.byApp")},
    {u"date", QT_TRID_NOOP("toolbar.group.byDate")},
}};

constexpr std::array<ModeTexts, 3> sortModeTexts{{
    {u"newest", QT_TRID_NOOP("toolbar.sort.newest")},
    {u"oldest", QT_TRID_NOOP("toolbar.sort.oldest")},
    {u"app", QT_TRID_NOOP("toolbar.sort.appAZ")},
}};

const ModeTexts& texts(GroupMode mode) {
    return groupModeTexts.at(static_cast<std::size_t>(mode));
}

const ModeTexts& texts(SortMode mode) {
    return sortModeTexts.at(static_cast<std::size_t>(mode));
}

double sortKey(const CapturedNotification& row) {
    return std::isnan(row.timestamp) ? -std::numeric_limits<double>::infinity() : row.timestamp;
}

bool isNewer(const CapturedNotification& left, const CapturedNotification& right) {
    return sortKey(left) > sortKey(right);
}

bool isOlder(const CapturedNotification& left, const CapturedNotification& right) {
    return sortKey(left) < sortKey(right);
}

// Lowers each name once: a comparison is made far more often.
NotificationList sortedByName(NotificationList rows) {
    std::vector<std::pair<QString, std::size_t>> names;
    names.reserve(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        names.emplace_back(rows[i].appName.toLower(), i);
    std::stable_sort(names.begin(), names.end(), [](const auto& left, const auto& right) {
        return plainTextLess(left.first, right.first);
    });
    NotificationList sorted;
    sorted.reserve(rows.size());
    for (const auto& [name, place] : names)
        sorted.push_back(std::move(rows[place]));
    return sorted;
}

template <typename KeyOf>
std::vector<NotificationGroup> groupedBy(const KeyOf& keyOf, const NotificationList& rows) {
    std::vector<NotificationGroup> groups;
    QHash<QString, std::size_t> places;
    for (const CapturedNotification& row : rows) {
        const QString key = keyOf(row);
        const auto place = places.constFind(key);
        if (place != places.constEnd()) {
            groups[*place].notifications.push_back(row);
            continue;
        }
        places.insert(key, groups.size());
        groups.push_back({key, {row}});
    }
    return groups;
}

} // namespace

QString rawValue(GroupMode mode) {
    return QString::fromUtf16(texts(mode).rawValue);
}

QString rawValue(SortMode mode) {
    return QString::fromUtf16(texts(mode).rawValue);
}

QString label(GroupMode mode) {
    return qtTrId(texts(mode).labelId);
}

QString label(SortMode mode) {
    return qtTrId(texts(mode).labelId);
}

NotificationList keepingApp(NotificationList rows, const QString& selectedApp) {
    if (selectedApp != everyApp)
        std::erase_if(rows, [&](const auto& row) { return row.appName != selectedApp; });
    return rows;
}

NotificationList keepingMatches(NotificationList rows, const QString& searchText) {
    if (searchText.isEmpty())
        return rows;
    const QString wanted = searchText.toLower();
    std::erase_if(rows, [&](const CapturedNotification& row) {
        return !row.title.toLower().contains(wanted) && !row.body.toLower().contains(wanted) &&
               !row.appName.toLower().contains(wanted);
    });
    return rows;
}

NotificationList sortedBy(SortMode mode, NotificationList rows) {
    if (mode == SortMode::app)
        return sortedByName(std::move(rows));
    const auto isBefore = mode == SortMode::newest ? isNewer : isOlder;
    if (!std::is_sorted(rows.begin(), rows.end(), isBefore)) // as the hoard gives most of them
        std::stable_sort(rows.begin(), rows.end(), isBefore);
    return rows;
}

std::vector<NotificationGroup> groupedByApp(const NotificationList& rows) {
    auto groups = groupedBy([](const CapturedNotification& row) { return row.appName; }, rows);
    std::sort(groups.begin(), groups.end(), [](const auto& left, const auto& right) {
        return plainTextLess(left.key, right.key);
    });
    return groups;
}

std::vector<NotificationGroup> groupedByDate(const NotificationList& rows) {
    auto groups =
        groupedBy([](const CapturedNotification& row) { return dayKey(row.timestamp); }, rows);
    std::sort(groups.begin(), groups.end(), [](const auto& left, const auto& right) {
        return plainTextLess(right.key, left.key);
    });
    return groups;
}

QStringList uniqueApps(const NotificationList& rows) {
    QSet<QString> names;
    for (const CapturedNotification& row : rows)
        names.insert(row.appName);
    QStringList sorted(names.begin(), names.end());
    std::sort(sorted.begin(), sorted.end(), plainTextLess);
    return sorted;
}

QStringList uniqueDays(const NotificationList& rows) {
    const QMap<QString, qsizetype> counts = dayCounts(rows);
    QStringList days = counts.keys();
    std::sort(days.begin(), days.end(),
              [](const QString& left, const QString& right) { return plainTextLess(right, left); });
    return days;
}

QMap<QString, qsizetype> dayCounts(const NotificationList& rows) {
    QMap<QString, qsizetype> counts;
    for (const CapturedNotification& row : rows)
        ++counts[dayKey(row.timestamp)];
    return counts;
}

} // namespace tessarine
