#pragma once

#include "apps/AppIconResolver.h"
#include "apps/AppIconView.h"
#include "browser/MainWindow.h"
#include "capture/NotificationListener.h"
#include "platform/linux/LinuxSymbols.h"
#include "support/Printers.h"
#include "support/SimulatedApplicationIcons.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"
#include "theme/Theme.h"
#include "theme/ViewEngine.h"

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

    QQuickItem& root() const { return *window->window()->contentItem()->childItems().front(); }
    QQuickItem& list() const { return *root().findChild<QQuickItem*>(QStringLiteral("list")); }

    void resizeTo(int width, int height);

    // The row with this title, if it is in sight.
    QQuickItem* row(const QString& title) const;

    QTemporaryDir folder;
    SimulatedPlatform system{folder.path()};
    HoardStore hoard{system.fileSystem, system.defaults, system.scheduler};
    PreferencesStore preferences{system.defaults};
    DiagnosticsStore diagnostics{system.scheduler, [this]() -> HoardStore& { return hoard; }};
    std::shared_ptr<NotificationListener> listener = NotificationListener::create(
        {[this]() -> HoardStore& { return hoard; }, preferences, diagnostics, system.platform});
    SimulatedAppearance appearance;
    LinuxSymbols symbols;
    SimulatedApplicationIcons icons;
    std::shared_ptr<AppIconResolver> resolver = AppIconResolver::create(
        system.scheduler, {system.workspace, system.fileSystem, icons, symbols});
    Theme theme{appearance};
    std::unique_ptr<QQmlEngine> engine = makeViewEngine(theme, symbols);
    std::unique_ptr<MainWindow> window;
};

} // namespace tessarine::testing
