#include "platform/linux/banners/BusMonitor.h"

#include "platform/linux/banners/BoundedText.h"
#include "platform/linux/banners/NotificationInterfaces.h"
#include "platform/linux/banners/NotificationMessages.h"
#include "platform/linux/bus/BusNames.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include <unistd.h>

namespace tessarine {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds firstRetry{100};
constexpr milliseconds longestRetry{30000};
constexpr std::chrono::seconds settled{10}; // a connection that held this long was a good one

constexpr char monitoringInterface[] = "org.freedesktop.DBus.Monitoring";

// Senders may leave out the interface, so the path is as good a sign; and they may address the
// service by either of its names. Of replies only those that the daemon gives come by, and the
// errors that the bus sends in its place. What portals are asked comes by when they pass it on.
constexpr std::array<const char*, 7> monitorRules{
    "type='method_call',path='/org/freedesktop/Notifications',member='Notify'",
    "type='method_call',interface='org.freedesktop.Notifications',member='Notify'",
    "type='method_call',path='/org/gtk/Notifications'",
    "type='method_return',sender='org.freedesktop.Notifications'",
    "type='error',sender='org.freedesktop.Notifications'",
    "type='error',sender='org.freedesktop.DBus'",
    "type='signal',interface='org.freedesktop.Notifications',member='NotificationClosed'",
};

// How the programs of desktop portals are called.
constexpr QStringView portalProgram = u"xdg-desktop-portal";

constexpr std::size_t mostSenderNames = 1000;

const char* nameOf(NotificationService service) {
    return interfaceOf(service).name;
}

std::string ownerRule(NotificationService service) {
    return ownerChangeRule(nameOf(service));
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
    , filter_(std::move(process))
    , senderNames_(mostSenderNames) {
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

// All that concerns the owners of the names is asked on the connection that then becomes the
// monitor: so answers, changes and calls come in one order, and none is missed in between.
bool BusMonitor::attach() {
    senderNames_.clear(); // another bus gives out names of its own
    questions_ = BusQuestions::open(address_, stop_);
    stream_ = questions_ ? BusConnection::open(address_, stop_) : nullptr;
    if (!stream_)
        return false;
    const std::optional<NameOwner> freedesktop = watchOwner(NotificationService::freedesktop);
    const std::optional<NameOwner> gtk =
        freedesktop ? watchOwner(NotificationService::gtk) : std::nullopt;
    if (!gtk || !becomeMonitor())
        return false;
    filter_.connected(*freedesktop, *gtk);
    return true;
}

// The owner now; changes are told from here on.
std::optional<NameOwner> BusMonitor::watchOwner(NotificationService service) {
    if (!isReturn(
            stream_->call(busCallWithText("AddMatch", ownerRule(service).c_str()), busAnswerTime)))
        return std::nullopt;
    const std::optional<std::string> name = askForOwner(*stream_, nameOf(service));
    return name ? std::optional(ownerNamed(*name)) : std::nullopt;
}

// One whose process the bus can't name goes by our own number, which is no other one's.
NameOwner BusMonitor::ownerNamed(const std::string& uniqueName) {
    if (uniqueName.empty())
        return {};
    const std::optional<qint32> pid = questions_->processOf(uniqueName.c_str());
    return {uniqueName, pid.value_or(static_cast<qint32>(getpid()))};
}

bool BusMonitor::becomeMonitor() {
    const std::string freedesktopOwner = ownerRule(NotificationService::freedesktop);
    const std::string gtkOwner = ownerRule(NotificationService::gtk);
    std::vector<const char*> rules{freedesktopOwner.c_str(), gtkOwner.c_str()};
    rules.insert(rules.end(), monitorRules.begin(), monitorRules.end());
    const char* const* const first = rules.data();
    const dbus_uint32_t flags = 0;
    BusMessage request = busCall(DBUS_PATH_DBUS, monitoringInterface, "BecomeMonitor");
    dbus_message_append_args(request.get(), DBUS_TYPE_ARRAY, DBUS_TYPE_STRING, &first,
                             static_cast<int>(rules.size()), DBUS_TYPE_UINT32, &flags,
                             DBUS_TYPE_INVALID);
    return isReturn(stream_->call(std::move(request), busAnswerTime));
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
        return filter_.answered(senderOf(message), answeredCall(message),
                                firstNumber(message).value_or(0));
    case DBUS_MESSAGE_TYPE_ERROR:
        return handleError(message);
    case DBUS_MESSAGE_TYPE_SIGNAL:
        return handleSignal(message);
    default:
        return;
    }
}

void BusMonitor::handleCall(DBusMessage* call) {
    const double announcedAt = filter_.uptime();
    const std::optional<NotificationService> service = calledService(call);
    if (!service || !filter_.counts(*service, destinationOf(call)))
        return;
    if (std::optional<SentAnnouncement> sent = readAnnouncement(call, *service)) {
        sent->call.announcedAt = announcedAt;
        if (sent->call.texts.application.isEmpty())
            sent->call.texts.application = applicationName(sent->desktopEntry, senderOf(call));
        filter_.announced(std::move(sent->call));
    } else if (const auto name = readRemoval(call); name && *service == NotificationService::gtk) {
        filter_.removed(*name);
    }
}

void BusMonitor::handleError(DBusMessage* error) {
    if (isFromBus(error))
        filter_.refusedByBus(answeredCall(error));
    else
        filter_.refusedByService(senderOf(error), answeredCall(error));
}

void BusMonitor::handleSignal(DBusMessage* signal) {
    if (const std::optional<std::uint32_t> number = readClosed(signal))
        return filter_.closed(senderOf(signal), *number);
    const std::optional<OwnerChange> change = ownerChange(signal);
    for (const auto service : {NotificationService::freedesktop, NotificationService::gtk}) {
        if (change && change->name == nameOf(service))
            filter_.ownerChanged(service, ownerNamed(change->owner));
    }
}

// Of an application that doesn't tell its name, or tells the id of its entry instead. A portal
// speaks for others: the name of its process would say nothing.
QString BusMonitor::applicationName(const QString& desktopEntry, const char* sender) {
    QString name = desktopEntry.isEmpty() ? QString() : names_.ofDesktopEntry(desktopEntry);
    if (!name.isEmpty())
        return boundedText(name, longestName);
    name = senderName(sender);
    const bool saysNothing = name.isEmpty() || name.startsWith(portalProgram);
    return saysNothing && !desktopEntry.isEmpty() ? boundedText(desktopEntry, longestName) : name;
}

// A connection's process stays the same, and its name is never another connection's.
QString BusMonitor::senderName(const char* sender) {
    if (const std::optional<QString> known = senderNames_.find(sender))
        return *known;
    const std::optional<qint32> pid = questions_->processOf(sender);
    QString name = pid ? boundedText(processName(*pid), longestName) : QString();
    if (!name.isEmpty())
        senderNames_.set(sender, name);
    return name;
}

} // namespace tessarine
