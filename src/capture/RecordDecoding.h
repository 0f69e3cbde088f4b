#pragma once

#include "capture/PropertyList.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace tessarine {

// The texts of one notification. Either may be empty; a caller drops a record with neither.
struct DecodedTexts {
    QString title;
    QString body;

    bool isEmpty() const { return title.isEmpty() && body.isEmpty(); }
    bool operator==(const DecodedTexts&) const = default;
};

// The readings at start-up guess a body from an archive a little more freely than the polls do.
enum class DecoderVariant { poll, startUp };

// From the payload of a row of the usernoted database, a binary property list. What can't be read
// gives empty texts. Any thread.
DecodedTexts decodeUsernotedRecord(QByteArrayView payload, DecoderVariant variant);

// The longest text of a keyed archive that looks like something a person would read; of equally
// long ones the first. Empty when there is none, and for bytes that are no archive.
QString longestArchiveText(QByteArrayView archive, DecoderVariant variant);

// The objects of a keyed archive: the array "$objects" of a dictionary.
std::optional<PropertyList::Value> archiveObjects(const PropertyList::Value& root);

// The index that a value of an archive refers to: a number or UID itself, or the number behind the
// first "value = " of a text.
std::optional<qint64> archiveReferenceIndex(const std::optional<PropertyList::Value>& reference);

// The text that a reference leads to.
std::optional<QString> archiveString(const std::optional<PropertyList::Value>& reference,
                                     const PropertyList::Value& objects);

// The moment that a reference leads to, in seconds since the reference date.
std::optional<double> archiveDate(const std::optional<PropertyList::Value>& reference,
                                  const PropertyList::Value& objects);

// The last piece of a bundle id between dots, or the whole id when there is none.
QString lastBundleComponent(const QString& bundleId);

} // namespace tessarine
