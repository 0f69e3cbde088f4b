#include "platform/linux/bus/LogindSleep.h"

#include "platform/linux/bus/BusNames.h"

#include <cstdlib>

namespace tessarine {

namespace {

// Where the D-Bus Specification puts the system bus.
constexpr char defaultAddress[] = "unix:path=/var/run/dbus/system_bus_socket";

constexpr std::chrono::milliseconds retry{30000}; // when a bus that was there is gone

constexpr char managerName[] = "org.freedesktop.login1";
constexpr char managerInterface[] = "org.freedesktop.login1.Manager";
constexpr char prepareForSleep[] = "PrepareForSleep";
constexpr char sleepRule[] = "type='signal',sender='org.freedesktop.login1',"
                             "path='/org/freedesktop/login1',"
                             "interface='org.freedesktop.login1.Manager',member='PrepareForSleep'";

bool addMatch(BusConnection& connection, const char* rule) {
    return isReturn(connection.call(busCallWithText("AddMatch", rule), busAnswerTime));
}

} // namespace

std::string systemBusAddress() {
    const char* const address = getenv("DBUS_SYSTEM_BUS_ADDRESS");
    return address && *address ? address : defaultAddress;
}

LogindSleep::LogindSleep(Scheduler& scheduler, std::string busAddress)
    : scheduler_(scheduler)
    , address_(std::move(busAddress)) {}

LogindSleep::~LogindSleep() {
    stop_.raise();
    if (thread_.joinable())
        thread_.join();
}

std::shared_ptr<void> LogindSleep::onSleep(Handlers::Handler handler) {
    ensureRunning();
    return listeners_->sleep.add(std::move(handler));
}

std::shared_ptr<void> LogindSleep::onWake(Handlers::Handler handler) {
    ensureRunning();
    return listeners_->wake.add(std::move(handler));
}

void LogindSleep::ensureRunning() {
    if (thread_.joinable())
        return;
    dbus_threads_init_default(); // before any thread can meet another one in the library
    thread_ = std::thread([this] { run(); });
}

void LogindSleep::run() {
    bool wasThere = false;
    do {
        if (const auto connection = BusConnection::open(address_, stop_)) {
            wasThere = true;
            if (subscribe(*connection))
                listen(*connection);
        }
        if (!stop_.isRaised())
            ownerChanged({});
    } while (wasThere && !stop_.waitFor(retry));
}

bool LogindSleep::subscribe(BusConnection& connection) {
    if (!addMatch(connection, ownerChangeRule(managerName).c_str()))
        return false;
    const std::optional<std::string> owner = askForOwner(connection, managerName);
    if (!owner || !addMatch(connection, sleepRule))
        return false;
    ownerChanged(*owner);
    return true;
}

void LogindSleep::listen(BusConnection& connection) {
    while (const BusMessage message = connection.next())
        handle(message.get());
}

void LogindSleep::handle(DBusMessage* message) {
    if (const std::optional<OwnerChange> change = ownerChange(message)) {
        if (change->name == managerName)
            ownerChanged(change->owner);
        return;
    }
    dbus_bool_t isGoingToSleep = false;
    if (!owner_.empty() && dbus_message_has_sender(message, owner_.c_str()) &&
        dbus_message_is_signal(message, managerInterface, prepareForSleep) &&
        dbus_message_get_args(message, nullptr, DBUS_TYPE_BOOLEAN, &isGoingToSleep,
                              DBUS_TYPE_INVALID))
        tell(isGoingToSleep ? Sleep::begins : Sleep::ends);
}

void LogindSleep::ownerChanged(const std::string& owner) {
    if (owner == owner_)
        return;
    owner_ = owner;
    if (isAsleep_)
        tell(Sleep::ends);
}

void LogindSleep::tell(Sleep sleep) {
    isAsleep_ = sleep == Sleep::begins;
    scheduler_.onMain([weak = std::weak_ptr(listeners_), sleep] {
        const std::shared_ptr<Listeners> listeners = weak.lock();
        if (listeners && sleep == Sleep::begins)
            listeners->sleep.call();
        else if (listeners)
            listeners->wake.call();
    });
}

} // namespace tessarine
