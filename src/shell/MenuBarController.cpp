#include "shell/MenuBarController.h"

#include "capture/NotificationListener.h"
#include "platform/DefaultsKeys.h"
#include "platform/StatusItem.h"
#include "platform/UserDefaults.h"
#include "shell/LaunchAgentManager.h"

#include <QKeySequence>
#include <QMenu>

#include <algorithm>
#include <limits>

namespace tessarine {

namespace {

const QString programName = QStringLiteral("Tessarine");

constexpr qint64 badgeLimit = 100; // from here on it tells no number

} // namespace

MenuBarController::MenuBarController(StatusItem& statusItem,
                                     std::shared_ptr<NotificationListener> listener,
                                     UserDefaults& defaults, const LaunchAgentManager& launchAgent,
                                     Actions actions)
    : statusItem_(statusItem)
    , listener_(std::move(listener))
    , defaults_(defaults)
    , launchAgent_(launchAgent)
    , actions_(std::move(actions))
    , lastSeenCount_(defaults.integer(defaultsKeys::menuBarLastSeenCount)) {
    statusItem_.setImage(QStringLiteral("bell.fill"), programName);
    statusItem_.setActivation(actions_.openHoard);
    statusItem_.setAlternateActivation(actions_.openDiagnostics);
    statusItem_.keepPlaceIn(defaults_);
    statusItem_.setMenuBuilder([this](QMenu& menu) { fillMenu(menu); });
    connect(listener_.get(), &NotificationListener::notificationsChanged, this,
            &MenuBarController::updateBadge);
    updateBadge();
    statusItem_.show();
}

void MenuBarController::markAllSeen() {
    lastSeenCount_ = listCount();
    defaults_.setInteger(defaultsKeys::menuBarLastSeenCount, lastSeenCount_);
    updateBadge();
}

QString MenuBarController::badge(qint64 count) {
    if (count < 1)
        return {};
    return count < badgeLimit ? QStringLiteral(" %1").arg(count) : QStringLiteral(" 99+");
}

qint64 MenuBarController::listCount() const {
    return qint64(listener_->notifications().size());
}

void MenuBarController::updateBadge() {
    // A count from a file may be any number: the difference saturates where the badge does.
    const qint64 count = listCount();
    const quint64 unseen = lastSeenCount_ < count ? quint64(count) - quint64(lastSeenCount_) : 0;
    const QString title = badge(qint64(std::min(unseen, quint64(badgeLimit))));
    statusItem_.setTip(tip(unseen));
    if (shownTitle_ == title)
        return; // each call draws the item again
    shownTitle_ = title;
    statusItem_.setTitle(title);
}

QString MenuBarController::tip(quint64 count) {
    constexpr quint64 largest = std::numeric_limits<int>::max(); // that a text can count
    return count < 1 ? QString() : qtTrId("menu.newNotifications", int(std::min(count, largest)));
}

void MenuBarController::fillMenu(QMenu& menu) const {
    menu.addAction(programName)->setEnabled(false);
    menu.addSeparator();
    menu.addAction(qtTrId("menu.openHoard"), QKeySequence(Qt::CTRL | Qt::Key_O), this,
                   actions_.openHoard);
    menu.addAction(qtTrId("menu.help.title"), QKeySequence(Qt::CTRL | Qt::Key_Question), this,
                   actions_.openHelp);
    menu.addAction(qtTrId("menu.welcome.title"), this, actions_.openWelcomeGuide);
    menu.addAction(qtTrId("menu.preferences.title"), QKeySequence(Qt::CTRL | Qt::Key_Comma), this,
                   actions_.openPreferences);
    menu.addSeparator();
    QAction* atLogin =
        menu.addAction(qtTrId("menu.launchAtLogin"), this, [this] { launchAgent_.toggle(); });
    atLogin->setCheckable(true);
    atLogin->setChecked(launchAgent_.isEnabled());
    if (actions_.lacksFullDiskAccess())
        menu.addAction(qtTrId("menu.fullDiskAccess"), this, actions_.openFullDiskAccess);
    menu.addSeparator();
    menu.addAction(qtTrId("menu.checkForUpdates"), this, actions_.checkForUpdates);
    menu.addSeparator();
    menu.addAction(qtTrId("menu.quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, actions_.quit);
}

} // namespace tessarine
