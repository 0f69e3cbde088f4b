#include "settings/PreferenceChoices.h"

#include <algorithm>
#include <limits>

namespace tessarine {

namespace {

constexpr qint64 longestShortRetention = 14; // days

template <typename Choices>
int indexIn(const Choices& choices, qint64 value) {
    const auto found = std::find(choices.begin(), choices.end(), value);
    return found == choices.end() ? -1 : int(found - choices.begin());
}

// The greatest number that a text can count.
int countable(qint64 value) {
    return int(std::clamp<qint64>(value, 0, std::numeric_limits<int>::max()));
}

} // namespace

QStringList retentionTexts() {
    return {qtTrId("prefs.storage.retention.forever"), qtTrId("prefs.storage.retention.1year"),
            qtTrId("prefs.storage.retention.6months"), qtTrId("prefs.storage.retention.90days"),
            qtTrId("prefs.storage.retention.60days"),  qtTrId("prefs.storage.retention.30days"),
            qtTrId("prefs.storage.retention.14days"),  qtTrId("prefs.storage.retention.7days")};
}

QStringList otpTexts() {
    return {qtTrId("prefs.privacy.otp.off"), qtTrId("prefs.privacy.otp.1h"),
            qtTrId("prefs.privacy.otp.4h"), qtTrId("prefs.privacy.otp.24h")};
}

QStringList appearanceTexts() {
    return {qtTrId("prefs.general.appearance.auto"), qtTrId("prefs.general.appearance.light"),
            qtTrId("prefs.general.appearance.dark")};
}

int retentionIndex(qint64 days) {
    return indexIn(retentionChoices, days);
}

int otpIndex(qint64 hours) {
    return indexIn(otpChoices, hours);
}

// Whatever is below a day keeps all, as 0 does.
QString retentionText(qint64 days) {
    if (days < 1)
        return qtTrId("prefs.storage.retention.forever");
    const int index = retentionIndex(days);
    return index < 0 ? qtTrId("prefs.storage.retention.otherDays", countable(days))
                     : retentionTexts().at(index);
}

QString otpText(qint64 hours) {
    if (hours < 1)
        return qtTrId("prefs.privacy.otp.off");
    const int index = otpIndex(hours);
    return index < 0 ? qtTrId("prefs.privacy.otp.otherHours", countable(hours))
                     : otpTexts().at(index);
}

PreferenceNote retentionNote(qint64 days) {
    if (days < 1)
        return {qtTrId("prefs.storage.retention.foreverNote"),
                QStringLiteral("checkmark.circle.fill"), true, false};
    if (days <= longestShortRetention)
        return {qtTrId("prefs.storage.retention.shortWarning"),
                QStringLiteral("exclamationmark.triangle.fill"), false, true};
    return {qtTrId("prefs.storage.retention.daysNote", countable(days)), {}, false, false};
}

PreferenceNote otpNote(qint64 hours) {
    switch (hours) {
    case 1:
        return {qtTrId("prefs.privacy.otp.note1h"), {}, false, false};
    case 4:
        return {qtTrId("prefs.privacy.otp.note4h"), {}, false, false};
    case 24:
        return {qtTrId("prefs.privacy.otp.note24h"), {}, false, false};
    default:
        return {};
    }
}

} // namespace tessarine
