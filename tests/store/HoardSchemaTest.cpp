#include "store/HoardFixture.h"
#include "store/SqlTrace.h"

#include <QFileInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using testing::SqlTrace;

class HoardSchema : public testing::HoardFixture {
protected:
    QString schemaOf(const QString& name) const {
        const auto rows =
            file().rows(u"SELECT sql FROM sqlite_master WHERE name = '%1'"_qs.arg(name));
        return rows.empty() ? QString() : rows.front().front();
    }

    // As hoards were before rows could be pinned.
    void makeOldHoard() const {
        ASSERT_TRUE(QDir().mkpath(folder()));
        ASSERT_TRUE(file().run(u"CREATE TABLE notifications ("
                               "id INTEGER PRIMARY KEY AUTOINCREMENT, "
                               "system_note_id INTEGER UNIQUE, bundle_id TEXT, app_name TEXT, "
                               "title TEXT, body TEXT, timestamp REAL, "
                               "captured_at REAL DEFAULT (strftime('%s','now')));"
                               "INSERT INTO notifications (system_note_id, title, timestamp) "
                               "VALUES (5, 'old', 600000000.5), (6, 'older', 500000000.0);"_qs));
    }

    int mode(const QString& path) const {
        struct stat status {};
        return stat(QFile::encodeName(path).constData(), &status) == 0
                   ? static_cast<int>(status.st_mode & 07777)
                   : -1;
    }
};

TEST_F(HoardSchema, LiesInTheFolderForApplicationData) {
    EXPECT_EQ(start().path(), hoardPath());
    EXPECT_TRUE(QFileInfo(hoardPath()).isFile());
}

TEST_F(HoardSchema, MakesTheFolderWithAllAboveIt) {
    ASSERT_FALSE(QFileInfo::exists(home.filePath(u"Library"_qs)));
    start();
    EXPECT_TRUE(QFileInfo(folder()).isDir());
}

TEST_F(HoardSchema, HasTheTable) {
    start();
    EXPECT_EQ(schemaOf(u"notifications"_qs),
              u"CREATE TABLE notifications (\n"
              "    id             INTEGER PRIMARY KEY AUTOINCREMENT,\n"
              "    system_note_id INTEGER UNIQUE,\n"
              "    bundle_id      TEXT,\n"
              "    app_name       TEXT,\n"
              "    title          TEXT,\n"
              "    body           TEXT,\n"
              "    timestamp      REAL,\n"
              "    captured_at    REAL DEFAULT (strftime('%s','now')),\n"
              "    pinned         INTEGER NOT NULL DEFAULT 0\n"
              ")"_qs);
}

TEST_F(HoardSchema, HasTheTwoIndexes) {
    start();
    EXPECT_EQ(schemaOf(u"idx_timestamp"_qs),
              u"CREATE INDEX idx_timestamp ON notifications(timestamp DESC)"_qs);
    EXPECT_EQ(schemaOf(u"idx_bundle"_qs),
              u"CREATE INDEX idx_bundle ON notifications(bundle_id)"_qs);
}

TEST_F(HoardSchema, HasNothingElse) {
    start();
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM sqlite_master "
                            "WHERE name NOT LIKE 'sqlite_%'"_qs),
              3);
    EXPECT_EQ(file().number(u"PRAGMA user_version"_qs), 0);
}

TEST_F(HoardSchema, KeepsAWriteAheadLog) {
    start();
    EXPECT_THAT(file().rows(u"PRAGMA journal_mode"_qs).front(), ElementsAre(u"wal"_qs));
}

TEST_F(HoardSchema, IsReadableForItsOwnerAlone) {
    const mode_t before = umask(022);
    start();
    umask(before);
    EXPECT_EQ(mode(hoardPath()), 0600);
}

TEST_F(HoardSchema, TakesBackTheModeAtEachStart) {
    start();
    ASSERT_EQ(chmod(QFile::encodeName(hoardPath()).constData(), 0644), 0);
    store.reset();
    start();
    EXPECT_EQ(mode(hoardPath()), 0600);
}

TEST_F(HoardSchema, LeavesTheModeOfTheFolderToTheSystem) {
    const mode_t before = umask(022);
    start();
    umask(before);
    EXPECT_EQ(mode(folder()), 0755);
}

TEST_F(HoardSchema, IsOpenedForWritingWithFullMutex) {
    SqlTrace trace;
    start();
    ASSERT_NE(trace.connection(), nullptr);
    EXPECT_NE(sqlite3_db_mutex(trace.connection()), nullptr);
    EXPECT_EQ(sqlite3_db_readonly(trace.connection(), "main"), 0);
}

// The statements of a start, in their order and to the letter

TEST_F(HoardSchema, RunsTheseStatementsAtTheFirstStart) {
    SqlTrace trace;
    start();
    const QStringList texts = trace.taken();
    ASSERT_EQ(texts.size(), 6);
    EXPECT_EQ(texts[0], u"PRAGMA journal_mode=WAL;"_qs);
    EXPECT_EQ(texts.mid(1, 3).join(u'\n'),
              u"CREATE TABLE IF NOT EXISTS notifications (\n"
              "    id             INTEGER PRIMARY KEY AUTOINCREMENT,\n"
              "    system_note_id INTEGER UNIQUE,\n"
              "    bundle_id      TEXT,\n"
              "    app_name       TEXT,\n"
              "    title          TEXT,\n"
              "    body           TEXT,\n"
              "    timestamp      REAL,\n"
              "    captured_at    REAL DEFAULT (strftime('%s','now')),\n"
              "    pinned         INTEGER NOT NULL DEFAULT 0\n"
              ");\n"
              "CREATE INDEX IF NOT EXISTS idx_timestamp ON notifications(timestamp DESC);\n"
              "CREATE INDEX IF NOT EXISTS idx_bundle ON notifications(bundle_id);"_qs);
    EXPECT_EQ(texts[4], u"PRAGMA optimize;"_qs);
    EXPECT_EQ(texts[5], u"PRAGMA table_info(notifications);"_qs);
}

TEST_F(HoardSchema, AddsThePinnedColumnByThisStatement) {
    makeOldHoard();
    SqlTrace trace;
    start();
    const QStringList texts = trace.taken();
    ASSERT_GE(texts.size(), 2);
    EXPECT_EQ(texts.at(texts.indexOf(u"PRAGMA table_info(notifications);"_qs) + 1),
              u"ALTER TABLE notifications ADD COLUMN pinned INTEGER NOT NULL DEFAULT 0;"_qs);
}

TEST_F(HoardSchema, KeepsNoStatementBetweenItsOperations) {
    SqlTrace trace;
    start();
    EXPECT_EQ(sqlite3_next_stmt(trace.connection(), nullptr), nullptr);
    store->insert(capture(1));
    store->insert(capture(1));
    store->insertDeduplicated(capture(0));
    store->fetchRecent(1);
    store->totalCount();
    store->maxSystemNoteId();
    store->stats();
    EXPECT_EQ(sqlite3_next_stmt(trace.connection(), nullptr), nullptr);
    EXPECT_NE(sqlite3_get_autocommit(trace.connection()), 0);
}

// Migration

TEST_F(HoardSchema, GivesAnOldHoardThePinnedColumnWithZeroInEveryRow) {
    makeOldHoard();
    start();
    EXPECT_THAT(file().rows(u"SELECT system_note_id, title, timestamp, pinned "
                            "FROM notifications ORDER BY id"_qs),
                ElementsAre(QStringList{u"5"_qs, u"old"_qs, u"600000000.5"_qs, u"0"_qs},
                            QStringList{u"6"_qs, u"older"_qs, u"500000000.0"_qs, u"0"_qs}));
}

TEST_F(HoardSchema, GivesAnOldHoardItsIndexes) {
    makeOldHoard();
    start();
    EXPECT_FALSE(schemaOf(u"idx_timestamp"_qs).isEmpty());
    EXPECT_FALSE(schemaOf(u"idx_bundle"_qs).isEmpty());
}

TEST_F(HoardSchema, IsWritableAfterItsMigration) {
    makeOldHoard();
    start();
    EXPECT_TRUE(store->insert(capture(7)));
    EXPECT_FALSE(store->insert(capture(5)));
    EXPECT_EQ(store->fetchRecent(10).size(), 3U);
}

TEST_F(HoardSchema, ChangesNothingAtTheSecondStart) {
    makeOldHoard();
    start();
    store.reset();
    const auto before = file().rows(u"SELECT * FROM notifications ORDER BY id"_qs);
    const QString table = schemaOf(u"notifications"_qs);
    const qint64 version = file().number(u"PRAGMA schema_version"_qs);
    SqlTrace trace;
    start();
    trace.listenToNoFurtherConnection();
    EXPECT_THAT(trace.taken(), Not(Contains(::testing::Truly([](const QString& text) {
                    return text.startsWith(u"ALTER"_qs);
                }))));
    EXPECT_EQ(file().rows(u"SELECT * FROM notifications ORDER BY id"_qs), before);
    EXPECT_EQ(schemaOf(u"notifications"_qs), table);
    EXPECT_EQ(file().number(u"PRAGMA schema_version"_qs), version);
}

TEST_F(HoardSchema, KeepsPinsOverAStart) {
    start();
    store->insert(capture(1));
    ASSERT_TRUE(file().run(u"UPDATE notifications SET pinned = 1"_qs));
    store.reset();
    start();
    EXPECT_TRUE(store->fetchRecent(1).front().pinned);
}

TEST_F(HoardSchema, KeepsItsRowsOverAStart) {
    start();
    store->insert(capture(1));
    store.reset();
    EXPECT_EQ(start().totalCount(), 1);
}

TEST_F(HoardSchema, NeverGivesTheIdOfADeletedRowAgain) {
    start();
    store->insert(capture(1));
    store->insert(capture(2));
    ASSERT_TRUE(file().run(u"DELETE FROM notifications"_qs));
    store->insert(capture(3));
    EXPECT_EQ(file().number(u"SELECT id FROM notifications"_qs), 3);
}

TEST_F(HoardSchema, HoldsWhatAnUncleanEndLeftInTheLog) {
    start();
    store->insert(capture(1));
    // As after a crash: the files as they lie, with the log not taken over.
    const QString copy = home.filePath(u"crashed/Library/Application Support/Tessarine"_qs);
    ASSERT_TRUE(QDir().mkpath(copy));
    ASSERT_EQ(std::system(("cp '" + folder().toStdString() + "/hoard.db' '" +
                           folder().toStdString() + "/hoard.db-wal' '" + copy.toStdString() + "/'")
                              .c_str()),
              0);
    const testing::SimulatedFileSystem crashed(home.filePath(u"crashed"_qs));
    HoardStore recovered(crashed, defaults, scheduler);
    EXPECT_EQ(recovered.totalCount(), 1);
}

// Without a folder for application data there is nothing to run on.

class NoFolders : public testing::SimulatedFileSystem {
public:
    using SimulatedFileSystem::SimulatedFileSystem;
    QStringList applicationSupportDirectories() const override { return {}; }
};

class TwoFolders : public testing::SimulatedFileSystem {
public:
    using SimulatedFileSystem::SimulatedFileSystem;
    QStringList applicationSupportDirectories() const override {
        return {home() + QStringLiteral("/first"), home() + QStringLiteral("/second")};
    }
};

TEST(HoardPlaceDeathTest, EndsTheProcessWhereTheSystemNamesNoFolder) {
    testing::SimulatedDefaults defaults;
    const testing::ManualScheduler clock;
    const NoFolders fileSystem{QString()};
    EXPECT_DEATH(HoardStore(fileSystem, defaults, clock), "no folder for application data");
}

TEST(HoardPlace, IsTheFirstFolderThatTheSystemNames) {
    const QTemporaryDir home;
    testing::SimulatedDefaults defaults;
    const testing::ManualScheduler clock;
    const TwoFolders fileSystem(home.path());
    const HoardStore store(fileSystem, defaults, clock);
    EXPECT_EQ(store.path(), home.path() + u"/first/Tessarine/hoard.db"_qs);
    EXPECT_FALSE(QFileInfo::exists(home.filePath(u"second"_qs)));
}

TEST(HoardPlace, MayHoldBlanksAndLettersOfAnyScript) {
    const QTemporaryDir home;
    testing::SimulatedDefaults defaults;
    const testing::ManualScheduler clock;
    const testing::SimulatedFileSystem fileSystem(home.filePath(u"Ünïcödé 漢字 %41 ' x"_qs));
    HoardStore store(fileSystem, defaults, clock);
    store.open();
    EXPECT_TRUE(QFileInfo(store.path()).isFile());
    EXPECT_EQ(store.stats().fileSizeBytes, QFileInfo(store.path()).size());
}

} // namespace
} // namespace tessarine
