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
    SqliteStatementTest() { sqlite3_open(":memory:", &connection); }
    ~SqliteStatementTest() override { EXPECT_EQ(sqlite3_close(connection), SQLITE_OK); }

    sqlite3* connection = nullptr;
};

TEST_F(SqliteStatementTest, IsNotReadyAfterATextThatIsNoStatement) {
    SqliteStatement statement(connection, "SELEKT 1");
    EXPECT_FALSE(statement.isReady());
    EXPECT_FALSE(statement.stepsToRow());
    EXPECT_FALSE(statement.stepsToDone());
}

TEST_F(SqliteStatementTest, IsNotReadyWithoutAConnection) {
    SqliteStatement statement(nullptr, "SELECT 1");
    EXPECT_FALSE(statement.isReady());
    EXPECT_FALSE(statement.stepsToRow());
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

TEST(SqliteReadingTest, IsNotOpenWhereThereIsNoFileAndMakesNone) {
    const QTemporaryDir folder;
    const SqliteReading reading(folder.filePath(u"db"_qs));
    EXPECT_FALSE(reading.isOpen());
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(u"db"_qs)));
}

TEST(SqliteReadingTest, ReadsAFileUnderAnyName) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"dätä base"_qs);
    ASSERT_TRUE(testing::DatabaseFile(path).run(u"CREATE TABLE t(a); INSERT INTO t VALUES (3)"_qs));
    const SqliteReading reading(path);
    ASSERT_TRUE(reading.isOpen());
    SqliteStatement statement(reading.connection(), "SELECT a FROM t");
    ASSERT_TRUE(statement.stepsToRow());
    EXPECT_EQ(statement.int32(0), 3);
}

} // namespace
} // namespace tessarine
