#include "settings/PreferencesView.h"

#include "platform/Platform.h"
#include "preferences/PreferencesStore.h"

namespace tessarine {

PreferencesView::PreferencesView(const Services& services)
    : preferences_(services.preferences)
    , general_(services.preferences, services.hoard, *services.platform.scheduler,
               services.launchAtLogin, services.applyAppearance)
    , storage_(services.preferences, services.hoard, *services.platform.scheduler,
               services.savePanel)
    , privacy_(services.preferences, services.explainingWindows)
    , permissions_({services.listener, *services.platform.accessibility,
                    *services.platform.fileSystem, *services.platform.systemSettings}) {
    connect(&preferences_, &PreferencesStore::changed, this, &PreferencesView::refreshIsSaved);
}

void PreferencesView::appear() {
    refreshIsSaved();
    general_.appear();
    storage_.appear();
    permissions_.appear();
}

void PreferencesView::disappear() {
    general_.disappear();
    storage_.disappear();
}

void PreferencesView::setSelectedTab(PrefTab tab) {
    if (tab == selectedTab_)
        return;
    selectedTab_ = tab;
    Q_EMIT selectedTabChanged();
}

void PreferencesView::refreshIsSaved() {
    isSaved_ = preferences_.isSaved();
    Q_EMIT isSavedChanged();
}

} // namespace tessarine
