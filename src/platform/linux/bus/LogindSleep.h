#pragma once

#include "platform/HandlerList.h"
#include "platform/Scheduler.h"
#include "platform/linux/bus/BusConnection.h"

#include <memory>
#include <string>
#include <thread>

namespace tessarine {

// Where the system bus listens, in the form of D-Bus addresses.
std::string systemBusAddress();

// The sleep of the system, as logind announces it on the system bus: a thread sleeps on that bus
// from the first handler on. Only the connection that owns logind's name at that moment is
// believed: any user may send such a signal straight to us. When that owner or the bus goes while
// the system is said to sleep, nobody is left to announce the end of it, and it counts as woken.
// Without a system bus nothing is ever told. Main thread.
class LogindSleep {
public:
    using Handlers = HandlerList<>;

    LogindSleep(Scheduler& scheduler, std::string busAddress);
    ~LogindSleep();
    LogindSleep(const LogindSleep&) = delete;
    LogindSleep& operator=(const LogindSleep&) = delete;

    // Called on the main thread for as long as the token is kept.
    std::shared_ptr<void> onSleep(Handlers::Handler handler);
    std::shared_ptr<void> onWake(Handlers::Handler handler);

private:
    enum class Sleep { begins, ends };

    struct Listeners {
        Handlers sleep;
        Handlers wake;
    };

    void ensureRunning();
    void run();
    void listen(BusConnection& connection);
    bool subscribe(BusConnection& connection);
    void handle(DBusMessage* message);
    void ownerChanged(const std::string& owner);
    void tell(Sleep sleep);

    Scheduler& scheduler_;
    const std::string address_;
    StopSignal stop_;
    const std::shared_ptr<Listeners> listeners_ = std::make_shared<Listeners>();
    std::thread thread_;

    // Of that thread alone.
    std::string owner_; // logind's unique name; empty: nobody's
    bool isAsleep_ = false;
};

} // namespace tessarine
