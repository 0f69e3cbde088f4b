#pragma once

#include "platform/linux/bus/BusClient.h"

#include <atomic>
#include <string>
#include <thread>

namespace tessarine::testing {

// A daemon that holds org.freedesktop.Notifications on a thread of its own and draws nothing.
class FakeDaemon {
public:
    enum class Manner { answers, closesAtOnce, refuses, keepsSilent };

    // Has the name when this returns. It may be taken by a later daemon.
    explicit FakeDaemon(const std::string& address, Manner manner = Manner::answers);
    ~FakeDaemon(); // leaves the bus

    int received() const { return received_; } // calls of Notify
    bool isConnected() const { return client_.isConnected(); }

private:
    void run();
    void handle(DBusMessage* call);

    BusClient client_;
    const Manner manner_;
    std::atomic<bool> stopped_ = false;
    std::atomic<int> received_ = 0;
    dbus_uint32_t lastId_ = 0;
    std::thread thread_;
};

} // namespace tessarine::testing
