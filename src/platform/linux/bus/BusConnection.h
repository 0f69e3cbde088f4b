#pragma once

#include <dbus/dbus.h>

#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tessarine {

struct DBusMessageUnref {
    void operator()(DBusMessage* message) const { dbus_message_unref(message); }
};
using BusMessage = std::unique_ptr<DBusMessage, DBusMessageUnref>;

// A call of the bus driver itself.
BusMessage busCall(const char* path, const char* interface, const char* member);
BusMessage busCall(const char* member); // of org.freedesktop.DBus

// Tells a thread that waits on a connection to give up. Raised from any thread, once and for all.
class StopSignal {
public:
    StopSignal();
    ~StopSignal();
    StopSignal(const StopSignal&) = delete;
    StopSignal& operator=(const StopSignal&) = delete;

    void raise();

    // Waits for it. False when the time was up.
    bool waitFor(std::chrono::milliseconds time) const;

    bool isRaised() const { return waitFor(std::chrono::milliseconds(0)); }
    int descriptor() const { return descriptor_; }

private:
    int descriptor_;
};

// A private connection to a message bus that only reads, apart from calls of its own: no message of
// others is ever answered. One thread; it sleeps in poll until something arrives or the stop signal
// is raised.
class BusConnection {
public:
    // Null when there is no such bus, or it doesn't greet us within a few seconds.
    static std::unique_ptr<BusConnection> open(const std::string& address, const StopSignal& stop);

    ~BusConnection();
    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;

    // Calls the bus driver and waits for its answer, which may be an error. Null when none came
    // within the time. What else arrives meanwhile waits for next().
    BusMessage call(BusMessage message, std::chrono::milliseconds time);

    // The next message, in the order of their arrival. Null when the connection is lost or the stop
    // signal raised.
    BusMessage next();

    // Drops what waits and fits.
    void dropArrived(const std::function<bool(DBusMessage*)>& fits);

    // From now on nothing waits: whatever others send here, nobody is going to read it.
    void keepAnswersOnly();

private:
    BusConnection(DBusConnection* connection, const StopSignal& stop);

    bool isUsable() const;
    bool waitForInput(std::chrono::milliseconds time);

    static dbus_bool_t addWatch(DBusWatch* watch, void* self);
    static void removeWatch(DBusWatch* watch, void* self);

    DBusConnection* const connection_;
    const StopSignal& stop_;
    std::vector<DBusWatch*> watches_;
    std::deque<BusMessage> arrived_;
    bool keepsAnswersOnly_ = false;
};

} // namespace tessarine
