#include "shell/MenuBarController.h"

#include "capture/NotificationListener.h"
#include "platform/DefaultsKeys.h"
#include "platform/UserDefaults.h"
#include "shell/LaunchAgentManager.h"

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
    statusItem_.setMenuBuilder([this] { return menu(); });
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

StatusMenuItem MenuBarController::launchAtLogin() const {
    StatusMenuItem item{qtTrId("menu.launchAtLogin"), [this] { launchAgent_.toggle(); }};
    item.isChecked = launchAgent_.isEnabled();
    return item;
}

StatusMenu MenuBarController::menu() const {
    StatusMenu menu{
        StatusMenuItem::caption(programName),
        StatusMenuItem::separator(),
        {qtTrId("menu.openHoard"), actions_.openHoard, QStringLiteral("o")},
        {qtTrId("menu.help.title"), actions_.openHelp, QStringLiteral("?")},
        {qtTrId("menu.welcome.title"), actions_.openWelcomeGuide},
        {qtTrId("menu.preferences.title"), actions_.openPreferences, QStringLiteral(",")},
        StatusMenuItem::separator(),
        launchAtLogin(),
    };
    if (actions_.lacksFullDiskAccess())
        menu.push_back({qtTrId("menu.fullDiskAccess"), actions_.openFullDiskAccess});
    menu.push_back(StatusMenuItem::separator());
    menu.push_back({qtTrId("menu.checkForUpdates"), actions_.checkForUpdates});
    menu.push_back(StatusMenuItem::separator());
    menu.push_back({qtTrId("menu.quit"), actions_.quit, QStringLiteral("q")});
    return menu;
}

} // namespace tessarine
