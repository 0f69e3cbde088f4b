#include "apps/DeepLink.h"

#include "apps/EventDate.h"
#include "shared/CapturedNotification.h"
#include "shared/ReferenceTime.h"

#include <QRegularExpression>

#include <array>
#include <cmath>

namespace tessarine {

namespace {

// What follows an address that the table fixes.
enum class Tail { none, seconds, messageId };

struct KnownApplication {
    const char* bundleIdentifier;
    const char* address; // null: the application has none and is started as any other
    Tail tail = Tail::none;
};

constexpr std::array<KnownApplication, 17> knownApplications{{
    {"com.apple.iCal", "calshow://", Tail::seconds},
    {"com.apple.reminders", "x-apple-reminderkit://"},
    {"com.apple.mail", "message://", Tail::messageId},
    {"com.apple.MobileSMS", "sms://"},
    {"com.apple.facetime", "facetime://"},
    {"com.tinyspeck.slackmacgap", "slack://open"},
    {"ru.keepcoder.Telegram", "tg://"},
    {"org.telegram.desktop", "tg://"},
    {"net.whatsapp.WhatsApp", nullptr},
    {"com.whatsapp.WhatsApp", nullptr},
    {"com.readdle.smartemail", "readdle-spark://"},
    {"com.mimestream.Mimestream", "mimestream://"},
    {"it.bloop.airmail5", "airmail5://"},
    {"com.flexibits.fantastical2.mac", "x-fantastical2://show/calendar?date=", Tail::seconds},
    {"com.culturedcode.ThingsMac", "things:///show?id=today"},
    {"com.omnigroup.OmniFocus3", "omnifocus:///forecast"},
    {"net.shinyfrog.bear", "bear://"},
}};

const KnownApplication* knownApplication(const QString& bundleIdentifier) {
    for (const KnownApplication& application : knownApplications) {
        if (bundleIdentifier == QLatin1String(application.bundleIdentifier))
            return &application;
    }
    return nullptr;
}

// Nothing for a date that no calendar shows. One that isn't even a number of seconds is a fault;
// only a timestamp can be that.
std::optional<QString> secondsText(double date) {
    constexpr double beyond = 9223372036854775808.0; // 2^63
    const double seconds = std::trunc(date + unixSecondsAtReferenceDate);
    if (!(seconds >= -beyond && seconds < beyond))
        qFatal("The date %g has no number of seconds", date);
    return hasDate(date) ? std::optional(QString::number(qint64(seconds))) : std::nullopt;
}

std::optional<QString> dateText(const CapturedNotification& notification, double now) {
    const std::optional<double> date =
        eventDate(notification.body, notification.title, notification.timestamp, now);
    return date ? secondsText(*date) : std::nullopt;
}

std::optional<QString> tailText(Tail tail, const CapturedNotification& notification, double now) {
    switch (tail) {
    case Tail::none:
        return QString();
    case Tail::seconds:
        return dateText(notification, now);
    case Tail::messageId:
        return mailMessageId(notification.body).value_or(QString());
    }
    return std::nullopt;
}

// The parts of an address, by RFC 3986, appendix A.
QString addressPattern() {
    const QString percent = QStringLiteral("%[0-9A-Fa-f]{2}");
    const QString plain = QStringLiteral("[A-Za-z0-9._~!$&'()*+,;=-]");
    const QString userCharacter = QStringLiteral("(?:%1|:|%2)").arg(plain, percent);
    const QString hostCharacter = QStringLiteral("(?:%1|%2)").arg(plain, percent);
    const QString pathCharacter = QStringLiteral("(?:%1|[:@/]|%2)").arg(plain, percent);
    const QString queryCharacter = QStringLiteral("(?:%1|[:@/?]|%2)").arg(plain, percent);
    return QStringLiteral("[A-Za-z][A-Za-z0-9+.-]*://(?:%1*+@)?(?:\\[[0-9A-Za-z.:]+\\]|%2*+)"
                          "(?::[0-9]*)?(?:/%3*+)?(?:\\?%4*+)?(?:#%4*+)?")
        .arg(userCharacter, hostCharacter, pathCharacter, queryCharacter);
}

} // namespace

std::optional<QString> deepLink(const CapturedNotification& notification,
                                const LinkQuestions& questions) {
    const KnownApplication* const application = knownApplication(notification.appBundleId);
    if (!application || !application->address || !questions.isInstalled(notification.appBundleId))
        return std::nullopt;
    const std::optional<QString> tail = tailText(application->tail, notification, questions.now);
    if (!tail)
        return std::nullopt;
    const QString address = QString::fromLatin1(application->address) + *tail;
    return isAddress(address) ? std::optional(address) : std::nullopt;
}

// The pattern "<([^>]+@[^>]+)>", in one pass: what lies before a closing bracket counts from the
// first opening one.
std::optional<QString> mailMessageId(const QString& body) {
    qsizetype start = 0;
    for (qsizetype end = body.indexOf(u'>'); end >= 0; end = body.indexOf(u'>', start)) {
        const QStringView before = QStringView(body).sliced(start, end - start);
        start = end + 1;
        const qsizetype opening = before.indexOf(u'<');
        if (opening < 0)
            continue;
        const QStringView id = before.sliced(opening + 1);
        const qsizetype at = id.indexOf(u'@', 1);
        if (at >= 0 && at < id.size() - 1)
            return id.toString();
    }
    return std::nullopt;
}

bool isAddress(const QString& text) {
    static const QRegularExpression address(QRegularExpression::anchoredPattern(addressPattern()));
    return address.match(text).hasMatch();
}

} // namespace tessarine
