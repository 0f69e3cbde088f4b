#pragma once

#include "core/AppDelegate.h"
#include "support/Printers.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"

#include <QCoreApplication>
#include <QEvent>
#include <QQmlEngine>
#include <QQmlError>
#include <QQuickView>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace tessarine::testing {

// The program as a new process builds it, up to the launch, over a simulated platform. Its user has
// agreed to everything and wants no questions. A warning of the QML engine fails the test.
class DelegateFixture : public ::testing::Test {
public:
    ~DelegateFixture() override {
        for (ViewWindow* open : ViewWindow::allVisible())
            open->window().close();
        delegate.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

protected:
    DelegateFixture() {
        system.defaults.setBoolean(QStringLiteral("NSQuitAlwaysKeepsWindows"), true);
        system.defaults.setText(QStringLiteral("appearanceMode"), QStringLiteral("dark"));
        system.defaults.setBoolean(QStringLiteral("hasAcceptedEULA"), true);
        system.defaults.setBoolean(QStringLiteral("fdaSkipped"), true);
        system.defaults.setBoolean(QStringLiteral("launchLoginPromptSuppressed"), true);
        system.accessibility.trusted = true;
        services.emplace(system.platform);
        views.emplace(*services, desktop.desktop, [](const QString&) {});
        QObject::connect(views->engine.get(), &QQmlEngine::warnings, views->engine.get(),
                         [](const QList<QQmlError>& warnings) {
                             for (const QQmlError& warning : warnings)
                                 ADD_FAILURE() << warning.toString().toStdString();
                         });
        delegate.emplace(*views);
    }

    void launch() {
        delegate->applicationDidFinishLaunching();
        system.scheduler.settle();
    }

    // The menu of the status item, as a click opens it.
    void chooseInStatusMenu(const QString& text) {
        for (const StatusMenuItem& item : desktop.statusItem.menuBuilder()) {
            if (item.title == text)
                return item.action();
        }
        FAIL() << "no such entry";
    }

    QTemporaryDir folder;
    SimulatedPlatform system{folder.path()};
    SimulatedDesktop desktop{makeSymbols()};
    std::optional<Services> services;
    std::optional<ViewServices> views;
    std::optional<AppDelegate> delegate;
};

} // namespace tessarine::testing
