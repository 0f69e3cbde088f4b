#include "platform/linux/InotifyWatcher.h"

#include "platform/qt/QtScheduler.h"
#include "support/EventLoop.h"
#include "support/Printers.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <chrono>
#include <thread>

#include <sys/stat.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::turnFor;
using testing::turnsUntil;

// Long enough for what must not come to have come, and for the last call after a writing.
constexpr int quietTime = 600;

class InotifyWatcherTest : public ::testing::Test {
protected:
    QString path(const QString& name = u"file"_qs) const { return folder.filePath(name); }

    void write(const QString& name, const QByteArray& bytes = "x") const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::Append | QIODevice::Unbuffered));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    std::unique_ptr<FileWatch> watch(const QString& watched) {
        return watcher.watchWrites(watched, [this] {
            EXPECT_EQ(std::this_thread::get_id(), mainThread);
            ++calls;
        });
    }

    bool isCalled() {
        const int before = calls;
        return turnsUntil([&] { return calls > before; });
    }

    bool staysQuiet() {
        const int before = calls;
        turnFor(quietTime);
        return calls == before;
    }

    // Turns the loop until the calls for what has happened so far are over.
    static void letItSettle() { turnFor(quietTime); }

    // Lets the watcher see what happened while the main thread does nothing.
    static void letItSee() { std::this_thread::sleep_for(std::chrono::milliseconds(quietTime)); }

    const std::thread::id mainThread = std::this_thread::get_id();
    QTemporaryDir folder;
    int calls = 0;
    QtScheduler scheduler;
    InotifyWatcher watcher{scheduler};
};

// A file

TEST_F(InotifyWatcherTest, CallsForAWrite) {
    write(u"file"_qs);
    const auto running = watch(path());
    ASSERT_NE(running, nullptr);
    write(u"file"_qs);
    EXPECT_TRUE(isCalled());
}

TEST_F(InotifyWatcherTest, CallsForEachWriteAfterTheCallForTheOneBefore) {
    write(u"file"_qs);
    const auto running = watch(path());
    write(u"file"_qs);
    ASSERT_TRUE(isCalled());
    letItSettle();
    write(u"file"_qs);
    EXPECT_TRUE(isCalled());
}

TEST_F(InotifyWatcherTest, CallsOnceMoreWhenTheWritingHasEnded) {
    write(u"file"_qs);
    const auto running = watch(path());
    write(u"file"_qs);
    ASSERT_TRUE(isCalled());
    EXPECT_TRUE(isCalled());
    EXPECT_TRUE(staysQuiet());
}

TEST_F(InotifyWatcherTest, CallsForACut) {
    write(u"file"_qs, "something");
    const auto running = watch(path());
    ASSERT_TRUE(QFile::resize(path(), 2));
    EXPECT_TRUE(isCalled());
}

TEST_F(InotifyWatcherTest, DoesNotCallForWhatWasWrittenBefore) {
    write(u"file"_qs);
    const auto running = watch(path());
    EXPECT_TRUE(staysQuiet());
}

TEST_F(InotifyWatcherTest, DoesNotCallForOpeningReadingAndClosing) {
    write(u"file"_qs, "content");
    const auto running = watch(path());
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), "content");
    }
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    }
    EXPECT_TRUE(staysQuiet());
}

TEST_F(InotifyWatcherTest, DoesNotCallForAChangeOfMode) {
    write(u"file"_qs);
    const auto running = watch(path());
    ASSERT_EQ(chmod(QFile::encodeName(path()).constData(), 0600), 0);
    EXPECT_TRUE(staysQuiet());
}

TEST_F(InotifyWatcherTest, DoesNotCallForAWriteToAnotherFile) {
    write(u"file"_qs);
    const auto running = watch(path());
    write(u"other"_qs);
    EXPECT_TRUE(staysQuiet());
}

TEST_F(InotifyWatcherTest, IsSilentAfterTheFileWasReplaced) {
    write(u"file"_qs);
    const auto running = watch(path());
    write(u"new"_qs);
    ASSERT_EQ(rename(QFile::encodeName(path(u"new"_qs)).constData(),
                     QFile::encodeName(path()).constData()),
              0);
    write(u"file"_qs);
    EXPECT_TRUE(staysQuiet());
}

TEST_F(InotifyWatcherTest, IsSilentAfterTheFileWasRemovedAndMadeAnew) {
    write(u"file"_qs);
    const auto running = watch(path());
    ASSERT_TRUE(QFile::remove(path()));
    write(u"file"_qs);
    EXPECT_TRUE(staysQuiet());
}

TEST_F(InotifyWatcherTest, FollowsTheFileToAnotherName) {
    write(u"file"_qs);
    const auto running = watch(path());
    ASSERT_TRUE(QFile::rename(path(), path(u"moved"_qs)));
    write(u"moved"_qs);
    EXPECT_TRUE(isCalled());
}

TEST_F(InotifyWatcherTest, HasNothingToWatchWhereThereIsNoFile) {
    EXPECT_EQ(watch(path(u"missing"_qs)), nullptr);
    EXPECT_EQ(watch(path(u"missing/file"_qs)), nullptr);
    EXPECT_EQ(watch(QString()), nullptr);
}

TEST_F(InotifyWatcherTest, WatchesAFileUnderAnyName) {
    write(u"dätä 漢字"_qs);
    const auto running = watch(path(u"dätä 漢字"_qs));
    write(u"dätä 漢字"_qs);
    EXPECT_TRUE(isCalled());
}

// A database's log, read by the program itself

TEST_F(InotifyWatcherTest, CallsForWritesToALogAndNotForReadings) {
    sqlite3* writer = nullptr;
    ASSERT_EQ(sqlite3_open(path(u"db"_qs).toUtf8().constData(), &writer), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(writer,
                           "PRAGMA journal_mode=WAL; CREATE TABLE t(a); INSERT INTO t VALUES (1);",
                           nullptr, nullptr, nullptr),
              SQLITE_OK);
    const auto running = watch(path(u"db-wal"_qs));
    ASSERT_NE(running, nullptr);
    sqlite3* reader = nullptr;
    ASSERT_EQ(sqlite3_open(path(u"db"_qs).toUtf8().constData(), &reader), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(reader, "SELECT * FROM t", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(reader);
    EXPECT_TRUE(staysQuiet());
    ASSERT_EQ(sqlite3_exec(writer, "INSERT INTO t VALUES (2)", nullptr, nullptr, nullptr),
              SQLITE_OK);
    EXPECT_TRUE(isCalled());
    sqlite3_close(writer);
}

// A folder

TEST_F(InotifyWatcherTest, CallsForAnEntryThatComesToAFolder) {
    const auto running = watch(folder.path());
    ASSERT_NE(running, nullptr);
    write(u"new"_qs);
    EXPECT_TRUE(isCalled());
}

TEST_F(InotifyWatcherTest, CallsForAnEntryThatGoesFromAFolder) {
    write(u"old"_qs);
    const auto running = watch(folder.path());
    ASSERT_TRUE(QFile::remove(path(u"old"_qs)));
    EXPECT_TRUE(isCalled());
}

TEST_F(InotifyWatcherTest, CallsForEntriesMovedInAndOut) {
    const QTemporaryDir elsewhere;
    const QString outside = elsewhere.filePath(u"file"_qs);
    write(u"file"_qs);
    const auto running = watch(folder.path());
    ASSERT_TRUE(QFile::rename(path(), outside));
    EXPECT_TRUE(isCalled());
    letItSettle();
    ASSERT_TRUE(QFile::rename(outside, path()));
    EXPECT_TRUE(isCalled());
}

TEST_F(InotifyWatcherTest, DoesNotCallForAWriteToAnEntryOfAFolder) {
    write(u"old"_qs);
    const auto running = watch(folder.path());
    write(u"old"_qs);
    EXPECT_TRUE(staysQuiet());
}

// Merging

TEST_F(InotifyWatcherTest, MergesWritesThatComeBeforeTheCall) {
    write(u"file"_qs);
    const auto running = watch(path());
    for (int i = 0; i < 10; ++i)
        write(u"file"_qs);
    letItSee();
    EXPECT_EQ(calls, 0);
    ASSERT_TRUE(isCalled());
    EXPECT_TRUE(staysQuiet());
    EXPECT_EQ(calls, 1);
}

TEST_F(InotifyWatcherTest, CallsOnceMoreForAWriteDuringTheCall) {
    write(u"file"_qs);
    const auto running = watcher.watchWrites(path(), [this] {
        if (++calls == 1) {
            write(u"file"_qs);
            write(u"file"_qs);
            letItSee();
        }
    });
    write(u"file"_qs);
    ASSERT_TRUE(turnsUntil([&] { return calls >= 2; }));
    EXPECT_TRUE(staysQuiet());
    EXPECT_EQ(calls, 2);
}

// The end of a watch

TEST_F(InotifyWatcherTest, IsSilentAfterTheWatchIsDestroyed) {
    write(u"file"_qs);
    auto running = watch(path());
    running.reset();
    write(u"file"_qs);
    EXPECT_TRUE(staysQuiet());
}

TEST_F(InotifyWatcherTest, DropsACallThatWaitsWhenTheWatchIsDestroyed) {
    write(u"file"_qs);
    auto running = watch(path());
    write(u"file"_qs);
    letItSee();
    running.reset();
    EXPECT_TRUE(staysQuiet());
}

TEST_F(InotifyWatcherTest, MakesNoLastCallOnceTheWatchIsDestroyed) {
    write(u"file"_qs);
    auto running = watch(path());
    write(u"file"_qs);
    ASSERT_TRUE(isCalled());
    running.reset();
    EXPECT_TRUE(staysQuiet());
}

TEST_F(InotifyWatcherTest, LetsAWatchEndItselfInItsOwnCall) {
    write(u"file"_qs);
    std::unique_ptr<FileWatch> running;
    running = watcher.watchWrites(path(), [&] {
        running.reset();
        ++calls;
    });
    write(u"file"_qs);
    ASSERT_TRUE(isCalled());
    write(u"file"_qs);
    EXPECT_TRUE(staysQuiet());
}

TEST_F(InotifyWatcherTest, LetsAWatchBeReplacedInItsOwnCall) {
    write(u"file"_qs);
    std::unique_ptr<FileWatch> running;
    std::function<void()> renew = [&] {
        ++calls;
        running = watcher.watchWrites(path(), [&] { renew(); });
    };
    running = watcher.watchWrites(path(), [&] { renew(); });
    write(u"file"_qs);
    ASSERT_TRUE(isCalled());
    letItSettle();
    write(u"file"_qs);
    EXPECT_TRUE(isCalled());
}

TEST_F(InotifyWatcherTest, WatchesAgainAfterTheFileCameBack) {
    write(u"file"_qs);
    auto running = watch(path());
    ASSERT_TRUE(QFile::remove(path()));
    write(u"file"_qs);
    running = watch(path());
    write(u"file"_qs);
    EXPECT_TRUE(isCalled());
}

// Several

TEST_F(InotifyWatcherTest, CallsBothWatchesOfOneFile) {
    write(u"file"_qs);
    int others = 0;
    const auto first = watch(path());
    auto second = watcher.watchWrites(path(), [&] { ++others; });
    write(u"file"_qs);
    EXPECT_TRUE(turnsUntil([&] { return calls > 0 && others > 0; }));
    second.reset();
    const int othersBefore = others;
    letItSettle();
    write(u"file"_qs);
    EXPECT_TRUE(isCalled());
    EXPECT_EQ(others, othersBefore);
}

TEST_F(InotifyWatcherTest, KeepsTheWatchesOfTwoFilesApart) {
    write(u"file"_qs);
    write(u"other"_qs);
    int others = 0;
    const auto first = watch(path());
    const auto second = watcher.watchWrites(path(u"other"_qs), [&] { ++others; });
    write(u"other"_qs);
    EXPECT_TRUE(turnsUntil([&] { return others > 0; }));
    EXPECT_TRUE(staysQuiet());
    EXPECT_EQ(calls, 0);
}

TEST_F(InotifyWatcherTest, GoesWhileAFileIsBeingWritten) {
    write(u"file"_qs);
    std::atomic<bool> stop = false;
    std::thread writer([&] {
        while (!stop)
            write(u"file"_qs);
    });
    // A watch may end before it hears of a write: longer and longer ones, until one did.
    QDeadlineTimer patience(std::chrono::seconds(20));
    for (int i = 0; i < 20 || (calls == 0 && !patience.hasExpired()); ++i) {
        InotifyWatcher passing(scheduler);
        const auto running = passing.watchWrites(path(), [this] { ++calls; });
        turnFor(2 + i / 10);
    }
    stop = true;
    writer.join();
    EXPECT_GT(calls, 0);
}

} // namespace
} // namespace tessarine
