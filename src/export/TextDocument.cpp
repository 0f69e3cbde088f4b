#include "export/TextDocument.h"

#include "shared/Text.h"

namespace tessarine {

namespace {

constexpr qsizetype ruleLength = 60;

// Where the product is at home.
const QString webDomain = QStringLiteral("zorvek.com");

// Lines with a line feed between two of them, none behind the last.
class Lines {
public:
    explicit Lines(qsizetype expectedSize) { bytes_.reserve(expectedSize); }

    void add(const QString& line) {
        if (!bytes_.isEmpty())
            bytes_ += '\n';
        bytes_ += storedUtf8(line);
    }
    void addIndented(QStringView text) { add(QStringLiteral("  ") + text.toString()); }
    void addRule(QChar character) { add(QString(ruleLength, character)); }
    void addEmpty() { add(QStringLiteral("")); }

    const QByteArray& bytes() const { return bytes_; }

private:
    QByteArray bytes_;
};

constexpr QChar solid = u'─';
constexpr QChar dotted = u'·';

void addHeading(Lines& lines, std::size_t count, double now) {
    const DateFormatter moment = englishFormatter(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    lines.add(QStringLiteral("Tessarine — Notification Archive"));
    lines.add(QStringLiteral("Generated : ") + moment.text(now));
    lines.add(QStringLiteral("Total     : ") + notificationCount(count));
    lines.addRule(solid);
    lines.addEmpty();
}

void addRecord(Lines& lines, const CapturedNotification& notification, const ExportTexts& texts,
               const QString& time) {
    lines.add(time + QStringLiteral("  [") + notification.appName + u']');
    if (!texts.title.isEmpty())
        lines.addIndented(texts.title);
    if (!texts.body.isEmpty() && texts.body != texts.title) {
        for (const QStringView piece : QStringView(texts.body).split(u'\n'))
            lines.addIndented(piece);
    }
    lines.addEmpty();
}

} // namespace

QByteArray textDocument(const NotificationList& notifications, const ExportMask& mask, double now) {
    const ExportDates dates;
    Lines lines(expectedSize(notifications));
    addHeading(lines, notifications.size(), now);
    for (const auto& group : groupedByDay(notifications, dates.day)) {
        lines.add(QStringLiteral("▸ ") + group.key + QStringLiteral("  (") +
                  notificationCount(group.records.size()) + u')');
        lines.addRule(dotted);
        for (const CapturedNotification* notification : group.records)
            addRecord(lines, *notification, mask.textsOf(*notification),
                      dates.time.text(notification->timestamp));
    }
    lines.addRule(solid);
    lines.add(QStringLiteral("End of report — Tessarine · ") + webDomain);
    return lines.bytes();
}

} // namespace tessarine
