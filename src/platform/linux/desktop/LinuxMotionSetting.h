#pragma once

#include <QDBusConnection>
#include <QMap>
#include <QObject>
#include <QVariant>

class QDBusMessage;

namespace tessarine {

// Whether the desktop is set to show no animations, as the settings portal tells it, in the words
// of any of several desktops. The portal is asked without waiting: until it answers there is
// motion. Main thread.
class LinuxMotionSetting : public QObject {
    Q_OBJECT

public:
    // The connection may be a broken one.
    explicit LinuxMotionSetting(const QDBusConnection& bus);

    bool isReduced() const { return reduced_; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void onSettingChanged(const QDBusMessage& change);
    void askPortal();

private:
    void take(const QString& group, const QString& key, const QVariant& value);

    QDBusConnection bus_;
    QMap<QString, bool> answers_; // by group: whether that one asks for no motion
    bool reduced_ = false;
};

} // namespace tessarine
