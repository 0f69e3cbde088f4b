#pragma once

#include "support/EventLoop.h"

#include <QDBusConnection>
#include <QProcess>

#include <gtest/gtest.h>

namespace tessarine::testing {

// A message bus of the test's own, gone with the object.
class PrivateBus {
public:
    PrivateBus() {
        daemon_.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--session"), QStringLiteral("--nofork"),
                       QStringLiteral("--print-address")});
        EXPECT_TRUE(daemon_.waitForReadyRead(patienceMs));
        address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
    }

    ~PrivateBus() {
        for (const QString& name : names_)
            QDBusConnection::disconnectFromBus(name);
        daemon_.kill();
        daemon_.waitForFinished();
    }

    // A further connection, under a name of its own in this process.
    QDBusConnection connection(const QString& name) {
        names_ << name;
        return QDBusConnection::connectToBus(address_, name);
    }

private:
    QProcess daemon_;
    QString address_;
    QStringList names_;
};

} // namespace tessarine::testing
