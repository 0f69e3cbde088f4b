#include "core/Retention.h"

namespace tessarine {

namespace {

QString deletionText(qint64 days, qint64 count) {
    return QStringLiteral("Retention: Policy — deleteOlderThan(%1d) → %2 deleted")
        .arg(days)
        .arg(count);
}

const QString keepingText =
    QStringLiteral("Retention: Policy — retentionDays=0, no deletion"); // below 0 too

} // namespace

void applyRetention(const PreferencesStore& preferences, HoardStore& hoard,
                    DiagnosticsStore& diagnostics) {
    const qint64 days = preferences.retentionDays();
    const QString outcome =
        days >= 1 ? deletionText(days, hoard.deleteOlderThan(days)) : keepingText;
    diagnostics.log(outcome, Level::info, Category::system);
    // Nothing is logged of the codes: not even how many there were.
    if (preferences.otpRetentionHours() >= 1)
        hoard.deleteOtpOlderThan(preferences.otpRetentionHours());
}

} // namespace tessarine
