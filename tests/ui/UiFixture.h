#pragma once

#include "browser/MainWindow.h"
#include "core/ViewServices.h"
#include "support/Printers.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"

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
public:
    ~UiTest() override;

protected:
    UiTest();

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
    SimulatedDesktop desktop{makeSymbols()};
    Services services{system.platform};
    QStringList pasteboard; // each text that was put there
    ViewServices views{services, desktop.desktop,
                       [this](const QString& text) { pasteboard << text; }};
    HoardStore& hoard = services.hoard;
    PreferencesStore& preferences = services.preferences;
    std::shared_ptr<NotificationListener> listener = services.listener;
    SimulatedAppearance& appearance = desktop.appearance;
    SimulatedApplicationIcons& icons = desktop.icons;
    Theme& theme = views.theme;
    SimulatedSavePanel& savePanel = desktop.savePanel;
    SimulatedFileViewer& fileViewer = desktop.fileViewer;
    std::unique_ptr<MainWindow> window;
};

} // namespace tessarine::testing
