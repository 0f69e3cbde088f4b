#pragma once

#include <QAbstractNativeEventFilter>
#include <QDBusConnection>
#include <QObject>

namespace tessarine {

// Whether the desktop has a tray, by either protocol: a StatusNotifierItem host on the session bus,
// or the owner of X11's tray selection. Told by events, never by asking again. Qt can't be asked:
// it looks for a host once in a process, and would miss one that comes later. Main thread.
class LinuxTrayWatch : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    // The connection may be a broken one. The bus is asked without waiting; its answer comes as a
    // change.
    explicit LinuxTrayWatch(const QDBusConnection& bus);
    ~LinuxTrayWatch() override;

    bool isPresent() const { return hasHost_ || hasSelectionOwner_; }

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void askForHost();
    void onHostGone();

private:
    void watchBus();
    void watchScreen();
    void lookForSelectionOwner();
    void set(bool& field, bool value);

    QDBusConnection bus_;
    bool hasHost_ = false;
    bool hasSelectionOwner_ = false;
    quint32 traySelection_ = 0; // X11 atoms
    quint32 managerMessage_ = 0;
    quint32 selectionOwner_ = 0; // an X11 window
};

} // namespace tessarine
