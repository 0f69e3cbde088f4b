#pragma once

#include "browser/ContentView.h"
#include "core/Services.h"
#include "support/HoardFile.h"
#include "support/Printers.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace tessarine::testing {

// The browser's state over a real hoard in a temporary folder.
class BrowserTest : public ::testing::Test {
protected:
    // Stores a row, as a capture would, and gives its key in the hoard.
    qint64 store(const QString& app, const QString& title, double age, const QString& body = {}) {
        CapturedNotification row;
        row.noteId = ++lastNoteId;
        row.appBundleId = QStringLiteral("com.example.") + app;
        row.appName = app;
        row.title = title;
        row.body = body;
        row.timestamp = system.scheduler.now() - age;
        EXPECT_TRUE(hoard.insert(row));
        return lastNoteId;
    }

    // So many rows of one application, the first one the newest, a second apart.
    void storeMany(int count, const QString& app = QStringLiteral("Mail")) {
        for (int i = 0; i < count; ++i)
            store(app, QStringLiteral("Title %1").arg(i), i);
    }

    // What a capture does to the list.
    void reload() { listener->setNotifications(hoard.fetchRecent(500)); }

    ContentView& open() {
        reload();
        view = std::make_unique<ContentView>(browserServices());
        view->appear();
        return *view;
    }

    ContentView::Services browserServices() {
        return {services.listener,
                hoard,
                preferences,
                system.scheduler,
                services.launcher,
                [this](const QString& text) { pasteboard << text; },
                [this](NotificationList list, std::function<void()> onDismiss) {
                    exported = list;
                    return std::make_unique<ExportOptionsSheet>(
                        std::move(list), std::move(onDismiss),
                        ExportOptionsSheet::Services{exports, preferences, system.scheduler,
                                                     fileViewer});
                }};
    }

    QUuid idOf(const QString& title) const {
        for (const CapturedNotification& row : listener->notifications()) {
            if (row.title == title)
                return row.id;
        }
        return {};
    }

    QStringList shown() const {
        QStringList titles;
        for (const CapturedNotification& row : view->list()->filteredNotifications())
            titles << row.title;
        return titles;
    }

    QTemporaryDir folder;
    SimulatedPlatform system{folder.path()};
    Services services{system.platform};
    HoardStore& hoard = services.hoard;
    PreferencesStore& preferences = services.preferences;
    std::shared_ptr<NotificationListener> listener = services.listener;
    QStringList pasteboard;    // each text that was put there
    NotificationList exported; // what the last export sheet was given
    SimulatedSavePanel savePanel;
    SimulatedFileViewer fileViewer;
    ExportManager exports{{preferences, system.scheduler, savePanel}};
    qint64 lastNoteId = 0;
    std::unique_ptr<ContentView> view;
};

} // namespace tessarine::testing
