#include "platform/linux/desktop/LinuxStatusItem.h"

#include "platform/DefaultsKeys.h"
#include "platform/SystemAppearance.h"
#include "platform/UserDefaults.h"
#include "platform/linux/desktop/LinuxStatusPanel.h"
#include "platform/linux/desktop/StatusPanelAccessible.h"
#include "platform/linux/desktop/StatusPicture.h"
#include "platform/linux/desktop/WidgetPalette.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>

namespace tessarine {

namespace {

void call(const std::function<void()>& action) {
    if (action)
        action();
}

// Whether two menus would look and work alike. What an item does follows from how it reads.
bool sameItems(const StatusMenu& left, const StatusMenu& right) {
    const auto same = [](const StatusMenuItem& a, const StatusMenuItem& b) {
        return a.title == b.title && a.isSeparator == b.isSeparator && a.isEnabled == b.isEnabled &&
               a.isChecked == b.isChecked;
    };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), same);
}

void addItem(QMenu& menu, const StatusMenuItem& item) {
    if (item.isSeparator) {
        menu.addSeparator();
        return;
    }
    QAction* const action = menu.addAction(item.title);
    action->setEnabled(item.isEnabled);
    action->setCheckable(item.isChecked.has_value());
    action->setChecked(item.isChecked.value_or(false));
    if (item.action)
        QObject::connect(action, &QAction::triggered, action, [run = item.action] { run(); });
}

void fill(QMenu& menu, const StatusMenu& items) {
    for (const StatusMenuItem& item : items)
        addItem(menu, item);
}

void setShortcuts(const QMenu& menu, const StatusMenu& items) {
    const QList<QAction*> actions = menu.actions();
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (!items[i].key.isEmpty())
            actions.at(qsizetype(i))->setShortcut(QStringLiteral("Ctrl+") + items[i].key);
    }
}

constexpr qint64 greatestDistance = 32767; // window systems count in 16 bits

int distanceOf(qint64 saved) {
    return int(std::clamp<qint64>(saved, 0, greatestDistance));
}

// The entry with this shortcut that can be chosen; null if there is none.
QAction* actionFor(const QMenu& menu, const QKeyEvent& key) {
    const QKeySequence pressed(key.keyCombination());
    for (QAction* action : menu.actions()) {
        if (action->isEnabled() && action->shortcut() == pressed)
            return action;
    }
    return nullptr;
}

} // namespace

LinuxStatusItem::LinuxStatusItem(const Symbols& symbols, const SystemAppearance& appearance)
    : symbols_(symbols)
    , appearance_(appearance)
    , watch_(QDBusConnection::sessionBus()) {
    graceTimer_.setSingleShot(true);
    graceTimer_.setInterval(grace);
    connect(&appearance_, &SystemAppearance::changed, this, &LinuxStatusItem::refresh);
}

LinuxStatusItem::~LinuxStatusItem() = default;

void LinuxStatusItem::setImage(const QString& symbolName, const QString& accessibilityDescription) {
    symbolName_ = symbolName;
    description_ = accessibilityDescription;
    refresh();
}

void LinuxStatusItem::setTitle(const QString& title) {
    title_ = title;
    refresh();
}

void LinuxStatusItem::setTip(const QString& tip) {
    tip_ = tip;
    refreshTip();
}

void LinuxStatusItem::setActivation(std::function<void()> activation) {
    activation_ = std::move(activation);
}

void LinuxStatusItem::setAlternateActivation(std::function<void()> activation) {
    alternateActivation_ = std::move(activation);
}

void LinuxStatusItem::setMenuBuilder(MenuBuilder builder) {
    builder_ = std::move(builder);
}

void LinuxStatusItem::keepPlaceIn(UserDefaults& defaults) {
    defaults_ = &defaults;
}

// What is no pair of distances is none of ours; one that is too far for this screen is cut there.
void LinuxStatusItem::restorePlace() {
    if (!defaults_)
        return;
    const std::vector<qint64> saved = defaults_->integerList(defaultsKeys::statusPanelOffset);
    if (saved.size() != 2)
        return;
    panel_->setOffset(QPoint(distanceOf(saved[0]), distanceOf(saved[1])));
}

void LinuxStatusItem::savePlace() {
    if (defaults_)
        defaults_->setIntegerList(defaultsKeys::statusPanelOffset,
                                  {panel_->offset().x(), panel_->offset().y()});
}

void LinuxStatusItem::show() {
    connect(&watch_, &LinuxTrayWatch::changed, this, &LinuxStatusItem::moveToFittingPlace);
    connect(&graceTimer_, &QTimer::timeout, this, &LinuxStatusItem::showOnPanel);
    moveToFittingPlace();
}

void LinuxStatusItem::moveToFittingPlace() {
    if (watch_.isPresent()) {
        graceTimer_.stop();
        showInTray();
    } else if (!panel_) {
        graceTimer_.start();
    }
}

void LinuxStatusItem::showInTray() {
    // Qt may know less than the watch: a host that comes after Qt has looked escapes it.
    if (!QSystemTrayIcon::isSystemTrayAvailable()) {
        showOnPanel();
        return;
    }
    panel_.reset();
    trayMenu_ = std::make_unique<QMenu>();
    trayItems_.clear();
    connect(trayMenu_.get(), &QMenu::aboutToShow, this, &LinuxStatusItem::refillTrayMenu);
    refillTrayMenu();
    tray_ = std::make_unique<QSystemTrayIcon>();
    tray_->setContextMenu(trayMenu_.get());
    connect(tray_.get(), &QSystemTrayIcon::activated, this, &LinuxStatusItem::onTrayActivated);
    refresh();
    tray_->show();
}

// A tray tells the button and not the keys; these are asked for where the desktop lets a program.
void LinuxStatusItem::onTrayActivated(QSystemTrayIcon::ActivationReason reason) {
    const bool isAltHeld = QGuiApplication::queryKeyboardModifiers().testFlag(Qt::AltModifier);
    if (reason == QSystemTrayIcon::MiddleClick || (reason == QSystemTrayIcon::Trigger && isAltHeld))
        call(alternateActivation_);
    else if (reason == QSystemTrayIcon::Trigger)
        call(activation_);
}

void LinuxStatusItem::showOnPanel() {
    tray_.reset();
    trayMenu_.reset();
    if (!panel_) {
        StatusPanelAccessible::install();
        panel_ = std::make_unique<LinuxStatusPanel>(symbols_, appearance_);
        connect(panel_.get(), &LinuxStatusPanel::menuRequested, this, &LinuxStatusItem::popUpMenu);
        connect(panel_.get(), &LinuxStatusPanel::alternateRequested, this,
                [this] { call(alternateActivation_); });
        connect(panel_.get(), &LinuxStatusPanel::placed, this, &LinuxStatusItem::savePlace);
        restorePlace();
    }
    refresh();
    panel_->show();
}

void LinuxStatusItem::refresh() {
    if (tray_) {
        tray_->setIcon(statusIcon(symbols_, symbolName_, title_, appearance_.prefersDark()));
    }
    if (panel_)
        panel_->setContent(symbolName_, description_, title_);
    refreshTip();
}

void LinuxStatusItem::refreshTip() {
    if (tray_)
        tray_->setToolTip(tip_.isEmpty() ? description_ : tip_);
    if (panel_)
        panel_->setTip(tip_);
}

// The host of a tray fetches the menu when it likes, and answers by the items that it has fetched:
// they are only replaced by others. It would draw shortcuts and not obey them.
void LinuxStatusItem::refillTrayMenu() {
    if (!builder_)
        return;
    StatusMenu fresh = builder_();
    if (sameItems(trayItems_, fresh))
        return;
    trayItems_ = std::move(fresh);
    trayMenu_->clear();
    fill(*trayMenu_, trayItems_);
}

// Qt knows the shortcuts of a menu only where a window of the program has it as a part.
bool LinuxStatusItem::eventFilter(QObject* watched, QEvent* event) {
    // The type first: a menu that is being taken apart sends events too, and is no menu any more.
    if (event->type() != QEvent::KeyPress || watched != openMenu_)
        return false;
    QAction* const chosen = actionFor(*openMenu_, *static_cast<QKeyEvent*>(event));
    if (!chosen)
        return false;
    openMenu_->close();
    chosen->trigger();
    return true;
}

void LinuxStatusItem::popUpMenu(const QPoint& place) {
    if (!builder_)
        return;
    delete openMenu_;
    openMenu_ = new QMenu(panel_.get());
    openMenu_->setAttribute(Qt::WA_DeleteOnClose);
    openMenu_->setPalette(widgetPalette(appearance_));
    const StatusMenu items = builder_();
    fill(*openMenu_, items);
    setShortcuts(*openMenu_, items);
    openMenu_->installEventFilter(this);
    // Also when a screen reader chooses, which leaves the menu as it is.
    QObject::connect(openMenu_, &QMenu::triggered, openMenu_, &QMenu::close);
    openMenu_->popup(place);
    openMenu_->activateWindow();
}

} // namespace tessarine
