#include "platform/linux/desktop/LinuxSystemAppearance.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <array>
#include <utility>

namespace tessarine {

namespace {

// As the documentation of the desktop portal's Settings interface names them.
const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString colourSchemeKey = QStringLiteral("color-scheme");
const QString accentColourKey = QStringLiteral("accent-color");
const QString contrastKey = QStringLiteral("contrast");
constexpr uint preferDark = 1;
constexpr uint preferLight = 2;
constexpr uint moreContrast = 1;

// Read wraps its answer in a second variant.
QVariant unwrapped(QVariant value) {
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

// Three numbers from 0 to 1, for red, green and blue in sRGB. Others stand for no preference.
std::optional<QColor> colourFrom(const QVariant& value) {
    if (value.userType() != qMetaTypeId<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QStringLiteral("(ddd)"))
        return std::nullopt;
    std::array<double, 3> parts{};
    argument.beginStructure();
    argument >> parts[0] >> parts[1] >> parts[2];
    argument.endStructure();
    const auto isPart = [](double part) { return part >= 0 && part <= 1; };
    if (!std::all_of(parts.begin(), parts.end(), isPart))
        return std::nullopt;
    return QColor::fromRgbF(float(parts[0]), float(parts[1]), float(parts[2]));
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
    for (const QString& key : {colourSchemeKey, accentColourKey, contrastKey})
        askFor(key, bus);
}

void LinuxSystemAppearance::askFor(const QString& key, const QDBusConnection& bus) {
    QDBusMessage question = QDBusMessage::createMethodCall(
        portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    question << appearanceGroup << key;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, key] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        if (reply.isValid())
            take(key, unwrapped(reply.value().variant()));
    });
}

// Arguments: the group, the key, and the value in a variant.
void LinuxSystemAppearance::onSettingChanged(const QDBusMessage& change) {
    const QVariantList arguments = change.arguments();
    if (arguments.size() == 3 && arguments[0].toString() == appearanceGroup)
        take(arguments[1].toString(), unwrapped(arguments[2]));
}

void LinuxSystemAppearance::take(const QString& key, const QVariant& value) {
    if (key == colourSchemeKey) {
        setColourScheme(value.toUInt());
    } else if (key == accentColourKey) {
        const std::optional<QColor> accent = colourFrom(value);
        if (std::exchange(accent_, accent) != accent)
            Q_EMIT changed();
    } else if (key == contrastKey) {
        const bool highContrast = value.toUInt() == moreContrast;
        if (std::exchange(highContrast_, highContrast) != highContrast)
            Q_EMIT changed();
    }
}

void LinuxSystemAppearance::setColourScheme(uint scheme) {
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
