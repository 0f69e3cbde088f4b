#include "platform/linux/ActivationSocket.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tessarine {

namespace {

struct Address {
    sockaddr_un address{};
    socklen_t length = 0;
};

// A first byte of zero puts the name outside the file system.
Address abstractAddress(const std::string& name) {
    Address made;
    made.address.sun_family = AF_UNIX;
    const std::size_t size = std::min(name.size(), sizeof made.address.sun_path - 1);
    std::memcpy(made.address.sun_path + 1, name.data(), size);
    made.length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + size);
    return made;
}

int openSocket() {
    return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

// Anybody can connect to such a name.
bool isOwn(int connection) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == getuid();
}

} // namespace

ActivationSocket::ActivationSocket(std::string name)
    : name_(std::move(name)) {}

ActivationSocket::~ActivationSocket() {
    if (listening_ >= 0)
        close(listening_);
}

void ActivationSocket::listen() {
    const Address own = abstractAddress(name_);
    const int listening = openSocket();
    if (listening >= 0 &&
        bind(listening, reinterpret_cast<const sockaddr*>(&own.address), own.length) == 0 &&
        ::listen(listening, SOMAXCONN) == 0) {
        listening_ = listening;
        return;
    }
    if (listening >= 0)
        close(listening);
}

void ActivationSocket::ask() {
    const Address to = abstractAddress(name_);
    const int connection = openSocket();
    // The connection is all there is to the request. It waits in a queue, and where that is full
    // nobody waits for it to have room.
    if (connection >= 0) {
        static_cast<void>(
            connect(connection, reinterpret_cast<const sockaddr*>(&to.address), to.length));
        close(connection);
    }
}

void ActivationSocket::onRequest(std::function<void()> handler) {
    handler_ = std::move(handler);
    if (listening_ < 0)
        return;
    requests_ = std::make_unique<QSocketNotifier>(listening_, QSocketNotifier::Read);
    QObject::connect(requests_.get(), &QSocketNotifier::activated, requests_.get(),
                     [this] { takeRequest(); });
}

void ActivationSocket::takeRequest() {
    const int connection = accept4(listening_, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0)
        return;
    const bool isOwnRequest = isOwn(connection);
    close(connection);
    if (isOwnRequest && handler_)
        handler_();
}

} // namespace tessarine
