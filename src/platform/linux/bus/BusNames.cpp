#include "platform/linux/bus/BusNames.h"

namespace tessarine {

namespace {

constexpr char nameOwnerChanged[] = "NameOwnerChanged";

} // namespace

BusMessage busCallWithText(const char* member, const char* text) {
    BusMessage call = busCall(member);
    dbus_message_append_args(call.get(), DBUS_TYPE_STRING, &text, DBUS_TYPE_INVALID);
    return call;
}

bool isReturn(const BusMessage& answer) {
    return answer && dbus_message_get_type(answer.get()) == DBUS_MESSAGE_TYPE_METHOD_RETURN;
}

// The bus writes the sender into every message itself.
bool isFromBus(DBusMessage* message) {
    return dbus_message_has_sender(message, DBUS_SERVICE_DBUS);
}

std::string ownerChangeRule(const char* name) {
    return std::string("type='signal',sender='org.freedesktop.DBus',"
                       "interface='org.freedesktop.DBus',member='NameOwnerChanged',arg0='") +
           name + '\'';
}

std::optional<OwnerChange> ownerChange(DBusMessage* message) {
    const char* name = nullptr;
    const char* oldOwner = nullptr;
    const char* newOwner = nullptr;
    if (!isFromBus(message) ||
        !dbus_message_is_signal(message, DBUS_INTERFACE_DBUS, nameOwnerChanged) ||
        !dbus_message_get_args(message, nullptr, DBUS_TYPE_STRING, &name, DBUS_TYPE_STRING,
                               &oldOwner, DBUS_TYPE_STRING, &newOwner, DBUS_TYPE_INVALID))
        return std::nullopt;
    return OwnerChange{name, newOwner};
}

std::optional<std::string> askForOwner(BusConnection& connection, const char* name) {
    const BusMessage answer = connection.call(busCallWithText("GetNameOwner", name), busAnswerTime);
    if (!answer)
        return std::nullopt;
    connection.dropArrived([name](DBusMessage* message) {
        const std::optional<OwnerChange> change = ownerChange(message);
        return change && change->name == name;
    });
    const char* owner = nullptr;
    if (!isReturn(answer) ||
        !dbus_message_get_args(answer.get(), nullptr, DBUS_TYPE_STRING, &owner, DBUS_TYPE_INVALID))
        return std::string();
    return owner;
}

} // namespace tessarine
