#include "capture/RecordDecoding.h"

#include "shared/Text.h"

#include <QList>
#include <QStringView>

#include <algorithm>
#include <array>
#include <cmath>

namespace tessarine {

namespace {

constexpr qsizetype shortestBody = 5; // characters

// What the texts of an archive that are not for people begin and end with: class names, keys and
// identifiers of the system's frameworks.
constexpr std::array<QStringView, 8> technicalPrefixes{u"NS",  u"UI",  u"com.", u"UNM",
                                                       u"kCI", u"XPC", u"CA",   u"CF"};
constexpr std::array<QStringView, 5> technicalSuffixes{u"Identifier", u"Category", u"Thread",
                                                       u"Sound", u"Badge"};

QString text(const PropertyList::Value& dictionary, QStringView key) {
    const std::optional<PropertyList::Value> value = dictionary.find(key);
    return value ? value->string().value_or(QString()) : QString();
}

void fillFrom(const QString& subtitle, DecodedTexts& texts) {
    if (texts.title.isEmpty())
        texts.title = subtitle;
    if (texts.body.isEmpty())
        texts.body = subtitle;
}

// A request that is a dictionary holds the texts themselves.
DecodedTexts decodeRequest(const PropertyList::Value& request) {
    DecodedTexts texts{text(request, u"titl"), text(request, u"body")};
    fillFrom(text(request, u"subt"), texts);
    return texts;
}

// Otherwise title and subtitle lie beside the request, and the body somewhere in its archive.
DecodedTexts decodeRoot(const PropertyList::Value& root,
                        const std::optional<PropertyList::Value>& request, DecoderVariant variant) {
    DecodedTexts texts{text(root, u"titl"), QString()};
    const std::optional<QByteArrayView> archive = request ? request->data() : std::nullopt;
    if (archive)
        texts.body = longestArchiveText(*archive, variant);
    fillFrom(text(root, u"subt"), texts);
    return texts;
}

bool looksWrittenForPeople(const QString& text, DecoderVariant variant) {
    const auto begins = [&](QStringView prefix) { return text.startsWith(prefix); };
    const auto ends = [&](QStringView suffix) { return text.endsWith(suffix); };
    if (std::any_of(technicalPrefixes.begin(), technicalPrefixes.end(), begins))
        return false;
    if (variant == DecoderVariant::poll &&
        std::any_of(technicalSuffixes.begin(), technicalSuffixes.end(), ends))
        return false;
    return !text.contains(u"://") && !text.contains(u'\\');
}

std::optional<qint64> indexInDescription(const QString& description) {
    constexpr QStringView marker = u"value = ";
    const qsizetype start = description.indexOf(marker);
    if (start < 0)
        return std::nullopt;
    QStringView rest = QStringView(description).sliced(start + marker.size());
    rest = rest.first(std::max<qsizetype>(0, rest.indexOf(u'}')));
    bool isNumber = false;
    const qint64 index = rest.trimmed().toLongLong(&isNumber);
    return isNumber ? std::optional(index) : std::nullopt;
}

std::optional<qint64> wholePart(double number) {
    if (!(std::abs(number) < 0x1p63))
        return std::nullopt;
    return static_cast<qint64>(number);
}

std::optional<PropertyList::Value>
referencedObject(const std::optional<PropertyList::Value>& reference,
                 const PropertyList::Value& objects) {
    const std::optional<qint64> index = archiveReferenceIndex(reference);
    if (!index || *index < 0 || *index >= objects.size())
        return std::nullopt;
    return objects.at(static_cast<qsizetype>(*index));
}

} // namespace

DecodedTexts decodeUsernotedRecord(QByteArrayView payload, DecoderVariant variant) {
    const std::optional<PropertyList> list = PropertyList::parse(payload);
    if (!list || list->root().type() != PropertyList::Type::dictionary)
        return {};
    const PropertyList::Value root = list->root();
    const std::optional<PropertyList::Value> request = root.find(u"req");
    if (request && request->type() == PropertyList::Type::dictionary) {
        DecodedTexts texts = decodeRequest(*request);
        if (!texts.isEmpty())
            return texts;
    }
    return decodeRoot(root, request, variant);
}

QString longestArchiveText(QByteArrayView archive, DecoderVariant variant) {
    const std::optional<PropertyList> list = PropertyList::parse(archive);
    const auto objects = list ? archiveObjects(list->root()) : std::nullopt;
    if (!objects)
        return {};
    QString longest;
    qsizetype longestCount = shortestBody - 1;
    for (qsizetype i = 0; i < objects->size(); ++i) {
        const std::optional<PropertyList::Value> object = objects->at(i);
        // A text has no more characters than units.
        if (!object || object->type() != PropertyList::Type::string ||
            object->size() <= longestCount)
            continue;
        const QString candidate = object->string().value_or(QString());
        if (!looksWrittenForPeople(candidate, variant))
            continue;
        const qsizetype count = characterCount(candidate);
        if (count > longestCount) {
            longest = candidate;
            longestCount = count;
        }
    }
    return longest;
}

std::optional<PropertyList::Value> archiveObjects(const PropertyList::Value& root) {
    const std::optional<PropertyList::Value> objects = root.find(u"$objects");
    return objects && objects->type() == PropertyList::Type::array ? objects : std::nullopt;
}

std::optional<qint64> archiveReferenceIndex(const std::optional<PropertyList::Value>& reference) {
    if (!reference)
        return std::nullopt;
    switch (reference->type()) {
    case PropertyList::Type::uid:
        return static_cast<qint64>(reference->uid().value_or(0));
    case PropertyList::Type::integer:
        return reference->integer();
    case PropertyList::Type::boolean:
        return reference->boolean().value_or(false) ? 1 : 0;
    case PropertyList::Type::real:
        return wholePart(reference->real().value_or(0));
    case PropertyList::Type::string:
        return indexInDescription(reference->string().value_or(QString()));
    default:
        return std::nullopt;
    }
}

std::optional<QString> archiveString(const std::optional<PropertyList::Value>& reference,
                                     const PropertyList::Value& objects) {
    const std::optional<PropertyList::Value> object = referencedObject(reference, objects);
    return object ? object->string() : std::nullopt;
}

std::optional<double> archiveDate(const std::optional<PropertyList::Value>& reference,
                                  const PropertyList::Value& objects) {
    const std::optional<PropertyList::Value> object = referencedObject(reference, objects);
    const auto time = object ? object->find(u"NS.time") : std::nullopt;
    return time ? time->real() : std::nullopt;
}

QString lastBundleComponent(const QString& bundleId) {
    const auto pieces = QStringView(bundleId).split(u'.', Qt::SkipEmptyParts);
    return pieces.isEmpty() ? bundleId : pieces.last().toString();
}

} // namespace tessarine
