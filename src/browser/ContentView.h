#pragma once

#include "browser/list/BrowserList.h"
#include "browser/overlays/Overlays.h"
#include "browser/rows/RowActions.h"
#include "browser/selection/DateRangePreset.h"
#include "browser/selection/ListSelection.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>

namespace tessarine {

class AppLauncher;
class HoardStore;
class NotificationListener;
class PreferencesStore;
class Scheduler;

// The state of the browser and all that can be done in it, in four parts. What is shown derives
// from the listener's list and the parts' fields; nothing here is kept beyond the process. Main
// thread.
class ContentView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The main window brings it")
    Q_PROPERTY(tessarine::BrowserList* list READ list CONSTANT)
    Q_PROPERTY(tessarine::ListSelection* selection READ selection CONSTANT)
    Q_PROPERTY(tessarine::RowActions* actions READ actions CONSTANT)
    Q_PROPERTY(tessarine::Overlays* overlays READ overlays CONSTANT)

public:
    using DateRangePreset = tessarine::DateRangePreset;

    struct Services {
        std::shared_ptr<NotificationListener> listener;
        HoardStore& hoard;
        PreferencesStore& preferences;
        Scheduler& scheduler;
        AppLauncher& launcher;
        std::function<void(const QString&)> setPasteboard; // replaces its content by a plain text
        Overlays::MakeExportSheet makeExportSheet;
        BrowserList::CanSeeNotifications canSeeNotifications = [] { return true; };
    };

    explicit ContentView(Services services);

    // To be called each time that the view is shown, and hidden.
    void appear() { list_.appear(); }
    void disappear() { list_.disappear(); }

    BrowserList* list() { return &list_; }
    ListSelection* selection() { return &selection_; }
    RowActions* actions() { return &actions_; }
    Overlays* overlays() { return &overlays_; }

private:
    BrowserList list_;
    ListSelection selection_;
    Overlays overlays_;
    RowActions actions_;
};

} // namespace tessarine
