#include "export/CsvDocument.h"

#include "shared/Text.h"

namespace tessarine {

namespace {

constexpr QChar separator = u';';
constexpr QChar quote = u'"';
constexpr QChar lineFeed = u'\n';
constexpr QChar carriageReturn = u'\r';

constexpr char byteOrderMark[] = "\xEF\xBB\xBF";
constexpr char heading[] = "Date;Time;App;Bundle ID;Title;Body";

bool needsQuotes(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar character) {
        return character == separator || character == quote || character == lineFeed ||
               character == carriageReturn;
    });
}

} // namespace

QString csvField(const QString& text) {
    if (!needsQuotes(text))
        return text;
    QString doubled = text;
    doubled.replace(quote, QStringLiteral("\"\""));
    return quote + doubled + quote;
}

QByteArray csvDocument(const NotificationList& notifications, const ExportMask& mask) {
    const ExportDates dates;
    QByteArray bytes;
    bytes.reserve(expectedSize(notifications));
    bytes += byteOrderMark;
    bytes += heading;
    for (const CapturedNotification& notification : notifications) {
        const ExportTexts texts = mask.textsOf(notification);
        bytes += '\n';
        bytes += storedUtf8(dates.day.text(notification.timestamp));
        bytes += ';';
        bytes += storedUtf8(dates.time.text(notification.timestamp));
        for (const QString& text :
             {notification.appName, notification.appBundleId, texts.title, texts.body}) {
            bytes += ';';
            bytes += storedUtf8(csvField(text));
        }
    }
    return bytes;
}

} // namespace tessarine
