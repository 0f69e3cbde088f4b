#pragma once

#include <dbus/dbus.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessarine::testing {

struct MessageUnref {
    void operator()(DBusMessage* message) const { dbus_message_unref(message); }
};
using BusMessage = std::unique_ptr<DBusMessage, MessageUnref>;

// What an application sends to have a notification shown.
struct Notification {
    std::string application = "Mail";
    std::string summary = {};
    std::string body = {};
    std::uint32_t replacesId = 0;
    std::function<void(DBusMessageIter& hints)> hints = {};
    std::string destination = "org.freedesktop.Notifications";
    bool namesTheInterface = true;
};

// What a program that uses GLib's notifications sends where a shell offers to show them.
struct GtkNotification {
    std::string application = "com.example.Teapot";
    std::string id = "tea";
    std::string title = {};
    std::string body = {};
    std::string destination = "org.gtk.Notifications";
    std::string path = "/org/gtk/Notifications";
    const char* interface = "org.gtk.Notifications";
};

// One more hint, to be called from Notification::hints.
void appendTextHint(DBusMessageIter& hints, const std::string& key, const std::string& value);
void appendImageHint(DBusMessageIter& hints, int bytes);

BusMessage notifyCall(const Notification& notification);
BusMessage addNotificationCall(const GtkNotification& notification);
BusMessage removeNotificationCall(const GtkNotification& notification); // by its id
std::uint32_t replacesIdOf(DBusMessage* notifyCall);

// An application's own connection to a bus. Throws when there is none.
class BusClient {
public:
    explicit BusClient(const std::string& address);
    ~BusClient();
    BusClient(const BusClient&) = delete;
    BusClient& operator=(const BusClient&) = delete;

    // Waits for the daemon's answer. The id, or nothing when it was an error.
    std::optional<std::uint32_t> notify(const Notification& notification);

    // Doesn't wait. flush() returns when the bus has read all of these: it drops what a connection
    // leaves unread when it closes.
    void post(const Notification& notification);
    void post(const BusMessage& call);
    void flush();

    // PrepareForSleep, as logind sends it: to all who have asked for it, or to one connection
    // alone.
    void emitSleep(bool isGoingToSleep, const std::string& destination = {});

    // The unique names of all connections on the bus.
    std::vector<std::string> connections();

    // What looks like the bus telling one connection that a name has another owner.
    void claimOwnerChange(const std::string& name, const std::string& owner,
                          const std::string& destination);

    // What looks like a daemon's answer to another connection's call, and its word that a banner is
    // gone.
    void claimAnswer(const std::string& caller, std::uint32_t serial, std::uint32_t number);
    void claimClosed(std::uint32_t number, const std::string& destination = {});

    void own(const std::string& name); // a well-known name, which nobody has
    void disown(const std::string& name);

    std::string uniqueName() const;
    bool isConnected() const { return dbus_connection_get_is_connected(connection_); }
    DBusConnection* raw() const { return connection_; }

private:
    DBusConnection* connection_;
};

} // namespace tessarine::testing
