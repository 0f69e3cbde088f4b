#include "browser/rows/RowContents.h"

#include "browser/list/RowTimeFormatter.h"
#include "shared/DayKey.h"

#include <QCoreApplication>

namespace tessarine {

RowMenuContent menuContent(const CapturedNotification& row) {
    const QString date = dayTitleFormatter().text(row.timestamp);
    RowMenuContent content;
    content.id = row.id;
    content.pinned = row.pinned;
    content.appName = row.appName;
    content.dayKey = dayKey(row.timestamp);
    content.openText = qtTrId("contextMenu.openInApp").arg(row.appName);
    content.deleteAppText = qtTrId("contextMenu.deleteAllFrom").arg(row.appName);
    content.deleteDayText = qtTrId("contextMenu.deleteAllFromDate").arg(date);
    return content;
}

PreviewContent previewContent(const CapturedNotification& row) {
    PreviewContent content;
    content.bundleId = row.appBundleId;
    content.appName = row.appName;
    content.time = rowDateTimeFormatter().text(row.timestamp);
    content.title = row.title;
    content.body = row.body;
    content.openText = qtTrId("preview.open").arg(row.appName);
    return content;
}

} // namespace tessarine
