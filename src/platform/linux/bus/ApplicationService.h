#pragma once

#include "platform/SingleInstance.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>

namespace tessarine {

// The program on the session's bus, where desktops ask it by org.freedesktop.Application for what
// its entry offers: to be activated, and the actions "open" and "quit". It has its name as long as
// it lives, or, where another copy has it, from that one's end on. Without a bus nobody asks.
// Nothing here waits for anybody but the answer to "quit". Main thread.
class ApplicationService : public QDBusVirtualObject {
public:
    // The requests outlive the service.
    ApplicationService(const QDBusConnection& bus, SingleInstance::Requests requests);
    ~ApplicationService() override;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override;

private:
    bool activateAction(const QDBusMessage& call);
    void reply(const QDBusMessage& answer);

    QDBusConnection bus_;
    const SingleInstance::Requests requests_;
};

} // namespace tessarine
