#include "preferences/PreferencesStore.h"

#include "platform/DefaultsKeys.h"

namespace tessarine {

namespace {

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
    , retentionDays_(defaults.integer(defaultsKeys::retentionDays))
    , globalPrivacyMode_(defaults.boolean(defaultsKeys::globalPrivacyMode))
    , privacyApps_(asSet(defaults.textList(defaultsKeys::privacyApps)))
    , launchLoginPromptSuppressed_(defaults.boolean(defaultsKeys::launchLoginPromptSuppressed))
    , hasSeenPrivacyNotice_(defaults.boolean(defaultsKeys::hasSeenPrivacyNotice))
    , hasAcceptedEULA_(defaults.boolean(defaultsKeys::hasAcceptedEULA))
    , hasSeenOnboarding_(defaults.boolean(defaultsKeys::hasSeenOnboarding))
    , otpRetentionHours_(defaults.integer(defaultsKeys::otpRetentionHours))
    , excludedBundleIds_(asSet(defaults.textList(defaultsKeys::excludedBundleIds)))
    , appearanceMode_(defaults.text(defaultsKeys::appearanceMode).value_or(followSystem)) {
    // Keeping for ever is the choice of nobody having chosen, whatever a system's getter gives.
    if (!defaults.contains(defaultsKeys::retentionDays))
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
    assign(retentionDays_, value,
           [&] { defaults_.setInteger(defaultsKeys::retentionDays, value); });
}

void PreferencesStore::setGlobalPrivacyMode(bool value) {
    assign(globalPrivacyMode_, value,
           [&] { defaults_.setBoolean(defaultsKeys::globalPrivacyMode, value); });
}

void PreferencesStore::setPrivacyApps(const std::set<QString>& value) {
    assign(privacyApps_, value,
           [&] { defaults_.setTextList(defaultsKeys::privacyApps, asList(value)); });
}

void PreferencesStore::setLaunchLoginPromptSuppressed(bool value) {
    assign(launchLoginPromptSuppressed_, value,
           [&] { defaults_.setBoolean(defaultsKeys::launchLoginPromptSuppressed, value); });
}

void PreferencesStore::setHasSeenPrivacyNotice(bool value) {
    assign(hasSeenPrivacyNotice_, value,
           [&] { defaults_.setBoolean(defaultsKeys::hasSeenPrivacyNotice, value); });
}

void PreferencesStore::setHasAcceptedEULA(bool value) {
    assign(hasAcceptedEULA_, value,
           [&] { defaults_.setBoolean(defaultsKeys::hasAcceptedEULA, value); });
}

void PreferencesStore::setHasSeenOnboarding(bool value) {
    assign(hasSeenOnboarding_, value,
           [&] { defaults_.setBoolean(defaultsKeys::hasSeenOnboarding, value); });
}

void PreferencesStore::setOtpRetentionHours(qint64 value) {
    assign(otpRetentionHours_, value,
           [&] { defaults_.setInteger(defaultsKeys::otpRetentionHours, value); });
}

void PreferencesStore::setExcludedBundleIds(const std::set<QString>& value) {
    assign(excludedBundleIds_, value,
           [&] { defaults_.setTextList(defaultsKeys::excludedBundleIds, asList(value)); });
}

void PreferencesStore::setAppearanceMode(const QString& value) {
    assign(appearanceMode_, value, [&] { defaults_.setText(defaultsKeys::appearanceMode, value); });
}

bool PreferencesStore::isPrivate(const QString& bundleId) const {
    const std::lock_guard lock(mutex_);
    return globalPrivacyMode_ || privacyApps_.contains(bundleId);
}

} // namespace tessarine
