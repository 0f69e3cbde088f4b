#include "tools/UsernotedPayload.h"

#include "support/PropertyListWriter.h"

#include <QStringList>
#include <QUuid>

#include <array>

namespace tessarine::tools {

using testing::PlistValue;
using testing::writeBinaryPropertyList;

namespace {

// `NSKeyedArchiver` has written this number into every archive since Mac OS X 10.2.
constexpr qint64 archiveVersion = 100'000;
constexpr int longArchiveRounds = 60;

struct NamedForm {
    UsernotedForm form;
    const char16_t* name;
};

constexpr std::array namedForms{
    NamedForm{UsernotedForm::RequestTitle, u"request-title"},
    NamedForm{UsernotedForm::RequestBody, u"request-body"},
    NamedForm{UsernotedForm::RequestTitleBody, u"request-title-body"},
    NamedForm{UsernotedForm::RequestAll, u"request-all"},
    NamedForm{UsernotedForm::RequestSubtitle, u"request-subtitle"},
    NamedForm{UsernotedForm::RequestTitleSubtitle, u"request-title-subtitle"},
    NamedForm{UsernotedForm::RequestBodySubtitle, u"request-body-subtitle"},
    NamedForm{UsernotedForm::Archive, u"archive"},
    NamedForm{UsernotedForm::ArchiveLong, u"archive-long"},
    NamedForm{UsernotedForm::RequestEmpty, u"request-empty"},
    NamedForm{UsernotedForm::OtherType, u"other-type"},
    NamedForm{UsernotedForm::NotADictionary, u"not-a-dictionary"},
    NamedForm{UsernotedForm::Broken, u"broken"},
    NamedForm{UsernotedForm::ZeroBytes, u"zero-bytes"},
    NamedForm{UsernotedForm::Null, u"null"},
};

bool yieldsText(UsernotedForm form) {
    return form < UsernotedForm::RequestEmpty;
}

// Which texts the request of a form bears.
struct Texts {
    bool title = false;
    bool body = false;
    bool subtitle = false;
};

Texts textsOf(UsernotedForm form) {
    switch (form) {
    case UsernotedForm::RequestTitle:
        return {.title = true};
    case UsernotedForm::RequestBody:
        return {.body = true};
    case UsernotedForm::RequestTitleBody:
        return {.title = true, .body = true};
    case UsernotedForm::RequestAll:
        return {.title = true, .body = true, .subtitle = true};
    case UsernotedForm::RequestSubtitle:
        return {.subtitle = true};
    case UsernotedForm::RequestTitleSubtitle:
        return {.title = true, .subtitle = true};
    case UsernotedForm::RequestBodySubtitle:
        return {.body = true, .subtitle = true};
    default:
        return {};
    }
}

PlistValue::Dictionary requestTexts(UsernotedForm form, const UsernotedContent& content) {
    const Texts texts = textsOf(form);
    PlistValue::Dictionary entries;
    if (texts.title) {
        entries.append({QStringLiteral("titl"), PlistValue::string(content.title)});
    }
    if (texts.subtitle) {
        entries.append({QStringLiteral("subt"), PlistValue::string(content.subtitle)});
    }
    if (texts.body) {
        entries.append({QStringLiteral("body"), PlistValue::string(content.body)});
    }
    return entries;
}

PlistValue::Dictionary textsOfOtherTypes() {
    return {{QStringLiteral("titl"), PlistValue::integer(1)},
            {QStringLiteral("subt"), PlistValue::array({PlistValue::string(QStringLiteral("x"))})},
            {QStringLiteral("body"), PlistValue::data(QByteArrayLiteral("not a string"))}};
}

QString requestIdentifier(qint64 recordId) {
    return QUuid::fromRfc4122(usernotedUuid(recordId)).toString(QUuid::WithoutBraces).toUpper();
}

PlistValue request(PlistValue::Dictionary texts, qint64 recordId) {
    const PlistValue category = PlistValue::dictionary(
        {{QStringLiteral("id"), PlistValue::string(QStringLiteral("MESSAGE"))},
         {QStringLiteral("opt"), PlistValue::integer(1)}});
    PlistValue::Dictionary entries = std::move(texts);
    entries.append({QStringLiteral("iden"), PlistValue::string(requestIdentifier(recordId))});
    entries.append({QStringLiteral("soun"), PlistValue::string(QStringLiteral("default"))});
    entries.append({QStringLiteral("cate"), PlistValue::string(QStringLiteral("MESSAGE"))});
    entries.append({QStringLiteral("scat"), category});
    return PlistValue::dictionary(std::move(entries));
}

// What stands at the root of every payload beside the request.
PlistValue::Dictionary envelope(const UsernotedContent& content) {
    const PlistValue response =
        PlistValue::dictionary({{QStringLiteral("act"), PlistValue::integer(0)}});
    return {{QStringLiteral("styl"), PlistValue::integer(1)},
            {QStringLiteral("app"), PlistValue::string(content.application)},
            {QStringLiteral("uuid"), PlistValue::data(usernotedUuid(content.recordId))},
            {QStringLiteral("srce"), PlistValue::data(usernotedUuid(-1 - content.recordId))},
            {QStringLiteral("orig"), PlistValue::integer(1)},
            {QStringLiteral("date"), PlistValue::real(content.date)},
            {QStringLiteral("resp"), response}};
}

QByteArray requestPayload(PlistValue::Dictionary texts, const UsernotedContent& content) {
    PlistValue::Dictionary root = envelope(content);
    root.append({QStringLiteral("req"), request(std::move(texts), content.recordId)});
    return writeBinaryPropertyList(PlistValue::dictionary(std::move(root)));
}

PlistValue string(const QString& text) {
    return PlistValue::string(text);
}

// What every archive of a request begins with; the object at 1 is the request itself, and the body
// stands at 4.
PlistValue::Array archiveBeginning(const UsernotedContent& content) {
    const PlistValue object =
        PlistValue::dictionary({{QStringLiteral("$class"), PlistValue::uid(6)},
                                {QStringLiteral("identifier"), PlistValue::uid(2)},
                                {QStringLiteral("kind"), PlistValue::uid(3)},
                                {QStringLiteral("text"), PlistValue::uid(4)},
                                {QStringLiteral("badge"), PlistValue::uid(5)}});
    const PlistValue classOfObject = PlistValue::dictionary(
        {{QStringLiteral("$classname"), string(QStringLiteral("UNMutableNotificationContent"))},
         {QStringLiteral("$classes"),
          PlistValue::array({string(QStringLiteral("UNMutableNotificationContent")),
                             string(QStringLiteral("UNNotificationContent")),
                             string(QStringLiteral("NSObject"))})}});
    return {string(QStringLiteral("$null")),
            object,
            string(QStringLiteral("com.example.request.%1").arg(content.recordId)),
            string(QStringLiteral("text")),
            string(content.body),
            PlistValue::integer(1),
            classOfObject,
            string(QStringLiteral("NSMutableDictionary")),
            string(QStringLiteral("UNMNotificationSourceDescription")),
            string(QStringLiteral("mail"))};
}

// Strings that outdo the body in length and that no reader takes for a text, and short ones.
PlistValue::Array longArchiveRound(int round, const QString& body) {
    const QString longer = body + QStringLiteral(" and much more %1").arg(round);
    return {string(QStringLiteral("https://example.com/") + longer),
            string(QStringLiteral("com.example.") + longer),
            string(QStringLiteral("NSAttributed ") + longer),
            string(QStringLiteral("share\\") + longer),
            string(QStringLiteral("w%1").arg(round)),
            PlistValue::integer(round),
            PlistValue::real(round + 0.5),
            PlistValue::data(longer.toUtf8())};
}

PlistValue keyedArchive(PlistValue::Array objects) {
    return PlistValue::dictionary(
        {{QStringLiteral("$version"), PlistValue::integer(archiveVersion)},
         {QStringLiteral("$archiver"), string(QStringLiteral("NSKeyedArchiver"))},
         {QStringLiteral("$top"),
          PlistValue::dictionary({{QStringLiteral("root"), PlistValue::uid(1)}})},
         {QStringLiteral("$objects"), PlistValue::array(std::move(objects))}});
}

QByteArray archivePayload(int rounds, const UsernotedContent& content) {
    PlistValue::Array objects = archiveBeginning(content);
    for (int round = 0; round < rounds; ++round) {
        objects.append(longArchiveRound(round, content.body));
    }
    const QByteArray archive = writeBinaryPropertyList(keyedArchive(std::move(objects)));
    PlistValue::Dictionary root = envelope(content);
    root.append({QStringLiteral("titl"), string(content.title)});
    root.append({QStringLiteral("subt"), string(content.subtitle)});
    root.append({QStringLiteral("req"), PlistValue::data(archive)});
    return writeBinaryPropertyList(PlistValue::dictionary(std::move(root)));
}

QByteArray arrayPayload(const UsernotedContent& content) {
    return writeBinaryPropertyList(
        PlistValue::array({string(content.title), string(content.body)}));
}

QByteArray brokenPayload(const UsernotedContent& content) {
    const QByteArray whole =
        requestPayload(requestTexts(UsernotedForm::RequestAll, content), content);
    return whole.first(whole.size() / 2);
}

} // namespace

QByteArray usernotedUuid(qint64 recordId) {
    static const QUuid space = QUuid::fromString(u"6b1f7a0e-93c5-4d0b-8a53-2f0c4be1d7a9");
    return QUuid::createUuidV5(space, QByteArray::number(recordId)).toRfc4122();
}

std::optional<QByteArray> usernotedPayload(UsernotedForm form, const UsernotedContent& content) {
    switch (form) {
    case UsernotedForm::Archive:
        return archivePayload(0, content);
    case UsernotedForm::ArchiveLong:
        return archivePayload(longArchiveRounds, content);
    case UsernotedForm::OtherType:
        return requestPayload(textsOfOtherTypes(), content);
    case UsernotedForm::NotADictionary:
        return arrayPayload(content);
    case UsernotedForm::Broken:
        return brokenPayload(content);
    case UsernotedForm::ZeroBytes:
        return QByteArray();
    case UsernotedForm::Null:
        return std::nullopt;
    default:
        return requestPayload(requestTexts(form, content), content);
    }
}

QList<UsernotedForm> usernotedFormsNamed(const QString& name) {
    QList<UsernotedForm> forms;
    for (const NamedForm& named : namedForms) {
        const bool wanted = name == QStringView(named.name) || name == u"all" ||
                            (name == u"mixed" && yieldsText(named.form)) ||
                            (name == u"mixed-bad" && !yieldsText(named.form));
        if (wanted) {
            forms.append(named.form);
        }
    }
    return forms;
}

QStringList usernotedFormNames() {
    QStringList names;
    for (const NamedForm& named : namedForms) {
        names.append(QString::fromUtf16(named.name));
    }
    return names << QStringLiteral("mixed") << QStringLiteral("mixed-bad") << QStringLiteral("all");
}

} // namespace tessarine::tools
