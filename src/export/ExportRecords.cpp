#include "export/ExportRecords.h"

#include "shared/UserLocale.h"

namespace tessarine {

QString hiddenText() {
    return QStringLiteral("[hidden]");
}

ExportTexts ExportMask::textsOf(const CapturedNotification& notification) const {
    if (!includePrivate_ && isPrivate_(notification.appBundleId))
        return {hiddenText(), hiddenText()};
    return {notification.title, notification.body};
}

ExportDates::ExportDates()
    : day(DateFormatter::withPattern(QStringLiteral("yyyy-MM-dd"), userDateLocale()))
    , time(DateFormatter::withPattern(QStringLiteral("HH:mm:ss"), userDateLocale())) {}

DateFormatter englishFormatter(const QString& pattern) {
    return DateFormatter::withPattern(pattern, QByteArrayLiteral("en_US"));
}

QString notificationCount(std::size_t count) {
    const QString plural = count == 1 ? QString() : QStringLiteral("s");
    return QStringLiteral("%1 notification%2").arg(count).arg(plural);
}

qsizetype expectedSize(const NotificationList& notifications) {
    constexpr qsizetype datesAndSeparators = 48;
    qsizetype size = 1024; // head and end
    for (const CapturedNotification& notification : notifications) {
        size += notification.appName.size() + notification.appBundleId.size() +
                notification.title.size() + notification.body.size() + datesAndSeparators;
    }
    return size;
}

} // namespace tessarine
