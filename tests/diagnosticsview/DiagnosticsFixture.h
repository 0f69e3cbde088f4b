#pragma once

#include "core/ViewServices.h"
#include "diagnosticsview/DiagnosticsWindow.h"
#include "support/Printers.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarine::testing {

// The services of the program over a hoard in a temporary folder, and the real diagnostics window
// once it is shown. A warning of the QML engine fails the test.
class DiagnosticsFixture : public ::testing::Test {
public:
    ~DiagnosticsFixture() override;

protected:
    DiagnosticsFixture();

    // The window with the keyboard, drawn.
    void show();
    void draw() const { window().window().grabWindow(); }

    ViewWindow& window() const { return *ViewWindow::titled(diagnosticsTitle()); }
    bool isOpen() const { return ViewWindow::titled(diagnosticsTitle()) != nullptr; }
    DiagnosticsView& view() const { return *window().findChild<DiagnosticsView*>(); }
    DatabaseSectionView& database() const { return *view().database(); }

    // The visible item with this objectName. A test ends where there is none.
    QQuickItem& item(const QString& name) const;
    QQuickItem* findItem(const QString& name) const; // null when there is none

    // What a user does.
    void click(const QString& name) const;
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void type(const QString& text) const;
    void settle(); // the workers and what they bring back

    // All visible texts below an item, in the order of the items.
    static QStringList textsIn(const QQuickItem& item);
    QStringList logTexts() const { return textsIn(item(QStringLiteral("logList"))); }

    void log(const QString& message, Level level = Level::info,
             Category category = Category::system) {
        diagnostics.log(message, level, category);
    }
    QStringList messages() const; // of the log, newest first

    CapturedNotification capture(qint64 noteId) const;

    QTemporaryDir folder;
    SimulatedPlatform system{folder.path()};
    SimulatedDesktop desktop{makeSymbols()};
    Services services{system.platform};
    QStringList pasteboard; // each text that was put there
    ViewServices views{services, desktop.desktop,
                       [this](const QString& text) { pasteboard << text; }};
    HoardStore& hoard = services.hoard;
    DiagnosticsStore& diagnostics = services.diagnostics;
    SimulatedSavePanel& savePanel = desktop.savePanel;
};

} // namespace tessarine::testing
