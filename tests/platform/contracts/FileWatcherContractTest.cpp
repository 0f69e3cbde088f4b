#include "platform/contracts/Subjects.h"
#include "platform/qt/QtScheduler.h"
#include "support/EventLoop.h"
#include "support/Printers.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <atomic>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

#include <sys/stat.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::turnFor;
using testing::turnsUntil;

// Long enough for what must not come to have come, and for the last call after a writing.
constexpr int quietTime = 600;

// Keeps the first tasks for the main thread until the test runs them. Further ones run at once, on
// the thread that hands them over.
class HeldScheduler : public QtScheduler {
public:
    void hold(std::size_t count) {
        const std::lock_guard lock(mutex_);
        room_ = count;
    }

    void onMain(Task task) override {
        {
            const std::lock_guard lock(mutex_);
            if (tasks_.size() < room_) {
                tasks_.push_back(std::move(task));
                return;
            }
        }
        task();
    }

    std::size_t count() {
        const std::lock_guard lock(mutex_);
        return tasks_.size();
    }

    void run(std::size_t number) {
        std::unique_lock lock(mutex_);
        const Task task = std::exchange(tasks_.at(number), nullptr);
        lock.unlock();
        task();
    }

private:
    std::size_t room_ = 1;
    std::mutex mutex_;
    std::deque<Task> tasks_;
};

class FileWatcherContract : public ::testing::Test {
protected:
    QString path(const QString& name = u"file"_qs) const { return folder.filePath(name); }

    void write(const QString& name, const QByteArray& bytes = "x") const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::Append | QIODevice::Unbuffered));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    std::unique_ptr<FileWatch> watch(const QString& watched) {
        return watcher->watchWrites(watched, [this] {
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

    const std::thread::id mainThread = std::this_thread::get_id();
    QTemporaryDir folder;
    int calls = 0;
    QtScheduler scheduler;
    const std::unique_ptr<FileWatcher> watcher = testing::systemFileWatcher(scheduler);
};

// A file

TEST_F(FileWatcherContract, CallsForAWrite) {
    write(u"file"_qs);
    const auto running = watch(path());
    ASSERT_NE(running, nullptr);
    write(u"file"_qs);
    EXPECT_TRUE(isCalled());
}

TEST_F(FileWatcherContract, CallsForEachWriteAfterTheCallForTheOneBefore) {
    write(u"file"_qs);
    const auto running = watch(path());
    write(u"file"_qs);
    ASSERT_TRUE(isCalled());
    letItSettle();
    write(u"file"_qs);
    EXPECT_TRUE(isCalled());
}

TEST_F(FileWatcherContract, CallsOnceMoreWhenTheWritingHasEnded) {
    write(u"file"_qs);
    const auto running = watch(path());
    // Where the main thread stalls between the two calls they are one: then the next write tells.
    bool isCalledTwice = false;
    for (int attempt = 0; attempt < 10 && !isCalledTwice; ++attempt) {
        calls = 0;
        write(u"file"_qs);
        ASSERT_TRUE(isCalled());
        isCalledTwice = turnsUntil([&] { return calls == 2; }, 3000);
    }
    EXPECT_TRUE(isCalledTwice);
    EXPECT_TRUE(staysQuiet());
}

TEST_F(FileWatcherContract, CallsForACut) {
    write(u"file"_qs, "something");
    const auto running = watch(path());
    ASSERT_TRUE(QFile::resize(path(), 2));
    EXPECT_TRUE(isCalled());
}

TEST_F(FileWatcherContract, DoesNotCallForWhatWasWrittenBefore) {
    write(u"file"_qs);
    const auto running = watch(path());
    EXPECT_TRUE(staysQuiet());
}

TEST_F(FileWatcherContract, DoesNotCallForOpeningReadingAndClosing) {
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

TEST_F(FileWatcherContract, DoesNotCallForAChangeOfMode) {
    write(u"file"_qs);
    const auto running = watch(path());
    ASSERT_EQ(chmod(QFile::encodeName(path()).constData(), 0600), 0);
    EXPECT_TRUE(staysQuiet());
}

TEST_F(FileWatcherContract, DoesNotCallForAWriteToAnotherFile) {
    write(u"file"_qs);
    const auto running = watch(path());
    write(u"other"_qs);
    EXPECT_TRUE(staysQuiet());
}

TEST_F(FileWatcherContract, IsSilentAfterTheFileWasReplaced) {
    write(u"file"_qs);
    const auto running = watch(path());
    write(u"new"_qs);
    ASSERT_EQ(rename(QFile::encodeName(path(u"new"_qs)).constData(),
                     QFile::encodeName(path()).constData()),
              0);
    write(u"file"_qs);
    EXPECT_TRUE(staysQuiet());
}

TEST_F(FileWatcherContract, IsSilentAfterTheFileWasRemovedAndMadeAnew) {
    write(u"file"_qs);
    const auto running = watch(path());
    ASSERT_TRUE(QFile::remove(path()));
    write(u"file"_qs);
    EXPECT_TRUE(staysQuiet());
}

TEST_F(FileWatcherContract, FollowsTheFileToAnotherName) {
    write(u"file"_qs);
    const auto running = watch(path());
    ASSERT_TRUE(QFile::rename(path(), path(u"moved"_qs)));
    write(u"moved"_qs);
    EXPECT_TRUE(isCalled());
}

TEST_F(FileWatcherContract, HasNothingToWatchWhereThereIsNoFile) {
    EXPECT_EQ(watch(path(u"missing"_qs)), nullptr);
    EXPECT_EQ(watch(path(u"missing/file"_qs)), nullptr);
    EXPECT_EQ(watch(QString()), nullptr);
}

TEST_F(FileWatcherContract, WatchesAFileUnderAnyName) {
    write(u"dätä 漢字"_qs);
    const auto running = watch(path(u"dätä 漢字"_qs));
    write(u"dätä 漢字"_qs);
    EXPECT_TRUE(isCalled());
}

// A database's log, read by the program itself

TEST_F(FileWatcherContract, CallsForWritesToALogAndNotForReadings) {
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

TEST_F(FileWatcherContract, CallsForAnEntryThatComesToAFolder) {
    const auto running = watch(folder.path());
    ASSERT_NE(running, nullptr);
    write(u"new"_qs);
    EXPECT_TRUE(isCalled());
}

TEST_F(FileWatcherContract, CallsForAnEntryThatGoesFromAFolder) {
    write(u"old"_qs);
    const auto running = watch(folder.path());
    ASSERT_TRUE(QFile::remove(path(u"old"_qs)));
    EXPECT_TRUE(isCalled());
}

TEST_F(FileWatcherContract, CallsForEntriesMovedInAndOut) {
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

TEST_F(FileWatcherContract, DoesNotCallForAWriteToAnEntryOfAFolder) {
    write(u"old"_qs);
    const auto running = watch(folder.path());
    write(u"old"_qs);
    EXPECT_TRUE(staysQuiet());
}

// Merging

// The calls for the file are held; those for another file, written later, run at once and so tell
// when the watcher is through with both.
class FileWatcherMergingContract : public FileWatcherContract {
protected:
    FileWatcherMergingContract() {
        write(u"file"_qs);
        write(u"other"_qs);
    }

    bool waitsFor(std::size_t tasks) {
        return turnsUntil([&] { return main.count() >= tasks; });
    }

    // The second call for the other file comes when both have been still.
    bool seesTheEndOfTheWriting() {
        write(u"other"_qs);
        return turnsUntil([&] { return others == 2; });
    }

    std::atomic<int> others = 0;
    HeldScheduler main;
    const std::unique_ptr<FileWatcher> held = testing::systemFileWatcher(main);
};

TEST_F(FileWatcherMergingContract, MergesWritesThatComeBeforeTheCall) {
    const auto running = held->watchWrites(path(), [this] { ++calls; });
    const auto other = held->watchWrites(path(u"other"_qs), [this] { ++others; });
    for (int i = 0; i < 10; ++i)
        write(u"file"_qs);
    ASSERT_TRUE(waitsFor(1));
    ASSERT_TRUE(seesTheEndOfTheWriting());
    EXPECT_EQ(calls, 0) << "the call that waits is the only one";
    main.run(0);
    EXPECT_EQ(calls, 1);
}

TEST_F(FileWatcherMergingContract, CallsOnceMoreForAWriteDuringTheCall) {
    const auto running = held->watchWrites(path(), [this] {
        if (++calls == 1) {
            write(u"file"_qs);
            write(u"file"_qs);
        }
    });
    const auto other = held->watchWrites(path(u"other"_qs), [this] { ++others; });
    main.hold(2);
    write(u"file"_qs);
    ASSERT_TRUE(waitsFor(1));
    main.run(0);
    ASSERT_TRUE(waitsFor(2));
    ASSERT_TRUE(seesTheEndOfTheWriting());
    EXPECT_EQ(calls, 1) << "the call that waits is the only one";
    main.run(1);
    EXPECT_EQ(calls, 2);
}

// The end of a watch

TEST_F(FileWatcherContract, IsSilentAfterTheWatchIsDestroyed) {
    write(u"file"_qs);
    auto running = watch(path());
    running.reset();
    write(u"file"_qs);
    EXPECT_TRUE(staysQuiet());
}

TEST_F(FileWatcherMergingContract, DropsACallThatWaitsWhenTheWatchIsDestroyed) {
    auto running = held->watchWrites(path(), [this] { ++calls; });
    write(u"file"_qs);
    ASSERT_TRUE(waitsFor(1));
    running.reset();
    main.run(0);
    EXPECT_EQ(calls, 0);
}

TEST_F(FileWatcherContract, MakesNoLastCallOnceTheWatchIsDestroyed) {
    write(u"file"_qs);
    auto running = watch(path());
    write(u"file"_qs);
    ASSERT_TRUE(isCalled());
    running.reset();
    EXPECT_TRUE(staysQuiet());
}

TEST_F(FileWatcherContract, LetsAWatchEndItselfInItsOwnCall) {
    write(u"file"_qs);
    std::unique_ptr<FileWatch> running;
    running = watcher->watchWrites(path(), [&] {
        running.reset();
        ++calls;
    });
    write(u"file"_qs);
    ASSERT_TRUE(isCalled());
    write(u"file"_qs);
    EXPECT_TRUE(staysQuiet());
}

TEST_F(FileWatcherContract, LetsAWatchBeReplacedInItsOwnCall) {
    write(u"file"_qs);
    std::unique_ptr<FileWatch> running;
    std::function<void()> renew = [&] {
        ++calls;
        running = watcher->watchWrites(path(), [&] { renew(); });
    };
    running = watcher->watchWrites(path(), [&] { renew(); });
    write(u"file"_qs);
    ASSERT_TRUE(isCalled());
    letItSettle();
    write(u"file"_qs);
    EXPECT_TRUE(isCalled());
}

TEST_F(FileWatcherContract, WatchesAgainAfterTheFileCameBack) {
    write(u"file"_qs);
    auto running = watch(path());
    ASSERT_TRUE(QFile::remove(path()));
    write(u"file"_qs);
    running = watch(path());
    write(u"file"_qs);
    EXPECT_TRUE(isCalled());
}

// Several

TEST_F(FileWatcherContract, CallsBothWatchesOfOneFile) {
    write(u"file"_qs);
    int others = 0;
    const auto first = watch(path());
    auto second = watcher->watchWrites(path(), [&] { ++others; });
    write(u"file"_qs);
    EXPECT_TRUE(turnsUntil([&] { return calls > 0 && others > 0; }));
    second.reset();
    const int othersBefore = others;
    letItSettle();
    write(u"file"_qs);
    EXPECT_TRUE(isCalled());
    EXPECT_EQ(others, othersBefore);
}

TEST_F(FileWatcherContract, KeepsTheWatchesOfTwoFilesApart) {
    write(u"file"_qs);
    write(u"other"_qs);
    int others = 0;
    const auto first = watch(path());
    const auto second = watcher->watchWrites(path(u"other"_qs), [&] { ++others; });
    write(u"other"_qs);
    EXPECT_TRUE(turnsUntil([&] { return others > 0; }));
    EXPECT_TRUE(staysQuiet());
    EXPECT_EQ(calls, 0);
}

TEST_F(FileWatcherContract, GoesWhileAFileIsBeingWritten) {
    write(u"file"_qs);
    std::atomic<bool> stop = false;
    std::thread writer([&] {
        while (!stop)
            write(u"file"_qs);
    });
    // A watch may end before it hears of a write: longer and longer ones, until one did.
    QDeadlineTimer patience(std::chrono::seconds(20));
    for (int i = 0; i < 20 || (calls == 0 && !patience.hasExpired()); ++i) {
        const std::unique_ptr<FileWatcher> passing = testing::systemFileWatcher(scheduler);
        const auto running = passing->watchWrites(path(), [this] { ++calls; });
        turnFor(2 + i / 10);
    }
    stop = true;
    writer.join();
    EXPECT_GT(calls, 0);
}

} // namespace
} // namespace tessarine
