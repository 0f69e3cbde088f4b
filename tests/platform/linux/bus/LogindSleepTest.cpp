#include "platform/linux/bus/LogindSleep.h"

#include "platform/linux/banners/BusMonitorFixture.h"

namespace tessarine {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::BusClient;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::PrivateBus;

const std::string managerName = "org.freedesktop.login1";

// Plays logind on a bus of the test's own.
struct LogindSleepTest : ::testing::Test {
    PrivateBus bus;
    QtScheduler scheduler;
    std::vector<QString> told;
    std::vector<std::unique_ptr<WorkspaceObservation>> observations;

    LogindSleepTest() { bus.start(); }

    std::unique_ptr<LinuxWorkspace> watch() {
        auto workspace =
            std::make_unique<LinuxWorkspace>(scheduler, std::make_shared<BannerProcess>(scheduler),
                                             LinuxWorkspace::Buses{{}, bus.address()});
        const auto note = [this](const QString& event) {
            return [this, event](const std::optional<RunningApplication>& application) {
                EXPECT_EQ(application, std::nullopt);
                told.push_back(event);
            };
        };
        observations.push_back(workspace->observe(WorkspaceEvent::willSleep, note(u"sleep"_qs)));
        observations.push_back(workspace->observe(WorkspaceEvent::didWake, note(u"wake"_qs)));
        return workspace;
    }

    std::unique_ptr<BusClient> logind() {
        auto client = std::make_unique<BusClient>(bus.address());
        client->own(managerName);
        return client;
    }

    // The watch has no moment from which it is sure to listen: the signal is repeated until it is.
    bool hears(BusClient& logind, bool isGoingToSleep) {
        return testing::turnsUntil([&] {
            if (told.empty())
                logind.emitSleep(isGoingToSleep);
            return !told.empty();
        });
    }

    // Hears until the other signal comes, so that none of the repeated ones is still on its way.
    bool hearsTheLast(BusClient& logind, bool isGoingToSleep) {
        if (!hears(logind, isGoingToSleep))
            return false;
        logind.emitSleep(!isGoingToSleep);
        const QString last = isGoingToSleep ? u"wake"_qs : u"sleep"_qs;
        return testing::turnsUntil([&] { return told.back() == last; });
    }
};

TEST_F(LogindSleepTest, TellsOfSleepAndWake) {
    const auto workspace = watch();
    const auto client = logind();
    ASSERT_TRUE(hearsTheLast(*client, true));
    EXPECT_EQ(told.front(), u"sleep"_qs);
    EXPECT_THAT(told, ::testing::Contains(u"wake"_qs).Times(1));
    told.clear();
    client->emitSleep(true);
    client->emitSleep(false);
    ASSERT_TRUE(testing::turnsUntil([&] { return told.size() == 2; }));
    EXPECT_THAT(told, ElementsAre(u"sleep"_qs, u"wake"_qs));
}

TEST_F(LogindSleepTest, BelievesNobodyElse) {
    const auto workspace = watch();
    const auto client = logind();
    ASSERT_TRUE(hearsTheLast(*client, true));
    told.clear();
    BusClient other(bus.address());
    other.emitSleep(true);
    client->emitSleep(false);
    ASSERT_TRUE(testing::turnsUntil([&] { return !told.empty(); }));
    EXPECT_THAT(told, ElementsAre(u"wake"_qs));
}

// The bus hands a message that names its receiver to that one, whoever sent it and whatever rules
// the receiver has set.
TEST_F(LogindSleepTest, BelievesNobodyElseWhoWritesToItDirectly) {
    const auto workspace = watch();
    const auto client = logind();
    ASSERT_TRUE(hearsTheLast(*client, true));
    told.clear();
    BusClient other(bus.address());
    for (const std::string& connection : other.connections())
        other.emitSleep(true, connection);
    client->emitSleep(false);
    ASSERT_TRUE(testing::turnsUntil([&] { return !told.empty(); }));
    EXPECT_THAT(told, ElementsAre(u"wake"_qs));
}

TEST_F(LogindSleepTest, BelievesTheOneThatOwnsTheNameNow) {
    const auto workspace = watch();
    const auto first = logind();
    ASSERT_TRUE(hearsTheLast(*first, true));
    first->disown(managerName);
    const auto second = logind();
    told.clear();
    for (const std::string& connection : first->connections())
        first->emitSleep(true, connection);
    second->emitSleep(false);
    ASSERT_TRUE(testing::turnsUntil([&] { return !told.empty(); }));
    EXPECT_THAT(told, ElementsAre(u"wake"_qs));
}

TEST_F(LogindSleepTest, BelievesNobodyWhileNobodyOwnsTheName) {
    const auto workspace = watch();
    const auto client = logind();
    ASSERT_TRUE(hearsTheLast(*client, true));
    client->disown(managerName);
    told.clear();
    for (const std::string& connection : client->connections())
        client->emitSleep(true, connection);
    client->own(managerName);
    client->emitSleep(false);
    ASSERT_TRUE(testing::turnsUntil([&] { return !told.empty(); }));
    EXPECT_THAT(told, ElementsAre(u"wake"_qs));
}

// A change of the name's owner that the bus did not announce.
TEST_F(LogindSleepTest, LetsNobodyElseNameTheOwner) {
    const auto workspace = watch();
    const auto client = logind();
    ASSERT_TRUE(hearsTheLast(*client, true));
    told.clear();
    BusClient other(bus.address());
    for (const std::string& connection : other.connections()) {
        other.claimOwnerChange(managerName, other.uniqueName(), connection);
        other.emitSleep(true, connection);
    }
    client->emitSleep(false);
    ASSERT_TRUE(testing::turnsUntil([&] { return !told.empty(); }));
    EXPECT_THAT(told, ElementsAre(u"wake"_qs));
}

TEST_F(LogindSleepTest, WakesWhenTheOneThatAnnouncedTheSleepGoes) {
    const auto workspace = watch();
    auto client = logind();
    ASSERT_TRUE(hearsTheLast(*client, false));
    told.clear();
    client.reset();
    ASSERT_TRUE(testing::turnsUntil([&] { return !told.empty(); }));
    EXPECT_THAT(told, ElementsAre(u"wake"_qs));
}

TEST_F(LogindSleepTest, WakesWhenTheBusGoes) {
    const auto workspace = watch();
    const auto client = logind();
    ASSERT_TRUE(hearsTheLast(*client, false));
    told.clear();
    bus.crash();
    ASSERT_TRUE(testing::turnsUntil([&] { return !told.empty(); }));
    EXPECT_THAT(told, ElementsAre(u"wake"_qs));
}

TEST_F(LogindSleepTest, TellsNothingOnceTheObservationsEnd) {
    const auto workspace = watch();
    const auto client = logind();
    ASSERT_TRUE(hearsTheLast(*client, true));
    observations.clear();
    told.clear();
    client->emitSleep(false);
    testing::turnFor(200);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(LogindSleepTest, TellsNothingWithoutASystemBus) {
    bus.crash();
    const auto workspace = watch();
    testing::turnFor(100);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(LogindSleepTest, EndsAtOnceAndOften) {
    const int before = testing::openDescriptors();
    for (int i = 0; i < 50; ++i) {
        watch().reset();
        observations.clear();
    }
    EXPECT_EQ(testing::openDescriptors(), before);
}

TEST(SystemBusAddress, IsTheOneOfTheEnvironmentOrTheUsualOne) {
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere");
    EXPECT_EQ(systemBusAddress(), "unix:path=/nowhere");
    qunsetenv("DBUS_SYSTEM_BUS_ADDRESS");
    EXPECT_EQ(systemBusAddress(), "unix:path=/var/run/dbus/system_bus_socket");
}

} // namespace
} // namespace tessarine
