#include "preferences/PreferencesStore.h"

namespace tessarine {

namespace {

const QString retentionDaysKey = QStringLiteral("retentionDays");
const QString globalPrivacyModeKey = QStringLiteral("globalPrivacyMode");
const QString privacyAppsKey = QStringLiteral("privacyApps");
const QString launchLoginPromptSuppressedKey = QStringLiteral("launchLoginPromptSuppressed");
const QString hasSeenPrivacyNoticeKey = QStringLiteral("hasSeenPrivacyNotice");
const QString hasAcceptedEULAKey = QStringLiteral("hasAcceptedEULA");
const QString hasSeenOnboardingKey = QStringLiteral("hasSeenOnboarding");
const QString otpRetentionHoursKey = QStringLiteral("otpRetentionHours");
const QString excludedBundleIdsKey = QStringLiteral("excludedBundleIds");
const QString appearanceModeKey = QStringLiteral("appearanceMode");

const QString followSystem = QStringLiteral("auto");

std::set<QString> asSet(const QStringList& list) {
    return {list.begin(), list.end()};
}

QStringList asList(const std::set<QString>& set) {
    return {set.begin(), set.end()};
}

} // namespace

PreferencesStore::PreferencesStore(UserDefaults& defaults)
    : defaults_(defaults)
    , retentionDays_(defaults.integer(retentionDaysKey))
    , globalPrivacyMode_(defaults.boolean(globalPrivacyModeKey))
    , privacyApps_(asSet(defaults.textList(privacyAppsKey)))
    , launchLoginPromptSuppressed_(defaults.boolean(launchLoginPromptSuppressedKey))
    , hasSeenPrivacyNotice_(defaults.boolean(hasSeenPrivacyNoticeKey))
    , hasAcceptedEULA_(defaults.boolean(hasAcceptedEULAKey))
    , hasSeenOnboarding_(defaults.boolean(hasSeenOnboardingKey))
    , otpRetentionHours_(defaults.integer(otpRetentionHoursKey))
    , excludedBundleIds_(asSet(defaults.textList(excludedBundleIdsKey)))
    , appearanceMode_(defaults.text(appearanceModeKey).value_or(followSystem)) {
    // Keeping for ever is the choice of nobody having chosen, whatever a system's getter gives.
    if (!defaults.contains(retentionDaysKey))
        retentionDays_ = 0;
}

template <typename Field, typename Value, typename Write>
void PreferencesStore::assign(Field& field, const Value& value, const Write& write) {
    Q_EMIT objectWillChange();
    {
        const std::lock_guard lock(mutex_);
        field = value;
    }
    write();
    Q_EMIT changed();
}

void PreferencesStore::setRetentionDays(qint64 value) {
    assign(retentionDays_, value, [&] { defaults_.setInteger(retentionDaysKey, value); });
}

void PreferencesStore::setGlobalPrivacyMode(bool value) {
    assign(globalPrivacyMode_, value, [&] { defaults_.setBoolean(globalPrivacyModeKey, value); });
}

void PreferencesStore::setPrivacyApps(const std::set<QString>& value) {
    assign(privacyApps_, value, [&] { defaults_.setTextList(privacyAppsKey, asList(value)); });
}

void PreferencesStore::setLaunchLoginPromptSuppressed(bool value) {
    assign(launchLoginPromptSuppressed_, value,
           [&] { defaults_.setBoolean(launchLoginPromptSuppressedKey, value); });
}

void PreferencesStore::setHasSeenPrivacyNotice(bool value) {
    assign(hasSeenPrivacyNotice_, value,
           [&] { defaults_.setBoolean(hasSeenPrivacyNoticeKey, value); });
}

void PreferencesStore::setHasAcceptedEULA(bool value) {
    assign(hasAcceptedEULA_, value, [&] { defaults_.setBoolean(hasAcceptedEULAKey, value); });
}

void PreferencesStore::setHasSeenOnboarding(bool value) {
    assign(hasSeenOnboarding_, value, [&] { defaults_.setBoolean(hasSeenOnboardingKey, value); });
}

void PreferencesStore::setOtpRetentionHours(qint64 value) {
    assign(otpRetentionHours_, value, [&] { defaults_.setInteger(otpRetentionHoursKey, value); });
}

void PreferencesStore::setExcludedBundleIds(const std::set<QString>& value) {
    assign(excludedBundleIds_, value,
           [&] { defaults_.setTextList(excludedBundleIdsKey, asList(value)); });
}

void PreferencesStore::setAppearanceMode(const QString& value) {
    assign(appearanceMode_, value, [&] { defaults_.setText(appearanceModeKey, value); });
}

bool PreferencesStore::isPrivate(const QString& bundleId) const {
    const std::lock_guard lock(mutex_);
    return globalPrivacyMode_ || privacyApps_.contains(bundleId);
}

} // namespace tessarine
