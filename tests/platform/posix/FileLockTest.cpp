#include "platform/posix/FileLock.h"

#include "platform/linux/NoFileLocks.h"
#include "support/ChildRun.h"
#include "support/OrdinaryUser.h"
#include "support/Printers.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include <fcntl.h>
#include <sys/stat.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::asOrdinaryUser;
using testing::inAnotherProcess;
using testing::NoWaiting;
using testing::StayingProcess;

class FileLockTest : public ::testing::Test {
protected:
    struct stat status() const {
        struct stat status {};
        EXPECT_EQ(lstat(QFile::encodeName(path).constData(), &status), 0);
        return status;
    }
    mode_t mode() const { return status().st_mode & 07777; }

    void makeFile(mode_t mode) const {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(chmod(QFile::encodeName(path).constData(), mode), 0);
    }

    // For a user to whom modes apply. Nothing is left of it in this process.
    FileLockState takenByOrdinaryUser() const {
        return FileLockState(
            asOrdinaryUser([&] { return QString::number(int(FileLock().take(path))); }).toInt());
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(u"lock"_qs);
    FileLock first;
    FileLock second;
};

TEST_F(FileLockTest, TakesALockThatNobodyHolds) {
    EXPECT_EQ(first.take(path), FileLockState::taken);
}

TEST_F(FileLockTest, RefusesALockThatAnotherProcessHolds) {
    const StayingProcess holder([&] { first.take(path); });
    EXPECT_EQ(second.take(path), FileLockState::takenByAnother);
}

TEST_F(FileLockTest, IsRefusedToAnotherProcess) {
    ASSERT_EQ(first.take(path), FileLockState::taken);
    EXPECT_EQ(inAnotherProcess([&] { return int(second.take(path)); }),
              int(FileLockState::takenByAnother));
}

TEST_F(FileLockTest, IsReleasedWhenItsProcessIsKilled) {
    StayingProcess holder([&] { first.take(path); });
    ASSERT_EQ(FileLock().take(path), FileLockState::takenByAnother);
    holder.kill();
    EXPECT_EQ(second.take(path), FileLockState::taken);
}

TEST_F(FileLockTest, IsReleasedWithTheObject) {
    {
        FileLock passing;
        ASSERT_EQ(passing.take(path), FileLockState::taken);
    }
    EXPECT_EQ(first.take(path), FileLockState::taken);
}

TEST_F(FileLockTest, StandsWhenTheProcessOpensAndClosesTheFileElsewhere) {
    ASSERT_EQ(first.take(path), FileLockState::taken);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.close();
    EXPECT_EQ(inAnotherProcess([&] { return int(second.take(path)); }),
              int(FileLockState::takenByAnother));
}

TEST_F(FileLockTest, IsNotInheritedByAProgramThatTheProcessStarts) {
    ASSERT_EQ(first.take(path), FileLockState::taken);
    QProcess program;
    program.start(u"ls"_qs, {u"-l"_qs, u"/proc/self/fd"_qs});
    ASSERT_TRUE(program.waitForFinished());
    const QByteArray open = program.readAllStandardOutput();
    EXPECT_TRUE(open.contains(" -> ")) << open.toStdString();
    EXPECT_FALSE(open.contains(QFile::encodeName(path))) << open.toStdString();
}

// The file

class FileLockUnderUmask : public FileLockTest, public ::testing::WithParamInterface<mode_t> {};

TEST_P(FileLockUnderUmask, MakesAFileForItsOwnerAlone) {
    const mode_t before = umask(GetParam());
    const FileLockState state = first.take(path);
    umask(before);
    EXPECT_EQ(state, FileLockState::taken);
    EXPECT_EQ(mode(), mode_t(0600));
    EXPECT_EQ(status().st_size, 0);
}

INSTANTIATE_TEST_SUITE_P(Each, FileLockUnderUmask, ::testing::Values(0, 022, 0777),
                         [](const auto& test) { return "Mask" + std::to_string(test.param); });

TEST_F(FileLockTest, NarrowsAFileThatOthersCouldHold) {
    makeFile(0666);
    ASSERT_EQ(first.take(path), FileLockState::taken);
    EXPECT_EQ(mode(), mode_t(0600));
}

TEST_F(FileLockTest, ChangesNothingWhileAnotherHoldsIt) {
    ASSERT_EQ(first.take(path), FileLockState::taken);
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0644), 0);
    const auto changes = [this] {
        const struct stat now = status();
        return std::tuple(now.st_ino, now.st_mode, now.st_size, now.st_mtim.tv_sec,
                          now.st_mtim.tv_nsec, now.st_ctim.tv_sec, now.st_ctim.tv_nsec);
    };
    const auto before = changes();
    ASSERT_EQ(second.take(path), FileLockState::takenByAnother);
    EXPECT_EQ(changes(), before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList(u"lock"_qs));
}

TEST_F(FileLockTest, IsTakenOnAFileThatMayOnlyBeRead) {
    makeFile(0400);
    if (geteuid() == 0) {
        ASSERT_EQ(chown(QFile::encodeName(path).constData(), testing::nobody, testing::nobody), 0);
    }
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    EXPECT_EQ(takenByOrdinaryUser(), FileLockState::taken);
}

TEST_F(FileLockTest, DoesNotWaitForWhoeverWritesIntoAPipeInItsPlace) {
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0444), 0);
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    asOrdinaryUser([&] {
        const NoWaiting limit;
        return QString::number(int(FileLock().take(path)));
    });
}

TEST_F(FileLockTest, KnowsItsFileByEveryPath) {
    ASSERT_TRUE(QFile::link(folder.path(), folder.filePath(u"link"_qs)));
    ASSERT_EQ(first.take(path), FileLockState::taken);
    ASSERT_EQ(second.take(folder.filePath(u"link//lock"_qs)), FileLockState::takenByAnother);
    EXPECT_EQ(first.identity(), second.identity());
}

TEST_F(FileLockTest, TellsFilesApart) {
    ASSERT_EQ(first.take(path), FileLockState::taken);
    ASSERT_EQ(second.take(path + u"-of-another"_qs), FileLockState::taken);
    EXPECT_NE(first.identity(), second.identity());
}

// Where it can't be had

TEST_F(FileLockTest, IsUnavailableInAFolderThatMayNotBeWrittenTo) {
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0555), 0);
    EXPECT_EQ(takenByOrdinaryUser(), FileLockState::unavailable);
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
}

TEST_F(FileLockTest, IsUnavailableInAFolderThatIsNotThere) {
    EXPECT_EQ(first.take(folder.filePath(u"gone/lock"_qs)), FileLockState::unavailable);
    EXPECT_EQ(first.identity(), std::nullopt);
}

TEST_F(FileLockTest, IsUnavailableWhereAFolderLiesInItsPlace) {
    ASSERT_TRUE(QDir().mkpath(path));
    EXPECT_NE(first.take(path), FileLockState::takenByAnother);
}

TEST_F(FileLockTest, FollowsNoLinkThatLiesInItsPlace) {
    ASSERT_EQ(symlink("elsewhere", QFile::encodeName(path).constData()), 0);
    EXPECT_EQ(first.take(path), FileLockState::unavailable);
    EXPECT_FALSE(QFile::exists(folder.filePath(u"elsewhere"_qs)));
}

TEST_F(FileLockTest, IgnoresTheLockOnAFileOfAnotherUser) {
    if (geteuid() != 0)
        GTEST_SKIP() << "needs two users";
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    ASSERT_EQ(first.take(path), FileLockState::taken);
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0644), 0);
    EXPECT_EQ(takenByOrdinaryUser(), FileLockState::unavailable);
}

TEST_F(FileLockTest, IsUnavailableOnAFileSystemWithoutLocks) {
    constexpr int skipped = 99;
    const int state = inAnotherProcess(
        [&] { return testing::loseFileLocks() ? int(first.take(path)) : skipped; });
    if (state == skipped)
        GTEST_SKIP() << "this kernel filters no system calls";
    EXPECT_EQ(state, int(FileLockState::unavailable));
}

} // namespace
} // namespace tessarine
