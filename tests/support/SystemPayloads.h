#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace tessarine::testing {

// Payloads of notifications as the systems write them, for tests.

// The shapes that the column `data` of the daemon's table `record` can take.
enum class UsernotedForm {
    RequestTitle, // `req` is a dictionary with a title alone; and so on
    RequestBody,
    RequestTitleBody,
    RequestAll, // title, subtitle and body
    RequestSubtitle,
    RequestTitleSubtitle,
    RequestBodySubtitle,
    Archive, // title and subtitle at the root; `req` is a keyed archive that holds the body
    // From here on readers get no text.
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

// The 16 bytes that name a record in the column `uuid` and in the payload.
[[nodiscard]] QByteArray usernotedUuid(qint64 recordId);

// The bytes for `data`; nothing stands for NULL and is given by `Null` alone.
[[nodiscard]] std::optional<QByteArray> usernotedPayload(UsernotedForm form,
                                                         const UsernotedContent& content);

// What a payload of the older systems' table tells. Empty texts are written too.
struct LegacyContent {
    QString title;
    QString body;
    // Seconds since 2001-01-01 00:00:00 UTC; without it the payload bears no date.
    std::optional<double> date;
};

// A keyed archive of a notification. `objects`, if given, cuts the archive's list of objects to
// that length, so that references point past its end; 0 and 1 leave no notification in it.
[[nodiscard]] QByteArray legacyPayload(const LegacyContent& content,
                                       std::optional<qint64> objects = std::nullopt);

} // namespace tessarine::testing
