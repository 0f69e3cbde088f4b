#include "platform/linux/desktop/LinuxStatusItem.h"

#include "platform/SystemAppearance.h"
#include "platform/linux/desktop/LinuxStatusPanel.h"
#include "platform/linux/desktop/StatusPicture.h"
#include "platform/linux/desktop/WidgetPalette.h"

#include <QCursor>

namespace tessarine {

namespace {

// Whether two menus would look and work alike. What an item does follows from how it reads.
bool sameItems(const QMenu& left, const QMenu& right) {
    const auto same = [](const QAction* a, const QAction* b) {
        return a->text() == b->text() && a->isSeparator() == b->isSeparator() &&
               a->isEnabled() == b->isEnabled() && a->isCheckable() == b->isCheckable() &&
               a->isChecked() == b->isChecked();
    };
    const QList<QAction*> ours = left.actions();
    const QList<QAction*> theirs = right.actions();
    return std::equal(ours.begin(), ours.end(), theirs.begin(), theirs.end(), same);
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

void LinuxStatusItem::setMenuBuilder(MenuBuilder builder) {
    builder_ = std::move(builder);
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
    connect(trayMenu_.get(), &QMenu::aboutToShow, this, &LinuxStatusItem::refillTrayMenu);
    refillTrayMenu();
    tray_ = std::make_unique<QSystemTrayIcon>();
    tray_->setContextMenu(trayMenu_.get());
    connect(tray_.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger)
                    popUpMenu(QCursor::pos());
            });
    refresh();
    tray_->show();
}

void LinuxStatusItem::showOnPanel() {
    tray_.reset();
    trayMenu_.reset();
    if (!panel_) {
        panel_ = std::make_unique<LinuxStatusPanel>(symbols_, appearance_);
        connect(panel_.get(), &LinuxStatusPanel::menuRequested, this, &LinuxStatusItem::popUpMenu);
    }
    refresh();
    panel_->show();
}

void LinuxStatusItem::refresh() {
    if (tray_) {
        tray_->setIcon(statusIcon(symbols_, symbolName_, title_, appearance_.prefersDark()));
        tray_->setToolTip(description_ + title_);
    }
    if (panel_)
        panel_->setContent(symbolName_, description_, title_);
}

// The host of a tray fetches the menu when it likes, and answers by the items that it has fetched:
// they are only replaced by others.
void LinuxStatusItem::refillTrayMenu() {
    if (!builder_)
        return;
    QMenu fresh;
    builder_(fresh);
    if (sameItems(*trayMenu_, fresh))
        return;
    trayMenu_->clear();
    builder_(*trayMenu_);
}

void LinuxStatusItem::popUpMenu(const QPoint& place) {
    if (!builder_)
        return;
    delete openMenu_;
    openMenu_ = new QMenu(panel_.get());
    openMenu_->setAttribute(Qt::WA_DeleteOnClose);
    openMenu_->setPalette(widgetPalette(appearance_.prefersDark()));
    builder_(*openMenu_);
    openMenu_->popup(place);
    openMenu_->activateWindow();
}

} // namespace tessarine
