// Shows moments in one time zone after the other through every function that names a day or a time,
// for a judge of another kind.
//
//   zone_times <REQUESTS
//
// Each line is a request as a JSON object, and one is written for each. "zone" sets the variable
// TZ, null takes it away. The other members ask; moments are in seconds since the reference date:
//
//   "moments"    [MOMENT...]          "keys", "rows", "times", "csv" and "txt" of them
//   "days"       [KEY...]             "starts" and "titles" of days
//   "looks"      [MOMENT...]          "presets": all bounds for a user who looks then
//   "clocks"     [[MOMENT, TEXT]...]  "clocks": when a banner with this time, read then, was shown
//   "events"     [[MOMENT, TEXT]...]  "events": what the text means then
//   "deletions"  [[KEY, MOMENT...]...]  "kept": which rows of these moments the deletion of a day
//   leaves

#include "apps/EventDate.h"
#include "browser/list/ListEntry.h"
#include "browser/list/RowTimeFormatter.h"
#include "browser/selection/DateRangePreset.h"
#include "capture/BannerParsing.h"
#include "export/CsvDocument.h"
#include "export/TextDocument.h"
#include "shared/DayKey.h"
#include "store/HoardStore.h"
#include "support/SimulatedPlatform.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <cstdio>
#include <iostream>
#include <memory>
#include <string>

namespace {

using namespace tessarine;
using namespace Qt::StringLiterals;

// What the function gives for each member of the list.
template <typename Function>
QJsonArray each(const QJsonValue& list, const Function& function) {
    QJsonArray results;
    for (const QJsonValue member : list.toArray())
        results.append(function(member));
    return results;
}

CapturedNotification rowAt(double timestamp) {
    CapturedNotification row;
    row.appName = u"App"_qs;
    row.appBundleId = u"com.example.app"_qs;
    row.title = u"Title"_qs;
    row.timestamp = timestamp;
    return row;
}

void showMoments(const QJsonValue& moments, QJsonObject& answer) {
    NotificationList list;
    for (const QJsonValue moment : moments.toArray())
        list.push_back(rowAt(moment.toDouble()));
    answer[u"keys"_qs] = each(moments, [](const auto& m) { return dayKey(m.toDouble()); });
    answer[u"rows"_qs] =
        each(moments, [](const auto& m) { return rowDateTimeFormatter().text(m.toDouble()); });
    answer[u"times"_qs] =
        each(moments, [](const auto& m) { return rowTimeFormatter().text(m.toDouble()); });
    const ExportMask mask([](const QString&) { return false; }, false);
    answer[u"csv"_qs] = QString::fromUtf8(csvDocument(list, mask));
    answer[u"txt"_qs] =
        QString::fromUtf8(textDocument(list, mask, list.empty() ? 0 : list.front().timestamp));
}

QJsonValue startOf(const QJsonValue& key) {
    const auto start = startOfDay(key.toString());
    return start ? QJsonValue(*start) : QJsonValue();
}

QJsonValue presetsAt(const QJsonValue& moment) {
    QJsonArray bounds;
    for (const DateRangePreset preset : allDateRangePresets) {
        const auto [start, end] = presetBounds(preset, moment.toDouble());
        bounds.append(QJsonArray{start, end});
    }
    return bounds;
}

QJsonValue clockOf(const QJsonValue& reading) {
    return inferTimestamp(reading[1].toString(), reading[0].toDouble());
}

QJsonValue eventOf(const QJsonValue& reading) {
    const auto date = eventDate(reading[1].toString(), {}, -1, reading[0].toDouble());
    return date ? QJsonValue(*date) : QJsonValue();
}

// A hoard that is empty before each deletion.
class Hoard {
public:
    QJsonValue keptBy(const QJsonValue& deletion) {
        const QJsonArray parts = deletion.toArray();
        store_.deleteAll();
        for (qsizetype i = 1; i < parts.size(); ++i) {
            CapturedNotification row = rowAt(parts[i].toDouble());
            row.noteId = ++noteId_;
            store_.insert(row);
        }
        store_.deleteDay(parts[0].toString());
        QJsonArray kept;
        for (const CapturedNotification& row : store_.fetchRecent(500))
            kept.append(row.timestamp);
        return kept;
    }

private:
    QTemporaryDir home_;
    testing::SimulatedPlatform system_{home_.path()};
    HoardStore store_{system_.fileSystem, system_.defaults, system_.scheduler};
    qint64 noteId_ = 0;
};

void setZone(const QJsonValue& zone) {
    if (zone.isNull())
        qunsetenv("TZ");
    else if (zone.isString())
        qputenv("TZ", zone.toString().toUtf8());
}

QJsonObject answerTo(const QJsonObject& request, Hoard& hoard) {
    setZone(request[u"zone"_qs]);
    QJsonObject answer;
    showMoments(request[u"moments"_qs], answer);
    answer[u"starts"_qs] = each(request[u"days"_qs], startOf);
    answer[u"titles"_qs] =
        each(request[u"days"_qs], [](const auto& key) { return dayTitle(key.toString()); });
    answer[u"presets"_qs] = each(request[u"looks"_qs], presetsAt);
    answer[u"clocks"_qs] = each(request[u"clocks"_qs], clockOf);
    answer[u"events"_qs] = each(request[u"events"_qs], eventOf);
    answer[u"kept"_qs] = each(request[u"deletions"_qs],
                              [&](const auto& deletion) { return hoard.keptBy(deletion); });
    return answer;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    Hoard hoard;
    for (std::string line; std::getline(std::cin, line);) {
        const QJsonDocument request = QJsonDocument::fromJson(QByteArray::fromStdString(line));
        const QByteArray answer =
            QJsonDocument(answerTo(request.object(), hoard)).toJson(QJsonDocument::Compact);
        std::printf("%s\n", answer.constData());
        std::fflush(stdout);
    }
    return 0;
}
