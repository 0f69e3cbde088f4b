#pragma once

#include "apps/AppIconResolver.h"
#include "apps/AppIconView.h"
#include "apps/AppLauncher.h"
#include "browser/MainWindow.h"
#include "capture/NotificationListener.h"
#include "platform/linux/desktop/LinuxSymbols.h"
#include "support/Printers.h"
#include "support/SimulatedApplicationIcons.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"
#include "theme/Theme.h"
#include "windows/ViewEngine.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace tessarine::testing {

// The real main window over a hoard in a temporary folder. A warning of the QML engine fails the
// test.
class UiTest : public ::testing::Test {
protected:
    UiTest();
    ~UiTest() override;

    // Notifications named "Title 1", "Title 2" and so on, the newest first, as the hoard would
    // give them.
    static NotificationList numbered(int count, int firstRow = 1);

    void makeWindow();
    void publish(NotificationList list) { listener->setNotifications(std::move(list)); }
    void show();

    // The same notifications as rows of the hoard, and the window over them with the keyboard.
    void showHoard(int count);
    void showHoard(NotificationList rows); // each with its own noteId
    void reload() { listener->setNotifications(hoard.fetchRecent(500)); } // as a capture does

    ContentView& view() const { return window->content(); }
    QQuickItem& root() const { return *window->window()->contentItem()->childItems().front(); }
    QQuickItem& list() const { return *root().findChild<QQuickItem*>(QStringLiteral("list")); }

    // The item with this objectName that is in the window now, also in menus, popovers and sheets.
    // A test ends where there is none.
    QQuickItem& item(const QString& name) const;
    QQuickItem* findItem(const QString& name) const; // null when there is none
    bool isShown(const QString& name) const; // the item, or the popup of that name, fully open
    bool isGone(const QString& name) const;  // the popup, fully closed

    // The entry of an open menu or picker, or the button, with this text.
    QQuickItem* entry(const QString& text) const;

    // What a user does. Each waits for the window to be drawn.
    void click(QQuickItem& item, Qt::MouseButton button = Qt::LeftButton);
    void clickAt(QQuickItem& item, QPointF place, Qt::MouseButton button = Qt::LeftButton);
    void doubleClick(QQuickItem& item);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString& text);
    void draw() { window->window()->grabWindow(); }

    // All visible texts below an item, in the order of the items.
    static QStringList textsIn(const QQuickItem& item);
    static QStringList textsInWindow(const MainWindow& window);

    void resizeTo(int width, int height);

    // The row with this title, if it is in sight.
    QQuickItem* row(const QString& title) const;

    QTemporaryDir folder;
    SimulatedPlatform system{folder.path()};
    HoardStore hoard{system.fileSystem, system.defaults, system.scheduler};
    PreferencesStore preferences{system.defaults};
    DiagnosticsStore diagnostics{system.scheduler, hoard};
    std::shared_ptr<NotificationListener> listener =
        NotificationListener::create({hoard, preferences, diagnostics, system.platform});
    SimulatedAppearance appearance;
    LinuxSymbols symbols;
    SimulatedApplicationIcons icons;
    std::shared_ptr<AppIconResolver> resolver = AppIconResolver::create(
        system.scheduler, {system.workspace, system.fileSystem, icons, symbols});
    Theme theme{appearance};
    std::unique_ptr<QQmlEngine> engine = makeViewEngine(theme, symbols);
    AppLauncher launcher{*system.platform.workspace, *system.platform.fileSystem, system.scheduler};
    QStringList pasteboard; // each text that was put there
    SimulatedSavePanel savePanel;
    SimulatedFileViewer fileViewer;
    ExportManager exports{{preferences, system.scheduler, savePanel}};
    std::unique_ptr<MainWindow> window;
};

} // namespace tessarine::testing
