// What becomes of the monitor when daemons and the bus come, go and misbehave.

#include "platform/linux/banners/BusMonitor.h"
#include "platform/linux/banners/BusMonitorFixture.h"
#include "platform/linux/bus/RawBusClient.h"

#include <sys/socket.h>
#include <sys/un.h>

namespace tessarine {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::BusClient;
using ::testing::ElementsAre;
using testing::FakeDaemon;
using ::testing::IsEmpty;
using testing::launchOf;
using testing::PrivateBus;
using ::testing::SizeIs;
using testing::terminationOf;

const QString serviceName = u"org.freedesktop.Notifications"_qs;

// A daemon in a process of its own.
class DaemonProcess {
public:
    explicit DaemonProcess(const std::string& address) {
        process_.start({FAKE_DAEMON, address});
        pid_ = process_.pid();
    }

    void crash() { process_.kill(); }
    qint64 pid() const { return pid_; } // also after its end

private:
    testing::ChildProcess process_;
    qint64 pid_ = 0;
};

struct BusMonitorLifeTest : testing::BusMonitorFixture {
    PrivateBus bus;

    bool isTold(std::size_t events) {
        return readsUntil([&] { return told.size() >= events; });
    }

    bool isRunning(qint64 pid) {
        return readsUntil(
            [&] { return runningPids() == std::vector<qint32>{static_cast<qint32>(pid)}; });
    }
};

// ---- daemons

TEST_F(BusMonitorLifeTest, FollowsADaemonInAProcessOfItsOwn) {
    bus.start();
    watch(bus.address());
    EXPECT_THAT(runningPids(), IsEmpty());
    DaemonProcess daemon(bus.address());
    ASSERT_TRUE(isTold(1));
    EXPECT_TRUE(isRunning(daemon.pid()));
    daemon.crash();
    ASSERT_TRUE(isTold(2));
    EXPECT_THAT(runningPids(), IsEmpty());
    EXPECT_THAT(told, ElementsAre(launchOf(daemon.pid()), terminationOf(daemon.pid())));
}

TEST_F(BusMonitorLifeTest, FollowsADaemonThatTakesTheNameFromAnother) {
    bus.start();
    const DaemonProcess first(bus.address());
    watch(bus.address());
    ASSERT_TRUE(isRunning(first.pid()));
    told.clear();
    const DaemonProcess second(bus.address());
    ASSERT_TRUE(isRunning(second.pid()));
    EXPECT_THAT(told, ElementsAre(terminationOf(first.pid()), launchOf(second.pid())));
}

TEST_F(BusMonitorLifeTest, TellsTwoDaemonsOfOneProcessApart) {
    bus.start();
    const FakeDaemon first(bus.address());
    watch(bus.address());
    EXPECT_THAT(runningPids(), ElementsAre(getpid()));
    const FakeDaemon second(bus.address());
    ASSERT_TRUE(isTold(2));
    EXPECT_THAT(told, ElementsAre(terminationOf(getpid()), launchOf(getpid())));
}

TEST_F(BusMonitorLifeTest, CapturesWhatWasAnnouncedBeforeADaemonCrashed) {
    bus.start();
    DaemonProcess daemon(bus.address());
    watch(bus.address());
    ASSERT_TRUE(isRunning(daemon.pid()));
    BusClient client(bus.address());
    client.notify({.summary = "last words"});
    daemon.crash();
    ASSERT_TRUE(captures(1));
    ASSERT_TRUE(readsUntil([&] { return runningPids().empty(); }));
    EXPECT_THAT(headlines(), ElementsAre(u"Mail: last words"_qs));
}

TEST_F(BusMonitorLifeTest, CapturesABurstOverTheRestartOfADaemon) {
    bus.start();
    DaemonProcess first(bus.address());
    watch(bus.address());
    ASSERT_TRUE(isRunning(first.pid()));
    BusClient client(bus.address());
    const auto burst = [&client](int from, int to) {
        for (int i = from; i < to; ++i)
            client.notify({.summary = std::to_string(i)});
    };
    burst(0, 200);
    first.crash();
    const DaemonProcess second(bus.address());
    ASSERT_TRUE(isRunning(second.pid()));
    burst(200, 400);
    ASSERT_TRUE(capturesMarkerFrom(client));
    EXPECT_THAT(headlines(), ::testing::ElementsAreArray(testing::numbered(u"Mail: %1"_qs, 400)));
}

TEST_F(BusMonitorLifeTest, DoesNotCountWhatNobodyWasThereFor) {
    bus.start();
    watch(bus.address());
    EXPECT_TRUE(accessibility->isProcessTrusted());
    BusClient client(bus.address());
    EXPECT_EQ(client.notify({.summary = "nobody there"}), std::nullopt);
    client.post({.summary = "nobody there, no reply wanted"});
    client.flush();
    const FakeDaemon daemon(bus.address());
    ASSERT_TRUE(capturesMarkerFrom(client));
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(BusMonitorLifeTest, CountsWhatADaemonIsStartedFor) {
    bus.addService(serviceName, QStringLiteral(FAKE_DAEMON));
    bus.start();
    watch(bus.address());
    EXPECT_THAT(runningPids(), IsEmpty());
    BusClient client(bus.address());
    client.post({.summary = "wake up"});
    client.notify({.summary = "good morning"});
    ASSERT_TRUE(captures(2));
    EXPECT_THAT(headlines(), ElementsAre(u"Mail: wake up"_qs, u"Mail: good morning"_qs));
    EXPECT_THAT(told, SizeIs(1));
}

TEST_F(BusMonitorLifeTest, DoesNotCountWhatADaemonFailedToBeStartedFor) {
    bus.addService(serviceName, u"/bin/false"_qs);
    bus.start();
    watch(bus.address());
    EXPECT_TRUE(accessibility->isProcessTrusted());
    BusClient client(bus.address());
    EXPECT_EQ(client.notify({.summary = "wake up"}), std::nullopt);
    const FakeDaemon daemon(bus.address());
    ASSERT_TRUE(capturesMarkerFrom(client));
    EXPECT_THAT(captured, IsEmpty());
}

// ---- the bus

TEST_F(BusMonitorLifeTest, GoesWithTheBusAndComesBackWithIt) {
    bus.start();
    auto daemon = std::make_unique<FakeDaemon>(bus.address());
    watch(bus.address());
    ASSERT_TRUE(accessibility->isProcessTrusted());
    bus.crash();
    ASSERT_TRUE(isTold(1));
    EXPECT_FALSE(accessibility->isProcessTrusted());
    EXPECT_THAT(runningPids(), IsEmpty());
    bus.start();
    daemon = std::make_unique<FakeDaemon>(bus.address());
    ASSERT_TRUE(isTold(2));
    EXPECT_TRUE(accessibility->isProcessTrusted());
    EXPECT_THAT(told, ElementsAre(terminationOf(getpid()), launchOf(getpid())));
    BusClient client(bus.address());
    client.notify({.summary = "back again"});
    ASSERT_TRUE(captures(1));
    EXPECT_THAT(headlines(), ElementsAre(u"Mail: back again"_qs));
}

TEST_F(BusMonitorLifeTest, CapturesWhatWasAnnouncedBeforeTheBusCrashed) {
    bus.start();
    const FakeDaemon daemon(bus.address());
    watch(bus.address());
    ASSERT_TRUE(accessibility->isProcessTrusted());
    BusClient client(bus.address());
    client.notify({.summary = "last words"});
    ASSERT_TRUE(testing::turnsUntil([&] { return daemon.received() == 1; }, patience));
    bus.crash();
    ASSERT_TRUE(captures(1));
    EXPECT_THAT(headlines(), ElementsAre(u"Mail: last words"_qs));
}

TEST_F(BusMonitorLifeTest, FindsABusThatComesLater) {
    watch(bus.address());
    EXPECT_FALSE(accessibility->isProcessTrusted());
    testing::turnFor(200);
    bus.start();
    const FakeDaemon daemon(bus.address());
    ASSERT_TRUE(isTold(1));
    EXPECT_TRUE(accessibility->isProcessTrusted());
    EXPECT_THAT(told, ElementsAre(launchOf(getpid())));
}

TEST_F(BusMonitorLifeTest, IsNotTrustedByABusThatRefusesMonitors) {
    PrivateBus strict(u"<deny send_interface=\"org.freedesktop.DBus.Monitoring\"/>"_qs);
    strict.start();
    const FakeDaemon daemon(strict.address());
    watch(strict.address());
    EXPECT_FALSE(accessibility->isProcessTrusted());
    EXPECT_THAT(runningPids(), IsEmpty());
    testing::turnFor(500);
    EXPECT_THAT(told, IsEmpty());
    BusClient client(strict.address());
    EXPECT_EQ(client.notify({.summary = "unseen"}), 1U) << "the others go on as ever";
}

// What can't come is not waited for: these answers come long before the patience is used up.
TEST_F(BusMonitorLifeTest, IsNotTrustedWithoutABus) {
    const auto before = std::chrono::steady_clock::now();
    watch({});
    EXPECT_FALSE(accessibility->isProcessTrusted());
    EXPECT_THAT(runningPids(), IsEmpty());
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(patience / 2));
}

TEST_F(BusMonitorLifeTest, IsNotTrustedWhereNothingListens) {
    const auto before = std::chrono::steady_clock::now();
    watch(bus.address());
    EXPECT_FALSE(accessibility->isProcessTrusted());
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(patience / 2));
}

TEST_F(BusMonitorLifeTest, IsNotTrustedWithAnAddressThatMeansNothing) {
    watch("no address at all");
    EXPECT_FALSE(accessibility->isProcessTrusted());
}

// A socket that takes connections and never says a word. The greeting is given up after 5 seconds;
// leaving has to be quicker, which one of several tries shows on any machine.
TEST_F(BusMonitorLifeTest, DoesNotWaitForABusThatHangs) {
    const std::string path = bus.address().substr(std::string("unix:path=").size());
    const int listening = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un name{AF_UNIX, {}};
    path.copy(name.sun_path, sizeof name.sun_path - 1);
    ASSERT_EQ(bind(listening, reinterpret_cast<sockaddr*>(&name), sizeof name), 0);
    ASSERT_EQ(listen(listening, 5), 0);
    const auto leavesBeforeTheGreetingIsGivenUp = [this] {
        const auto before = std::chrono::steady_clock::now();
        watch(bus.address(), std::chrono::milliseconds(100));
        EXPECT_FALSE(accessibility->isProcessTrusted());
        accessibility.reset();
        return std::chrono::steady_clock::now() - before < std::chrono::seconds(3);
    };
    bool isQuick = false;
    for (int attempt = 0; attempt < 5 && !isQuick; ++attempt)
        isQuick = leavesBeforeTheGreetingIsGivenUp();
    EXPECT_TRUE(isQuick);
    close(listening);
}

TEST_F(BusMonitorLifeTest, GoesOnWhenTheBusRefusesAMessageThatIsNotUtf8) {
    bus.start();
    const FakeDaemon daemon(bus.address());
    watch(bus.address());
    ASSERT_TRUE(accessibility->isProcessTrusted());
    testing::RawBusClient raw(bus.address());
    raw.sendNotify("proper");
    ASSERT_TRUE(captures(1)) << "hand-made messages are understood";
    EXPECT_THAT(headlines(), ElementsAre(u"Mail: proper"_qs));
    raw.sendNotify("\xff\xfe\xfdkaputt");
    EXPECT_TRUE(raw.isThrownOut());
    captured.clear();
    BusClient client(bus.address());
    ASSERT_TRUE(capturesMarkerFrom(client));
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(BusMonitorLifeTest, LeavesNothingBehind) {
    bus.start();
    const FakeDaemon daemon(bus.address());
    BusClient client(bus.address());
    const auto useOnce = [&](int turn) {
        QtScheduler own;
        const auto process =
            std::make_shared<BannerProcess>(own, std::chrono::milliseconds(patience));
        LinuxWorkspace workspace(own, process, {});
        LinuxAccessibility accessibility(process, bus.address());
        for (int i = 0; i < turn % 5; ++i)
            client.post({.summary = "in between"});
        client.flush();
        if (turn % 2 == 0) {
            EXPECT_TRUE(accessibility.isProcessTrusted());
        }
    };
    useOnce(0);
    const int before = testing::openDescriptors();
    for (int turn = 0; turn < 60; ++turn)
        useOnce(turn);
    EXPECT_EQ(testing::openDescriptors(), before);
}

TEST(SessionBusAddress, IsTheOneOfTheEnvironment) {
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/at/all");
    EXPECT_EQ(sessionBusAddress(), "unix:path=/nowhere/at/all");
}

TEST(SessionBusAddress, IsElseTheOneOfTheUsersRuntimeFolder) {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", "/run/user/a b");
    EXPECT_EQ(sessionBusAddress(), "unix:path=/run/user/a%20b/bus");
}

TEST(SessionBusAddress, IsEmptyOutsideASession) {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("XDG_RUNTIME_DIR");
    EXPECT_EQ(sessionBusAddress(), "");
}

} // namespace
} // namespace tessarine
