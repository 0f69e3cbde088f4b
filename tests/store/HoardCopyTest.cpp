// The copy of the hoard's file, as independent programs see it.

#include "store/HoardFixture.h"
#include "store/Sqlite.h"
#include "store/SqliteMainFile.h"
#include "support/ChildRun.h"
#include "support/SmallDisk.h"

#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstring>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::SmallDisk;

class HoardCopy : public testing::HoardFixture {
protected:
    HoardCopy() {
        start();
        store->checkpoint(); // the schema
    }

    void add(qint64 first, qint64 last) const {
        for (qint64 key = first; key <= last; ++key)
            ASSERT_TRUE(store->insert(capture(key)));
    }

    QString inFolder(const QString& name) const { return home.filePath(name); }

    // What Python's sqlite3 says of a file that it may not change: its check, its number of rows.
    static QString judged(const QString& path) {
        static const QString script =
            u"import sqlite3, sys\n"
            "db = sqlite3.connect('file:' + sys.argv[1] + '?mode=ro&immutable=1', uri=True)\n"
            "print(db.execute('PRAGMA integrity_check').fetchone()[0],\n"
            "      db.execute('SELECT COUNT(*) FROM notifications').fetchone()[0], end='')\n"_qs;
        QProcess python;
        python.start(u"python3"_qs, {u"-c"_qs, script, path});
        EXPECT_TRUE(python.waitForFinished(-1));
        return QString::fromUtf8(python.readAllStandardOutput() + python.readAllStandardError());
    }

    void expectRefused(const QString& destination) {
        const QByteArray before = mainFileByCat();
        const std::optional<QString> error = store->copyTo(destination);
        EXPECT_TRUE(error && !error->isEmpty()) << destination.toStdString();
        EXPECT_EQ(mainFileByCat(), before);
        EXPECT_TRUE(store->insert(capture(++lastKey_)));
        EXPECT_EQ(judgedAlive(), u"ok"_qs);
    }

    // By another process, which doesn't touch the locks of this one.
    QByteArray mainFileByCat() const {
        QProcess cat;
        cat.start(u"cat"_qs, {hoardPath()});
        EXPECT_TRUE(cat.waitForFinished(-1));
        return cat.readAllStandardOutput();
    }

    QString judgedAlive() const {
        return file().rows(u"PRAGMA integrity_check"_qs).front().front();
    }

private:
    qint64 lastKey_ = 1000000;
};

mode_t modeOf(const QString& path) {
    struct stat status {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

TEST_F(HoardCopy, HoldsWhatACheckpointHasMovedIntoTheMainFile) {
    add(1, 3);
    store->checkpoint();
    ASSERT_EQ(store->copyTo(inFolder(u"copy.db"_qs)), std::nullopt);
    EXPECT_EQ(judged(inFolder(u"copy.db"_qs)), u"ok 3"_qs);
    EXPECT_EQ(readFile(inFolder(u"copy.db"_qs)), mainFileByCat());
}

TEST_F(HoardCopy, LacksWhatIsStillInTheLog) {
    add(1, 3);
    store->checkpoint();
    add(4, 5);
    ASSERT_EQ(store->copyTo(inFolder(u"copy.db"_qs)), std::nullopt);
    EXPECT_EQ(judged(inFolder(u"copy.db"_qs)), u"ok 3"_qs);
    EXPECT_EQ(store->totalCount(), 5);
}

TEST_F(HoardCopy, IsWholeWhereItTakesManyParts) {
    ASSERT_TRUE(file().run(
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000)"
        "INSERT INTO notifications (title, body, timestamp) SELECT 'Title ' || i, "
        "'Body of some length to fill the pages ' || i, i FROM n;"_qs));
    store->checkpoint();
    ASSERT_GT(QFileInfo(hoardPath()).size(), 1500000);
    ASSERT_EQ(store->copyTo(inFolder(u"copy.db"_qs)), std::nullopt);
    EXPECT_EQ(judged(inFolder(u"copy.db"_qs)), u"ok 20000"_qs);
    EXPECT_EQ(readFile(inFolder(u"copy.db"_qs)), mainFileByCat());
}

TEST_F(HoardCopy, ComesAlone) {
    ASSERT_EQ(store->copyTo(inFolder(u"copy.db"_qs)), std::nullopt);
    EXPECT_EQ(QDir(home.path()).entryList({u"copy*"_qs}, QDir::Files), QStringList{u"copy.db"_qs});
}

TEST_F(HoardCopy, OpensTheHoardWhereNobodyHasYet) {
    store = std::make_unique<HoardStore>(fileSystem, defaults, scheduler);
    ASSERT_EQ(store->copyTo(inFolder(u"copy.db"_qs)), std::nullopt);
    EXPECT_EQ(judged(inFolder(u"copy.db"_qs)), u"ok 0"_qs);
}

// The place

TEST_F(HoardCopy, IsItsOwnersAlone) {
    const mode_t before = umask(0);
    EXPECT_EQ(store->copyTo(inFolder(u"copy.db"_qs)), std::nullopt);
    umask(before);
    EXPECT_EQ(modeOf(inFolder(u"copy.db"_qs)), mode_t{0600});
}

TEST_F(HoardCopy, TakesThePlaceOfAFileAndLeavesItsReadersTheOldOne) {
    const QString path = inFolder(u"copy.db"_qs);
    writeFile(path, "old");
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0644), 0);
    QFile reader(path);
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
    ASSERT_EQ(store->copyTo(path), std::nullopt);
    EXPECT_EQ(reader.readAll(), QByteArray("old"));
    EXPECT_EQ(judged(path), u"ok 0"_qs);
    EXPECT_EQ(modeOf(path), mode_t{0600});
}

TEST_F(HoardCopy, TakesThePlaceOfALinkAndLeavesWhatItLedTo) {
    writeFile(inFolder(u"other"_qs), "untouched");
    ASSERT_TRUE(QFile::link(inFolder(u"other"_qs), inFolder(u"copy.db"_qs)));
    ASSERT_EQ(store->copyTo(inFolder(u"copy.db"_qs)), std::nullopt);
    EXPECT_EQ(readFile(inFolder(u"other"_qs)), QByteArray("untouched"));
    EXPECT_FALSE(QFileInfo(inFolder(u"copy.db"_qs)).isSymLink());
    EXPECT_EQ(judged(inFolder(u"copy.db"_qs)), u"ok 0"_qs);
}

TEST_F(HoardCopy, IsNoFolder) {
    QDir().mkpath(inFolder(u"folder/inside"_qs));
    EXPECT_EQ(store->copyTo(inFolder(u"folder"_qs)), QString::fromLocal8Bit(strerror(EISDIR)));
    EXPECT_TRUE(QFileInfo::exists(inFolder(u"folder/inside"_qs)));
    expectRefused(inFolder(u"folder"_qs));
}

TEST_F(HoardCopy, IsNoPipe) {
    const QByteArray pipe = QFile::encodeName(inFolder(u"pipe"_qs));
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    const testing::NoWaiting limit;
    expectRefused(inFolder(u"pipe"_qs));
    EXPECT_TRUE(QFileInfo::exists(inFolder(u"pipe"_qs)));
}

TEST_F(HoardCopy, NeedsAFolderThatIsThere) {
    EXPECT_EQ(store->copyTo(inFolder(u"nowhere/copy.db"_qs)),
              QString::fromLocal8Bit(strerror(ENOENT)));
    expectRefused(inFolder(u"nowhere/copy.db"_qs));
}

TEST_F(HoardCopy, LeavesNothingOnADiskWithoutRoom) {
    const SmallDisk disk(inFolder(u"disk"_qs));
    if (!disk.isThere())
        GTEST_SKIP() << "only root can mount a disk";
    const QString path = inFolder(u"disk/copy.db"_qs);
    writeFile(path, "old");
    disk.fill();
    EXPECT_EQ(store->copyTo(path), QString::fromLocal8Bit(strerror(ENOSPC)));
    EXPECT_FALSE(QFileInfo::exists(path)) << "what was removed stays removed";
    expectRefused(path);
}

TEST_F(HoardCopy, TellsThatAFolderCanNotBeWritten) {
    expectRefused(u"/proc/copy.db"_qs);
}

// The hoard as a place

TEST_F(HoardCopy, IsNotTheHoard) {
    add(1, 1);
    expectRefused(hoardPath());
    expectRefused(folder() + u"/../Tessarine/./hoard.db"_qs);
    EXPECT_EQ(store->copyTo(hoardPath()), u"The hoard can't be copied onto itself"_qs);
}

TEST_F(HoardCopy, IsNoSideFileOfTheHoard) {
    add(1, 1);
    expectRefused(hoardPath() + u"-wal"_qs);
    expectRefused(hoardPath() + u"-shm"_qs);
    expectRefused(hoardPath() + u"-journal"_qs); // not there: SQLite would roll it back
    expectRefused(hoardPath() + u".lock"_qs);    // of the program itself
    EXPECT_FALSE(QFileInfo::exists(hoardPath() + u"-journal"_qs));
}

TEST_F(HoardCopy, IsNoLinkToAFileOfTheHoard) {
    add(1, 1);
    for (const QString& suffix : {u""_qs, u"-wal"_qs, u"-shm"_qs}) {
        const QString symbolic = inFolder(u"symbolic"_qs + suffix);
        const QString hard = inFolder(u"hard"_qs + suffix);
        const QByteArray part = QFile::encodeName(hoardPath() + suffix);
        ASSERT_EQ(symlink(part.constData(), QFile::encodeName(symbolic).constData()), 0);
        ASSERT_EQ(link(part.constData(), QFile::encodeName(hard).constData()), 0);
        expectRefused(symbolic);
        expectRefused(hard);
        EXPECT_TRUE(QFileInfo(symbolic).isSymLink());
    }
}

TEST_F(HoardCopy, IsNotTheHoardThroughALinkToItsFolder) {
    ASSERT_TRUE(QFile::link(folder(), inFolder(u"linked"_qs)));
    expectRefused(inFolder(u"linked/hoard.db"_qs));
    expectRefused(inFolder(u"linked/hoard.db-journal"_qs));
}

TEST_F(HoardCopy, CanLieBesideTheHoard) {
    add(1, 2);
    store->checkpoint();
    ASSERT_EQ(store->copyTo(folder() + u"/hoard.db.backup"_qs), std::nullopt);
    EXPECT_EQ(judged(folder() + u"/hoard.db.backup"_qs), u"ok 2"_qs);
}

TEST_F(HoardCopy, OfAHoardThatCanNotBeOpenedIsAnError) {
    store.reset();
    ASSERT_TRUE(QDir(folder()).removeRecursively());
    ASSERT_TRUE(QDir().mkpath(hoardPath()));
    EXPECT_TRUE(start().copyTo(inFolder(u"copy.db"_qs)));
    EXPECT_FALSE(QFileInfo::exists(inFolder(u"copy.db"_qs)));
}

TEST_F(HoardCopy, OfADamagedHoardHasItsBytes) {
    store.reset();
    ASSERT_TRUE(QDir(folder()).removeRecursively());
    ASSERT_TRUE(QDir().mkpath(folder()));
    writeFile(hoardPath(), QByteArray(10000, 'x'));
    ASSERT_EQ(start().copyTo(inFolder(u"copy.db"_qs)), std::nullopt);
    EXPECT_EQ(readFile(inFolder(u"copy.db"_qs)), QByteArray(10000, 'x'));
}

// Locks and other writers

TEST_F(HoardCopy, LeavesTheLockOfAnotherProcess) {
    const QByteArray path = QFile::encodeName(hoardPath());
    testing::StayingProcess writer([&path] {
        auto* const connection =
            new SqliteConnection(QFile::decodeName(path), SqliteConnection::Mode::ownFile);
        connection->execute("BEGIN IMMEDIATE; INSERT INTO notifications (title) VALUES ('held')");
    });
    ASSERT_EQ(store->copyTo(inFolder(u"copy.db"_qs)), std::nullopt);
    EXPECT_EQ(judged(inFolder(u"copy.db"_qs)), u"ok 0"_qs);
    EXPECT_EQ(store->tryInsert(capture(1)), Insertion::locked);
    writer.kill();
    EXPECT_EQ(store->tryInsert(capture(1)), Insertion::stored);
}

// The store's own locks: without the one on the main file, another program's last connection would
// take the log away when it closes.
TEST_F(HoardCopy, LeavesTheLocksOfTheStore) {
    add(1, 1);
    ASSERT_EQ(store->copyTo(inFolder(u"copy.db"_qs)), std::nullopt);
    const QByteArray path = QFile::encodeName(hoardPath());
    EXPECT_EQ(testing::inAnotherProcess([&path] {
                  const int main = open(path.constData(), O_RDWR);
                  struct flock wanted {};
                  wanted.l_type = F_WRLCK;
                  wanted.l_whence = SEEK_SET;
                  wanted.l_start = 0x40000002; // SQLite's shared locks
                  wanted.l_len = 510;
                  return main >= 0 && fcntl(main, F_SETLK, &wanted) != 0 ? 0 : 1;
              }),
              0);
    add(2, 2);
    EXPECT_EQ(store->totalCount(), 2);
    EXPECT_TRUE(QFileInfo::exists(hoardPath() + u"-wal"_qs));
}

TEST_F(HoardCopy, HoldsTheMainFileStillWhileItIsRead) {
    add(1, 3);
    const QByteArray before = mainFileByCat();
    {
        const SqliteConnection reader(hoardPath(), SqliteConnection::Mode::ownFileReadOnly);
        SqliteMainFile held(reader);
        ASSERT_TRUE(held.hold(std::chrono::milliseconds(0)));
        add(4, 6);
        store->checkpoint();
        EXPECT_EQ(file().rows(u"PRAGMA wal_checkpoint(PASSIVE)"_qs).front().front(), u"1"_qs);
        EXPECT_EQ(mainFileByCat(), before);
        EXPECT_EQ(store->totalCount(), 6);
    }
    store->checkpoint();
    EXPECT_NE(mainFileByCat(), before);
}

TEST_F(HoardCopy, CanNotBeTakenWhileAnotherHoldsTheMainFile) {
    const SqliteConnection one(hoardPath(), SqliteConnection::Mode::ownFileReadOnly);
    const SqliteConnection other(hoardPath(), SqliteConnection::Mode::ownFileReadOnly);
    SqliteMainFile held(one);
    ASSERT_TRUE(held.hold(std::chrono::milliseconds(0)));
    EXPECT_FALSE(SqliteMainFile(other).hold(std::chrono::milliseconds(20)));
    EXPECT_FALSE(SqliteMainFile(other).hold(std::chrono::milliseconds(0)));
}

// Rows of one transaction have the same title. A copy with a part of a transaction has been made
// while the log was being moved into the file.
class HoardCopyAmongWriters : public HoardCopy {
protected:
    // As fast as it can: replaces all rows in one transaction and moves the log into the file.
    static void rewrite(const QString& path, const std::atomic<bool>& goesOn) {
        const SqliteConnection connection(path, SqliteConnection::Mode::ownFile);
        connection.setLockTimeout(10000);
        while (goesOn) {
            connection.execute("BEGIN IMMEDIATE; UPDATE notifications SET title = 'T' || "
                               "(SELECT MAX(CAST(SUBSTR(title, 2) AS INTEGER)) + 1 FROM "
                               "notifications); COMMIT; PRAGMA wal_checkpoint(PASSIVE);");
        }
    }

    void fillHoard() const {
        ASSERT_TRUE(file().run(
            u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 5000)"
            "INSERT INTO notifications (title, body, timestamp) "
            "SELECT 'T0', hex(zeroblob(200)), i FROM n;"_qs));
        store->checkpoint();
    }

    void expectWholeCopies(int count) {
        for (int number = 0; number < count; ++number) {
            const QString path = inFolder(u"copy.db"_qs);
            ASSERT_EQ(store->copyTo(path), std::nullopt);
            ASSERT_EQ(judged(path), u"ok 5000"_qs);
            ASSERT_EQ(testing::DatabaseFile(path).number(
                          u"SELECT COUNT(DISTINCT title) FROM notifications"_qs),
                      1);
        }
    }
};

TEST_F(HoardCopyAmongWriters, IsWholeWhileThisProcessWrites) {
    fillHoard();
    std::atomic<bool> goesOn = true;
    std::thread writer([&] { rewrite(hoardPath(), goesOn); });
    expectWholeCopies(10);
    goesOn = false;
    writer.join();
}

TEST_F(HoardCopyAmongWriters, IsWholeWhileAnotherProcessWrites) {
    fillHoard();
    store.reset();
    const QString path = hoardPath();
    const pid_t writer = fork();
    if (writer == 0) {
        const std::atomic<bool> forEver = true;
        rewrite(path, forEver);
        _exit(1);
    }
    start();
    expectWholeCopies(10);
    ::kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
}

TEST_F(HoardCopyAmongWriters, KeepsNobodyFromMovingTheLogAfterwards) {
    fillHoard();
    ASSERT_EQ(store->copyTo(inFolder(u"copy.db"_qs)), std::nullopt);
    add(1, 7);
    store->checkpoint();
    ASSERT_EQ(store->copyTo(inFolder(u"copy.db"_qs)), std::nullopt);
    EXPECT_EQ(judged(inFolder(u"copy.db"_qs)), u"ok 5007"_qs);
}

} // namespace
} // namespace tessarine
