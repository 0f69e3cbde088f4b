#include "store/HoardFixture.h"
#include "support/OrdinaryUser.h"

#include <QFileInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/mount.h>
#include <sys/stat.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::asOrdinaryUser;
using ::testing::IsEmpty;

// The program runs on without its hoard. What each operation then answers, in one line: nothing
// but that line may come of a hoard that can't be used.
const QString nothingAtAll = u"insert 0 banner 0 rows 0 total 0 max 0 cursors 0 0 stats 0 "
                             "apps 0 deleted 0 0 check Failed to prepare integrity_check"_qs;

// A file that is empty is sound, though nothing can be done with it.
const QString nothingButSound =
    u"insert 0 banner 0 rows 0 total 0 max 0 cursors 0 0 stats 0 apps 0 deleted 0 0 check ok"_qs;

QString answers(HoardStore& store, const CapturedNotification& notification) {
    const HoardStats stats = store.stats();
    const QString reading =
        u"insert %1 banner %2 rows %3 total %4 max %5 cursors %6 %7 stats %8"_qs
            .arg(store.insert(notification))
            .arg(store.insertDeduplicated(notification))
            .arg(store.fetchRecent(500).size())
            .arg(store.totalCount())
            .arg(store.maxSystemNoteId())
            .arg(store.lastSeenUsernotedRecId())
            .arg(store.lastSeenSystemNoteId())
            .arg(stats.totalCount + stats.pinnedCount + stats.distinctAppsCount +
                 (stats.firstTimestamp || stats.lastTimestamp ? 1 : 0));
    const QString maintenance =
        u" apps %1 deleted %2 %3 check %4"_qs.arg(store.distinctApps().size())
            .arg(store.deleteOlderThan(100000))
            .arg(store.deleteOtpOlderThan(1000000))
            .arg(store.integrityCheck());
    store.togglePin(-1);
    store.deleteNotification(-1);
    store.deleteApp(u"Nobody"_qs);
    store.deleteDay(u"1900-01-01"_qs);
    store.deleteAll();
    store.checkpoint();
    return reading + maintenance;
}

class HoardStartFailure : public testing::HoardFixture {
protected:
    QString answersOfAStart() { return answers(start(), capture(1)); }

    // Starts and asks as a user to whom the modes of the home folder apply.
    QString answersToAnOrdinaryUser(mode_t modeOfHome = 0755) {
        EXPECT_EQ(chmod(QFile::encodeName(home.path()).constData(), modeOfHome), 0);
        return asOrdinaryUser([this] {
            HoardStore unprivileged(fileSystem, defaults, scheduler);
            return answers(unprivileged, capture(1));
        });
    }

    void makeParentFolder() const { ASSERT_TRUE(QDir().mkpath(QFileInfo(folder()).path())); }
};

TEST_F(HoardStartFailure, IsSilentWhereAFileLiesInThePlaceOfTheFolder) {
    makeParentFolder();
    writeFile(folder(), "in the way");
    EXPECT_EQ(answersOfAStart(), nothingAtAll);
    EXPECT_EQ(readFile(folder()), "in the way");
}

TEST_F(HoardStartFailure, IsSilentWhereAFileLiesInThePlaceOfAFolderAbove) {
    writeFile(home.filePath(u"Library"_qs), "in the way");
    EXPECT_EQ(answersOfAStart(), nothingAtAll);
}

TEST_F(HoardStartFailure, IsSilentWhereTheHoardIsAFolder) {
    ASSERT_TRUE(QDir().mkpath(hoardPath()));
    const QFile::Permissions before = QFileInfo(hoardPath()).permissions();
    EXPECT_EQ(answersOfAStart(), nothingAtAll);
    EXPECT_TRUE(QFileInfo(hoardPath()).isDir());
    EXPECT_EQ(QFileInfo(hoardPath()).permissions(), before) << "a failed opening sets no mode";
}

TEST_F(HoardStartFailure, LeavesAHoardThatIsNoDatabaseAsItIs) {
    ASSERT_TRUE(QDir().mkpath(folder()));
    const QByteArray garbage = QByteArray("This is no database. ").repeated(400);
    writeFile(hoardPath(), garbage);
    EXPECT_EQ(answersOfAStart(), nothingAtAll);
    store.reset();
    EXPECT_EQ(readFile(hoardPath()), garbage);
}

TEST_F(HoardStartFailure, MeasuresAHoardThatIsNoDatabase) {
    ASSERT_TRUE(QDir().mkpath(folder()));
    writeFile(hoardPath(), QByteArray(5000, 'x'));
    EXPECT_EQ(start().stats().fileSizeBytes, 5000);
}

TEST_F(HoardStartFailure, LeavesADatabaseOfWhichOnlyTheHeaderIsLeftAsItIs) {
    start();
    store->insert(capture(1));
    store.reset();
    const QByteArray header = readFile(hoardPath()).left(100);
    const QByteArray broken = header + QByteArray(8092, '\xFF');
    writeFile(hoardPath(), broken);
    EXPECT_EQ(answersOfAStart(), nothingAtAll);
    store.reset();
    EXPECT_EQ(readFile(hoardPath()), broken);
}

TEST_F(HoardStartFailure, TakesAnEmptyFileForANewHoard) {
    ASSERT_TRUE(QDir().mkpath(folder()));
    writeFile(hoardPath(), QByteArray());
    EXPECT_TRUE(start().insert(capture(1)));
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications"_qs), 1);
}

TEST_F(HoardStartFailure, IsSilentWhereTheFolderMayNotBeMade) {
    makeParentFolder();
    ASSERT_EQ(chmod(QFile::encodeName(QFileInfo(folder()).path()).constData(), 0555), 0);
    EXPECT_EQ(answersToAnOrdinaryUser(), nothingAtAll);
    EXPECT_FALSE(QFileInfo::exists(folder()));
}

TEST_F(HoardStartFailure, IsSilentWhereTheFolderMayNotBeWritten) {
    ASSERT_TRUE(QDir().mkpath(folder()));
    ASSERT_EQ(chmod(QFile::encodeName(folder()).constData(), 0555), 0);
    EXPECT_EQ(answersToAnOrdinaryUser(), nothingAtAll);
    EXPECT_THAT(QDir(folder()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), IsEmpty());
    chmod(QFile::encodeName(folder()).constData(), 0755);
}

TEST_F(HoardStartFailure, IsSilentWhereTheFolderMayNotBeEntered) {
    start();
    store->insert(capture(1));
    store.reset();
    ASSERT_EQ(chmod(QFile::encodeName(folder()).constData(), 0000), 0);
    EXPECT_EQ(answersToAnOrdinaryUser(), nothingAtAll);
    chmod(QFile::encodeName(folder()).constData(), 0755);
}

TEST_F(HoardStartFailure, IsSilentWhereTheHoardMayNotBeRead) {
    start();
    store->insert(capture(1));
    store.reset();
    ASSERT_EQ(chmod(QFile::encodeName(hoardPath()).constData(), 0000), 0);
    const QByteArray before = readFile(hoardPath()); // empty for whom the mode applies
    ASSERT_EQ(chmod(QFile::encodeName(folder()).constData(), 0555), 0);
    EXPECT_EQ(answersToAnOrdinaryUser(), nothingAtAll);
    EXPECT_EQ(readFile(hoardPath()), before);
    chmod(QFile::encodeName(folder()).constData(), 0755);
}

TEST_F(HoardStartFailure, WorksForAnOrdinaryUserInAFolderOfTheirOwn) {
    EXPECT_EQ(answersToAnOrdinaryUser(0777),
              u"insert 1 banner 0 rows 1 total 1 max 1 cursors 1 1 stats 0 apps 1 "
              "deleted 0 0 check ok"_qs);
}

// A disk that is full: a file system of 128 kB of the test's own.

class FullDisk : public HoardStartFailure {
protected:
    void SetUp() override {
        place_ = QFile::encodeName(home.path());
        if (mount("tmpfs", place_.constData(), "tmpfs", 0, "size=128k,mode=0755") != 0)
            GTEST_SKIP() << "mounting a small file system needs root";
        mounted_ = true;
    }

    void TearDown() override {
        store.reset();
        if (mounted_)
            umount2(place_.constData(), MNT_DETACH);
    }

    // Takes what is left, down to this many bytes.
    void fill(qint64 leaving = 0) const {
        QFile filler(home.filePath(u"filler"_qs));
        ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(1024, 'x')) == 1024) {
        }
        filler.resize(filler.size() - leaving);
    }

private:
    QByteArray place_;
    bool mounted_ = false;
};

TEST_F(FullDisk, IsSilentAtTheFirstStart) {
    ASSERT_TRUE(QDir().mkpath(folder()));
    fill();
    EXPECT_EQ(answersOfAStart(), nothingButSound);
}

TEST_F(FullDisk, AnswersFalseAndKeepsWhatIsThere) {
    start();
    ASSERT_TRUE(store->insert(capture(1)));
    fill();
    CapturedNotification large = capture(2, 600000000.0);
    large.body = QString(50000, u'x');
    EXPECT_FALSE(store->insert(large));
    EXPECT_FALSE(store->insertDeduplicated(large));
    EXPECT_EQ(store->totalCount(), 1);
    EXPECT_EQ(store->fetchRecent(10).at(0).noteId, 1);
}

TEST_F(FullDisk, StoresAgainWhenThereIsSpace) {
    start();
    fill();
    CapturedNotification large = capture(2);
    large.body = QString(20000, u'x');
    ASSERT_FALSE(store->insert(large));
    ASSERT_TRUE(QFile::remove(home.filePath(u"filler"_qs)));
    EXPECT_TRUE(store->insert(large));
    EXPECT_EQ(file().number(u"SELECT length(body) FROM notifications"_qs), 20000);
}

} // namespace
} // namespace tessarine
