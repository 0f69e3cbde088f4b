#pragma once

#include "settings/ExcludedAppsView.h"
#include "settings/LaunchAtLogin.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace tessarine {

class PreferencesStore;
class Scheduler;

// The preferences' tab for appearance, start at login and excluded applications. Main thread.
class GeneralSettings : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("PreferencesView brings it")
    Q_PROPERTY(QList<QString> appearanceTexts READ appearanceTexts CONSTANT)
    Q_PROPERTY(int appearanceIndex READ appearanceIndex WRITE chooseAppearance NOTIFY changed)
    Q_PROPERTY(
        bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY launchAtLoginChanged)
    Q_PROPERTY(int excludedCount READ excludedCount NOTIFY changed)
    Q_PROPERTY(bool showExcludedAppsSheet READ showExcludedAppsSheet WRITE setShowExcludedAppsSheet
                   NOTIFY showExcludedAppsSheetChanged)
    Q_PROPERTY(tessarine::ExcludedAppsView* excludedApps READ excludedApps CONSTANT)

public:
    using ApplyAppearance = std::function<void(const QString& mode)>;

    // The references outlive this.
    GeneralSettings(PreferencesStore& preferences, HoardStore& hoard, Scheduler& scheduler,
                    LaunchAtLogin launchAtLogin, ApplyAppearance applyAppearance);

    // The window comes to be shown, and goes.
    void appear();
    void disappear();

    static QStringList appearanceTexts();
    int appearanceIndex() const; // -1 for a mode that is not offered
    void chooseAppearance(int index);

    // As it was when the system was asked last: at each appearance and after each change.
    bool launchAtLogin() const { return launchAtLogin_; }
    void setLaunchAtLogin(bool enabled);
    void refreshLaunchAtLogin();

    int excludedCount() const;

    // Each time that it is shown the sheet begins anew.
    bool showExcludedAppsSheet() const { return showExcludedAppsSheet_; }
    void setShowExcludedAppsSheet(bool shown);
    ExcludedAppsView* excludedApps() { return &excludedApps_; }

Q_SIGNALS:
    void changed();
    void launchAtLoginChanged();
    void showExcludedAppsSheetChanged();

private:
    PreferencesStore& preferences_;
    Scheduler& scheduler_;
    LaunchAtLogin loginItem_;
    ApplyAppearance applyAppearance_;
    ExcludedAppsView excludedApps_;
    bool launchAtLogin_ = false;
    bool showExcludedAppsSheet_ = false;
};

} // namespace tessarine
