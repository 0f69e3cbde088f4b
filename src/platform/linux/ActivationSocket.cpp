#include "platform/linux/ActivationSocket.h"

#include <algorithm>
#include <array>
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

// Anybody can connect to such a name.
bool isOwn(int connection) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == getuid();
}

constexpr std::size_t longestToken = 1024; // bytes; those of desktops have a hundred
constexpr std::size_t mostUnfinished = 16; // requests that have not said all that they have to say

ssize_t sendToken(int connection, const QByteArray& token) {
    if (std::size_t(token.size()) > longestToken)
        return 0;
    return send(connection, token.constData(), std::size_t(token.size()), MSG_NOSIGNAL);
}

// Tokens are printable. What isn't comes from something else, and would end up in the environment.
bool isToken(const std::string& text) {
    return text.size() <= longestToken && std::all_of(text.begin(), text.end(), [](char byte) {
               return byte > ' ' && byte <= '~';
           });
}

} // namespace

// A connection that asks for something. The token ends with the connection's other end.
class ActivationSocket::Request {
public:
    explicit Request(int connection)
        : connection_(connection) {}
    Request(const Request&) = delete;
    Request& operator=(const Request&) = delete;
    ~Request() {
        notifier_.reset();
        close(connection_);
    }

    // Takes what has arrived. True when nothing more is to come, or too much came.
    bool read() {
        std::array<char, 512> bytes{};
        ssize_t count = 0;
        while ((count = recv(connection_, bytes.data(), bytes.size(), 0)) > 0) {
            text_.append(bytes.data(), std::size_t(count));
            if (text_.size() > longestToken)
                return true;
        }
        return count == 0 || (errno != EAGAIN && errno != EINTR);
    }

    void whenReadable(const std::function<void()>& handler) {
        notifier_ = std::make_unique<QSocketNotifier>(connection_, QSocketNotifier::Read);
        // The handler may destroy the notifier, which must not happen inside of its signal.
        QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), handler,
                         Qt::QueuedConnection);
    }

    QString token() const { return isToken(text_) ? QString::fromStdString(text_) : QString(); }

private:
    const int connection_;
    std::string text_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

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

void ActivationSocket::ask(const QString& token) {
    const Address to = abstractAddress(name_);
    const int connection = openSocket();
    // The request waits in a queue, and where that is full nobody waits for it to have room. A
    // token is small enough for the connection to take all of it at once.
    if (connection >= 0) {
        if (connect(connection, reinterpret_cast<const sockaddr*>(&to.address), to.length) == 0)
            static_cast<void>(sendToken(connection, token.toUtf8()));
        close(connection);
    }
}

void ActivationSocket::onRequest(std::function<void(const QString& token)> handler) {
    handler_ = std::move(handler);
    if (listening_ < 0)
        return;
    requests_ = std::make_unique<QSocketNotifier>(listening_, QSocketNotifier::Read);
    QObject::connect(requests_.get(), &QSocketNotifier::activated, requests_.get(),
                     [this] { takeRequest(); });
}

void ActivationSocket::takeRequest() {
    const int connection = accept4(listening_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (connection < 0)
        return;
    if (!isOwn(connection)) {
        close(connection);
        return;
    }
    unfinished_.push_back(std::make_unique<Request>(connection));
    Request* const request = unfinished_.back().get();
    if (request->read()) {
        finish(request);
        return;
    }
    request->whenReadable([this, request] {
        if (request->read())
            finish(request);
    });
    if (unfinished_.size() > mostUnfinished)
        finish(unfinished_.front().get()); // who keeps it open never meant to say anything
}

// The handler may take any time, and is the last to be done here.
void ActivationSocket::finish(const Request* request) {
    const QString token = request->token();
    unfinished_.remove_if([request](const auto& each) { return each.get() == request; });
    if (handler_)
        handler_(token);
}

QString tokenOfOwnStart() {
    const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qEnvironmentVariable("DESKTOP_STARTUP_ID") : token;
}

} // namespace tessarine
