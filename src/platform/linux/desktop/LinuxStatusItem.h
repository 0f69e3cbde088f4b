#pragma once

#include "platform/StatusItem.h"
#include "platform/linux/desktop/LinuxTrayWatch.h"

#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QSystemTrayIcon>
#include <QTimer>

#include <chrono>
#include <memory>

namespace tessarine {

class LinuxStatusPanel;
class Symbols;
class SystemAppearance;

// The status item in the desktop's tray, and where there is none, on a panel of our own. The tray
// may come after the program, as at login, and it may go: the item moves. A tray opens the menu at
// its own place on a right click, and leaves the left one to the item.
class LinuxStatusItem : public QObject, public StatusItem {
    Q_OBJECT

public:
    // How long a desktop without a tray may take to bring one, before the panel stands in for it.
    static constexpr std::chrono::milliseconds grace{2000};

    // Both outlive the item.
    LinuxStatusItem(const Symbols& symbols, const SystemAppearance& appearance);
    ~LinuxStatusItem() override;

    void setImage(const QString& symbolName, const QString& accessibilityDescription) override;
    void setTitle(const QString& title) override;
    void setTip(const QString& tip) override;
    void setActivation(std::function<void()> activation) override;
    void setAlternateActivation(std::function<void()> activation) override;
    void setMenuBuilder(MenuBuilder builder) override;
    void keepPlaceIn(UserDefaults& defaults) override;
    void show() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void moveToFittingPlace();
    void showInTray();
    void showOnPanel();
    void refresh();
    void refreshTip();
    void refillTrayMenu();
    void popUpMenu(const QPoint& place);
    void onTrayActivated(QSystemTrayIcon::ActivationReason reason);
    void restorePlace();
    void savePlace();

    const Symbols& symbols_;
    const SystemAppearance& appearance_;
    QString symbolName_;
    QString description_;
    QString title_;
    QString tip_;
    std::function<void()> activation_;
    std::function<void()> alternateActivation_;
    MenuBuilder builder_;
    UserDefaults* defaults_ = nullptr; // null: the place is not kept
    LinuxTrayWatch watch_;
    QTimer graceTimer_;
    std::unique_ptr<QMenu> trayMenu_;
    StatusMenu trayItems_; // what that shows
    std::unique_ptr<QSystemTrayIcon> tray_;
    std::unique_ptr<LinuxStatusPanel> panel_;
    QPointer<QMenu> openMenu_;
};

} // namespace tessarine
