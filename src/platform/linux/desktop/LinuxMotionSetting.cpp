#include "platform/linux/desktop/LinuxMotionSetting.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <array>
#include <utility>

namespace tessarine {

namespace {

// As the documentation of the desktop portal's Settings interface names them.
const QString motionPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString motionPortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString motionInterface = QStringLiteral("org.freedesktop.portal.Settings");

// What desktops call it, and which of its values means none.
struct MotionSetting {
    QString group;
    QString key;
    bool (*meansReduced)(const QVariant& value);
};

const std::array motionSettings{
    MotionSetting{QStringLiteral("org.freedesktop.appearance"), QStringLiteral("reduced-motion"),
                  [](const QVariant& value) { return value.toUInt() == 1; }},
    MotionSetting{QStringLiteral("org.gnome.desktop.interface"),
                  QStringLiteral("enable-animations"),
                  [](const QVariant& value) { return value.isValid() && !value.toBool(); }},
    MotionSetting{QStringLiteral("org.kde.kdeglobals.KDE"),
                  QStringLiteral("AnimationDurationFactor"),
                  [](const QVariant& value) {
                      bool isNumber = false;
                      return value.toDouble(&isNumber) == 0 && isNumber;
                  }},
};

// Read wraps its answer in a second variant.
QVariant settingValue(QVariant value) {
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

LinuxMotionSetting::LinuxMotionSetting(const QDBusConnection& bus)
    : bus_(bus) {
    if (!bus_.isConnected())
        return;
    // Any sender: with a name, Qt would ask the bus for its owner and wait for the answer.
    bus_.connect(QString(), motionPortalPath, motionInterface, QStringLiteral("SettingChanged"),
                 this, SLOT(onSettingChanged(QDBusMessage)));
    auto* watcher = new QDBusServiceWatcher(motionPortal, bus_,
                                            QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &LinuxMotionSetting::askPortal);
    askPortal();
}

void LinuxMotionSetting::askPortal() {
    for (const MotionSetting& setting : motionSettings) {
        QDBusMessage question = QDBusMessage::createMethodCall(
            motionPortal, motionPortalPath, motionInterface, QStringLiteral("Read"));
        question << setting.group << setting.key;
        auto* answer = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, &setting] {
            const QDBusPendingReply<QDBusVariant> reply = *answer;
            answer->deleteLater();
            if (reply.isValid())
                take(setting.group, setting.key, reply.value().variant());
        });
    }
}

// Arguments: the group, the key, and the value in a variant.
void LinuxMotionSetting::onSettingChanged(const QDBusMessage& change) {
    const QVariantList arguments = change.arguments();
    if (arguments.size() == 3)
        take(arguments[0].toString(), arguments[1].toString(), arguments[2]);
}

void LinuxMotionSetting::take(const QString& group, const QString& key, const QVariant& value) {
    for (const MotionSetting& setting : motionSettings) {
        if (setting.group == group && setting.key == key)
            answers_[group] = setting.meansReduced(settingValue(value));
    }
    const bool reduced = answers_.values().contains(true);
    if (std::exchange(reduced_, reduced) != reduced)
        Q_EMIT changed();
}

} // namespace tessarine
