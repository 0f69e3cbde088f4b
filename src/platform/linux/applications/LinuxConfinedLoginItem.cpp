#include "platform/linux/applications/LinuxConfinedLoginItem.h"

#include "platform/DefaultsKeys.h"
#include "platform/UserDefaults.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

namespace tessarine {

namespace {

const QString portalName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

// What a response begins with.
constexpr uint granted = 0;
constexpr uint refusedByUser = 1;

} // namespace

LinuxConfinedLoginItem::LinuxConfinedLoginItem(const QDBusConnection& bus, UserDefaults& defaults)
    : bus_(bus)
    , defaults_(defaults) {}

LoginItemStatus LinuxConfinedLoginItem::status() const {
    return defaults_.boolean(defaultsKeys::startsAtLoginByPortal) ? LoginItemStatus::enabled
                                                                  : LoginItemStatus::notRegistered;
}

LoginItem::Failure LinuxConfinedLoginItem::registerMainApp() {
    return request(Wish::start);
}

LoginItem::Failure LinuxConfinedLoginItem::unregisterMainApp() {
    return request(Wish::noStart);
}

LoginItem::Failure LinuxConfinedLoginItem::request(Wish wish) {
    const QString token = QStringLiteral("tessarine%1").arg(++requests_);
    const QString sender = bus_.baseService().sliced(bus_.isConnected() ? 1 : 0);
    const QString path = QStringLiteral("/org/freedesktop/portal/desktop/request/") +
                         QString(sender).replace(u'.', u'_') + u'/' + token;
    if (!bus_.isConnected() || !follow(path))
        return QStringLiteral("no desktop portal");
    QDBusMessage call = QDBusMessage::createMethodCall(
        portalName, QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Background"), QStringLiteral("RequestBackground"));
    const QVariantMap options{
        {QStringLiteral("handle_token"), token},
        {QStringLiteral("autostart"), wish == Wish::start},
        {QStringLiteral("commandline"), QStringList(QStringLiteral("tessarine"))}};
    call << QString() << options; // no window that a question would stand before
    bus_.asyncCall(call);
    return std::nullopt;
}

// Before the call, since its answer may come at once.
bool LinuxConfinedLoginItem::follow(const QString& path) {
    const QString response = QStringLiteral("Response");
    const auto slot = SLOT(takeResponse(uint, QVariantMap));
    if (!requestPath_.isEmpty())
        bus_.disconnect(portalName, requestPath_, requestInterface, response, this, slot);
    requestPath_ = path;
    return bus_.connect(portalName, path, requestInterface, response, this, slot);
}

void LinuxConfinedLoginItem::takeResponse(uint response, const QVariantMap& results) {
    if (response == granted)
        defaults_.setBoolean(defaultsKeys::startsAtLoginByPortal,
                             results.value(QStringLiteral("autostart")).toBool());
    else if (response == refusedByUser)
        defaults_.setBoolean(defaultsKeys::startsAtLoginByPortal, false);
}

} // namespace tessarine
