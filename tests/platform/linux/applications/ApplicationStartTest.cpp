#include "platform/linux/applications/ApplicationStart.h"

#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/bus/BusClient.h"
#include "platform/linux/bus/PrivateBus.h"
#include "support/EventLoop.h"
#include "support/ManualScheduler.h"
#include "support/Printers.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include <unistd.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::ManualScheduler;
using testing::PrivateBus;
using testing::turnsUntil;

constexpr int patienceMs = 30000;

// Sets a variable of the environment for the length of a scope.
class VariableScope {
public:
    VariableScope(const char* name, const QByteArray& value)
        : name_(name)
        , wasSet_(qEnvironmentVariableIsSet(name))
        , before_(qgetenv(name)) {
        qputenv(name, value);
    }
    VariableScope(const VariableScope&) = delete;
    VariableScope& operator=(const VariableScope&) = delete;
    ~VariableScope() {
        if (wasSet_)
            qputenv(name_, before_);
        else
            qunsetenv(name_);
    }

private:
    const char* name_;
    bool wasSet_;
    QByteArray before_;
};

// Real entries in a data folder of the test's own. Their program writes down how it was started.
class ApplicationStartTest : public ::testing::Test {
protected:
    ApplicationStartTest() {
        EXPECT_TRUE(QDir().mkpath(home.filePath(u"applications"_qs)));
        EXPECT_TRUE(QDir().mkpath(home.filePath(u"bin"_qs)));
        makeProgram(u"witness"_qs);
    }

    // One word a line, then folder, process, parent, session, input and a variable.
    void makeProgram(const QString& name) const {
        QFile program(home.filePath(u"bin/"_qs + name));
        ASSERT_TRUE(program.open(QIODevice::WriteOnly));
        program.write("#!/bin/sh\nout='" + QFile::encodeName(home.filePath(name)) +
                      "'\n{ for word in \"$0\" \"$@\"; do printf '%s\\n' \"$word\"; done\n"
                      "pwd\nset -- $(cat /proc/$$/stat)\n"
                      "printf '%s\\n' \"$1\" \"$4\" \"$6\" \"$(readlink /proc/$$/fd/0)\" "
                      "\"$(readlink /proc/$$/fd/2)\" \"id:$DESKTOP_STARTUP_ID\"\n"
                      "} > \"$out.part\"\nmv \"$out.part\" \"$out.told\"\n");
        program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void writeEntry(const QString& id, const QByteArray& keys) const {
        QFile entry(home.filePath(u"applications/%1.desktop"_qs.arg(id)));
        ASSERT_TRUE(entry.open(QIODevice::WriteOnly));
        entry.write("[Desktop Entry]\nType=Application\n" + keys);
    }

    QByteArray witness() const { return QFile::encodeName(home.filePath(u"bin/witness"_qs)); }

    // What the program wrote, once it has.
    QStringList told(const QString& name = u"witness"_qs) const {
        QFile file(home.filePath(name + u".told"_qs));
        EXPECT_TRUE(turnsUntil([&file] { return file.exists(); }, patienceMs));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll()).split(u'\n');
    }

    LinuxWorkspace makeWorkspace(const std::string& sessionBus = {}) {
        return {scheduler, std::make_shared<BannerProcess>(scheduler),
                LinuxWorkspace::Buses{sessionBus, "unix:path=/nonexistent"}};
    }

    void open(LinuxWorkspace& workspace, const QString& id) {
        const auto path = workspace.pathForApplication(id);
        ASSERT_TRUE(path);
        workspace.openApplication(*path);
        scheduler.settle();
    }

    QTemporaryDir home;
    const VariableScope dataHome{"XDG_DATA_HOME", QFile::encodeName(home.path())};
    const VariableScope path{"PATH",
                             QFile::encodeName(home.filePath(u"bin"_qs)) + ':' + qgetenv("PATH")};
    ManualScheduler scheduler;
};

TEST_F(ApplicationStartTest, StartsTheEntrysCommandWordForWord) {
    writeEntry(u"org.example.App"_qs,
               "Name=My App\nIcon=app-icon\nPath=" + QFile::encodeName(home.path()) + "\nExec=\"" +
                   witness() + R"(" --new "two  words" "\\$HOME; `ls`" %U %i %c %%)" + '\n');
    LinuxWorkspace workspace = makeWorkspace();
    open(workspace, u"org.example.App"_qs);
    EXPECT_EQ(told().first(8), QStringList({home.filePath(u"bin/witness"_qs), u"--new"_qs,
                                            u"two  words"_qs, u"$HOME; `ls`"_qs, u"--icon"_qs,
                                            u"app-icon"_qs, u"My App"_qs, u"%"_qs}));
    EXPECT_EQ(told().at(8), QDir(home.path()).canonicalPath());
}

TEST_F(ApplicationStartTest, LetsTheProgramGo) {
    const VariableScope token("DESKTOP_STARTUP_ID", "ours");
    writeEntry(u"app"_qs, "Name=App\nExec=witness\n");
    LinuxWorkspace workspace = makeWorkspace();
    open(workspace, u"app"_qs);
    const QStringList lines = told();
    EXPECT_EQ(lines.at(1), QDir::homePath());
    EXPECT_NE(lines.at(3), QString::number(getpid())); // somebody else is its parent
    EXPECT_NE(lines.at(4), QString::number(getsid(0)));
    EXPECT_EQ(lines.at(5), u"/dev/null"_qs);
    EXPECT_EQ(lines.at(6), u"/dev/null"_qs);
    EXPECT_EQ(lines.at(7), u"id:"_qs);
}

TEST_F(ApplicationStartTest, StartsAProgramForTheTerminalInside) {
    makeProgram(u"xdg-terminal-exec"_qs);
    writeEntry(u"app"_qs, "Name=App\nTerminal=true\nExec=witness -x\n");
    LinuxWorkspace workspace = makeWorkspace();
    open(workspace, u"app"_qs);
    EXPECT_EQ(told(u"xdg-terminal-exec"_qs).mid(1, 2), QStringList({u"witness"_qs, u"-x"_qs}));
}

TEST_F(ApplicationStartTest, TakesTheTerminalThatIsThere) {
    const VariableScope only("PATH", QFile::encodeName(home.filePath(u"bin"_qs)));
    EXPECT_EQ(inTerminal({u"app"_qs, u"x"_qs}), std::nullopt);
    makeProgram(u"xterm"_qs);
    EXPECT_EQ(inTerminal({u"app"_qs, u"x"_qs}),
              QStringList({u"xterm"_qs, u"-e"_qs, u"app"_qs, u"x"_qs}));
    makeProgram(u"gnome-terminal"_qs);
    EXPECT_EQ(inTerminal({u"app"_qs, u"x"_qs}),
              QStringList({u"gnome-terminal"_qs, u"--"_qs, u"app"_qs, u"x"_qs}));
}

TEST_F(ApplicationStartTest, SaysWhetherAProgramStarted) {
    EXPECT_FALSE(startDetached({u"/no/such/program"_qs}));
    EXPECT_TRUE(startDetached({u"witness"_qs}));
    told();
}

TEST_F(ApplicationStartTest, HandsAnAddressToTheDesktopAsItStands) {
    makeProgram(u"xdg-open"_qs);
    LinuxWorkspace workspace = makeWorkspace();
    workspace.openURL(u"message://Id$(x)@HOST %41"_qs);
    scheduler.settle();
    EXPECT_EQ(told(u"xdg-open"_qs).at(1), u"message://Id$(x)@HOST %41"_qs);
}

TEST_F(ApplicationStartTest, HandsAnAddressToGioWhereThereIsNoOtherOpener) {
    for (const char* tool : {"sh", "cat", "readlink", "mv"})
        ASSERT_TRUE(QFile::link(u"/bin/%1"_qs.arg(QLatin1String(tool)),
                                home.filePath(u"bin/%1"_qs.arg(QLatin1String(tool)))));
    const VariableScope only("PATH", QFile::encodeName(home.filePath(u"bin"_qs)));
    makeProgram(u"gio"_qs);
    openWithDesktop(u"calshow://772440300"_qs);
    EXPECT_EQ(told(u"gio"_qs).mid(1, 2), QStringList({u"open"_qs, u"calshow://772440300"_qs}));
}

// Installed or not

TEST_F(ApplicationStartTest, KnowsAnApplicationByItsEntryIdAndItsDerivedOne) {
    writeEntry(u"org.example.App"_qs, "Name=My App\nExec=witness\n");
    const LinuxWorkspace workspace = makeWorkspace();
    const QString entry = home.filePath(u"applications/org.example.App.desktop"_qs);
    EXPECT_EQ(workspace.pathForApplication(u"org.example.App"_qs), entry);
    EXPECT_EQ(workspace.pathForApplication(u"my.app"_qs), entry);
    EXPECT_EQ(workspace.pathForApplication(u"app_id_42"_qs), std::nullopt);
    EXPECT_EQ(workspace.pathForApplication({}), std::nullopt);
}

TEST_F(ApplicationStartTest, KnowsAnApplicationByItsNameInTheFirstFolder) {
    writeEntry(u"org.example.App"_qs, "Name=My App\nExec=witness\n");
    const LinuxWorkspace workspace = makeWorkspace();
    const QString entry = home.filePath(u"applications/org.example.App.desktop"_qs);
    EXPECT_EQ(workspace.applicationInFolder(u"/Applications"_qs, u"My App"_qs), entry);
    EXPECT_EQ(workspace.applicationInFolder(u"/Applications"_qs, u" My App"_qs), std::nullopt);
    EXPECT_EQ(workspace.applicationInFolder(u"/Applications"_qs, {}), std::nullopt);
    EXPECT_EQ(workspace.applicationInFolder(u"/System/Applications"_qs, u"My App"_qs),
              std::nullopt);
}

TEST_F(ApplicationStartTest, TakesAnApplicationWithoutItsProgramForNotInstalled) {
    writeEntry(u"gone"_qs, "Name=Gone\nTryExec=no-such-program\nExec=no-such-program\n");
    writeEntry(u"there"_qs, "Name=There\nTryExec=witness\nExec=witness\n");
    const LinuxWorkspace workspace = makeWorkspace();
    EXPECT_EQ(workspace.pathForApplication(u"gone"_qs), std::nullopt);
    EXPECT_EQ(workspace.applicationInFolder(u"/Applications"_qs, u"Gone"_qs), std::nullopt);
    EXPECT_TRUE(workspace.pathForApplication(u"there"_qs));
}

TEST_F(ApplicationStartTest, OpensNothingAtAnUnknownPath) {
    LinuxWorkspace workspace = makeWorkspace();
    workspace.openApplication(u"/no/such.desktop"_qs);
    EXPECT_EQ(scheduler.waitingGlobalTasks(), 0U);
}

// Over the bus

// An application that lives on the bus under a name and answers the first call that it gets.
class BusApplication {
public:
    BusApplication(const std::string& address, const char* name)
        : client_(address) {
        dbus_bus_request_name(client_.raw(), name, 0, nullptr);
    }

    void answerFirstCall() {
        thread_ = std::thread([this] {
            while (!answerArrived() && dbus_connection_read_write(client_.raw(), -1)) {
            }
        });
    }

    // The call's path, method and arguments, when it has been answered.
    QStringList heard() {
        thread_.join();
        return heard_;
    }

private:
    // Whether a call was among what has arrived; the bus sends signals besides.
    bool answerArrived() {
        while (const auto message =
                   testing::BusMessage(dbus_connection_pop_message(client_.raw()))) {
            if (dbus_message_get_type(message.get()) == DBUS_MESSAGE_TYPE_METHOD_CALL) {
                answer(message);
                return true;
            }
        }
        return false;
    }

    void answer(const testing::BusMessage& call) {
        heard_ = QStringList{QString::fromUtf8(dbus_message_get_path(call.get())),
                             QString::fromUtf8(dbus_message_get_interface(call.get())) + u'.' +
                                 QString::fromUtf8(dbus_message_get_member(call.get())),
                             QString::fromUtf8(dbus_message_get_signature(call.get()))};
        const testing::BusMessage reply(dbus_message_new_method_return(call.get()));
        dbus_connection_send(client_.raw(), reply.get(), nullptr);
        dbus_connection_flush(client_.raw());
    }

    testing::BusClient client_;
    std::thread thread_;
    QStringList heard_;
};

class BusStartTest : public ApplicationStartTest {
protected:
    BusStartTest() { bus.start(); }

    PrivateBus bus;
};

TEST_F(BusStartTest, RaisesAnApplicationThatIsMadeForTheBus) {
    BusApplication application(bus.address(), "org.example.My_App.x-y");
    application.answerFirstCall();
    writeEntry(u"org.example.My_App.x-y"_qs, "Name=App\nDBusActivatable=true\nExec=witness bus\n");
    LinuxWorkspace workspace = makeWorkspace(bus.address());
    open(workspace, u"org.example.My_App.x-y"_qs);
    EXPECT_EQ(application.heard(),
              QStringList({u"/org/example/My_App/x_y"_qs,
                           u"org.freedesktop.Application.Activate"_qs, u"a{sv}"_qs}));
    EXPECT_FALSE(QFile::exists(home.filePath(u"witness.told"_qs)));
}

TEST_F(BusStartTest, RaisesAnApplicationThatHappensToLiveThere) {
    BusApplication application(bus.address(), "org.example.Running");
    application.answerFirstCall();
    writeEntry(u"org.example.Running"_qs, "Name=App\nExec=witness bus\n");
    LinuxWorkspace workspace = makeWorkspace(bus.address());
    open(workspace, u"org.example.Running"_qs);
    EXPECT_EQ(application.heard().at(0), u"/org/example/Running"_qs);
}

TEST_F(BusStartTest, FallsBackToTheCommandWhereNobodyAnswers) {
    writeEntry(u"org.example.Absent"_qs, "Name=App\nDBusActivatable=true\nExec=witness bus\n");
    LinuxWorkspace workspace = makeWorkspace(bus.address());
    open(workspace, u"org.example.Absent"_qs);
    EXPECT_EQ(told().at(1), u"bus"_qs);
}

TEST_F(BusStartTest, FallsBackToTheCommandWhereTheIdIsNoBusName) {
    writeEntry(u"app"_qs, "Name=App\nDBusActivatable=true\nExec=witness bus\n");
    LinuxWorkspace workspace = makeWorkspace(bus.address());
    open(workspace, u"app"_qs);
    EXPECT_EQ(told().at(1), u"bus"_qs);
}

// The portal of a confined program

// Stands in for it; takes addresses of the web alone, as the portal does.
class FakeOpener : public QDBusVirtualObject {
public:
    explicit FakeOpener(QDBusConnection bus) {
        bus.registerVirtualObject(u"/org/freedesktop/portal/desktop"_qs, this);
        bus.registerService(u"org.freedesktop.portal.Desktop"_qs);
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        EXPECT_EQ(call.interface(), u"org.freedesktop.portal.OpenURI"_qs);
        EXPECT_EQ(call.member(), u"OpenURI"_qs);
        EXPECT_EQ(call.signature(), u"ssa{sv}"_qs);
        const QString url = call.arguments().value(1).toString();
        if (!url.startsWith(u"https:"_qs))
            return bus.send(call.createErrorReply(QDBusError::InvalidArgs, u"no"_qs));
        opened << url;
        return bus.send(call.createReply(QVariant::fromValue(QDBusObjectPath(u"/request"_qs))));
    }

    QStringList opened;
};

// While this thread serves the portal.
bool isOpenedByPortal(const QString& url, const PrivateBus& bus) {
    std::atomic<int> answer = -1;
    std::thread asking([&] { answer = openWithPortal(url, bus.address()) ? 1 : 0; });
    turnsUntil([&] { return answer >= 0; });
    asking.join();
    return answer == 1;
}

TEST(PortalForAddresses, TakesAnAddress) {
    PrivateBus bus;
    bus.start();
    {
        FakeOpener portal(
            QDBusConnection::connectToBus(QString::fromStdString(bus.address()), u"opener"_qs));
        EXPECT_TRUE(isOpenedByPortal(u"https://example.com/ü?a=b"_qs, bus));
        EXPECT_EQ(portal.opened, QStringList(u"https://example.com/ü?a=b"_qs));
        EXPECT_FALSE(isOpenedByPortal(u"file:///etc/passwd"_qs, bus));
    }
    QDBusConnection::disconnectFromBus(u"opener"_qs);
}

TEST(PortalForAddresses, IsMissingOnOtherDesktops) {
    PrivateBus bus;
    bus.start();
    EXPECT_FALSE(isOpenedByPortal(u"https://example.com/"_qs, bus));
    EXPECT_FALSE(openWithPortal(u"https://example.com/"_qs, {}));
}

} // namespace
} // namespace tessarine
