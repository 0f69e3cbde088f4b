#include "settings/SettingsFixture.h"

#include "support/EventLoop.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QQmlError>
#include <QScreen>
#include <QTest>

#include <algorithm>

namespace tessarine::testing {

SettingsTest::SettingsTest() {
    QObject::connect(views.engine.get(), &QQmlEngine::warnings, views.engine.get(),
                     [](const QList<QQmlError>& warnings) {
                         for (const QQmlError& warning : warnings)
                             ADD_FAILURE() << warning.toString().toStdString();
                     });
}

SettingsTest::~SettingsTest() {
    window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void SettingsTest::store(const QString& appName, const QString& bundleId, qint64 noteId) {
    CapturedNotification row;
    row.noteId = noteId;
    row.appName = appName;
    row.appBundleId = bundleId;
    row.title = QStringLiteral("Title %1").arg(noteId);
    row.timestamp = ManualScheduler::startOfTime - double(noteId);
    ASSERT_TRUE(hoard.insert(row));
}

void SettingsTest::show() {
    if (!window) {
        LoginItem& loginItem = system.loginItem;
        const LaunchAtLogin launchAtLogin{
            [&loginItem] { return loginItem.status() == LoginItemStatus::enabled; },
            [&loginItem] { loginItem.registerMainApp(); },
            [&loginItem] { loginItem.unregisterMainApp(); }};
        window = std::make_unique<PreferencesWindow>(
            PreferencesView::Services{preferences,
                                      services.listener,
                                      hoard,
                                      system.platform,
                                      savePanel,
                                      launchAtLogin,
                                      [this](const QString& mode) {
                                          appliedModes << mode;
                                          views.theme.applyAppearance(mode);
                                      },
                                      {[this] { ++noticesShown; }, [this] { ++guidesShown; }}},
            *views.engine);
        driver_.emplace(*window->window());
    }
    window->showAndMakeKey();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window->window(), patienceMs));
    system.scheduler.settle();
    user().draw();
}

void SettingsTest::choose(PrefTab tab) {
    if (view().selectedTab() == tab)
        return; // with the height that it has
    view().setSelectedTab(tab);
    const int room = QGuiApplication::primaryScreen()->availableSize().height();
    const int height = std::min(windowHeight(tab), room);
    ASSERT_TRUE(turnsUntil([&] { return window->window()->height() == height; }));
    user().draw();
}

const QObject* SettingsTest::popup(const QString& name) const {
    const QObject* found = window->window()->contentItem()->findChild<QObject*>(name);
    if (!found)
        qFatal("there is no popup named %s", qPrintable(name));
    return found;
}

bool SettingsTest::opens(const QString& name) const {
    return turnsUntil([&] { return popup(name)->property("opened").toBool(); });
}

bool SettingsTest::closes(const QString& name) const {
    return turnsUntil([&] { return !popup(name)->property("visible").toBool(); });
}

QString SettingsTest::spokenName(const QString& name) {
    return QAccessible::queryAccessibleInterface(&item(name))->text(QAccessible::Name);
}

QString SettingsTest::spokenDescription(const QString& name) {
    return QAccessible::queryAccessibleInterface(&item(name))->text(QAccessible::Description);
}

void SettingsTest::chooseFromMenu(const QString& row, const QString& text) {
    QQuickItem& place = item(row);
    user().clickAt(place, {place.width() - 20, place.height() / 2});
    ASSERT_TRUE(turnsUntil([&] { return place.property("opened").toBool(); }));
    user().click(*user().entry(text));
    ASSERT_TRUE(turnsUntil([&] { return !place.property("opened").toBool(); }));
    user().draw();
}

} // namespace tessarine::testing
