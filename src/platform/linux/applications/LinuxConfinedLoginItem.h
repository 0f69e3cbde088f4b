#pragma once

#include "platform/LoginItem.h"

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

namespace tessarine {

class UserDefaults;

// The program's start at login where it is confined and may not write the desktop's own entries:
// the Background portal writes them, and may ask the user first. It can't be asked how things
// stand, so what it has answered last is kept with the settings; until it answers, that holds.
// Nobody waits.
class LinuxConfinedLoginItem : public QObject, public LoginItem {
    Q_OBJECT

public:
    // The defaults outlive the item.
    LinuxConfinedLoginItem(const QDBusConnection& bus, UserDefaults& defaults);

    LoginItemStatus status() const override;
    Failure registerMainApp() override;
    Failure unregisterMainApp() override;

private Q_SLOTS:
    void takeResponse(uint response, const QVariantMap& results);

private:
    enum class Wish { start, noStart };

    Failure request(Wish wish);
    bool follow(const QString& path);

    QDBusConnection bus_;
    UserDefaults& defaults_;
    QString requestPath_; // of the latest request, whose answer counts
    int requests_ = 0;
};

} // namespace tessarine
