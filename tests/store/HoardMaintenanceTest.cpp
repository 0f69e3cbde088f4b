#include "store/HoardFixture.h"
#include "store/SqlTrace.h"

#include <QFileInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

// How a test's failure shows a record.
namespace tessarine {
void PrintTo(const DistinctApp& app, std::ostream* out) {
    *out << app.bundleId.toStdString() << " as \"" << app.appName.toStdString() << '"';
}
} // namespace tessarine

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::SqlTrace;

class HoardMaintenance : public testing::HoardFixture {
protected:
    HoardMaintenance() { start(); }

    void add(const QString& bundleIdAndName) const {
        ASSERT_TRUE(
            file().run(u"INSERT INTO notifications (bundle_id, app_name) VALUES (%1)"_qs.arg(
                bundleIdAndName)));
    }

    qint64 sizeOfLog() const { return QFileInfo(hoardPath() + u"-wal"_qs).size(); }

    // The main file alone, as a copy of it would be read.
    qint64 rowsInACopyOfTheMainFile() const {
        const QString copy = home.filePath(u"copy.db"_qs);
        const QString command = u"cp '%1' '%2'"_qs.arg(hoardPath(), copy);
        EXPECT_EQ(std::system(command.toUtf8().constData()), 0);
        return testing::DatabaseFile(copy).number(u"SELECT COUNT(*) FROM notifications"_qs);
    }
};

// Applications

TEST_F(HoardMaintenance, AnEmptyHoardKnowsNoApplication) {
    EXPECT_THAT(store->distinctApps(), IsEmpty());
}

TEST_F(HoardMaintenance, KnowsEachApplicationOnceSortedByName) {
    add(u"'c.z', 'zebra'"_qs);
    add(u"'c.a', 'Apple'"_qs);
    add(u"'c.z', 'zebra'"_qs);
    add(u"'c.m', 'Mail'"_qs);
    add(u"'c.b', 'banana'"_qs);
    EXPECT_THAT(store->distinctApps(), ElementsAre(DistinctApp{u"c.a"_qs, u"Apple"_qs},
                                                   DistinctApp{u"c.b"_qs, u"banana"_qs},
                                                   DistinctApp{u"c.m"_qs, u"Mail"_qs},
                                                   DistinctApp{u"c.z"_qs, u"zebra"_qs}));
}

TEST_F(HoardMaintenance, KnowsAnApplicationUnderEachOfItsNames) {
    add(u"'c.a', 'New name'"_qs);
    add(u"'c.a', 'Former name'"_qs);
    EXPECT_THAT(store->distinctApps(), ElementsAre(DistinctApp{u"c.a"_qs, u"Former name"_qs},
                                                   DistinctApp{u"c.a"_qs, u"New name"_qs}));
}

TEST_F(HoardMaintenance, LeavesOutRowsWithoutAnApplicationsId) {
    add(u"NULL, 'Nobody'"_qs);
    add(u"'', 'Nobody either'"_qs);
    EXPECT_THAT(store->distinctApps(), IsEmpty());
}

TEST_F(HoardMaintenance, ReadsAMissingNameAsTheEmptyText) {
    add(u"'c.a', 'Apple'"_qs);
    add(u"'c.n', NULL"_qs);
    EXPECT_THAT(store->distinctApps(), ElementsAre(DistinctApp{u"c.n"_qs, QString()},
                                                   DistinctApp{u"c.a"_qs, u"Apple"_qs}));
}

// Integrity

TEST_F(HoardMaintenance, FindsAHealthyHoardOk) {
    store->insert(capture(1));
    EXPECT_EQ(store->integrityCheck(), u"ok"_qs);
}

TEST_F(HoardMaintenance, TellsEachFindingOnALineOfItsOwn) {
    for (const qint64 key : {1, 2})
        ASSERT_TRUE(store->insert(capture(key)));
    store->checkpoint();
    store.reset();
    // The index loses its rows: its root page is overwritten by that of an index that has none.
    ASSERT_TRUE(file().run(u"PRAGMA writable_schema = ON; CREATE INDEX empty ON "
                           "notifications(bundle_id) WHERE id < 0; UPDATE sqlite_master SET "
                           "rootpage = (SELECT rootpage FROM sqlite_master WHERE name = 'empty') "
                           "WHERE name = 'idx_bundle'; DELETE FROM sqlite_master WHERE name = "
                           "'empty';"_qs));
    QStringList findings;
    for (const QStringList& row : file().rows(u"PRAGMA integrity_check"_qs))
        findings.append(row.front());
    ASSERT_GE(findings.size(), 2);
    EXPECT_EQ(start().integrityCheck(), findings.join(u'\n'));
}

// Checkpoint

TEST_F(HoardMaintenance, TakesTheLogOverIntoTheMainFile) {
    store->checkpoint(); // the schema
    for (const qint64 key : {1, 2, 3})
        ASSERT_TRUE(store->insert(capture(key)));
    ASSERT_EQ(rowsInACopyOfTheMainFile(), 0);
    store->checkpoint();
    EXPECT_EQ(rowsInACopyOfTheMainFile(), 3);
    EXPECT_GT(sizeOfLog(), 0) << "the log is taken over, not cut";
}

TEST_F(HoardMaintenance, MeasuresWhatWasInTheLogAfterACheckpoint) {
    CapturedNotification large = capture(1);
    large.body = QString(100000, u'x');
    ASSERT_TRUE(store->insert(large));
    EXPECT_LT(store->stats().fileSizeBytes, 100000);
    store->checkpoint();
    EXPECT_GT(store->stats().fileSizeBytes, 100000);
}

TEST_F(HoardMaintenance, RunsTheseStatements) {
    store.reset();
    SqlTrace trace;
    start();
    trace.taken();
    store->distinctApps();
    store->integrityCheck();
    store->checkpoint();
    EXPECT_THAT(trace.taken(),
                ElementsAre(u"SELECT DISTINCT bundle_id, app_name\n"
                            "FROM notifications\n"
                            "WHERE bundle_id IS NOT NULL AND bundle_id != ''\n"
                            "ORDER BY app_name COLLATE NOCASE ASC;"_qs,
                            u"PRAGMA integrity_check;"_qs, u"PRAGMA wal_checkpoint(FULL);"_qs));
}

} // namespace
} // namespace tessarine
