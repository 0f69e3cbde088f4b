#pragma once

#include "settings/ExcludedAppsModel.h"
#include "shared/AliveGuard.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tessarine {

class HoardStore;
class PreferencesStore;
class Scheduler;

// The state behind the sheet in which the user stops the capture of applications: the applications
// that the hoard knows, and the question whether the notifications of one shall go too. An excluded
// application whose rows have all gone is not listed, and counts all the same. Main thread.
class ExcludedAppsView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("GeneralSettings brings it")
    Q_PROPERTY(tessarine::ExcludedAppsModel* apps READ apps CONSTANT)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY loaded)
    Q_PROPERTY(int excludedCount READ excludedCount NOTIFY changed)
    Q_PROPERTY(bool showConfirmation READ showConfirmation WRITE setShowConfirmation NOTIFY
                   showConfirmationChanged)
    Q_PROPERTY(QString confirmationTitle READ confirmationTitle NOTIFY askedChanged)
    Q_PROPERTY(QString confirmationMessage READ confirmationMessage NOTIFY askedChanged)

public:
    // The references outlive the view.
    ExcludedAppsView(PreferencesStore& preferences, HoardStore& hoard, Scheduler& scheduler);

    // The sheet comes to be shown: reads the applications, on a worker. And goes: forgets them.
    void appear();
    void disappear();

    ExcludedAppsModel* apps() { return &apps_; }
    bool isEmpty() const { return isLoaded_ && apps_.apps().empty(); } // false while it is read
    int excludedCount() const;

    // The switch of a line. Off takes the exclusion back at once; on asks first.
    Q_INVOKABLE void toggleOn(int row);
    Q_INVOKABLE void toggleOff(int row);

    // Where an arrow or another key that moves in a list leads from this row; -1 for other keys.
    Q_INVOKABLE int rowAfter(int key, int row) const;

    // The three answers. Deleting goes by the shown name, whatever the bundle ids; the list of this
    // sheet and of other windows stay as they are until their next reading.
    Q_INVOKABLE void excludeOnly();
    Q_INVOKABLE void excludeAndDelete();
    Q_INVOKABLE void cancel();

    const std::optional<DistinctApp>& pendingExclude() const { return pendingExclude_; }
    bool showConfirmation() const { return showConfirmation_; }
    void setShowConfirmation(bool shown);

    // About the application that was asked about last, so that they stay while the question fades.
    QString confirmationTitle() const;
    QString confirmationMessage() const;

Q_SIGNALS:
    void loaded();
    void changed();
    void showConfirmationChanged();
    void askedChanged();

private:
    void takePreferences();
    void takeApps(DistinctAppList apps);
    std::optional<DistinctApp> excludePending();
    QString askedName() const;

    PreferencesStore& preferences_;
    HoardStore& hoard_;
    Scheduler& scheduler_;
    ExcludedAppsModel apps_;
    bool isLoaded_ = false;
    int reading_ = 0; // the number of the last one; only that one counts
    std::optional<DistinctApp> pendingExclude_;
    DistinctApp asked_;
    bool showConfirmation_ = false;
    AliveGuard alive_;
};

} // namespace tessarine
