#include "platform/linux/banners/FakeDaemon.h"

#include <stdexcept>

namespace tessarine::testing {

namespace {

constexpr char name[] = "org.freedesktop.Notifications";
constexpr char path[] = "/org/freedesktop/Notifications";
constexpr int turn = 20; // milliseconds after which the thread looks whether it is to stop

} // namespace

FakeDaemon::FakeDaemon(const std::string& address, Manner manner)
    : client_(address)
    , manner_(manner) {
    const unsigned flags = DBUS_NAME_FLAG_ALLOW_REPLACEMENT | DBUS_NAME_FLAG_REPLACE_EXISTING;
    if (dbus_bus_request_name(client_.raw(), name, flags, nullptr) !=
        DBUS_REQUEST_NAME_REPLY_PRIMARY_OWNER)
        throw std::runtime_error("the name is taken");
    thread_ = std::thread([this] { run(); });
}

FakeDaemon::~FakeDaemon() {
    stopped_ = true;
    thread_.join();
}

void FakeDaemon::run() {
    while (!stopped_ && dbus_connection_read_write(client_.raw(), turn)) {
        while (const BusMessage message{dbus_connection_pop_message(client_.raw())}) {
            if (dbus_message_is_method_call(message.get(), name, "Notify") &&
                dbus_message_has_signature(message.get(), "susssasa{sv}i"))
                handle(message.get());
        }
    }
}

void FakeDaemon::handle(DBusMessage* call) {
    ++received_;
    if (manner_ == Manner::keepsSilent)
        return;
    if (manner_ == Manner::refuses) {
        const BusMessage error{dbus_message_new_error(call, "org.example.Refused", "no")};
        dbus_connection_send(client_.raw(), error.get(), nullptr);
        return;
    }
    const dbus_uint32_t replaced = replacesIdOf(call);
    const dbus_uint32_t id = replaced != 0 ? replaced : ++lastId_;
    const BusMessage reply{dbus_message_new_method_return(call)};
    dbus_message_append_args(reply.get(), DBUS_TYPE_UINT32, &id, DBUS_TYPE_INVALID);
    dbus_connection_send(client_.raw(), reply.get(), nullptr);
    if (manner_ != Manner::closesAtOnce)
        return;
    const dbus_uint32_t reason = 3; // by a call of CloseNotification
    const BusMessage closed{dbus_message_new_signal(path, name, "NotificationClosed")};
    dbus_message_append_args(closed.get(), DBUS_TYPE_UINT32, &id, DBUS_TYPE_UINT32, &reason,
                             DBUS_TYPE_INVALID);
    dbus_connection_send(client_.raw(), closed.get(), nullptr);
}

} // namespace tessarine::testing
