#include "store/Sqlite.h"

#include "support/HoardFile.h"
#include "support/Printers.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

class SqliteStatementTest : public ::testing::Test {
protected:
    SqliteConnection connection{u":memory:"_qs, SqliteConnection::Mode::ownFile};
};

TEST_F(SqliteStatementTest, IsNotReadyAfterATextThatIsNoStatement) {
    SqliteStatement statement(connection, "SELEKT 1");
    EXPECT_FALSE(statement.isReady());
    EXPECT_FALSE(statement.stepsToRow());
    EXPECT_FALSE(statement.stepsToDone());
}

TEST(SqliteStatementOnAClosedConnection, IsNotReady) {
    const QTemporaryDir folder;
    const SqliteConnection closed(folder.path(), SqliteConnection::Mode::ownFile);
    ASSERT_FALSE(closed.isOpen());
    SqliteStatement statement(closed, "SELECT name FROM sqlite_master");
    EXPECT_FALSE(statement.isReady());
    EXPECT_FALSE(statement.stepsToRow());
}

TEST_F(SqliteStatementTest, RunsAgainAfterAReset) {
    SqliteStatement statement(connection, "SELECT ? + 1");
    statement.bindInt32(1, 1);
    ASSERT_TRUE(statement.stepsToRow());
    statement.reset();
    statement.bindInt32(1, 5);
    ASSERT_TRUE(statement.stepsToRow());
    EXPECT_EQ(statement.int32(0), 6);
}

TEST_F(SqliteStatementTest, TellsAnEndFromAnError) {
    SqliteStatement ending(connection, "SELECT 1");
    ASSERT_TRUE(ending.stepsToRow());
    EXPECT_FALSE(ending.isAtEnd());
    ASSERT_FALSE(ending.stepsToRow());
    EXPECT_TRUE(ending.isAtEnd());
    SqliteStatement failing(connection, "SELECT abs(-9223372036854775808)");
    ASSERT_TRUE(failing.isReady());
    ASSERT_FALSE(failing.stepsToRow());
    EXPECT_FALSE(failing.isAtEnd());
}

TEST_F(SqliteStatementTest, GivesItsRowsAndEnds) {
    SqliteStatement statement(connection, "VALUES (1), (2)");
    ASSERT_TRUE(statement.isReady());
    ASSERT_TRUE(statement.stepsToRow());
    EXPECT_EQ(statement.int32(0), 1);
    ASSERT_TRUE(statement.stepsToRow());
    EXPECT_EQ(statement.int32(0), 2);
    EXPECT_FALSE(statement.stepsToRow());
}

TEST_F(SqliteStatementTest, IsNotDoneWhereARowComes) {
    SqliteStatement statement(connection, "SELECT 1");
    EXPECT_FALSE(statement.stepsToDone());
    EXPECT_TRUE(statement.stepsToDone());
}

TEST_F(SqliteStatementTest, GivesEachTypeOfColumn) {
    SqliteStatement statement(connection, "SELECT 7, 5000000000, 2.5, 'té', NULL, x'00FF00'");
    ASSERT_TRUE(statement.stepsToRow());
    EXPECT_EQ(statement.int32(0), 7);
    EXPECT_EQ(statement.int64(1), Q_INT64_C(5000000000));
    EXPECT_EQ(statement.real(2), 2.5);
    EXPECT_EQ(statement.text(3), u"té"_qs);
    EXPECT_TRUE(statement.isNull(4));
    EXPECT_FALSE(statement.isNull(3));
    EXPECT_EQ(statement.blob(5).toByteArray(), QByteArray("\0\xFF\0", 3));
}

TEST_F(SqliteStatementTest, ReadsNullAsZeroAndAsTheEmptyText) {
    SqliteStatement statement(connection, "SELECT NULL");
    ASSERT_TRUE(statement.stepsToRow());
    EXPECT_EQ(statement.int32(0), 0);
    EXPECT_EQ(statement.int64(0), 0);
    EXPECT_EQ(statement.real(0), 0.0);
    EXPECT_EQ(statement.text(0), QString());
    EXPECT_TRUE(statement.blob(0).isEmpty());
}

TEST_F(SqliteStatementTest, BindsEachType) {
    SqliteStatement statement(connection, "SELECT ?, ?, ?, ?, typeof(?1), typeof(?2)");
    statement.bindInt32(1, -5);
    statement.bind(2, QByteArray("text"));
    statement.bind(3, 0.25);
    statement.bindInt64(4, Q_INT64_C(-5000000000));
    ASSERT_TRUE(statement.stepsToRow());
    EXPECT_EQ(statement.int32(0), -5);
    EXPECT_EQ(statement.text(1), u"text"_qs);
    EXPECT_EQ(statement.real(2), 0.25);
    EXPECT_EQ(statement.int64(3), Q_INT64_C(-5000000000));
    EXPECT_EQ(statement.text(4), u"integer"_qs);
    EXPECT_EQ(statement.text(5), u"text"_qs);
}

TEST_F(SqliteStatementTest, BindsTextUpToItsFirstNulAndCopiesIt) {
    SqliteStatement statement(connection, "SELECT ?, length(?1)");
    QByteArray text("ab\0cd", 5);
    statement.bind(1, text);
    text.fill('x');
    ASSERT_TRUE(statement.stepsToRow());
    EXPECT_EQ(statement.text(0), u"ab"_qs);
    EXPECT_EQ(statement.int32(1), 2);
}

TEST_F(SqliteStatementTest, BindsTheEmptyTextAsTextAndNotAsNull) {
    SqliteStatement statement(connection, "SELECT typeof(?)");
    statement.bind(1, QByteArray());
    ASSERT_TRUE(statement.stepsToRow());
    EXPECT_EQ(statement.text(0), u"text"_qs);
}

TEST_F(SqliteStatementTest, ReadsTextBeyondANulThatIsStored) {
    SqliteStatement statement(connection, "SELECT CAST(x'610062' AS TEXT)");
    ASSERT_TRUE(statement.stepsToRow());
    EXPECT_EQ(statement.text(0), u"a"_qs + QChar(u'\0') + u"b"_qs);
}

TEST_F(SqliteStatementTest, TellsTheTypeThatIsStored) {
    SqliteStatement statement(connection, "SELECT 7, 2.5, 'a', x'00', NULL");
    ASSERT_TRUE(statement.stepsToRow());
    EXPECT_EQ(statement.type(0), SqliteType::integer);
    EXPECT_EQ(statement.type(1), SqliteType::real);
    EXPECT_EQ(statement.type(2), SqliteType::text);
    EXPECT_EQ(statement.type(3), SqliteType::blob);
    EXPECT_EQ(statement.type(4), SqliteType::null);
}

TEST_F(SqliteStatementTest, EndsWithAnErrorWhereTheInterruptTestSaysSo) {
    const char* const manySteps = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                                  "WHERE i < 100000) SELECT COUNT(*) FROM n";
    int calls = 0;
    connection.setInterruptTest(
        [](void* count) { return ++*static_cast<int*>(count) == 3 ? 1 : 0; }, &calls);
    SqliteStatement interrupted(connection, manySteps);
    EXPECT_FALSE(interrupted.stepsToRow());
    EXPECT_FALSE(interrupted.isAtEnd());
    EXPECT_EQ(calls, 3);
    connection.setInterruptTest(nullptr, nullptr);
    SqliteStatement whole(connection, manySteps);
    ASSERT_TRUE(whole.stepsToRow());
    EXPECT_EQ(whole.int32(0), 100000);
}

TEST(SqliteConnectionTest, TellsOfCommitsOfOtherConnectionsButNotOfItsOwn) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"db"_qs);
    const SqliteConnection connection(path, SqliteConnection::Mode::ownFile);
    ASSERT_TRUE(connection.execute("PRAGMA journal_mode=WAL; CREATE TABLE t(a)"));
    const int version = connection.dataVersion();
    ASSERT_GT(version, 0);
    ASSERT_TRUE(connection.execute("INSERT INTO t VALUES (1)"));
    EXPECT_EQ(connection.dataVersion(), version);
    ASSERT_TRUE(testing::DatabaseFile(path).run(u"INSERT INTO t VALUES (2)"_qs));
    EXPECT_NE(connection.dataVersion(), version);
}

TEST(SqliteConnectionTest, TellsALockFromOtherErrors) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"db"_qs);
    const SqliteConnection connection(path, SqliteConnection::Mode::ownFile);
    ASSERT_TRUE(connection.execute("PRAGMA journal_mode=WAL; CREATE TABLE t(a)"));
    const SqliteConnection other(path, SqliteConnection::Mode::ownFile);
    ASSERT_TRUE(other.execute("BEGIN IMMEDIATE"));
    EXPECT_FALSE(connection.execute("INSERT INTO t VALUES (1)"));
    EXPECT_TRUE(connection.wasLocked());
    EXPECT_FALSE(connection.execute("INSERT INTO nothing VALUES (1)"));
    EXPECT_FALSE(connection.wasLocked());
}

TEST(SqliteConnectionTest, CountsWhatTriggersChangeInTheTotalAlone) {
    const QTemporaryDir folder;
    const SqliteConnection connection(folder.filePath(u"db"_qs), SqliteConnection::Mode::ownFile);
    ASSERT_TRUE(connection.execute("CREATE TABLE t(a); CREATE TABLE log(a);"
                                   "CREATE TRIGGER r AFTER INSERT ON t BEGIN "
                                   "INSERT INTO log VALUES (new.a); END"));
    const int before = connection.totalChanges();
    ASSERT_TRUE(connection.execute("INSERT INTO t VALUES (8)"));
    EXPECT_EQ(connection.changes(), 1);
    EXPECT_EQ(connection.totalChanges() - before, 2);
    EXPECT_EQ(connection.lastInsertRowId(), 1);
}

TEST(SqliteConnectionTest, OfAForeignFileMakesNone) {
    const QTemporaryDir folder;
    const SqliteConnection reading(folder.filePath(u"db"_qs), SqliteConnection::Mode::foreignFile);
    EXPECT_FALSE(reading.isOpen());
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(u"db"_qs)));
}

TEST(SqliteConnectionTest, ReadsAFileUnderAnyName) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"dätä base"_qs);
    ASSERT_TRUE(testing::DatabaseFile(path).run(u"CREATE TABLE t(a); INSERT INTO t VALUES (3)"_qs));
    const SqliteConnection reading(path, SqliteConnection::Mode::foreignFile);
    ASSERT_TRUE(reading.isOpen());
    SqliteStatement statement(reading, "SELECT a FROM t");
    ASSERT_TRUE(statement.stepsToRow());
    EXPECT_EQ(statement.int32(0), 3);
}

} // namespace
} // namespace tessarine
