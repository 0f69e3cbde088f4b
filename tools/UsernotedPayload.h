#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace tessarine::tools {

// The shapes that the column `data` of the daemon's table `record` can take. Those from
// `RequestEmpty` on yield no text to a reader.
enum class UsernotedForm {
    RequestTitle, // `req` is a dictionary with a title alone; and so on
    RequestBody,
    RequestTitleBody,
    RequestAll, // title, subtitle and body
    RequestSubtitle,
    RequestTitleSubtitle,
    RequestBodySubtitle,
    Archive,        // texts at the root; `req` is a keyed archive that holds the body
    ArchiveLong,    // the same with hundreds of objects, many of them longer than the body
    RequestEmpty,   // `req` is a dictionary without any text
    OtherType,      // the keys of the texts are there but hold no strings
    NotADictionary, // the root is an array
    Broken,         // a usual payload that ends in the middle
    ZeroBytes,
    Null,
};

// What goes into a payload. Which texts are used depends on the form.
struct UsernotedContent {
    QString title = {};
    QString body = {};
    QString subtitle = {};
    // The bundle id in the application's own case.
    QString application = {};
    // Seconds since 2001-01-01 00:00:00 UTC; the daemon writes the delivery date here.
    double date = 0;
    // Tells notifications apart; the payload's identifiers are made from it.
    qint64 recordId = 0;
};

// The 16 bytes that name a record in the column `uuid` and in the payload; the same number gives
// the same bytes.
[[nodiscard]] QByteArray usernotedUuid(qint64 recordId);

// The bytes for `data`; nothing stands for NULL and is given by `Null` alone. Short texts in the
// usual forms give the daemon's usual size of 280 to 420 bytes.
//
// In the archive forms the body is the longest string that a reader may take for one, if it has
// six characters or more ("$null", which every archive bears, has five) and isn't itself of a kind
// that readers refuse (class names, bundle ids, addresses, texts with a backslash).
[[nodiscard]] std::optional<QByteArray> usernotedPayload(UsernotedForm form,
                                                         const UsernotedContent& content);

// The forms behind a name: one for its own name ("request-title-body"), several for "mixed" (all
// that give text), "mixed-bad" (all others) and "all". Empty if there is no such name.
[[nodiscard]] QList<UsernotedForm> usernotedFormsNamed(const QString& name);

// Every name that `usernotedFormsNamed` knows.
[[nodiscard]] QStringList usernotedFormNames();

} // namespace tessarine::tools
