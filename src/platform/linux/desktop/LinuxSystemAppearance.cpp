#include "platform/linux/desktop/LinuxSystemAppearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace tessarine {

namespace {

// As the documentation of the desktop portal's Settings interface names them.
const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString colourSchemeKey = QStringLiteral("color-scheme");
constexpr uint preferDark = 1;
constexpr uint preferLight = 2;

// Read wraps its answer in a second variant.
QVariant unwrapped(QVariant value) {
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

LinuxSystemAppearance::LinuxSystemAppearance(const QDBusConnection& bus)
    : dark_(desktopPrefersDark())
    , motion_(bus) {
    connect(&motion_, &LinuxMotionSetting::changed, this, &SystemAppearance::changed);
    QGuiApplication::instance()->installEventFilter(this);
    if (!bus.isConnected())
        return;
    // Any sender: with a name, Qt would ask the bus for its owner and wait for the answer.
    QDBusConnection(bus).connect(QString(), portalPath, settingsInterface,
                                 QStringLiteral("SettingChanged"), this,
                                 SLOT(onSettingChanged(QDBusMessage)));
    auto* watcher = new QDBusServiceWatcher(portalService, bus,
                                            QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this,
            [this, bus] { askPortal(bus); });
    askPortal(bus);
}

void LinuxSystemAppearance::askPortal(const QDBusConnection& bus) {
    QDBusMessage question = QDBusMessage::createMethodCall(
        portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    question << appearanceGroup << colourSchemeKey;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        if (reply.isValid())
            setColourScheme(unwrapped(reply.value().variant()));
    });
}

// Arguments: the group, the key, and the value in a variant.
void LinuxSystemAppearance::onSettingChanged(const QDBusMessage& change) {
    const QVariantList arguments = change.arguments();
    if (arguments.size() == 3 && arguments[0].toString() == appearanceGroup &&
        arguments[1].toString() == colourSchemeKey)
        setColourScheme(unwrapped(arguments[2]));
}

void LinuxSystemAppearance::setColourScheme(const QVariant& value) {
    const uint scheme = value.toUInt();
    portalPrefersDark_.reset();
    if (scheme == preferDark || scheme == preferLight)
        portalPrefersDark_ = scheme == preferDark;
    update();
}

void LinuxSystemAppearance::setAppearance(Appearance appearance) {
    appearance_ = appearance;
    update();
}

bool LinuxSystemAppearance::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange && watched == qGuiApp)
        update();
    return false;
}

bool LinuxSystemAppearance::desktopPrefersDark() const {
    if (portalPrefersDark_)
        return *portalPrefersDark_;
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightnessF() <
           palette.color(QPalette::WindowText).lightnessF();
}

void LinuxSystemAppearance::update() {
    const bool dark =
        appearance_ == Appearance::system ? desktopPrefersDark() : appearance_ == Appearance::dark;
    if (dark == dark_)
        return;
    dark_ = dark;
    Q_EMIT changed();
}

} // namespace tessarine
