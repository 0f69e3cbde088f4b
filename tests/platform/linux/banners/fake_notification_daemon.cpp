// Holds org.freedesktop.Notifications on the bus it is given (or was started by) until the bus
// goes or it is killed.

#include "platform/linux/banners/FakeDaemon.h"

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <thread>

int main(int argc, char** argv) {
    using tessarine::testing::FakeDaemon;
    const char* const address = argc > 1 ? argv[1] : getenv("DBUS_STARTER_ADDRESS");
    if (!address)
        return 1;
    const FakeDaemon daemon(address);
    while (daemon.isConnected())
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    return 0;
}
