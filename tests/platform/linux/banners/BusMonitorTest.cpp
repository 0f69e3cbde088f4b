// What the monitor makes of the traffic on a bus that works.

#include "platform/linux/banners/BusMonitor.h"

#include "platform/linux/banners/BusMonitorFixture.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>

namespace tessarine {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::BusClient;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using testing::FakeDaemon;
using ::testing::IsEmpty;
using testing::Notification;
using testing::PrivateBus;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAreArray;

struct BusMonitorTest : testing::BusMonitorFixture {
    PrivateBus bus;

    BusMonitorTest() { bus.start(); }

    void watchWithDaemon(FakeDaemon::Manner manner = FakeDaemon::Manner::answers) {
        daemon = std::make_unique<FakeDaemon>(bus.address(), manner);
        watch(bus.address());
        EXPECT_TRUE(accessibility->isProcessTrusted()); // it listens from here on
    }

    std::unique_ptr<FakeDaemon> daemon;
};

auto says(const QString& application, const QString& title, const QString& body) {
    return ::testing::AllOf(::testing::Field(&Announcement::application, application),
                            ::testing::Field(&Announcement::title, title),
                            ::testing::Field(&Announcement::body, body));
}

TEST_F(BusMonitorTest, IsTrustedAtOnce) {
    watch(bus.address());
    EXPECT_TRUE(accessibility->isProcessTrusted());
    EXPECT_THAT(runningPids(), IsEmpty());
}

TEST_F(BusMonitorTest, KnowsTheDaemonThatRunsAlready) {
    watchWithDaemon();
    EXPECT_THAT(runningPids(), ElementsAre(getpid()));
    testing::turnFor(100);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(BusMonitorTest, HandsOverWhatAnApplicationAnnounces) {
    watchWithDaemon();
    BusClient client(bus.address());
    EXPECT_EQ(client.notify({.summary = "Zoë 😀", .body = "<b>Lunch</b> &amp; more, 1 < 2"}), 1U);
    ASSERT_TRUE(captures(1));
    EXPECT_THAT(captured, ElementsAre(says(u"Mail"_qs, u"Zoë 😀"_qs, u"Lunch & more, 1 < 2"_qs)));
}

TEST_F(BusMonitorTest, LeavesMarkupInTheOtherTexts) {
    watchWithDaemon();
    BusClient client(bus.address());
    client.notify({.application = "<b>A</b>", .summary = "<i>B &amp; C</i>"});
    ASSERT_TRUE(captures(1));
    EXPECT_THAT(headlines(), ElementsAre(u"<b>A</b>: <i>B &amp; C</i>"_qs));
}

TEST_F(BusMonitorTest, TakesControlCharactersAsTheyAre) {
    watchWithDaemon();
    BusClient client(bus.address());
    client.notify({.summary = "bell \a", .body = "\x01\x1b[31m\r\n\t\x7f"});
    ASSERT_TRUE(captures(1));
    EXPECT_EQ(captured[0].title, u"bell \a"_qs);
    EXPECT_EQ(captured[0].body, QString::fromUtf8("\x01\x1b[31m\r\n\t\x7f"));
}

// What a parser of drawn banners would take for a time, a name and something else, or for blanks.
TEST_F(BusMonitorTest, LeavesTextsThatLookLikeOthersAsTheyAre) {
    watchWithDaemon();
    BusClient client(bus.address());
    client.notify(
        {.application = "Foo, Inc.", .summary = "Meeting 14:30 - 15:00, Room 5", .body = "07:30"});
    client.notify({.summary = "5m ago", .body = "Today at 10:00"});
    client.notify({.summary = "  Just now ", .body = " 12:00\n\n13:00\t"});
    client.notify({.summary = "\xEF\xBB\xBFmarked", .body = "\xEF\xBB\xBF"});
    ASSERT_TRUE(captures(4));
    EXPECT_THAT(captured,
                ElementsAre(says(u"Foo, Inc."_qs, u"Meeting 14:30 - 15:00, Room 5"_qs, u"07:30"_qs),
                            says(u"Mail"_qs, u"5m ago"_qs, u"Today at 10:00"_qs),
                            says(u"Mail"_qs, u"  Just now "_qs, u" 12:00\n\n13:00\t"_qs),
                            says(u"Mail"_qs, u"\uFEFFmarked"_qs, u"\uFEFF"_qs)));
}

TEST_F(BusMonitorTest, LetsABodyWithoutATitleLeadAndDropsWhatHasNeither) {
    watchWithDaemon();
    BusClient client(bus.address());
    client.notify({.summary = "", .body = "Only a body"});
    client.notify({.summary = "", .body = "<b></b>"});
    client.notify({.summary = "", .body = ""});
    ASSERT_TRUE(capturesMarkerFrom(client));
    EXPECT_THAT(captured, ElementsAre(says(u"Mail"_qs, u"Only a body"_qs, u""_qs)));
}

TEST_F(BusMonitorTest, TellsTheMomentOfTheCallAndNotOfTheReading) {
    watchWithDaemon();
    bool isAnnounced = false;
    const auto observation =
        process->onEvent([&](const auto&, const auto&) { isAnnounced = true; });
    const double before = scheduler.now();
    BusClient(bus.address()).notify({.summary = "now"});
    ASSERT_TRUE(testing::turnsUntil([&] { return isAnnounced; }, patience));
    const double after = scheduler.now();
    testing::turnFor(50);
    ASSERT_TRUE(captures(1));
    EXPECT_GE(captured[0].moment, before - 0.001);
    EXPECT_LE(captured[0].moment, after + 0.001);
}

TEST_F(BusMonitorTest, SendsEventsToTheListener) {
    watchWithDaemon();
    int events = 0;
    const auto observer = accessibility->createObserver(
        static_cast<qint32>(getpid()), [&](const auto&, const auto&) { ++events; });
    observer->addNotification(accessibility->applicationElement(static_cast<qint32>(getpid())),
                              ax::windowCreated);
    observer->attachToMainRunLoop();
    BusClient(bus.address()).notify({.summary = "one"});
    EXPECT_TRUE(testing::turnsUntil([&] { return events == 2; }, patience))
        << "one at once, one when the throttle is over";
    read();
    EXPECT_THAT(captured, SizeIs(1));
}

TEST_F(BusMonitorTest, CapturesWhatTheDaemonRefuses) {
    watchWithDaemon(FakeDaemon::Manner::refuses);
    BusClient client(bus.address());
    EXPECT_EQ(client.notify({.summary = "refused"}), std::nullopt);
    ASSERT_TRUE(captures(1));
    EXPECT_THAT(headlines(), ElementsAre(u"Mail: refused"_qs));
}

TEST_F(BusMonitorTest, CapturesWhatIsClosedAtOnce) {
    watchWithDaemon(FakeDaemon::Manner::closesAtOnce);
    BusClient client(bus.address());
    client.notify({.summary = "gone"});
    testing::turnFor(50); // the banner is off the screen long before anybody looks
    ASSERT_TRUE(captures(1));
    EXPECT_THAT(headlines(), ElementsAre(u"Mail: gone"_qs));
}

TEST_F(BusMonitorTest, CapturesWhatTheDaemonNeverAnswers) {
    watchWithDaemon(FakeDaemon::Manner::keepsSilent);
    BusClient client(bus.address());
    client.post({.summary = "no reply wanted"});
    client.flush();
    ASSERT_TRUE(captures(1));
    EXPECT_THAT(headlines(), ElementsAre(u"Mail: no reply wanted"_qs));
}

TEST_F(BusMonitorTest, ShowsReplacedTextsFirst) {
    watchWithDaemon();
    BusClient client(bus.address());
    const auto id = client.notify({.summary = "10 %"});
    client.notify({.summary = "20 %", .replacesId = *id});
    client.notify({.summary = "20 %", .replacesId = *id});
    client.notify({.summary = "30 %", .replacesId = *id});
    ASSERT_TRUE(capturesMarkerFrom(client));
    EXPECT_THAT(headlines(), ElementsAre(u"Mail: 10 %"_qs, u"Mail: 20 %"_qs, u"Mail: 30 %"_qs));
}

TEST_F(BusMonitorTest, FindsTheBannerOfAnAnswerOnlyUntilItIsClosed) {
    watchWithDaemon(FakeDaemon::Manner::closesAtOnce);
    BusClient client(bus.address());
    const auto id = client.notify({.summary = "same"});
    ASSERT_TRUE(capturesMarkerFrom(client)); // the daemon answers first and closes then
    client.notify({.summary = "same", .replacesId = *id});
    ASSERT_TRUE(capturesMarkerFrom(client));
    EXPECT_THAT(headlines(), ElementsAre(u"Mail: same"_qs, u"Mail: same"_qs))
        << "the second is a banner of its own: the first one was closed";
}

TEST_F(BusMonitorTest, CapturesCallsToTheUniqueName) {
    watchWithDaemon();
    BusClient client(bus.address());
    DBusError error = DBUS_ERROR_INIT;
    BusClient asking(bus.address());
    const testing::BusMessage question{dbus_message_new_method_call(
        "org.freedesktop.DBus", "/", "org.freedesktop.DBus", "GetNameOwner")};
    const char* const name = "org.freedesktop.Notifications";
    dbus_message_append_args(question.get(), DBUS_TYPE_STRING, &name, DBUS_TYPE_INVALID);
    const testing::BusMessage answer{
        dbus_connection_send_with_reply_and_block(asking.raw(), question.get(), patience, &error)};
    const char* owner = nullptr;
    dbus_message_get_args(answer.get(), nullptr, DBUS_TYPE_STRING, &owner, DBUS_TYPE_INVALID);
    client.notify({.summary = "direct", .destination = owner});
    ASSERT_TRUE(captures(1));
    EXPECT_THAT(headlines(), ElementsAre(u"Mail: direct"_qs));
}

TEST_F(BusMonitorTest, CapturesCallsThatNameNoInterface) {
    watchWithDaemon(FakeDaemon::Manner::keepsSilent);
    BusClient client(bus.address());
    client.post({.summary = "bare", .namesTheInterface = false});
    client.flush();
    ASSERT_TRUE(captures(1));
    EXPECT_THAT(headlines(), ElementsAre(u"Mail: bare"_qs));
}

TEST_F(BusMonitorTest, IgnoresCallsToOthers) {
    watchWithDaemon();
    BusClient client(bus.address());
    const BusClient other(bus.address());
    client.post({.summary = "not for the daemon", .destination = other.uniqueName()});
    ASSERT_TRUE(capturesMarkerFrom(client));
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(BusMonitorTest, IgnoresCallsWithOtherArguments) {
    watchWithDaemon();
    BusClient client(bus.address());
    const testing::BusMessage call{dbus_message_new_method_call(
        "org.freedesktop.Notifications", "/org/freedesktop/Notifications",
        "org.freedesktop.Notifications", "Notify")};
    const char* const text = "only a text";
    dbus_message_append_args(call.get(), DBUS_TYPE_STRING, &text, DBUS_TYPE_INVALID);
    dbus_message_set_no_reply(call.get(), true);
    dbus_connection_send(client.raw(), call.get(), nullptr);
    ASSERT_TRUE(capturesMarkerFrom(client));
    EXPECT_THAT(captured, IsEmpty());
}

// ---- names

TEST_F(BusMonitorTest, TakesTheNameAsSent) {
    watchWithDaemon();
    BusClient client(bus.address());
    client.notify({.application = " Bell, Book ", .summary = "x"});
    ASSERT_TRUE(captures(1));
    EXPECT_THAT(headlines(), ElementsAre(u" Bell, Book : x"_qs));
}

TEST_F(BusMonitorTest, NamesAnUnnamedApplicationByItsDesktopEntry) {
    QTemporaryDir data;
    QDir(data.path()).mkdir(u"applications"_qs);
    QFile entry(data.filePath(u"applications/org.example.Chat.desktop"_qs));
    ASSERT_TRUE(entry.open(QIODevice::WriteOnly));
    entry.write("[Desktop Entry]\nType=Application\nName=Chat Room\nExec=chat\n");
    entry.close();
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    watchWithDaemon();
    BusClient client(bus.address());
    for (const char* const id : {"org.example.Chat", "org.example.Chat.desktop"})
        client.notify({.application = "", .summary = "x", .hints = [&](DBusMessageIter& hints) {
                           testing::appendTextHint(hints, "category", "im");
                           testing::appendTextHint(hints, "desktop-entry", id);
                       }});
    ASSERT_TRUE(captures(2));
    EXPECT_THAT(headlines(), ElementsAre(u"Chat Room: x"_qs, u"Chat Room: x"_qs));
    qunsetenv("XDG_DATA_HOME");
}

TEST_F(BusMonitorTest, NamesAnApplicationWithoutDesktopEntryByItsProcess) {
    watchWithDaemon();
    BusClient client(bus.address());
    client.notify({.application = "", .summary = "x"});
    client.notify({.application = "", .summary = "y", .hints = [](DBusMessageIter& hints) {
                       testing::appendTextHint(hints, "desktop-entry", "org.example.Nowhere");
                   }});
    ASSERT_TRUE(captures(2));
    EXPECT_THAT(headlines(), ElementsAre(u"test_bus_monitor: x"_qs, u"test_bus_monitor: y"_qs));
}

// By the time the bus is asked who the sender was, it may be gone.
TEST_F(BusMonitorTest, CapturesUnnamedApplicationsThatLeaveAtOnce) {
    watchWithDaemon();
    for (int i = 0; i < 50; ++i) {
        BusClient client(bus.address());
        client.post({.application = "", .summary = "x"});
        client.flush();
    }
    ASSERT_TRUE(captures(50));
    EXPECT_THAT(headlines(),
                ::testing::Each(::testing::AnyOf(u"test_bus_monitor: x"_qs, u": x"_qs)));
}

// ---- amounts

TEST_F(BusMonitorTest, CapturesABurstOfOneClientInOrder) {
    watchWithDaemon();
    BusClient client(bus.address());
    for (int i = 0; i < 2000; ++i)
        client.post({.summary = "message " + std::to_string(i)});
    client.flush();
    ASSERT_TRUE(captures(2000));
    EXPECT_THAT(headlines(), ElementsAreArray(testing::numbered(u"Mail: message %1"_qs, 2000)));
}

TEST_F(BusMonitorTest, CapturesManyClientsAtOnce) {
    watchWithDaemon();
    std::vector<std::thread> clients;
    clients.reserve(20);
    for (int c = 0; c < 20; ++c)
        clients.emplace_back([this, c] {
            BusClient client(bus.address());
            for (int i = 0; i < 200; ++i)
                client.notify({.summary = std::to_string(c * 200 + i)});
        });
    EXPECT_TRUE(captures(4000));
    for (std::thread& client : clients)
        client.join();
    EXPECT_THAT(headlines(), UnorderedElementsAreArray(testing::numbered(u"Mail: %1"_qs, 4000)));
}

TEST_F(BusMonitorTest, KeepsTheStartOfLongTexts) {
    watchWithDaemon();
    BusClient client(bus.address());
    const std::string megabyte(1000000, 'x');
    client.notify({.application = megabyte, .summary = megabyte, .body = megabyte});
    client.notify({.application = "", .summary = "", .body = megabyte, .hints = [&](auto& hints) {
                       testing::appendTextHint(hints, "desktop-entry", megabyte);
                   }});
    ASSERT_TRUE(captures(2));
    const auto start = [](int length) { return QString(length, u'x') + u'…'; };
    EXPECT_THAT(captured, ElementsAre(says(start(200), start(2000), start(20000)),
                                      says(u"test_bus_monitor"_qs, start(20000), u""_qs)));
}

TEST_F(BusMonitorTest, WalksThroughTenThousandHints) {
    watchWithDaemon();
    BusClient client(bus.address());
    client.notify({.application = "", .summary = "x", .hints = [](DBusMessageIter& hints) {
                       for (int i = 0; i < 10000; ++i)
                           testing::appendTextHint(hints, "x-hint-" + std::to_string(i), "value");
                       testing::appendTextHint(hints, "desktop-entry", "org.example.Nowhere");
                   }});
    client.notify({.summary = "y", .hints = [](DBusMessageIter& hints) {
                       for (int i = 0; i < 10000; ++i)
                           testing::appendTextHint(hints, "desktop-entry", "value");
                   }});
    ASSERT_TRUE(captures(2));
    EXPECT_THAT(headlines(), ElementsAre(u"test_bus_monitor: x"_qs, u"Mail: y"_qs));
}

TEST_F(BusMonitorTest, KeepsItsMemoryFlatWhenImagesPassBy) {
    constexpr int megabyte = 1 << 20;
    watchWithDaemon();
    BusClient client(bus.address());
    const auto announce = [&](int count) {
        for (int i = 0; i < count; ++i)
            client.notify({.summary = "image", .hints = [](DBusMessageIter& hints) {
                               testing::appendImageHint(hints, 5 * megabyte);
                           }});
        return capturesMarkerFrom(client);
    };
    ASSERT_TRUE(announce(10));
    const int before = testing::residentMegabytes();
    ASSERT_TRUE(announce(60)); // 300 MB
    EXPECT_LT(testing::residentMegabytes() - before, 40);
    EXPECT_THAT(captured, SizeIs(70));
}

TEST_F(BusMonitorTest, KeepsItsMemoryFlatWhenBigBodiesAreRead) {
    watchWithDaemon();
    BusClient client(bus.address());
    const auto announce = [&](int count) {
        for (int i = 0; i < count; ++i)
            client.notify({.summary = "big", .body = std::string(1000000, 'x')});
        const bool all = capturesMarkerFrom(client);
        captured.clear();
        return all;
    };
    ASSERT_TRUE(announce(10));
    const int before = testing::residentMegabytes();
    for (int round = 0; round < 10; ++round)
        ASSERT_TRUE(announce(10)); // 200 MB of texts in all
    EXPECT_LT(testing::residentMegabytes() - before, 60);
}

// The thread of the monitor is the only one that watching a bus adds.
struct IdleBusMonitorTest : BusMonitorTest {
    QString monitorThread;

    IdleBusMonitorTest() {
        const QStringList before = testing::threadsOfThisProcess();
        watch(bus.address());
        EXPECT_TRUE(accessibility->isProcessTrusted());
        for (const QString& thread : testing::threadsOfThisProcess()) {
            if (!before.contains(thread))
                monitorThread = thread;
        }
        // It has read what greeted it once it has read what came after that.
        const FakeDaemon daemon(bus.address());
        EXPECT_TRUE(testing::turnsUntil([&] { return !told.empty(); }, patience));
    }

    qint64 wakeUps() const { return testing::sleepsOf(monitorThread); }

    bool isTold(std::size_t events) {
        return testing::turnsUntil([&] { return told.size() == events; }, patience);
    }

    // Whether the thread sleeps through what happens. Tried again for a while: on a busy machine it
    // may still have to do with what happened before.
    template <typename Happening>
    bool sleepsThrough(const Happening& happening) {
        for (const QDeadlineTimer deadline(patience); !deadline.hasExpired();) {
            const qint64 before = wakeUps();
            happening();
            if (wakeUps() == before)
                return true;
        }
        return false;
    }
};

TEST_F(IdleBusMonitorTest, SleepsWhileNothingHappens) {
    ASSERT_TRUE(isTold(2)) << "the daemon has gone again";
    EXPECT_GT(wakeUps(), 0);
    EXPECT_TRUE(sleepsThrough([] { testing::turnFor(1500); }));
}

TEST_F(IdleBusMonitorTest, SleepsThroughTheTrafficOfOthers) {
    ASSERT_TRUE(isTold(2)) << "the daemon has gone again";
    BusClient left(bus.address());
    BusClient right(bus.address());
    EXPECT_TRUE(sleepsThrough([&] {
        for (int i = 0; i < 200; ++i) {
            const testing::BusMessage call{dbus_message_new_method_call(
                right.uniqueName().c_str(), "/", "org.example.Talk", "Notify")};
            dbus_message_set_no_reply(call.get(), true);
            dbus_connection_send(left.raw(), call.get(), nullptr);
        }
        // By the time it answers, the bus has passed all of them on.
        EXPECT_TRUE(dbus_bus_name_has_owner(left.raw(), right.uniqueName().c_str(), nullptr));
        testing::turnFor(500);
    }));
}

} // namespace
} // namespace tessarine
