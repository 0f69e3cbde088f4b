#include "settings/PrivacySettings.h"

#include "preferences/PreferencesStore.h"

#include <utility>

namespace tessarine {

PrivacySettings::PrivacySettings(PreferencesStore& preferences, ExplainingWindows windows)
    : preferences_(preferences)
    , windows_(std::move(windows)) {
    connect(&preferences, &PreferencesStore::changed, this, &PrivacySettings::changed);
}

bool PrivacySettings::globalPrivacyMode() const {
    return preferences_.globalPrivacyMode();
}

void PrivacySettings::setGlobalPrivacyMode(bool enabled) {
    preferences_.setGlobalPrivacyMode(enabled);
}

int PrivacySettings::otpIndex() const {
    return tessarine::otpIndex(preferences_.otpRetentionHours());
}

void PrivacySettings::chooseOtp(int index) {
    preferences_.setOtpRetentionHours(otpChoices.at(std::size_t(index)));
}

QString PrivacySettings::otpText() const {
    return tessarine::otpText(preferences_.otpRetentionHours());
}

PreferenceNote PrivacySettings::otpNote() const {
    return tessarine::otpNote(preferences_.otpRetentionHours());
}

} // namespace tessarine
