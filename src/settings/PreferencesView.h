#pragma once

#include "settings/GeneralSettings.h"
#include "settings/PermissionSettings.h"
#include "settings/PrefTab.h"
#include "settings/PrivacySettings.h"
#include "settings/StorageSettings.h"

#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace tessarine {

struct Platform;

// The state of the preferences window: the tab that is chosen, and a part for each. Nearly all of
// it is the stored settings themselves, and a change takes effect by being stored. Main thread.
class PreferencesView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The preferences window brings it")
    Q_PROPERTY(QList<tessarine::PrefTabFace> tabs READ tabs CONSTANT)
    Q_PROPERTY(int selectedTab READ selectedIndex WRITE selectIndex NOTIFY selectedTabChanged)
    Q_PROPERTY(bool isSaved READ isSaved NOTIFY isSavedChanged)
    Q_PROPERTY(tessarine::GeneralSettings* general READ general CONSTANT)
    Q_PROPERTY(tessarine::StorageSettings* storage READ storage CONSTANT)
    Q_PROPERTY(tessarine::PrivacySettings* privacy READ privacy CONSTANT)
    Q_PROPERTY(tessarine::PermissionSettings* permissions READ permissions CONSTANT)

public:
    // All of these outlive the view.
    struct Services {
        PreferencesStore& preferences;
        std::shared_ptr<NotificationListener> listener;
        HoardStore& hoard;
        Platform& platform;
        SavePanel& savePanel;
        LaunchAtLogin launchAtLogin;
        GeneralSettings::ApplyAppearance applyAppearance;
        ExplainingWindows explainingWindows;
    };

    explicit PreferencesView(const Services& services);

    // The window comes to be shown, and goes.
    void appear();
    void disappear();

    static QList<PrefTabFace> tabs() { return prefTabFaces(); }
    PrefTab selectedTab() const { return selectedTab_; }
    void setSelectedTab(PrefTab tab);
    int selectedIndex() const { return int(selectedTab_); }
    void selectIndex(int index) { setSelectedTab(allPrefTabs.at(std::size_t(index))); }

    // Whether what the user has set is on disk; else it holds until the program ends.
    bool isSaved() const { return isSaved_; }

    GeneralSettings* general() { return &general_; }
    StorageSettings* storage() { return &storage_; }
    PrivacySettings* privacy() { return &privacy_; }
    PermissionSettings* permissions() { return &permissions_; }

Q_SIGNALS:
    void selectedTabChanged();
    void isSavedChanged();

private:
    void refreshIsSaved();

    PreferencesStore& preferences_;
    PrefTab selectedTab_ = PrefTab::general;
    bool isSaved_ = true;
    GeneralSettings general_;
    StorageSettings storage_;
    PrivacySettings privacy_;
    PermissionSettings permissions_;
};

} // namespace tessarine
