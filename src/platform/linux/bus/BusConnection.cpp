#include "platform/linux/bus/BusConnection.h"

#include <algorithm>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace tessarine {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds greetingTime{5000};
constexpr milliseconds forEver{-1};

short pollEvents(unsigned watchFlags) {
    unsigned events = 0;
    if (watchFlags & DBUS_WATCH_READABLE)
        events |= POLLIN;
    if (watchFlags & DBUS_WATCH_WRITABLE)
        events |= POLLOUT;
    return static_cast<short>(events);
}

unsigned watchFlags(short pollEvents) {
    unsigned flags = 0;
    if (pollEvents & POLLIN)
        flags |= DBUS_WATCH_READABLE;
    if (pollEvents & POLLOUT)
        flags |= DBUS_WATCH_WRITABLE;
    if (pollEvents & POLLERR)
        flags |= DBUS_WATCH_ERROR;
    if (pollEvents & POLLHUP)
        flags |= DBUS_WATCH_HANGUP;
    return flags;
}

bool isAnswer(DBusMessage* message, dbus_uint32_t serial) {
    const int type = dbus_message_get_type(message);
    return (type == DBUS_MESSAGE_TYPE_METHOD_RETURN || type == DBUS_MESSAGE_TYPE_ERROR) &&
           dbus_message_get_reply_serial(message) == serial &&
           dbus_message_has_sender(message, DBUS_SERVICE_DBUS);
}

} // namespace

BusMessage busCall(const char* path, const char* interface, const char* member) {
    return BusMessage(dbus_message_new_method_call(DBUS_SERVICE_DBUS, path, interface, member));
}

BusMessage busCall(const char* member) {
    return busCall(DBUS_PATH_DBUS, DBUS_INTERFACE_DBUS, member);
}

StopSignal::StopSignal()
    : descriptor_(eventfd(0, EFD_CLOEXEC)) {}

StopSignal::~StopSignal() {
    close(descriptor_);
}

void StopSignal::raise() {
    eventfd_write(descriptor_, 1);
}

bool StopSignal::waitFor(milliseconds time) const {
    pollfd waiting{descriptor_, POLLIN, 0};
    return poll(&waiting, 1, static_cast<int>(time.count())) > 0;
}

std::unique_ptr<BusConnection> BusConnection::open(const std::string& address,
                                                   const StopSignal& stop) {
    dbus_connection_set_change_sigpipe(false); // the process's signals are not ours to change
    DBusConnection* const raw = dbus_connection_open_private(address.c_str(), nullptr);
    if (!raw)
        return nullptr;
    std::unique_ptr<BusConnection> connection(new BusConnection(raw, stop));
    const BusMessage greeting = connection->call(busCall("Hello"), greetingTime);
    const bool isGreeted =
        greeting && dbus_message_get_type(greeting.get()) == DBUS_MESSAGE_TYPE_METHOD_RETURN;
    return isGreeted ? std::move(connection) : nullptr;
}

BusConnection::BusConnection(DBusConnection* connection, const StopSignal& stop)
    : connection_(connection)
    , stop_(stop) {
    dbus_connection_set_exit_on_disconnect(connection_, false);
    dbus_connection_set_watch_functions(connection_, addWatch, removeWatch, nullptr, this, nullptr);
}

BusConnection::~BusConnection() {
    dbus_connection_close(connection_);
    dbus_connection_set_watch_functions(connection_, nullptr, nullptr, nullptr, nullptr, nullptr);
    dbus_connection_unref(connection_);
}

BusMessage BusConnection::call(BusMessage message, milliseconds time) {
    const Clock::time_point deadline = Clock::now() + time;
    dbus_uint32_t serial = 0;
    if (!isUsable() || !dbus_connection_send(connection_, message.get(), &serial))
        return nullptr;
    while (true) {
        while (BusMessage arrived{dbus_connection_pop_message(connection_)}) {
            if (isAnswer(arrived.get(), serial))
                return arrived;
            if (!keepsAnswersOnly_)
                arrived_.push_back(std::move(arrived));
        }
        const auto rest = std::chrono::ceil<milliseconds>(deadline - Clock::now());
        if (!isUsable() || rest.count() <= 0 || !waitForInput(rest))
            return nullptr;
    }
}

BusMessage BusConnection::next() {
    if (!arrived_.empty()) {
        BusMessage message = std::move(arrived_.front());
        arrived_.pop_front();
        return message;
    }
    while (true) {
        if (BusMessage message{dbus_connection_pop_message(connection_)})
            return message;
        if (!isUsable() || !waitForInput(forEver))
            return nullptr;
    }
}

void BusConnection::dropArrived(const std::function<bool(DBusMessage*)>& fits) {
    std::erase_if(arrived_, [&](const BusMessage& message) { return fits(message.get()); });
}

void BusConnection::keepAnswersOnly() {
    keepsAnswersOnly_ = true;
    arrived_.clear();
}

bool BusConnection::isUsable() const {
    return dbus_connection_get_is_connected(connection_);
}

// False when the time was up or the stop signal is raised. The library's own waiting could not be
// interrupted by it.
bool BusConnection::waitForInput(milliseconds time) {
    std::vector<pollfd> descriptors{{stop_.descriptor(), POLLIN, 0}};
    std::vector<DBusWatch*> watches;
    for (DBusWatch* const watch : watches_) {
        if (!dbus_watch_get_enabled(watch))
            continue;
        watches.push_back(watch);
        descriptors.push_back(
            {dbus_watch_get_unix_fd(watch), pollEvents(dbus_watch_get_flags(watch)), 0});
    }
    const int ready = poll(descriptors.data(), descriptors.size(), static_cast<int>(time.count()));
    if (ready == 0 || descriptors[0].revents != 0)
        return false;
    for (std::size_t i = 0; ready > 0 && i < watches.size(); ++i) {
        const unsigned flags = watchFlags(descriptors[i + 1].revents);
        // Handling one watch may take another one away.
        const bool isThere =
            std::find(watches_.begin(), watches_.end(), watches[i]) != watches_.end();
        if (flags != 0 && isThere)
            dbus_watch_handle(watches[i], flags);
    }
    return true;
}

dbus_bool_t BusConnection::addWatch(DBusWatch* watch, void* self) {
    static_cast<BusConnection*>(self)->watches_.push_back(watch);
    return true;
}

void BusConnection::removeWatch(DBusWatch* watch, void* self) {
    std::erase(static_cast<BusConnection*>(self)->watches_, watch);
}

} // namespace tessarine
