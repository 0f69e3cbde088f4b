#pragma once

#include "shared/CapturedNotification.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace tessarine {

// What a banner shows: the description of its group, and the static texts in it, none empty. No
// field says which text is what.
struct BannerTexts {
    QString description;
    QStringList texts;
};

// The notification that a banner shows at the given moment (seconds since the reference date).
// Nothing when it has no texts. Any thread.
std::optional<CapturedNotification> parseBanner(const BannerTexts& banner, double now);

// When a banner with this time token was delivered, if it is read at the given moment: a relative
// age ("5m ago") or a clock reading, which is the last one that has passed. Anything else is now.
double inferTimestamp(const QString& token, double now);

// The text without the times inside it and the blanks and line breaks around each. Words on both
// sides of a time run together. In time linear to the text.
QString withoutTimeTokens(const QString& text);

} // namespace tessarine
