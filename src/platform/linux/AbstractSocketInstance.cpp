#include "platform/linux/AbstractSocketInstance.h"

#include <QCryptographicHash>

#include <algorithm>
#include <cerrno>
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

bool isOwn(int connection) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == getuid();
}

// A connection to the copy that holds the name, if that is one of this user's.
int connectToOwn(const std::string& name) {
    const Address to = abstractAddress(name);
    const int connection = openSocket();
    if (connection >= 0 &&
        connect(connection, reinterpret_cast<const sockaddr*>(&to.address), to.length) == 0 &&
        isOwn(connection))
        return connection;
    if (connection >= 0)
        close(connection);
    return -1;
}

} // namespace

AbstractSocketInstance::AbstractSocketInstance(const std::string& dataFolder) {
    const QByteArray folder =
        QCryptographicHash::hash(QByteArrayView(dataFolder), QCryptographicHash::Sha256).toHex();
    name_ = "com.zorvek.Tessarine/" + std::to_string(getuid()) + '/' + folder.toStdString();
}

AbstractSocketInstance::~AbstractSocketInstance() {
    if (listening_ >= 0)
        close(listening_);
}

bool AbstractSocketInstance::claim() {
    const Address own = abstractAddress(name_);
    listening_ = openSocket();
    if (listening_ >= 0 &&
        bind(listening_, reinterpret_cast<const sockaddr*>(&own.address), own.length) == 0 &&
        listen(listening_, SOMAXCONN) == 0)
        return true;
    // A name that a stranger sits on, or a system without such sockets, must not keep the program
    // from starting: only a copy of the user's own counts.
    const int connection = connectToOwn(name_);
    if (connection < 0)
        return true;
    close(connection);
    return false;
}

void AbstractSocketInstance::activateFirst() {
    const int connection = connectToOwn(name_);
    if (connection < 0)
        return;
    const char request = 'a';
    [[maybe_unused]] const ssize_t sent = send(connection, &request, 1, MSG_NOSIGNAL);
    close(connection);
}

void AbstractSocketInstance::onActivation(std::function<void()> handler) {
    handler_ = std::move(handler);
    if (listening_ < 0)
        return;
    requests_ = std::make_unique<QSocketNotifier>(listening_, QSocketNotifier::Read);
    QObject::connect(requests_.get(), &QSocketNotifier::activated, requests_.get(),
                     [this] { takeRequest(); });
}

// A connection that closes without its byte only asked whether somebody is there.
void AbstractSocketInstance::takeRequest() {
    const int connection = accept4(listening_, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0)
        return;
    const timeval patience{0, 200000};
    setsockopt(connection, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    char request = 0;
    const bool asked = isOwn(connection) && recv(connection, &request, 1, 0) == 1;
    close(connection);
    if (asked && handler_)
        handler_();
}

} // namespace tessarine
