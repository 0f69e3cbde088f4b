#pragma once

#include "shared/CapturedNotification.h"
#include "shared/DateFormatter.h"

#include <QHash>
#include <QString>

#include <algorithm>
#include <functional>
#include <vector>

// What the writers of all formats have in common.

namespace tessarine {

// What stands in a file in place of a title or a body that is masked.
QString hiddenText();

// A notification's texts as a file may show them.
struct ExportTexts {
    QString title;
    QString body;

    bool operator==(const ExportTexts&) const = default;
};

// Decides record by record, at the moment when it is asked, so that a setting changed during an
// export applies to what isn't written yet.
class ExportMask {
public:
    using IsPrivate = std::function<bool(const QString& bundleId)>;

    ExportMask(IsPrivate isPrivate, bool includePrivate)
        : isPrivate_(std::move(isPrivate))
        , includePrivate_(includePrivate) {}

    ExportTexts textsOf(const CapturedNotification& notification) const;

private:
    IsPrivate isPrivate_;
    bool includePrivate_;
};

// The formats of days and times in all files, in the user's locale and time zone.
struct ExportDates {
    ExportDates();

    DateFormatter day;  // "yyyy-MM-dd"
    DateFormatter time; // "HH:mm:ss"
};

// A moment in English, for the head of a file.
DateFormatter englishFormatter(const QString& pattern);

// "1 notification", "2 notifications".
QString notificationCount(std::size_t count);

// About how many bytes the notifications take in a file, so that a growing text need not move.
qsizetype expectedSize(const NotificationList& notifications);

// The records of one day, in the order in which they were given. They belong to the caller.
template <typename Record>
struct DayGroup {
    QString key;
    std::vector<const Record*> records;
};

// The newest day comes first.
template <typename Record>
std::vector<DayGroup<Record>> groupedByDay(const std::vector<Record>& records,
                                           const DateFormatter& day) {
    std::vector<DayGroup<Record>> groups;
    QHash<QString, std::size_t> groupOfKey;
    for (const Record& record : records) {
        const QString key = day.text(record.timestamp);
        const auto found = groupOfKey.constFind(key);
        if (found != groupOfKey.constEnd()) {
            groups[*found].records.push_back(&record);
        } else {
            groupOfKey.insert(key, groups.size());
            groups.push_back({key, {&record}});
        }
    }
    std::sort(groups.begin(), groups.end(),
              [](const auto& left, const auto& right) { return left.key > right.key; });
    return groups;
}

} // namespace tessarine
