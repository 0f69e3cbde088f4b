#include "platform/linux/LogindSleep.h"

#include <cstdlib>

namespace tessarine {

namespace {

using std::chrono::milliseconds;

// Where the D-Bus Specification puts the system bus.
constexpr char defaultAddress[] = "unix:path=/var/run/dbus/system_bus_socket";

constexpr milliseconds answerTime{5000};
constexpr milliseconds retry{30000}; // when a bus that was there is gone

constexpr char managerInterface[] = "org.freedesktop.login1.Manager";
constexpr char prepareForSleep[] = "PrepareForSleep";
constexpr char rule[] = "type='signal',sender='org.freedesktop.login1',"
                        "path='/org/freedesktop/login1',"
                        "interface='org.freedesktop.login1.Manager',member='PrepareForSleep'";

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
            listen(*connection);
        }
    } while (wasThere && !stop_.waitFor(retry));
}

void LogindSleep::listen(BusConnection& connection) {
    const char* const match = rule;
    BusMessage request = busCall("AddMatch");
    dbus_message_append_args(request.get(), DBUS_TYPE_STRING, &match, DBUS_TYPE_INVALID);
    if (!connection.call(std::move(request), answerTime))
        return;
    while (const BusMessage message = connection.next()) {
        dbus_bool_t isGoingToSleep = false;
        if (dbus_message_is_signal(message.get(), managerInterface, prepareForSleep) &&
            dbus_message_get_args(message.get(), nullptr, DBUS_TYPE_BOOLEAN, &isGoingToSleep,
                                  DBUS_TYPE_INVALID))
            tell(isGoingToSleep);
    }
}

void LogindSleep::tell(bool isGoingToSleep) {
    scheduler_.onMain([weak = std::weak_ptr(listeners_), isGoingToSleep] {
        const std::shared_ptr<Listeners> listeners = weak.lock();
        if (listeners && isGoingToSleep)
            listeners->sleep.call();
        else if (listeners)
            listeners->wake.call();
    });
}

} // namespace tessarine
