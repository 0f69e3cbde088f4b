#include "platform/linux/BusMonitor.h"

#include "platform/linux/NotificationsInterface.h"
#include "platform/linux/NotifyMessage.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

#include <unistd.h>

namespace tessarine {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds answerTime{5000}; // the bus itself answers at once
constexpr milliseconds firstRetry{100};
constexpr milliseconds longestRetry{30000};
constexpr std::chrono::seconds settled{10}; // a connection that held this long was a good one

constexpr char monitoringInterface[] = "org.freedesktop.DBus.Monitoring";
constexpr char nameOwnerChanged[] = "NameOwnerChanged";

constexpr char ownerRule[] =
    "type='signal',sender='org.freedesktop.DBus',interface='org.freedesktop.DBus',"
    "member='NameOwnerChanged',arg0='org.freedesktop.Notifications'";

// Senders may leave out the interface, so the path is as good a sign. Of replies only those of the
// daemon come by, and the errors that the bus sends in its place.
constexpr std::array<const char*, 7> monitorRules{
    ownerRule,
    "type='method_call',path='/org/freedesktop/Notifications',member='Notify'",
    "type='method_call',interface='org.freedesktop.Notifications',member='Notify'",
    "type='method_return',sender='org.freedesktop.Notifications'",
    "type='error',sender='org.freedesktop.Notifications'",
    "type='error',sender='org.freedesktop.DBus'",
    "type='signal',interface='org.freedesktop.Notifications',member='NotificationClosed'",
};

bool isReturn(const BusMessage& message) {
    return message && dbus_message_get_type(message.get()) == DBUS_MESSAGE_TYPE_METHOD_RETURN;
}

bool isFromBus(DBusMessage* message) {
    return dbus_message_has_sender(message, DBUS_SERVICE_DBUS);
}

BusMessage busCallWithText(const char* member, const char* text) {
    BusMessage call = busCall(member);
    dbus_message_append_args(call.get(), DBUS_TYPE_STRING, &text, DBUS_TYPE_INVALID);
    return call;
}

// A single unsigned integer in front of whatever follows. Nothing when there is none.
std::optional<dbus_uint32_t> firstNumber(DBusMessage* message) {
    DBusMessageIter at;
    dbus_uint32_t number = 0;
    if (!dbus_message_iter_init(message, &at) ||
        dbus_message_iter_get_arg_type(&at) != DBUS_TYPE_UINT32)
        return std::nullopt;
    dbus_message_iter_get_basic(&at, &number);
    return number;
}

// The process behind a name. Nothing when it is gone, or lives where the bus can't see it.
std::optional<qint32> processId(BusConnection& connection, const char* busName) {
    const BusMessage answer =
        connection.call(busCallWithText("GetConnectionUnixProcessID", busName), answerTime);
    const std::optional<dbus_uint32_t> pid =
        isReturn(answer) ? firstNumber(answer.get()) : std::nullopt;
    return pid && *pid != 0 ? std::optional(static_cast<qint32>(*pid)) : std::nullopt;
}

// A daemon whose process the bus can't name goes by our own number, which is no other daemon's.
qint32 ownerPid(BusConnection& connection, const char* busName) {
    return processId(connection, busName).value_or(static_cast<qint32>(getpid()));
}

} // namespace

std::string sessionBusAddress() {
    if (const char* const address = getenv("DBUS_SESSION_BUS_ADDRESS"); address && *address)
        return address;
    const char* const folder = getenv("XDG_RUNTIME_DIR");
    if (!folder || !*folder)
        return {};
    const std::string path = std::string(folder) + "/bus";
    char* const escaped = dbus_address_escape_value(path.c_str());
    std::string address = std::string("unix:path=") + escaped;
    dbus_free(escaped);
    return address;
}

BusMonitor::BusMonitor(std::shared_ptr<BannerProcess> process, std::string address)
    : address_(std::move(address))
    , filter_(std::move(process)) {
    if (address_.empty()) {
        filter_.disconnected();
        return;
    }
    dbus_threads_init_default(); // before any thread can meet another one in the library
    thread_ = std::thread([this] { run(); });
}

BusMonitor::~BusMonitor() {
    stop_.raise();
    if (thread_.joinable())
        thread_.join();
}

void BusMonitor::run() {
    milliseconds delay = firstRetry;
    do {
        const auto start = std::chrono::steady_clock::now();
        if (attach())
            read();
        stream_.reset();
        questions_.reset();
        if (stop_.isRaised())
            return;
        filter_.disconnected();
        if (std::chrono::steady_clock::now() - start >= settled)
            delay = firstRetry;
        else
            delay = std::min(2 * delay, longestRetry);
    } while (!stop_.waitFor(delay));
}

// All that concerns the owner of the name is asked on the connection that then becomes the monitor:
// so answers, changes and calls come in one order, and none is missed in between.
bool BusMonitor::attach() {
    questions_ = BusConnection::open(address_, stop_);
    stream_ = questions_ ? BusConnection::open(address_, stop_) : nullptr;
    if (!stream_ || !isReturn(stream_->call(busCallWithText("AddMatch", ownerRule), answerTime)))
        return false;
    const std::optional<NameOwner> owner = currentOwner();
    if (!owner || !becomeMonitor())
        return false;
    filter_.connected(*owner);
    return true;
}

std::optional<NameOwner> BusMonitor::currentOwner() {
    const BusMessage answer =
        stream_->call(busCallWithText("GetNameOwner", notifications::name), answerTime);
    if (!answer)
        return std::nullopt;
    stream_->dropArrived(); // changes before the answer, which has them already
    const char* owner = nullptr;
    if (!isReturn(answer) ||
        !dbus_message_get_args(answer.get(), nullptr, DBUS_TYPE_STRING, &owner, DBUS_TYPE_INVALID))
        return NameOwner{};
    return NameOwner{owner, ownerPid(*stream_, owner)};
}

bool BusMonitor::becomeMonitor() {
    BusMessage request = busCall(DBUS_PATH_DBUS, monitoringInterface, "BecomeMonitor");
    const char* const* rules = monitorRules.data();
    const dbus_uint32_t flags = 0;
    dbus_message_append_args(request.get(), DBUS_TYPE_ARRAY, DBUS_TYPE_STRING, &rules,
                             static_cast<int>(monitorRules.size()), DBUS_TYPE_UINT32, &flags,
                             DBUS_TYPE_INVALID);
    return isReturn(stream_->call(std::move(request), answerTime));
}

void BusMonitor::read() {
    while (const BusMessage message = stream_->next())
        handle(message.get());
}

void BusMonitor::handle(DBusMessage* message) {
    switch (dbus_message_get_type(message)) {
    case DBUS_MESSAGE_TYPE_METHOD_CALL:
        return handleCall(message);
    case DBUS_MESSAGE_TYPE_METHOD_RETURN:
        return handleReply(message);
    case DBUS_MESSAGE_TYPE_ERROR:
        return handleError(message);
    case DBUS_MESSAGE_TYPE_SIGNAL:
        return handleSignal(message);
    default:
        return;
    }
}

void BusMonitor::handleCall(DBusMessage* call) {
    std::optional<Announcement> announcement = readNotify(call);
    if (!announcement)
        return;
    if (announcement->texts.application.isEmpty())
        announcement->texts.application = applicationName(call);
    filter_.announced(std::move(*announcement));
}

void BusMonitor::handleReply(DBusMessage* reply) {
    filter_.answered(answeredCall(reply), firstNumber(reply).value_or(0));
}

void BusMonitor::handleError(DBusMessage* error) {
    if (isFromBus(error))
        filter_.refusedByBus(answeredCall(error));
    else
        filter_.refusedByDaemon(answeredCall(error));
}

void BusMonitor::handleSignal(DBusMessage* signal) {
    if (dbus_message_is_signal(signal, notifications::interface,
                               notifications::notificationClosed)) {
        if (const std::optional<dbus_uint32_t> id = firstNumber(signal))
            filter_.closed(*id);
        return;
    }
    const char* name = nullptr;
    const char* oldOwner = nullptr;
    const char* newOwner = nullptr;
    if (!isFromBus(signal) ||
        !dbus_message_is_signal(signal, DBUS_INTERFACE_DBUS, nameOwnerChanged) ||
        !dbus_message_get_args(signal, nullptr, DBUS_TYPE_STRING, &name, DBUS_TYPE_STRING,
                               &oldOwner, DBUS_TYPE_STRING, &newOwner, DBUS_TYPE_INVALID) ||
        std::string_view(name) != notifications::name)
        return;
    if (*newOwner)
        filter_.ownerChanged({newOwner, ownerPid(*questions_, newOwner)});
    else
        filter_.ownerChanged({});
}

// Of an application that doesn't tell its name.
QString BusMonitor::applicationName(DBusMessage* notify) {
    const QString entry = desktopEntryHint(notify);
    QString name = entry.isEmpty() ? QString() : names_.ofDesktopEntry(entry);
    if (!name.isEmpty())
        return name;
    const char* const sender = dbus_message_get_sender(notify);
    const std::optional<qint32> pid = sender ? processId(*questions_, sender) : std::nullopt;
    return pid ? processName(*pid) : QString();
}

} // namespace tessarine
