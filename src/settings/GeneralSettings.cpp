#include "settings/GeneralSettings.h"

#include "platform/Scheduler.h"
#include "preferences/PreferencesStore.h"
#include "settings/PreferenceChoices.h"

namespace tessarine {

GeneralSettings::GeneralSettings(PreferencesStore& preferences, HoardStore& hoard,
                                 Scheduler& scheduler, LaunchAtLogin launchAtLogin,
                                 ApplyAppearance applyAppearance)
    : preferences_(preferences)
    , scheduler_(scheduler)
    , loginItem_(std::move(launchAtLogin))
    , applyAppearance_(std::move(applyAppearance))
    , excludedApps_(preferences, hoard, scheduler) {
    connect(&preferences, &PreferencesStore::changed, this, &GeneralSettings::changed);
}

void GeneralSettings::appear() {
    refreshLaunchAtLogin();
}

void GeneralSettings::disappear() {
    setShowExcludedAppsSheet(false);
}

QStringList GeneralSettings::appearanceTexts() {
    return tessarine::appearanceTexts();
}

int GeneralSettings::appearanceIndex() const {
    return int(appearanceChoices.indexOf(preferences_.appearanceMode()));
}

void GeneralSettings::chooseAppearance(int index) {
    const QString& mode = appearanceChoices.at(index);
    preferences_.setAppearanceMode(mode);
    scheduler_.onMain([apply = applyAppearance_, mode] { apply(mode); });
}

void GeneralSettings::setLaunchAtLogin(bool enabled) {
    if (enabled)
        loginItem_.enable();
    else
        loginItem_.disable();
    refreshLaunchAtLogin();
}

void GeneralSettings::refreshLaunchAtLogin() {
    launchAtLogin_ = loginItem_.isEnabled();
    Q_EMIT launchAtLoginChanged();
}

int GeneralSettings::excludedCount() const {
    return int(preferences_.excludedBundleIds().size());
}

void GeneralSettings::setShowExcludedAppsSheet(bool shown) {
    if (shown == showExcludedAppsSheet_)
        return;
    showExcludedAppsSheet_ = shown;
    if (shown)
        excludedApps_.appear();
    else
        excludedApps_.disappear();
    Q_EMIT showExcludedAppsSheetChanged();
}

} // namespace tessarine
