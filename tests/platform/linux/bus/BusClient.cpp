#include "platform/linux/bus/BusClient.h"

#include <stdexcept>
#include <vector>

namespace tessarine::testing {

namespace {

constexpr char notifications[] = "org.freedesktop.Notifications";
constexpr int patience = 60000; // milliseconds

void appendText(DBusMessageIter& at, const std::string& text) {
    const char* const bytes = text.c_str();
    dbus_message_iter_append_basic(&at, DBUS_TYPE_STRING, &bytes);
}

void appendInt(DBusMessageIter& at, dbus_int32_t number) {
    dbus_message_iter_append_basic(&at, DBUS_TYPE_INT32, &number);
}

void appendBool(DBusMessageIter& at, dbus_bool_t value) {
    dbus_message_iter_append_basic(&at, DBUS_TYPE_BOOLEAN, &value);
}

void appendHint(DBusMessageIter& hints, const std::string& key, const char* signature,
                const std::function<void(DBusMessageIter& value)>& append) {
    DBusMessageIter entry;
    DBusMessageIter value;
    dbus_message_iter_open_container(&hints, DBUS_TYPE_DICT_ENTRY, nullptr, &entry);
    appendText(entry, key);
    dbus_message_iter_open_container(&entry, DBUS_TYPE_VARIANT, signature, &value);
    append(value);
    dbus_message_iter_close_container(&entry, &value);
    dbus_message_iter_close_container(&hints, &entry);
}

} // namespace

void appendTextHint(DBusMessageIter& hints, const std::string& key, const std::string& value) {
    appendHint(hints, key, "s", [&](DBusMessageIter& at) { appendText(at, value); });
}

void appendImageHint(DBusMessageIter& hints, int bytes) {
    const std::vector<unsigned char> pixels(static_cast<std::size_t>(bytes), 0x7f);
    appendHint(hints, "image-data", "(iiibiiay)", [&](DBusMessageIter& at) {
        DBusMessageIter image;
        DBusMessageIter data;
        dbus_message_iter_open_container(&at, DBUS_TYPE_STRUCT, nullptr, &image);
        appendInt(image, bytes / 4);
        appendInt(image, 1);
        appendInt(image, bytes);
        appendBool(image, true);
        appendInt(image, 8);
        appendInt(image, 4);
        dbus_message_iter_open_container(&image, DBUS_TYPE_ARRAY, "y", &data);
        const unsigned char* const start = pixels.data();
        dbus_message_iter_append_fixed_array(&data, DBUS_TYPE_BYTE, &start, bytes);
        dbus_message_iter_close_container(&image, &data);
        dbus_message_iter_close_container(&at, &image);
    });
}

BusMessage notifyCall(const Notification& notification) {
    BusMessage call{dbus_message_new_method_call(
        notification.destination.c_str(), "/org/freedesktop/Notifications",
        notification.namesTheInterface ? notifications : nullptr, "Notify")};
    DBusMessageIter at;
    DBusMessageIter container;
    dbus_message_iter_init_append(call.get(), &at);
    appendText(at, notification.application);
    dbus_message_iter_append_basic(&at, DBUS_TYPE_UINT32, &notification.replacesId);
    appendText(at, "an-icon");
    appendText(at, notification.summary);
    appendText(at, notification.body);
    dbus_message_iter_open_container(&at, DBUS_TYPE_ARRAY, "s", &container);
    dbus_message_iter_close_container(&at, &container);
    dbus_message_iter_open_container(&at, DBUS_TYPE_ARRAY, "{sv}", &container);
    if (notification.hints)
        notification.hints(container);
    dbus_message_iter_close_container(&at, &container);
    appendInt(at, -1);
    return call;
}

BusMessage addNotificationCall(const GtkNotification& notification) {
    BusMessage call{dbus_message_new_method_call(notification.destination.c_str(),
                                                 notification.path.c_str(), notification.interface,
                                                 "AddNotification")};
    DBusMessageIter at;
    DBusMessageIter dictionary;
    dbus_message_iter_init_append(call.get(), &at);
    appendText(at, notification.application);
    appendText(at, notification.id);
    dbus_message_iter_open_container(&at, DBUS_TYPE_ARRAY, "{sv}", &dictionary);
    appendTextHint(dictionary, "priority", "high");
    appendTextHint(dictionary, "title", notification.title);
    if (!notification.body.empty())
        appendTextHint(dictionary, "body", notification.body);
    dbus_message_iter_close_container(&at, &dictionary);
    return call;
}

BusMessage removeNotificationCall(const GtkNotification& notification) {
    BusMessage call{dbus_message_new_method_call(notification.destination.c_str(),
                                                 notification.path.c_str(), notification.interface,
                                                 "RemoveNotification")};
    DBusMessageIter at;
    dbus_message_iter_init_append(call.get(), &at);
    appendText(at, notification.application);
    appendText(at, notification.id);
    return call;
}

std::uint32_t replacesIdOf(DBusMessage* notifyCall) {
    DBusMessageIter at;
    std::uint32_t id = 0;
    dbus_message_iter_init(notifyCall, &at);
    dbus_message_iter_next(&at);
    dbus_message_iter_get_basic(&at, &id);
    return id;
}

BusClient::BusClient(const std::string& address)
    : connection_(dbus_connection_open_private(address.c_str(), nullptr)) {
    if (!connection_)
        throw std::runtime_error("no bus at " + address);
    dbus_connection_set_exit_on_disconnect(connection_, false);
    if (!dbus_bus_register(connection_, nullptr))
        throw std::runtime_error("not greeted at " + address);
}

BusClient::~BusClient() {
    dbus_connection_close(connection_);
    dbus_connection_unref(connection_);
}

std::optional<std::uint32_t> BusClient::notify(const Notification& notification) {
    const BusMessage call = notifyCall(notification);
    const BusMessage reply{
        dbus_connection_send_with_reply_and_block(connection_, call.get(), patience, nullptr)};
    std::uint32_t id = 0;
    if (!reply ||
        !dbus_message_get_args(reply.get(), nullptr, DBUS_TYPE_UINT32, &id, DBUS_TYPE_INVALID))
        return std::nullopt;
    return id;
}

void BusClient::post(const Notification& notification) {
    post(notifyCall(notification));
}

void BusClient::post(const BusMessage& call) {
    dbus_message_set_no_reply(call.get(), true);
    dbus_connection_send(connection_, call.get(), nullptr);
}

void BusClient::flush() {
    dbus_free(dbus_bus_get_id(connection_, nullptr)); // the bus answers in the order of its reading
}

void BusClient::emitSleep(bool isGoingToSleep, const std::string& destination) {
    const dbus_bool_t value = isGoingToSleep;
    const BusMessage signal{dbus_message_new_signal(
        "/org/freedesktop/login1", "org.freedesktop.login1.Manager", "PrepareForSleep")};
    dbus_message_append_args(signal.get(), DBUS_TYPE_BOOLEAN, &value, DBUS_TYPE_INVALID);
    if (!destination.empty())
        dbus_message_set_destination(signal.get(), destination.c_str());
    dbus_connection_send(connection_, signal.get(), nullptr);
    flush();
}

std::vector<std::string> BusClient::connections() {
    const BusMessage call{dbus_message_new_method_call(DBUS_SERVICE_DBUS, DBUS_PATH_DBUS,
                                                       DBUS_INTERFACE_DBUS, "ListNames")};
    const BusMessage reply{
        dbus_connection_send_with_reply_and_block(connection_, call.get(), patience, nullptr)};
    char** names = nullptr;
    int count = 0;
    dbus_message_get_args(reply.get(), nullptr, DBUS_TYPE_ARRAY, DBUS_TYPE_STRING, &names, &count,
                          DBUS_TYPE_INVALID);
    std::vector<std::string> unique(names, names + count);
    dbus_free_string_array(names);
    std::erase_if(unique, [](const std::string& name) { return name.front() != ':'; });
    return unique;
}

void BusClient::claimOwnerChange(const std::string& name, const std::string& owner,
                                 const std::string& destination) {
    const BusMessage signal{
        dbus_message_new_signal(DBUS_PATH_DBUS, DBUS_INTERFACE_DBUS, "NameOwnerChanged")};
    const char* const nobody = "";
    const char* const nameText = name.c_str();
    const char* const ownerText = owner.c_str();
    dbus_message_append_args(signal.get(), DBUS_TYPE_STRING, &nameText, DBUS_TYPE_STRING, &nobody,
                             DBUS_TYPE_STRING, &ownerText, DBUS_TYPE_INVALID);
    dbus_message_set_destination(signal.get(), destination.c_str());
    dbus_connection_send(connection_, signal.get(), nullptr);
    flush();
}

void BusClient::claimAnswer(const std::string& caller, std::uint32_t serial, std::uint32_t number) {
    const BusMessage answer{dbus_message_new(DBUS_MESSAGE_TYPE_METHOD_RETURN)};
    dbus_message_set_destination(answer.get(), caller.c_str());
    dbus_message_set_reply_serial(answer.get(), serial);
    dbus_message_append_args(answer.get(), DBUS_TYPE_UINT32, &number, DBUS_TYPE_INVALID);
    dbus_connection_send(connection_, answer.get(), nullptr);
    flush();
}

void BusClient::claimClosed(std::uint32_t number, const std::string& destination) {
    const dbus_uint32_t reason = 2; // dismissed by the user
    const BusMessage closed{dbus_message_new_signal("/org/freedesktop/Notifications", notifications,
                                                    "NotificationClosed")};
    dbus_message_append_args(closed.get(), DBUS_TYPE_UINT32, &number, DBUS_TYPE_UINT32, &reason,
                             DBUS_TYPE_INVALID);
    if (!destination.empty())
        dbus_message_set_destination(closed.get(), destination.c_str());
    dbus_connection_send(connection_, closed.get(), nullptr);
    flush();
}

void BusClient::own(const std::string& name) {
    if (dbus_bus_request_name(connection_, name.c_str(), DBUS_NAME_FLAG_DO_NOT_QUEUE, nullptr) !=
        DBUS_REQUEST_NAME_REPLY_PRIMARY_OWNER)
        throw std::runtime_error(name + " is taken");
}

void BusClient::disown(const std::string& name) {
    dbus_bus_release_name(connection_, name.c_str(), nullptr);
}

std::string BusClient::uniqueName() const {
    return dbus_bus_get_unique_name(connection_);
}

} // namespace tessarine::testing
