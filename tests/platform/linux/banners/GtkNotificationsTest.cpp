// What the monitor makes of programs that use GLib's notifications, on a bus where a shell shows
// them.

#include "platform/linux/banners/BusMonitorFixture.h"

#include <QDir>
#include <QFile>

namespace tessarine {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::addNotificationCall;
using testing::BusClient;
using ::testing::ElementsAre;
using testing::FakeDaemon;
using testing::GtkNotification;
using ::testing::IsEmpty;
using testing::PrivateBus;
using testing::removeNotificationCall;
using ::testing::SizeIs;

const std::string gtkName = "org.gtk.Notifications";
const std::string teapot = "com.example.Teapot";

// A daemon holds the older name. A shell may hold the other; it is a connection that reads nothing.
struct GtkNotificationsTest : testing::BusMonitorFixture {
    GtkNotificationsTest() {
        bus.start();
        daemon = std::make_unique<FakeDaemon>(bus.address());
        application = std::make_unique<BusClient>(bus.address());
        writeTeapotEntry();
    }

    ~GtkNotificationsTest() override { qunsetenv("XDG_DATA_HOME"); }

    void writeTeapotEntry() {
        QDir(data.path()).mkdir(u"applications"_qs);
        QFile entry(data.filePath(u"applications/com.example.Teapot.desktop"_qs));
        ASSERT_TRUE(entry.open(QIODevice::WriteOnly));
        entry.write("[Desktop Entry]\nType=Application\nName=Teapot Timer\nExec=teapot\n");
        qputenv("XDG_DATA_HOME", data.path().toUtf8());
    }

    void startShell() {
        shell = std::make_unique<BusClient>(bus.address());
        shell->own(gtkName);
    }

    void watchWithShell() {
        startShell();
        watch(bus.address());
        EXPECT_TRUE(accessibility->isProcessTrusted());
    }

    void add(const GtkNotification& notification) {
        application->post(addNotificationCall(notification));
    }

    bool capturesAllSoFar() { return capturesMarkerFrom(*application); }

    PrivateBus bus;
    QTemporaryDir data;
    std::unique_ptr<FakeDaemon> daemon;
    std::unique_ptr<BusClient> shell;
    std::unique_ptr<BusClient> application;
};

TEST_F(GtkNotificationsTest, AreCapturedUnderTheNameOfTheDesktopEntry) {
    watchWithShell();
    add({.title = "Tea is ready", .body = "Pour <b>now</b> &amp; enjoy, at 17:00"});
    ASSERT_TRUE(capturesAllSoFar());
    ASSERT_THAT(captured, SizeIs(1));
    EXPECT_EQ(captured[0].application, u"Teapot Timer"_qs);
    EXPECT_EQ(captured[0].title, u"Tea is ready"_qs);
    EXPECT_EQ(captured[0].body, u"Pour <b>now</b> &amp; enjoy, at 17:00"_qs)
        << "these have no markup";
}

TEST_F(GtkNotificationsTest, AreCapturedWithoutABody) {
    watchWithShell();
    add({.title = "Tea is ready"});
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(headlines(), ElementsAre(u"Teapot Timer: Tea is ready"_qs));
    EXPECT_EQ(captured[0].body, QString());
}

TEST_F(GtkNotificationsTest, HaveTheNameThatTheApplicationHasWithTheOtherService) {
    watchWithShell();
    add({.title = "by one"});
    application->notify({.application = "", .summary = "by the other", .hints = [](auto& hints) {
                             testing::appendTextHint(hints, "desktop-entry", teapot);
                         }});
    add({.application = "org.example.Nowhere", .title = "by one"});
    application->notify({.application = "", .summary = "by the other", .hints = [](auto& hints) {
                             testing::appendTextHint(hints, "desktop-entry", "org.example.Nowhere");
                         }});
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(headlines(),
                ElementsAre(u"Teapot Timer: by one"_qs, u"Teapot Timer: by the other"_qs,
                            u"test_linux_threads: by one"_qs,
                            u"test_linux_threads: by the other"_qs));
}

TEST_F(GtkNotificationsTest, AreCapturedWhenTheyAreSentToTheShellsUniqueName) {
    watchWithShell();
    add({.title = "one", .destination = shell->uniqueName()});
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(headlines(), ElementsAre(u"Teapot Timer: one"_qs));
}

TEST_F(GtkNotificationsTest, AreCapturedWhenTheyNameNoInterface) {
    watchWithShell();
    add({.title = "one", .interface = nullptr});
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(headlines(), ElementsAre(u"Teapot Timer: one"_qs));
}

TEST_F(GtkNotificationsTest, AreIgnoredWhenTheyGoToOthers) {
    watchWithShell();
    const BusClient other(bus.address());
    add({.title = "one", .destination = other.uniqueName()});
    add({.title = "two", .interface = "org.example.Notifications"});
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(GtkNotificationsTest, AreIgnoredWithOtherArguments) {
    watchWithShell();
    const testing::BusMessage call{dbus_message_new_method_call(
        gtkName.c_str(), "/org/gtk/Notifications", gtkName.c_str(), "AddNotification")};
    const char* const text = "only a text";
    dbus_message_append_args(call.get(), DBUS_TYPE_STRING, &text, DBUS_TYPE_INVALID);
    application->post(call);
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(GtkNotificationsTest, AreIgnoredWhileNobodyShowsThem) {
    watch(bus.address());
    EXPECT_TRUE(accessibility->isProcessTrusted());
    add({.title = "nobody there"});
    startShell();
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(GtkNotificationsTest, AreCapturedOnceAShellHasComeAndUntilItGoes) {
    watch(bus.address());
    EXPECT_TRUE(accessibility->isProcessTrusted());
    startShell();
    add({.title = "one"});
    ASSERT_TRUE(capturesAllSoFar());
    shell.reset();
    add({.title = "two"});
    ASSERT_TRUE(capturesAllSoFar());
    startShell();
    add({.title = "three", .destination = shell->uniqueName()});
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(headlines(), ElementsAre(u"Teapot Timer: one"_qs, u"Teapot Timer: three"_qs));
}

TEST_F(GtkNotificationsTest, AreCapturedWithoutAnyOtherService) {
    daemon.reset();
    watchWithShell();
    EXPECT_THAT(runningPids(), ElementsAre(getpid()));
    add({.title = "one"});
    ASSERT_TRUE(captures(1));
    EXPECT_THAT(headlines(), ElementsAre(u"Teapot Timer: one"_qs));
}

TEST_F(GtkNotificationsTest, ReplaceThoseOfTheSameId) {
    watchWithShell();
    add({.title = "same"});
    add({.title = "same"});
    add({.title = "other"});
    add({.id = "milk", .title = "other"});
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(headlines(), ElementsAre(u"Teapot Timer: same"_qs, u"Teapot Timer: other"_qs,
                                         u"Teapot Timer: other"_qs));
}

TEST_F(GtkNotificationsTest, AreNewOnesAfterTheirRemoval) {
    watchWithShell();
    add({.title = "same"});
    application->post(removeNotificationCall({}));
    add({.title = "same"});
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(captured, SizeIs(2));
}

TEST_F(GtkNotificationsTest, AreNotRemovedByCallsToOthers) {
    watchWithShell();
    add({.title = "same"});
    application->post(removeNotificationCall({.destination = application->uniqueName()}));
    add({.title = "same"});
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(captured, SizeIs(1));
}

// ---- what is passed on

// GNOME's own arrangement: one process takes what goes to the older service and passes it on to the
// shell, by the shell's unique name, with the same path, interface and member.
TEST_F(GtkNotificationsTest, ComeOnceWhenTheOlderServicePassesThemOnToTheShell) {
    watchWithShell();
    BusClient proxy(bus.address());
    application->post({.summary = "one"});
    proxy.post({.summary = "one", .destination = shell->uniqueName()});
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(headlines(), ElementsAre(u"Mail: one"_qs));
}

struct PortalTest : GtkNotificationsTest {
    BusClient portal{bus.address()};
    BusClient backEnd{bus.address()};

    PortalTest() {
        portal.own("org.freedesktop.portal.Desktop");
        backEnd.own("org.freedesktop.impl.portal.desktop.gnome");
    }

    // From the application to the portal, and from there to what serves it on this desktop.
    void askPortal(const std::string& title) {
        application->post(
            addNotificationCall({.title = title,
                                 .destination = "org.freedesktop.portal.Desktop",
                                 .path = "/org/freedesktop/portal/desktop",
                                 .interface = "org.freedesktop.portal.Notification"}));
        portal.post(addNotificationCall({.title = title,
                                         .destination = backEnd.uniqueName(),
                                         .path = "/org/freedesktop/portal/desktop",
                                         .interface = "org.freedesktop.impl.portal.Notification"}));
        portal.flush();
    }
};

TEST_F(PortalTest, IsLeftOutForTheShellThatItPassesOnTo) {
    watchWithShell();
    askPortal("one");
    backEnd.post(addNotificationCall({.title = "one", .destination = shell->uniqueName()}));
    backEnd.flush();
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(headlines(), ElementsAre(u"Teapot Timer: one"_qs));
}

TEST_F(PortalTest, IsLeftOutForTheDaemonThatItPassesOnTo) {
    watch(bus.address());
    EXPECT_TRUE(accessibility->isProcessTrusted());
    askPortal("one");
    backEnd.notify({.application = "", .summary = "one", .hints = [](auto& hints) {
                        testing::appendTextHint(hints, "desktop-entry", teapot);
                    }});
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(headlines(), ElementsAre(u"Teapot Timer: one"_qs));
}

// A desktop may do all of it in one process.
TEST_F(PortalTest, IsLeftOutWhereTheShellServesItItself) {
    watch(bus.address());
    EXPECT_TRUE(accessibility->isProcessTrusted());
    backEnd.own(gtkName);
    askPortal("one");
    ASSERT_TRUE(capturesAllSoFar());
    EXPECT_THAT(captured, IsEmpty());
}

} // namespace
} // namespace tessarine
