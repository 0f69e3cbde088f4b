#include "capture/UsernotedDatabase.h"

#include "store/Sqlite.h"
#include "support/HoardFile.h"
#include "support/PropertyListWriter.h"
#include "support/SystemDatabases.h"
#include "support/SystemPayloads.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <limits>

namespace tessarine {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::UsernotedContent;
using testing::UsernotedForm;
using namespace Qt::StringLiterals;

constexpr double recordTime = 785000000.0;

QByteArray payload(const QString& title) {
    return *testing::usernotedPayload(UsernotedForm::RequestTitle, {.title = title});
}

class UsernotedReadingTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(writer_.createTables()) << writer_.lastError().toStdString();
    }

    void add(qint64 recId, const QString& title, const testing::ColumnValue& date) {
        ASSERT_TRUE(
            writer_.append(recId, *writer_.appId(u"com.example.mail"_qs), payload(title), date))
            << writer_.lastError().toStdString();
    }

    UsernotedReading read(const UsernotedCursor& cursor = {}) {
        return readUsernotedDatabase(path_, cursor, DecoderVariant::poll, lastBundleComponent);
    }

    std::vector<QString> titles(const UsernotedReading& reading) {
        std::vector<QString> found;
        for (const CapturedNotification& record : reading.records)
            found.push_back(record.title);
        return found;
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(u"db"_qs);
    testing::UsernotedWriter writer_{path_};
};

TEST_F(UsernotedReadingTest, BuildsTheWholeRecord) {
    add(41, u"Hello"_qs, recordTime + 0.25);
    const UsernotedReading reading = read();
    ASSERT_EQ(reading.records.size(), 1U);
    const CapturedNotification& record = reading.records.front();
    EXPECT_EQ(record.dbId, 0);
    EXPECT_EQ(record.noteId, 41);
    EXPECT_EQ(record.appBundleId, u"com.example.mail"_qs);
    EXPECT_EQ(record.appName, u"mail"_qs);
    EXPECT_EQ(record.title, u"Hello"_qs);
    EXPECT_EQ(record.body, QString());
    EXPECT_EQ(record.timestamp, recordTime + 0.25);
    EXPECT_FALSE(record.pinned);
}

TEST_F(UsernotedReadingTest, ReadsTheWholeTableFromACursorOfZero) {
    add(1, u"old"_qs, 0.5);
    add(2, u"new"_qs, recordTime);
    EXPECT_THAT(titles(read()), ElementsAre(u"old"_qs, u"new"_qs));
}

TEST_F(UsernotedReadingTest, ReachesTwoSecondsBehindTheCursorAndNoFurther) {
    add(1, u"exactly two behind"_qs, recordTime - 2.0);
    add(2, u"a little less"_qs, recordTime - 1.999);
    EXPECT_THAT(titles(read({recordTime, {}})), ElementsAre(u"a little less"_qs));
}

TEST_F(UsernotedReadingTest, SkipsAtTheCursorDateOnlyTheKeysOfTheSet) {
    add(1, u"seen"_qs, recordTime);
    add(2, u"unseen"_qs, recordTime);
    const UsernotedReading reading = read({recordTime, {1}});
    EXPECT_THAT(titles(reading), ElementsAre(u"unseen"_qs));
    EXPECT_EQ(reading.newest.timestamp, recordTime);
    EXPECT_EQ(reading.newest.recIds, std::set<qint64>{2});
}

TEST_F(UsernotedReadingTest, TakesALateRowBehindTheCursorAndLeavesTheCursor) {
    add(9, u"late"_qs, recordTime - 1.0);
    const UsernotedReading reading = read({recordTime, {1}});
    EXPECT_THAT(titles(reading), ElementsAre(u"late"_qs));
    EXPECT_EQ(reading.newest.timestamp, recordTime);
    EXPECT_THAT(reading.newest.recIds, IsEmpty());
}

TEST_F(UsernotedReadingTest, CollectsTheKeysAtTheNewestDate) {
    add(1, u"a"_qs, recordTime + 1);
    add(2, u"b"_qs, recordTime + 2);
    add(3, u"c"_qs, recordTime + 2);
    const UsernotedReading reading = read({recordTime, {}});
    EXPECT_EQ(reading.newest.timestamp, recordTime + 2);
    EXPECT_EQ(reading.newest.recIds, (std::set<qint64>{2, 3}));
}

TEST_F(UsernotedReadingTest, MovesTheCursorByARowWithoutTexts) {
    ASSERT_TRUE(
        writer_.append(5, 1, testing::usernotedPayload(UsernotedForm::Broken, {}), recordTime + 3));
    const UsernotedReading reading = read({recordTime, {}});
    EXPECT_THAT(reading.records, IsEmpty());
    EXPECT_EQ(reading.newest.timestamp, recordTime + 3);
    EXPECT_EQ(reading.newest.recIds, std::set<qint64>{5});
}

TEST_F(UsernotedReadingTest, DropsANullPayload) {
    ASSERT_TRUE(writer_.append(5, 1, std::nullopt, recordTime));
    add(6, u"next"_qs, recordTime + 1);
    EXPECT_THAT(titles(read()), ElementsAre(u"next"_qs));
}

TEST_F(UsernotedReadingTest, NamesAnUnknownApplicationByItsNumber) {
    ASSERT_TRUE(writer_.append(5, 7, payload(u"Hello"_qs), recordTime));
    const UsernotedReading reading = read();
    ASSERT_EQ(reading.records.size(), 1U);
    EXPECT_EQ(reading.records.front().appBundleId, u"app_id_7"_qs);
    EXPECT_EQ(reading.records.front().appName, u"app_id_7"_qs);
}

TEST_F(UsernotedReadingTest, NamesAnApplicationWithANullIdentifierByItsNumber) {
    ASSERT_TRUE(testing::DatabaseFile(path_).run(u"INSERT INTO app VALUES(8, NULL)"_qs));
    ASSERT_TRUE(writer_.append(5, 8, payload(u"Hello"_qs), recordTime));
    EXPECT_EQ(read().records.front().appBundleId, u"app_id_8"_qs);
}

TEST_F(UsernotedReadingTest, LeavesTheLogToTheDaemonThatHoldsIt) {
    add(1, u"Hello"_qs, recordTime);
    read();
    EXPECT_TRUE(QFile::exists(path_ + u"-wal"_qs));
}

// Dates that no daemon should write

TEST_F(UsernotedReadingTest, NeverSeesANullDate) {
    add(1, u"null"_qs, testing::ColumnValue());
    EXPECT_THAT(read().records, IsEmpty());
}

TEST_F(UsernotedReadingTest, TakesATextDateAsZeroWithoutMovingTheCursor) {
    add(1, u"text"_qs, QStringLiteral("yesterday"));
    const UsernotedReading reading = read({recordTime, {}});
    ASSERT_EQ(reading.records.size(), 1U);
    EXPECT_EQ(reading.records.front().timestamp, 0.0);
    EXPECT_EQ(reading.newest.timestamp, recordTime);
}

TEST_F(UsernotedReadingTest, NeverSeesANegativeDate) {
    add(1, u"negative"_qs, -1.0);
    EXPECT_THAT(read().records, IsEmpty());
}

TEST_F(UsernotedReadingTest, TakesAnInfiniteDateWithoutMovingTheCursor) {
    add(1, u"real"_qs, recordTime + 1);
    add(2, u"endless"_qs, std::numeric_limits<double>::infinity());
    const UsernotedReading reading = read({recordTime, {}});
    EXPECT_THAT(titles(reading), ElementsAre(u"real"_qs, u"endless"_qs));
    EXPECT_EQ(reading.newest.timestamp, recordTime + 1);
    EXPECT_EQ(reading.newest.recIds, std::set<qint64>{1});
}

// Payloads that stop no other row

class BadPayloadRow : public UsernotedReadingTest,
                      public ::testing::WithParamInterface<UsernotedForm> {};

TEST_P(BadPayloadRow, IsPassedOver) {
    add(1, u"before"_qs, recordTime);
    ASSERT_TRUE(writer_.append(2, 1, testing::usernotedPayload(GetParam(), {}), recordTime + 1));
    add(3, u"after"_qs, recordTime + 2);
    EXPECT_THAT(titles(read()), ElementsAre(u"before"_qs, u"after"_qs));
}

INSTANTIATE_TEST_SUITE_P(Forms, BadPayloadRow,
                         ::testing::Values(UsernotedForm::RequestEmpty, UsernotedForm::OtherType,
                                           UsernotedForm::NotADictionary, UsernotedForm::Broken,
                                           UsernotedForm::ZeroBytes, UsernotedForm::Null));

TEST_F(UsernotedReadingTest, ReadsPayloadsStoredAsText) {
    ASSERT_TRUE(testing::DatabaseFile(path_).run(
        u"INSERT INTO record(rec_id, app_id, data, delivered_date) VALUES(1, 'mail', 'some text', 5)"_qs));
    add(2, u"after"_qs, recordTime);
    EXPECT_THAT(titles(read()), ElementsAre(u"after"_qs));
}

// Files that are no such database

class BadDatabase : public ::testing::Test {
protected:
    UsernotedReading read() {
        return readUsernotedDatabase(path_, {recordTime, {1}}, DecoderVariant::poll,
                                     lastBundleComponent);
    }
    void expectNothingRead() {
        const UsernotedReading reading = read();
        EXPECT_THAT(reading.records, IsEmpty());
        EXPECT_EQ(reading.newest.timestamp, recordTime);
        EXPECT_THAT(reading.newest.recIds, IsEmpty());
    }
    QByteArray contents() {
        QFile file(path_);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QByteArray& bytes) {
        QFile file(path_);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(u"db"_qs);
};

TEST_F(BadDatabase, ThatIsNotThereGivesNothingAndIsNotMade) {
    expectNothingRead();
    EXPECT_FALSE(QFile::exists(path_));
}

TEST_F(BadDatabase, ThatIsAFolderGivesNothing) {
    ASSERT_TRUE(QDir().mkpath(path_));
    expectNothingRead();
}

TEST_F(BadDatabase, ThatIsEmptyGivesNothing) {
    write({});
    expectNothingRead();
    EXPECT_TRUE(contents().isEmpty());
}

TEST_F(BadDatabase, OfEncryptedGarbageGivesNothingAndIsLeftAlone) {
    QByteArray garbage(65536, '\0');
    for (qsizetype i = 0; i < garbage.size(); ++i)
        garbage[i] = static_cast<char>((i * 7919 + 13) % 251);
    write(garbage);
    expectNothingRead();
    EXPECT_EQ(contents(), garbage);
}

// Rows come in the order of their dates, which SQLite knows only when it has seen them all: one
// that it can't read keeps the others back too.
class DamagedDatabase : public BadDatabase {
protected:
    static constexpr std::size_t rows = 2000;

    void SetUp() override {
        testing::UsernotedWriter writer(path_);
        ASSERT_TRUE(writer.createTables());
        ASSERT_TRUE(writer.begin());
        for (std::size_t i = 0; i < rows; ++i)
            ASSERT_TRUE(writer.append(qint64(i), 1, payload(u"Title"_qs), recordTime + double(i)));
        ASSERT_TRUE(writer.commit());
        writer.close();
        whole_ = contents();
        ASSERT_EQ(read().records.size(), rows);
    }

    QByteArray whole_;
};

TEST_F(DamagedDatabase, ThatIsCutOffGivesNothingUntilItIsWholeAgain) {
    write(whole_.left(whole_.size() / 3));
    expectNothingRead();
    write(whole_);
    EXPECT_EQ(read().records.size(), rows);
}

TEST_F(DamagedDatabase, InItsMiddleGivesNothingUntilItIsWholeAgain) {
    QByteArray damaged = whole_;
    damaged.replace(damaged.size() / 2, 8192, QByteArray(8192, '\xff'));
    write(damaged);
    expectNothingRead();
    write(whole_);
    EXPECT_EQ(read().records.size(), rows);
}

TEST_F(DamagedDatabase, InItsHeaderGivesNothing) {
    write(QByteArray(100, '\xff') + whole_.mid(100));
    expectNothingRead();
}

TEST_F(BadDatabase, WithoutTheTableOfRecordsGivesNothing) {
    ASSERT_TRUE(testing::DatabaseFile(path_).run(u"CREATE TABLE app(app_id, identifier)"_qs));
    expectNothingRead();
}

TEST_F(BadDatabase, WithoutTheTableOfApplicationsNamesThemByNumber) {
    testing::UsernotedWriter writer(path_);
    ASSERT_TRUE(writer.createTables());
    ASSERT_TRUE(writer.append(2, 3, payload(u"Hello"_qs), recordTime + 1));
    ASSERT_TRUE(testing::DatabaseFile(path_).run(u"DROP TABLE app"_qs));
    const UsernotedReading reading = read();
    ASSERT_EQ(reading.records.size(), 1U);
    EXPECT_EQ(reading.records.front().appBundleId, u"app_id_3"_qs);
}

// A number in a text is that number, and a text without one is 0.
TEST_F(BadDatabase, WithColumnsOfOtherTypesIsReadAsFarAsItGoes) {
    const QString data = u"X'"_qs + QString::fromLatin1(payload(u"Hello"_qs).toHex()) + u'\'';
    ASSERT_TRUE(testing::DatabaseFile(path_).run(
        u"CREATE TABLE app(app_id TEXT, identifier BLOB);"
        "CREATE TABLE record(rec_id TEXT, app_id TEXT, data TEXT, delivered_date TEXT);"
        "INSERT INTO app VALUES('7', CAST('com.example.mail' AS BLOB));"
        "INSERT INTO record VALUES('41', '7', %1, '785000100');"
        "INSERT INTO record VALUES('nine', 'seven', %1, '785000200.5');"
        "INSERT INTO record VALUES('43', '7', 'no payload', '785000300')"_qs.arg(data)));
    const UsernotedReading reading = read();
    ASSERT_EQ(reading.records.size(), 2U);
    EXPECT_EQ(reading.records[0].noteId, 41);
    EXPECT_EQ(reading.records[0].appBundleId, u"com.example.mail"_qs);
    EXPECT_EQ(reading.records[0].title, u"Hello"_qs);
    EXPECT_EQ(reading.records[0].timestamp, 785000100.0);
    EXPECT_EQ(reading.records[1].noteId, 0);
    EXPECT_EQ(reading.records[1].appBundleId, u"app_id_0"_qs);
    EXPECT_EQ(reading.records[1].timestamp, 785000200.5);
    EXPECT_EQ(reading.newest.timestamp, 785000300.0);
    EXPECT_EQ(reading.newest.recIds, std::set<qint64>{43});
}

TEST_F(BadDatabase, LockedByAnotherConnectionGivesNothingNow) {
    testing::UsernotedWriter writer(path_);
    ASSERT_TRUE(writer.createTables());
    ASSERT_TRUE(writer.append(2, 3, payload(u"Hello"_qs), recordTime + 1));
    writer.close();
    {
        const SqliteConnection locker(path_, SqliteConnection::Mode::ownFile);
        ASSERT_TRUE(locker.execute("PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE"));
        expectNothingRead();
    }
    EXPECT_EQ(read().records.size(), 1U);
}

} // namespace
} // namespace tessarine
