#include "support/SystemPayloads.h"

#include "support/PropertyListWriter.h"

#include <QStringList>
#include <QUuid>

#include <algorithm>

namespace tessarine::testing {

using namespace Qt::StringLiterals;
using Array = PlistValue::Array;
using Dictionary = PlistValue::Dictionary;

namespace {

PlistValue string(const QString& text) {
    return PlistValue::string(text);
}

QByteArray binary(Dictionary entries) {
    return writeBinaryPropertyList(PlistValue::dictionary(std::move(entries)));
}

QByteArray keyedArchive(Array objects) {
    return binary({{u"$version"_qs, PlistValue::integer(100'000)},
                   {u"$archiver"_qs, string(u"NSKeyedArchiver"_qs)},
                   {u"$top"_qs, PlistValue::dictionary({{u"root"_qs, PlistValue::uid(1)}})},
                   {u"$objects"_qs, PlistValue::array(std::move(objects))}});
}

// The description of an archived class: its name and those of the classes that it is of.
PlistValue classInfo(const QStringList& names) {
    Array classes;
    for (const QString& name : names)
        classes.append(string(name));
    return PlistValue::dictionary({{u"$classname"_qs, string(names.front())},
                                   {u"$classes"_qs, PlistValue::array(std::move(classes))}});
}

// The keys of the texts in a form's request, one letter each.
QString textsOf(UsernotedForm form) {
    switch (form) {
    case UsernotedForm::RequestTitle:
        return u"t"_qs;
    case UsernotedForm::RequestBody:
        return u"b"_qs;
    case UsernotedForm::RequestTitleBody:
        return u"tb"_qs;
    case UsernotedForm::RequestSubtitle:
        return u"s"_qs;
    case UsernotedForm::RequestTitleSubtitle:
        return u"ts"_qs;
    case UsernotedForm::RequestBodySubtitle:
        return u"sb"_qs;
    case UsernotedForm::RequestEmpty:
        return {};
    default:
        return u"tsb"_qs;
    }
}

Dictionary requestTexts(UsernotedForm form, const UsernotedContent& content) {
    if (form == UsernotedForm::OtherType)
        return {{u"titl"_qs, PlistValue::integer(1)},
                {u"subt"_qs, PlistValue::array({string(u"x"_qs)})},
                {u"body"_qs, PlistValue::data(QByteArrayLiteral("not a string"))}};
    const QString texts = textsOf(form);
    Dictionary entries;
    if (texts.contains(u't'))
        entries.append({u"titl"_qs, string(content.title)});
    if (texts.contains(u's'))
        entries.append({u"subt"_qs, string(content.subtitle)});
    if (texts.contains(u'b'))
        entries.append({u"body"_qs, string(content.body)});
    return entries;
}

PlistValue request(Dictionary entries, qint64 recordId) {
    const QUuid identifier = QUuid::fromRfc4122(usernotedUuid(recordId));
    entries.append({u"iden"_qs, string(identifier.toString(QUuid::WithoutBraces).toUpper())});
    entries.append({u"soun"_qs, string(u"default"_qs)});
    entries.append({u"cate"_qs, string(u"MESSAGE"_qs)});
    entries.append({u"scat"_qs, PlistValue::dictionary({{u"id"_qs, string(u"MESSAGE"_qs)},
                                                        {u"opt"_qs, PlistValue::integer(1)}})});
    return PlistValue::dictionary(std::move(entries));
}

// What stands at the root of every payload beside the request.
Dictionary envelope(const UsernotedContent& content) {
    return {{u"styl"_qs, PlistValue::integer(1)},
            {u"app"_qs, string(content.application)},
            {u"uuid"_qs, PlistValue::data(usernotedUuid(content.recordId))},
            {u"srce"_qs, PlistValue::data(usernotedUuid(-1 - content.recordId))},
            {u"orig"_qs, PlistValue::integer(1)},
            {u"date"_qs, PlistValue::real(content.date)},
            {u"resp"_qs, PlistValue::dictionary({{u"act"_qs, PlistValue::integer(0)}})}};
}

QByteArray requestPayload(UsernotedForm form, const UsernotedContent& content) {
    Dictionary root = envelope(content);
    root.append({u"req"_qs, request(requestTexts(form, content), content.recordId)});
    return binary(std::move(root));
}

// Beside the body only strings that readers refuse, or that are shorter.
QByteArray archivePayload(const UsernotedContent& content) {
    const PlistValue object = PlistValue::dictionary({{u"$class"_qs, PlistValue::uid(6)},
                                                      {u"identifier"_qs, PlistValue::uid(2)},
                                                      {u"kind"_qs, PlistValue::uid(3)},
                                                      {u"text"_qs, PlistValue::uid(4)},
                                                      {u"badge"_qs, PlistValue::uid(5)}});
    const QByteArray archive = keyedArchive(
        {string(u"$null"_qs), object, string(u"com.example.request.%1"_qs.arg(content.recordId)),
         string(u"text"_qs), string(content.body), PlistValue::integer(1),
         classInfo(
             {u"UNMutableNotificationContent"_qs, u"UNNotificationContent"_qs, u"NSObject"_qs}),
         string(u"NSMutableDictionary"_qs), string(u"UNMNotificationSourceDescription"_qs),
         string(u"mail"_qs)});
    Dictionary root = envelope(content);
    root.append({u"titl"_qs, string(content.title)});
    root.append({u"subt"_qs, string(content.subtitle)});
    root.append({u"req"_qs, PlistValue::data(archive)});
    return binary(std::move(root));
}

} // namespace

QByteArray usernotedUuid(qint64 recordId) {
    static const QUuid space = QUuid::fromString(u"6b1f7a0e-93c5-4d0b-8a53-2f0c4be1d7a9");
    return QUuid::createUuidV5(space, QByteArray::number(recordId)).toRfc4122();
}

std::optional<QByteArray> usernotedPayload(UsernotedForm form, const UsernotedContent& content) {
    switch (form) {
    case UsernotedForm::Archive:
        return archivePayload(content);
    case UsernotedForm::NotADictionary:
        return writeBinaryPropertyList(
            PlistValue::array({string(content.title), string(content.body)}));
    case UsernotedForm::Broken: {
        const QByteArray whole = requestPayload(form, content);
        return whole.first(whole.size() / 2);
    }
    case UsernotedForm::ZeroBytes:
        return QByteArray();
    case UsernotedForm::Null:
        return std::nullopt;
    default:
        return requestPayload(form, content);
    }
}

QByteArray legacyPayload(const LegacyContent& content, std::optional<qint64> objects) {
    Dictionary notification{{u"$class"_qs, PlistValue::uid(4)},
                            {u"NSTitle"_qs, PlistValue::uid(2)},
                            {u"NSInformativetext"_qs, PlistValue::uid(3)}};
    Array dates;
    if (content.date) {
        notification.append({u"NSActualdeliverydate"_qs, PlistValue::uid(5)});
        dates = {PlistValue::dictionary({{u"NS.time"_qs, PlistValue::real(*content.date)},
                                         {u"$class"_qs, PlistValue::uid(6)}}),
                 classInfo({u"NSDate"_qs, u"NSObject"_qs})};
    }
    Array all{string(u"$null"_qs), PlistValue::dictionary(std::move(notification)),
              string(content.title), string(content.body),
              classInfo({u"NSUserNotification"_qs, u"NSObject"_qs})};
    all += dates;
    return keyedArchive(all.first(std::clamp<qint64>(objects.value_or(all.size()), 0, all.size())));
}

} // namespace tessarine::testing
