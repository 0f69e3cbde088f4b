#pragma once

#include "platform/linux/bus/PrivateBus.h"

#include <QDBusConnection>
#include <QStringList>

namespace tessarine::testing {

// A message bus of the test's own, to which Qt connects.
class QtBus {
public:
    QtBus() { bus_.start(); }

    ~QtBus() {
        for (const QString& name : names_)
            QDBusConnection::disconnectFromBus(name);
    }

    // A further connection, under a name of its own in this process.
    QDBusConnection connection(const QString& name) {
        names_ << name;
        return QDBusConnection::connectToBus(QString::fromStdString(bus_.address()), name);
    }

private:
    PrivateBus bus_;
    QStringList names_;
};

} // namespace tessarine::testing
