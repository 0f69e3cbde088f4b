#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace tessarine {

// The texts and the time of one payload of the legacy notification database.
struct LegacyTexts {
    QString title;
    QString body;
    std::optional<double> date; // seconds since the reference date

    bool operator==(const LegacyTexts&) const = default;
};

// From a payload, a keyed archive. Nothing when it has neither title nor body.
std::optional<LegacyTexts> decodeLegacyPayload(QByteArrayView payload);

} // namespace tessarine
