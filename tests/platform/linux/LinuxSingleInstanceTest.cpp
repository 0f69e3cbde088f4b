#include "platform/linux/LinuxSingleInstance.h"

#include "platform/linux/NoFileLocks.h"
#include "support/ChildRun.h"
#include "support/OrdinaryUser.h"
#include "support/Printers.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sched.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::asOrdinaryUser;
using testing::inAnotherProcess;
using testing::NoWaiting;
using testing::StayingProcess;

constexpr int skipped = 99;

class SingleInstanceTest : public ::testing::Test {
protected:
    SingleInstanceTest() { QDir().mkpath(data); }

    // Whether another process may use the file that it knows by this path.
    static bool isGrantedTo(const QString& path) {
        return inAnotherProcess([&] { return int(LinuxSingleInstance(path).claim()); }) == 1;
    }

    // Requests wait in a queue from the moment when they are made, and each turn takes one.
    static void takeRequests() {
        constexpr int moreThanAnyTestMakes = 10;
        for (int i = 0; i < moreThanAnyTestMakes; ++i)
            QCoreApplication::processEvents();
    }

    static SingleInstance::Requests counting(int& activations) {
        return {[&activations](const QString&) { ++activations; }, {}, {}};
    }

    QTemporaryDir folder;
    const QString data = folder.filePath(u"data"_qs);
    const QString path = data + u"/hoard.db"_qs;
    LinuxSingleInstance first{path};
    LinuxSingleInstance second{path};
};

// The claim

TEST_F(SingleInstanceTest, LetsTheFirstClaim) {
    EXPECT_TRUE(first.claim());
}

TEST_F(SingleInstanceTest, RefusesASecondProcess) {
    ASSERT_TRUE(first.claim());
    EXPECT_FALSE(isGrantedTo(path));
}

TEST_F(SingleInstanceTest, RefusesEachOfManyThoughNobodyTakesRequests) {
    ASSERT_TRUE(first.claim());
    for (int i = 0; i < 20; ++i)
        EXPECT_FALSE(LinuxSingleInstance(path).claim());
}

TEST_F(SingleInstanceTest, KeepsFilesApart) {
    ASSERT_TRUE(first.claim());
    EXPECT_TRUE(isGrantedTo(folder.filePath(u"other/hoard.db"_qs)));
    EXPECT_TRUE(isGrantedTo(data + u"/other.db"_qs));
}

TEST_F(SingleInstanceTest, GivesTheClaimBackWhenItGoes) {
    {
        LinuxSingleInstance passing(path);
        ASSERT_TRUE(passing.claim());
    }
    EXPECT_TRUE(first.claim());
}

TEST_F(SingleInstanceTest, GivesTheClaimBackWhenItsProcessIsKilled) {
    StayingProcess holder([&] { first.claim(); });
    ASSERT_FALSE(isGrantedTo(path));
    holder.kill();
    EXPECT_TRUE(second.claim());
}

TEST_F(SingleInstanceTest, MakesTheFolderOfAFirstRun) {
    const QString fresh = folder.filePath(u"a/b/hoard.db"_qs);
    LinuxSingleInstance instance(fresh);
    EXPECT_TRUE(instance.claim());
    EXPECT_FALSE(isGrantedTo(fresh));
}

TEST_F(SingleInstanceTest, OpensNoFileThatItProtects) {
    ASSERT_TRUE(first.claim());
    EXPECT_EQ(QDir(data).entryList(QDir::Files | QDir::Hidden), QStringList(u"hoard.db.lock"_qs));
}

// All ways that lead to the file

class OtherWay : public SingleInstanceTest, public ::testing::WithParamInterface<const char*> {
protected:
    OtherWay() {
        QFile::link(data, folder.filePath(u"link"_qs));
        QFile::link(u"link"_qs, folder.filePath(u"link-to-link"_qs));
        QDir().mkpath(folder.filePath(u"moved"_qs));
        QFile::link(path, folder.filePath(u"moved/hoard.db"_qs));
    }
    const QString other = folder.path() + u'/' + QString::fromLatin1(GetParam());
};

TEST_P(OtherWay, IsRefusedWhileThereIsNoFile) {
    ASSERT_TRUE(first.claim());
    EXPECT_FALSE(isGrantedTo(other));
}

TEST_P(OtherWay, IsRefusedWhenThereIsAFile) {
    ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    ASSERT_TRUE(first.claim());
    EXPECT_FALSE(isGrantedTo(other));
}

TEST_P(OtherWay, BringsTheFirstToTheFront) {
    int activations = 0;
    ASSERT_TRUE(first.claim());
    first.onRequests(counting(activations));
    LinuxSingleInstance later(other);
    ASSERT_FALSE(later.claim());
    later.activateFirst();
    takeRequests();
    EXPECT_EQ(activations, 1);
}

INSTANTIATE_TEST_SUITE_P(Each, OtherWay,
                         ::testing::Values("data//hoard.db", "./data/./hoard.db", "link/hoard.db",
                                           "link-to-link/../data/hoard.db", "link-to-link/hoard.db",
                                           "moved/hoard.db"),
                         [](const auto& test) { return "Way" + std::to_string(test.index); });

TEST_F(SingleInstanceTest, RefusesAProcessInANetworkOfItsOwn) {
    ASSERT_TRUE(first.claim());
    const int granted = inAnotherProcess([&] {
        return unshare(CLONE_NEWNET) == 0 ? int(LinuxSingleInstance(path).claim()) : skipped;
    });
    if (granted == skipped)
        GTEST_SKIP() << "this user may not leave the network";
    EXPECT_EQ(granted, 0);
}

TEST_F(SingleInstanceTest, RefusesAProcessWhileTheFirstDoesNotListenYet) {
    FileLock lock;
    ASSERT_EQ(lock.take(path + u".lock"_qs), FileLockState::taken);
    EXPECT_FALSE(second.claim());
    second.activateFirst();
}

// Processes that all wait for the same moment, and stay until this one lets them go.
class StartingProcesses {
public:
    explicit StartingProcesses(const QString& path) {
        EXPECT_EQ(pipe2(start_.data(), O_CLOEXEC), 0);
        EXPECT_EQ(pipe2(answers_.data(), O_CLOEXEC), 0);
        EXPECT_EQ(pipe2(end_.data(), O_CLOEXEC), 0);
        for (int i = 0; i < count; ++i)
            children_.push_back(startOne(path));
        close(start_[0]);
        close(answers_[1]);
        close(end_[0]);
    }
    StartingProcesses(const StartingProcesses&) = delete;
    StartingProcesses& operator=(const StartingProcesses&) = delete;
    ~StartingProcesses() {
        close(answers_[0]);
        close(end_[1]);
        for (const pid_t child : children_)
            waitpid(child, nullptr, 0);
    }

    // How many had their claim granted, all of them running.
    int granted() {
        close(start_[1]);
        int granted = 0;
        for (int i = 0; i < count; ++i) {
            char answer = '?';
            EXPECT_EQ(read(answers_[0], &answer, 1), 1);
            granted += answer == 'y' ? 1 : 0;
        }
        return granted;
    }

private:
    static constexpr int count = 20;

    pid_t startOne(const QString& path) {
        const pid_t child = fork();
        if (child != 0)
            return child;
        close(start_[1]);
        close(end_[1]);
        char byte = 0;
        bool isInOrder = read(start_[0], &byte, 1) == 0;
        LinuxSingleInstance instance(path);
        const char answer = instance.claim() ? 'y' : 'n';
        isInOrder = isInOrder && write(answers_[1], &answer, 1) == 1;
        _exit(isInOrder && read(end_[0], &byte, 1) == 0 ? 0 : 1);
    }

    std::array<int, 2> start_{};
    std::array<int, 2> answers_{};
    std::array<int, 2> end_{};
    std::vector<pid_t> children_;
};

TEST_F(SingleInstanceTest, IsGrantedToOneOfManyThatStartAtOnce) {
    for (int round = 0; round < 5; ++round) {
        const QString fresh = folder.filePath(u"round %1/below/hoard.db"_qs).arg(round);
        EXPECT_EQ(StartingProcesses(fresh).granted(), 1);
    }
}

// Where there can be no claim

TEST_F(SingleInstanceTest, StartsInAFolderThatMayNotBeWrittenTo) {
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    ASSERT_EQ(chmod(QFile::encodeName(data).constData(), 0555), 0);
    EXPECT_EQ(asOrdinaryUser([&] {
                  LinuxSingleInstance instance(path);
                  const bool isGranted = instance.claim();
                  instance.onRequests({[](const QString&) {}, {}, {}});
                  instance.activateFirst();
                  return QString::number(isGranted);
              }),
              u"1"_qs);
}

TEST_F(SingleInstanceTest, StartsOnAFileSystemWithoutLocks) {
    const int granted = inAnotherProcess([&] {
        return testing::loseFileLocks() ? int(LinuxSingleInstance(path).claim()) : skipped;
    });
    if (granted == skipped)
        GTEST_SKIP() << "this kernel filters no system calls";
    EXPECT_EQ(granted, 1);
}

TEST_F(SingleInstanceTest, StartsWhereAFileLiesInThePlaceOfTheFolder) {
    EXPECT_TRUE(QFile(folder.filePath(u"file"_qs)).open(QIODevice::WriteOnly));
    EXPECT_TRUE(LinuxSingleInstance(folder.filePath(u"file/hoard.db"_qs)).claim());
}

TEST_F(SingleInstanceTest, StartsWithALinkThatLeadsToItself) {
    ASSERT_EQ(symlink("hoard.db", QFile::encodeName(path).constData()), 0);
    EXPECT_TRUE(first.claim());
}

// Activation

TEST_F(SingleInstanceTest, BringsTheFirstToTheFront) {
    int activations = 0;
    ASSERT_TRUE(first.claim());
    first.onRequests(counting(activations));
    ASSERT_FALSE(second.claim());
    second.activateFirst();
    takeRequests();
    EXPECT_EQ(activations, 1);
}

TEST_F(SingleInstanceTest, DoesNotComeToTheFrontForAClaimAlone) {
    int activations = 0;
    ASSERT_TRUE(first.claim());
    first.onRequests(counting(activations));
    ASSERT_FALSE(second.claim());
    takeRequests();
    EXPECT_EQ(activations, 0);
}

TEST_F(SingleInstanceTest, ComesToTheFrontForARequestFromBeforeItListened) {
    int activations = 0;
    ASSERT_TRUE(first.claim());
    ASSERT_FALSE(second.claim());
    second.activateFirst();
    first.onRequests(counting(activations));
    takeRequests();
    EXPECT_EQ(activations, 1);
}

TEST_F(SingleInstanceTest, ComesToTheFrontAsOftenAsItIsAsked) {
    int activations = 0;
    ASSERT_TRUE(first.claim());
    first.onRequests(counting(activations));
    ASSERT_FALSE(second.claim());
    second.activateFirst();
    second.activateFirst();
    takeRequests();
    EXPECT_EQ(activations, 2);
}

TEST_F(SingleInstanceTest, ComesToTheFrontForAProcessThatEndsAtOnce) {
    int activations = 0;
    ASSERT_TRUE(first.claim());
    first.onRequests(counting(activations));
    inAnotherProcess([&] {
        second.claim();
        second.activateFirst();
        return 0;
    });
    takeRequests();
    EXPECT_EQ(activations, 1);
}

TEST_F(SingleInstanceTest, BringsTheCopyToTheFrontThatHasItsFile) {
    const QString other = folder.filePath(u"other/hoard.db"_qs);
    LinuxSingleInstance firstOfOther(other);
    LinuxSingleInstance secondOfOther(other);
    int activations = 0;
    int activationsOfOther = 0;
    ASSERT_TRUE(first.claim());
    first.onRequests(counting(activations));
    ASSERT_TRUE(firstOfOther.claim());
    firstOfOther.onRequests(counting(activationsOfOther));
    ASSERT_FALSE(secondOfOther.claim());
    secondOfOther.activateFirst();
    takeRequests();
    EXPECT_EQ(activations, 0);
    EXPECT_EQ(activationsOfOther, 1);
}

TEST_F(SingleInstanceTest, DoesNotWaitForAFirstThatTakesNoRequests) {
    const NoWaiting limit;
    ASSERT_TRUE(first.claim());
    ASSERT_FALSE(second.claim());
    constexpr int moreThanAQueueHolds = SOMAXCONN + 100;
    for (int i = 0; i < moreThanAQueueHolds; ++i)
        second.activateFirst();
}

TEST_F(SingleInstanceTest, AsksNobodyBeforeAClaim) {
    second.activateFirst();
}

// Listens under the name by which the first is asked, as a process of any user can: the name is
// known to whoever can see the lock's file.
class Impostor {
public:
    explicit Impostor(const QString& lock) {
        struct stat status {};
        EXPECT_EQ(stat(QFile::encodeName(lock).constData(), &status), 0);
        const std::string name = "com.zorvek.Tessarine/" + std::to_string(status.st_dev) + '/' +
                                 std::to_string(status.st_ino);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path + 1, name.data(), name.size());
        const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
        socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        EXPECT_EQ(bind(socket_, reinterpret_cast<const sockaddr*>(&address), size), 0);
        EXPECT_EQ(listen(socket_, 0), 0);
    }
    Impostor(const Impostor&) = delete;
    Impostor& operator=(const Impostor&) = delete;
    ~Impostor() { close(socket_); }

private:
    int socket_ = -1;
};

TEST_F(SingleInstanceTest, NeitherStartsNorWaitsByWhatAnImpostorDoes) {
    const NoWaiting limit;
    const QString lock = path + u".lock"_qs;
    ASSERT_TRUE(QFile(lock).open(QIODevice::WriteOnly));
    const Impostor impostor(lock);
    ASSERT_TRUE(first.claim());
    first.onRequests({[](const QString&) {}, {}, {}});
    ASSERT_FALSE(second.claim());
    for (int i = 0; i < 5; ++i) // more than the impostor's queue holds
        second.activateFirst();
}

TEST_F(SingleInstanceTest, IgnoresTheRequestOfAnotherUser) {
    if (geteuid() != 0)
        GTEST_SKIP() << "needs two users";
    int activations = 0;
    ASSERT_TRUE(first.claim());
    first.onRequests(counting(activations));
    ASSERT_FALSE(second.claim());
    asOrdinaryUser([&] {
        second.activateFirst();
        return QString();
    });
    second.activateFirst(); // of this user, and so the last in the queue
    takeRequests();
    EXPECT_EQ(activations, 1);
}

// Tokens

// The environment that a desktop gives to what it starts.
class StartEnvironment {
public:
    StartEnvironment(const char* variable, const QByteArray& token)
        : variable_(variable) {
        qputenv(variable, token);
    }
    StartEnvironment(const StartEnvironment&) = delete;
    StartEnvironment& operator=(const StartEnvironment&) = delete;
    ~StartEnvironment() { qunsetenv(variable_); }

private:
    const char* const variable_;
};

// A process of this user that asks for something in bytes of its own.
class RawRequest {
public:
    explicit RawRequest(const QString& lock) {
        struct stat status {};
        EXPECT_EQ(stat(QFile::encodeName(lock).constData(), &status), 0);
        const std::string name = "com.zorvek.Tessarine/" + std::to_string(status.st_dev) + '/' +
                                 std::to_string(status.st_ino);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path + 1, name.data(), name.size());
        const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
        EXPECT_EQ(connect(socket_, reinterpret_cast<const sockaddr*>(&address), size), 0);
    }
    RawRequest(const RawRequest&) = delete;
    RawRequest& operator=(const RawRequest&) = delete;
    ~RawRequest() { close(socket_); }

    void say(const std::string& bytes) const {
        EXPECT_EQ(send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL), ssize_t(bytes.size()));
    }

private:
    const int socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

class ActivationTokenTest : public SingleInstanceTest {
protected:
    ActivationTokenTest() {
        EXPECT_TRUE(first.claim());
        first.onRequests({[this](const QString& token) { tokens << token; }, {}, {}});
    }

    void startLater() {
        LinuxSingleInstance later(path);
        EXPECT_FALSE(later.claim());
        later.activateFirst();
        takeRequests();
    }

    const QString lock = path + u".lock"_qs;
    QStringList tokens;
};

TEST_F(ActivationTokenTest, ALaterStartHandsItsTokenOver) {
    const StartEnvironment environment("XDG_ACTIVATION_TOKEN", "shell-7");
    startLater();
    EXPECT_EQ(tokens, QStringList(u"shell-7"_qs));
}

TEST_F(ActivationTokenTest, TheIdOfAStartupNotificationIsATokenToo) {
    const StartEnvironment environment("DESKTOP_STARTUP_ID", "panel/7-0-host_TIME123");
    startLater();
    EXPECT_EQ(tokens, QStringList(u"panel/7-0-host_TIME123"_qs));
}

TEST_F(ActivationTokenTest, AStartWithoutATokenHasNone) {
    startLater();
    EXPECT_EQ(tokens, QStringList(QString()));
}

TEST_F(ActivationTokenTest, WhatIsNoTokenIsLeftOut) {
    for (const QByteArray& odd : {QByteArray("two words"), QByteArray("line\nbreak"),
                                  QByteArray("\xc3\xa4"), QByteArray(2000, 'x')}) {
        const StartEnvironment environment("XDG_ACTIVATION_TOKEN", odd);
        startLater();
    }
    EXPECT_EQ(tokens, QStringList({QString(), QString(), QString(), QString()}));
}

TEST_F(ActivationTokenTest, ATokenMayComeInPieces) {
    {
        const RawRequest request(lock);
        takeRequests();
        request.say("abc");
        takeRequests();
        request.say("def");
        takeRequests();
        EXPECT_TRUE(tokens.isEmpty());
    }
    takeRequests();
    EXPECT_EQ(tokens, QStringList(u"abcdef"_qs));
}

TEST_F(ActivationTokenTest, ATokenWithoutAnEndIsNotReadForEver) {
    const RawRequest request(lock);
    takeRequests();
    request.say(std::string(5000, 'x'));
    takeRequests();
    EXPECT_EQ(tokens, QStringList(QString()));
}

TEST_F(ActivationTokenTest, WhoSaysNothingKeepsNobodyWaiting) {
    std::vector<std::unique_ptr<RawRequest>> silent;
    for (int i = 0; i < 40; ++i) {
        silent.push_back(std::make_unique<RawRequest>(lock));
        takeRequests();
    }
    EXPECT_EQ(tokens.size(), 40 - 16); // the oldest are answered, so that no more than 16 wait
    silent.back()->say("late");
    silent.pop_back(); // the latest
    takeRequests();
    EXPECT_EQ(tokens.back(), u"late"_qs);
    const StartEnvironment environment("XDG_ACTIVATION_TOKEN", "shell-8");
    startLater();
    EXPECT_EQ(tokens.back(), u"shell-8"_qs);
}

TEST_F(SingleInstanceTest, TheOwnStartAsksWithItsToken) {
    const StartEnvironment environment("DESKTOP_STARTUP_ID", "panel_TIME9");
    QStringList tokens;
    ASSERT_TRUE(first.claim());
    qunsetenv("DESKTOP_STARTUP_ID"); // as the application object does
    first.onRequests({[&](const QString& token) { tokens << token; }, {}, {}});
    EXPECT_EQ(tokens, QStringList(u"panel_TIME9"_qs));
}

} // namespace
} // namespace tessarine
