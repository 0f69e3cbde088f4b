#include "platform/linux/bus/RawBusClient.h"

#include "platform/linux/bus/BusClient.h"

#include <array>
#include <stdexcept>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tessarine::testing {

namespace {

std::string hexadecimal(const std::string& bytes) {
    std::string text;
    for (const char byte : bytes) {
        constexpr char digits[] = "0123456789abcdef";
        text += digits[(byte >> 4) & 15];
        text += digits[byte & 15];
    }
    return text;
}

std::string marshalled(DBusMessage* message, unsigned serial) {
    dbus_message_set_serial(message, serial);
    char* bytes = nullptr;
    int length = 0;
    dbus_message_marshal(message, &bytes, &length);
    std::string result(bytes, static_cast<std::size_t>(length));
    dbus_free(bytes);
    return result;
}

} // namespace

RawBusClient::RawBusClient(const std::string& address)
    : socket_(socket(AF_UNIX, SOCK_STREAM, 0)) {
    const std::string path = address.substr(std::string("unix:path=").size());
    sockaddr_un name{AF_UNIX, {}};
    path.copy(name.sun_path, sizeof name.sun_path - 1);
    if (connect(socket_, reinterpret_cast<sockaddr*>(&name), sizeof name) != 0)
        throw std::runtime_error("no bus at " + address);
    sayHello();
}

RawBusClient::~RawBusClient() {
    close(socket_);
}

void RawBusClient::sayHello() {
    send(std::string(1, '\0') + "AUTH EXTERNAL " + hexadecimal(std::to_string(getuid())) + "\r\n");
    std::array<char, 256> answer{};
    if (recv(socket_, answer.data(), answer.size(), 0) < 2 || answer[0] != 'O')
        throw std::runtime_error("not let in");
    send("BEGIN\r\n");
    const BusMessage hello{dbus_message_new_method_call(
        "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "Hello")};
    send(marshalled(hello.get(), ++lastSerial_));
}

// The library makes the message with a summary of the same length, which is then overwritten.
void RawBusClient::sendNotify(const std::string& summary) {
    const std::string placeholder(summary.size(), '?');
    const BusMessage call = notifyCall({.summary = placeholder});
    dbus_message_set_no_reply(call.get(), true);
    std::string bytes = marshalled(call.get(), ++lastSerial_);
    bytes.replace(bytes.find(placeholder), placeholder.size(), summary);
    send(bytes);
}

bool RawBusClient::isThrownOut() {
    constexpr int patience = 30000;
    pollfd waiting{socket_, POLLIN, 0};
    std::array<char, 4096> bytes{};
    while (poll(&waiting, 1, patience) > 0) {
        if (recv(socket_, bytes.data(), bytes.size(), 0) <= 0)
            return true;
    }
    return false;
}

void RawBusClient::send(const std::string& bytes) const {
    ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
}

} // namespace tessarine::testing
