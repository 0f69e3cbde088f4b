#pragma once

#include "core/ViewServices.h"
#include "settings/PreferencesWindow.h"
#include "support/Printers.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"
#include "support/WindowDriver.h"

#include <QQmlEngine>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace tessarine::testing {

// The real preferences window over a hoard in a temporary folder. A warning of the QML engine fails
// the test.
class SettingsTest : public ::testing::Test {
public:
    ~SettingsTest() override;

protected:
    SettingsTest();

    // A row of the hoard from this application, at any time in the past.
    void store(const QString& appName, const QString& bundleId, qint64 noteId);

    // The window on the screen with the keyboard, all that it asks for at its beginning answered.
    void show();
    void close() { window->window()->close(); }
    PreferencesView& view() { return window->view(); }
    void choose(PrefTab tab);

    WindowDriver& user() { return *driver_; }
    QQuickItem& item(const QString& name) { return driver_->item(name); }
    void click(const QString& name) { driver_->click(driver_->item(name)); }
    bool isShown(const QString& text) const { return driver_->texts().contains(text); }

    // Popups by their objectName, once nothing of them moves.
    bool opens(const QString& name) const;
    bool closes(const QString& name) const;

    QString spokenName(const QString& name);
    QString spokenDescription(const QString& name);

    // A choice from the menu of a row.
    void chooseFromMenu(const QString& row, const QString& text);

    QTemporaryDir folder;
    SimulatedPlatform system{folder.path()};
    SimulatedDesktop desktop{makeSymbols()};
    Services services{system.platform};
    ViewServices views{services, desktop.desktop, [](const QString&) {}};
    HoardStore& hoard = services.hoard;
    PreferencesStore& preferences = services.preferences;
    SimulatedSavePanel& savePanel = desktop.savePanel;
    QStringList appliedModes; // each that the window asked for
    int noticesShown = 0;
    int guidesShown = 0;
    std::unique_ptr<PreferencesWindow> window;

private:
    const QObject* popup(const QString& name) const;

    std::optional<WindowDriver> driver_;
};

} // namespace tessarine::testing
