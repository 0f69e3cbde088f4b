// What the monitor makes of messages that pretend to come from others. The bus lets them pass.

#include "platform/linux/banners/BusMonitorFixture.h"

#include <algorithm>

namespace tessarine {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::BusClient;
using ::testing::ElementsAre;
using testing::FakeDaemon;
using ::testing::IsEmpty;
using testing::PrivateBus;
using ::testing::SizeIs;

struct BusMonitorSpoofTest : testing::BusMonitorFixture {
    PrivateBus bus;
    std::unique_ptr<FakeDaemon> daemon;
    std::unique_ptr<BusClient> client;
    std::unique_ptr<BusClient> spoofer;
    std::vector<std::string> connectionsOfMonitor; // by which it can be written to

    BusMonitorSpoofTest() {
        bus.start();
        daemon = std::make_unique<FakeDaemon>(bus.address());
        client = std::make_unique<BusClient>(bus.address());
        spoofer = std::make_unique<BusClient>(bus.address());
        const std::vector<std::string> before = spoofer->connections();
        watch(bus.address());
        EXPECT_TRUE(accessibility->isProcessTrusted());
        connectionsOfMonitor = spoofer->connections();
        std::erase_if(connectionsOfMonitor, [&](const std::string& connection) {
            return std::find(before.begin(), before.end(), connection) != before.end();
        });
    }
};

TEST_F(BusMonitorSpoofTest, BelievesNobodyElseThatABannerIsClosed) {
    const auto id = client->notify({.summary = "same"});
    spoofer->claimClosed(*id);
    spoofer->claimClosed(*id, client->uniqueName());
    client->notify({.summary = "same", .replacesId = *id});
    ASSERT_TRUE(capturesMarkerFrom(*client));
    EXPECT_THAT(captured, SizeIs(1)) << "the second is the first one again";
}

TEST_F(BusMonitorSpoofTest, BelievesNobodyElsesAnswers) {
    daemon = std::make_unique<FakeDaemon>(bus.address(), FakeDaemon::Manner::keepsSilent);
    const testing::BusMessage call = testing::notifyCall({.summary = "same"});
    dbus_uint32_t serial = 0;
    dbus_connection_send(client->raw(), call.get(), &serial);
    client->flush();
    spoofer->claimAnswer(client->uniqueName(), serial, 77);
    client->post({.summary = "same", .replacesId = 77});
    client->flush();
    daemon = std::make_unique<FakeDaemon>(bus.address());
    ASSERT_TRUE(capturesMarkerFrom(*client));
    EXPECT_THAT(captured, SizeIs(2)) << "nobody has given the number 77 to the first one";
}

TEST_F(BusMonitorSpoofTest, BelievesNobodyElseWhoOwnsTheName) {
    for (const std::string& connection : connectionsOfMonitor) {
        spoofer->claimOwnerChange("org.freedesktop.Notifications", spoofer->uniqueName(),
                                  connection);
        spoofer->claimOwnerChange("org.gtk.Notifications", spoofer->uniqueName(), connection);
    }
    client->post({.summary = "not for the daemon", .destination = spoofer->uniqueName()});
    client->post(testing::addNotificationCall(
        {.title = "not for a shell", .destination = spoofer->uniqueName()}));
    ASSERT_TRUE(capturesMarkerFrom(*client));
    EXPECT_THAT(captured, IsEmpty());
    EXPECT_THAT(told, IsEmpty());
}

// What others write to the monitor's own connections is read by nobody and kept by nobody.
TEST_F(BusMonitorSpoofTest, KeepsNothingThatIsWrittenToItsOwnConnections) {
    ASSERT_THAT(connectionsOfMonitor, ::testing::Not(IsEmpty()));
    const std::string megabyte(1000000, 'x');
    BusClient unnamed(bus.address());
    const auto write = [&](int times) {
        for (int i = 0; i < times; ++i) {
            for (const std::string& connection : connectionsOfMonitor)
                spoofer->post(testing::addNotificationCall({.title = "to you",
                                                            .body = megabyte,
                                                            .destination = connection,
                                                            .interface = "org.example.Talk"}));
        }
        spoofer->flush();
        unnamed.notify({.application = "", .summary = "x"}); // the monitor asks for its process
        return capturesMarkerFrom(*client);
    };
    ASSERT_TRUE(write(10));
    const int before = testing::residentMegabytes();
    ASSERT_TRUE(write(100));
    EXPECT_LT(testing::residentMegabytes() - before, 80);
    EXPECT_THAT(headlines(), ::testing::Each(u"test_bus_monitor: x"_qs));
}

} // namespace
} // namespace tessarine
