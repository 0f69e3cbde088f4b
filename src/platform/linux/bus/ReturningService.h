#pragma once

#include "platform/linux/bus/ApplicationService.h"

#include <QDBusConnection>
#include <QTimer>

#include <functional>
#include <memory>

namespace tessarine {

// A connection to the session's bus as it is now: the one that the process shares, or, once its bus
// has gone, a new one. Main thread.
QDBusConnection currentSessionBus();

// The program on whatever session bus there is. When the bus goes, it looks for another, less and
// less often down to twice a minute, and asks for its name there. A program that found no bus at
// its start does not look for one. Main thread.
class ReturningService : public QObject {
    Q_OBJECT

public:
    using Bus = std::function<QDBusConnection()>; // gives one that is connected, if there is any

    // The requests outlive the service.
    ReturningService(Bus bus, SingleInstance::Requests requests);
    ~ReturningService() override;

private Q_SLOTS: // found by name
    void onDisconnected();

private:
    void serve();
    void dropConnection();

    const Bus bus_;
    const SingleInstance::Requests requests_;
    QTimer retry_;
    std::unique_ptr<ApplicationService> service_;
    QString connectionName_; // of the connection that serves or failed last
};

} // namespace tessarine
