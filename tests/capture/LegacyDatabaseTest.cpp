#include "capture/LegacyDatabase.h"

#include "support/HoardFile.h"
#include "support/Printers.h"
#include "support/PropertyListWriter.h"
#include "support/SystemDatabases.h"
#include "support/SystemPayloads.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace tessarine {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::LegacyContent;
using ::testing::Pair;
using testing::PlistValue;
using namespace Qt::StringLiterals;

constexpr double base = 785000000.0;
constexpr double readingTime = base + 1000.5;

void makeFile(const QString& path, const QByteArray& bytes = {}) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

// Reading

class LegacyReadingTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(writer_.createTables()) << writer_.lastError().toStdString();
    }

    void add(qint64 noteId, const LegacyContent& content, qint64 appId = 1) {
        add(noteId, testing::legacyPayload(content), appId);
    }

    void add(qint64 noteId, const std::optional<QByteArray>& payload, qint64 appId = 1) {
        ASSERT_TRUE(writer_.append(noteId, appId, payload)) << writer_.lastError().toStdString();
    }

    LegacyAppNames names(NullBundleId onNull = NullBundleId::skipped) {
        return readLegacyAppNames(path_, onNull);
    }

    NotificationList read(qint64 lastNoteId = 0,
                          const LegacyAppNames& names = {{1, u"com.example.mail"_qs}}) {
        return readLegacyDatabase(
            path_, lastNoteId, names, readingTime,
            [](const QString& bundleId) { return u"name of "_qs + bundleId; });
    }

    std::vector<QString> titles(const NotificationList& records) {
        std::vector<QString> found;
        for (const CapturedNotification& record : records)
            found.push_back(record.title);
        return found;
    }

    void replaceFile(const QByteArray& bytes) {
        writer_.close();
        ASSERT_TRUE(QFile::remove(path_));
        makeFile(path_, bytes);
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(u"legacy.db"_qs);
    testing::LegacyWriter writer_{path_};
};

TEST_F(LegacyReadingTest, BuildsTheWholeRecord) {
    add(41, {u"Hello"_qs, u"World"_qs, base + 0.25});
    const NotificationList records = read();
    ASSERT_EQ(records.size(), 1U);
    const CapturedNotification& record = records.front();
    EXPECT_FALSE(record.id.isNull());
    EXPECT_EQ(record.dbId, 0);
    EXPECT_EQ(record.noteId, 41);
    EXPECT_EQ(record.appBundleId, u"com.example.mail"_qs);
    EXPECT_EQ(record.appName, u"name of com.example.mail"_qs);
    EXPECT_EQ(record.title, u"Hello"_qs);
    EXPECT_EQ(record.body, u"World"_qs);
    EXPECT_EQ(record.timestamp, base + 0.25);
    EXPECT_FALSE(record.pinned);
}

TEST_F(LegacyReadingTest, GoesByTheKeyWhateverTheDates) {
    add(30, {u"third"_qs, {}, base});
    add(10, {u"first"_qs, {}, base + 2});
    add(20, {u"second"_qs, {}, base + 1});
    EXPECT_THAT(titles(read()), ElementsAre(u"first"_qs, u"second"_qs, u"third"_qs));
}

TEST_F(LegacyReadingTest, TakesOnlyKeysAboveTheCursor) {
    add(10, {u"at the cursor"_qs, {}, base});
    add(11, {u"above"_qs, {}, base});
    EXPECT_THAT(titles(read(10)), ElementsAre(u"above"_qs));
}

TEST_F(LegacyReadingTest, FromACursorOfZeroLeavesNegativeKeys) {
    add(-1, {u"below"_qs, {}, base});
    add(1, {u"above"_qs, {}, base});
    EXPECT_THAT(titles(read()), ElementsAre(u"above"_qs));
}

TEST_F(LegacyReadingTest, ReadsKeysAsThirtyTwoBits) {
    add(2147483647, {u"edge"_qs, {}, base});
    add(4294967297, {u"beyond"_qs, {}, base});
    const NotificationList records = read();
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].noteId, 2147483647);
    EXPECT_EQ(records[1].noteId, 1);
}

TEST_F(LegacyReadingTest, SkipsANullPayload) {
    add(1, std::nullopt);
    add(2, {u"a"_qs, {}, base});
    EXPECT_THAT(titles(read()), ElementsAre(u"a"_qs));
}

TEST_F(LegacyReadingTest, AnUnknownApplicationIsNamedByItsNumber) {
    add(1, {u"a"_qs, {}, base}, 42);
    const NotificationList records = read();
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records.front().appBundleId, u"app_id_42"_qs);
    EXPECT_EQ(records.front().appName, u"name of app_id_42"_qs);
}

TEST_F(LegacyReadingTest, ANegativeApplicationNumberKeepsItsSign) {
    add(1, {u"a"_qs, {}, base}, -5);
    EXPECT_EQ(read().front().appBundleId, u"app_id_-5"_qs);
}

TEST_F(LegacyReadingTest, ReadsApplicationNumbersAsThirtyTwoBits) {
    add(1, {u"a"_qs, {}, base}, 4294967297);
    EXPECT_EQ(read().front().appBundleId, u"com.example.mail"_qs);
}

TEST_F(LegacyReadingTest, AMissingDateIsTheTimeOfTheReading) {
    add(1, {u"a"_qs, {}, std::nullopt});
    EXPECT_EQ(read().front().timestamp, readingTime);
}

TEST_F(LegacyReadingTest, ADatePastTheEndOfTheArchiveIsTheTimeOfTheReading) {
    add(1, testing::legacyPayload({u"a"_qs, u"b"_qs, base}, 5)); // the date is object 5
    EXPECT_EQ(read().front().timestamp, readingTime);
    EXPECT_EQ(read().front().body, u"b"_qs);
}

TEST_F(LegacyReadingTest, DatesBeforeTheReferenceAreTaken) {
    add(1, {u"a"_qs, {}, -1.5});
    EXPECT_EQ(read().front().timestamp, -1.5);
}

TEST_F(LegacyReadingTest, ATitleAloneOrABodyAloneMakesARecord) {
    add(1, {u"title"_qs, QString(), base});
    add(2, {QString(), u"body"_qs, base});
    const NotificationList records = read();
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].body, QString());
    EXPECT_EQ(records[1].title, QString());
    EXPECT_EQ(records[1].body, u"body"_qs);
}

TEST_F(LegacyReadingTest, NeitherTitleNorBodyMakesNone) {
    add(1, {QString(), QString(), base});
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(LegacyReadingTest, AReferencePastTheEndIsAnEmptyText) {
    add(1, testing::legacyPayload({u"title"_qs, u"body"_qs, base}, 3)); // the body is object 3
    const NotificationList records = read();
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records.front().title, u"title"_qs);
    EXPECT_EQ(records.front().body, QString());
}

TEST_F(LegacyReadingTest, BothReferencesPastTheEndMakeNoRecord) {
    add(1, testing::legacyPayload({u"title"_qs, u"body"_qs, base}, 2));
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(LegacyReadingTest, AnArchiveOfOneObjectMakesNoRecord) {
    add(1, testing::legacyPayload({u"title"_qs, u"body"_qs, base}, 1));
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(LegacyReadingTest, AnArchiveOfNoObjectsMakesNoRecord) {
    add(1, testing::legacyPayload({u"title"_qs, u"body"_qs, base}, 0));
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(LegacyReadingTest, TextsBeyondAsciiAreKept) {
    add(1, {u"Grüße 🎉"_qs, u"日本\n語"_qs, base});
    EXPECT_EQ(read().front().title, u"Grüße 🎉"_qs);
    EXPECT_EQ(read().front().body, u"日本\n語"_qs);
}

struct Payload {
    const char* name;
    QByteArray bytes;
};

void PrintTo(const Payload& payload, std::ostream* out) {
    *out << payload.name;
}

class UnusablePayload : public LegacyReadingTest, public ::testing::WithParamInterface<Payload> {};

TEST_P(UnusablePayload, IsSkipped) {
    add(1, GetParam().bytes);
    add(2, {u"good"_qs, {}, base});
    EXPECT_THAT(titles(read()), ElementsAre(u"good"_qs));
}

QByteArray archive(const PlistValue& objects) {
    return testing::writeBinaryPropertyList(PlistValue::dictionary({{u"$objects"_qs, objects}}));
}

const QByteArray wholePayload = testing::legacyPayload({u"title"_qs, u"body"_qs, base});

INSTANTIATE_TEST_SUITE_P(
    Bytes, UnusablePayload,
    ::testing::Values(
        Payload{"Empty", QByteArray("")}, Payload{"Text", "hello"},
        Payload{"CutShort", wholePayload.left(wholePayload.size() / 2)},
        Payload{"ARootThatIsNoDictionary",
                testing::writeBinaryPropertyList(PlistValue::string(u"title"_qs))},
        Payload{"NoObjects", testing::writeBinaryPropertyList(PlistValue::dictionary(
                                 {{u"NSTitle"_qs, PlistValue::string(u"title"_qs)}}))},
        Payload{"ObjectsThatAreNoArray", archive(PlistValue::string(u"title"_qs))},
        Payload{"ANotificationThatIsNoDictionary",
                archive(PlistValue::array({PlistValue::string(u"$null"_qs),
                                           PlistValue::string(u"title"_qs)}))},
        Payload{"TitlesUnderOtherKeys",
                archive(PlistValue::array(
                    {PlistValue::string(u"$null"_qs),
                     PlistValue::dictionary({{u"nstitle"_qs, PlistValue::uid(2)},
                                             {u"NSInformativeText"_qs, PlistValue::uid(2)}}),
                     PlistValue::string(u"title"_qs)}))},
        Payload{"ATitleThatIsNoText",
                archive(PlistValue::array({PlistValue::string(u"$null"_qs),
                                           PlistValue::dictionary({{u"NSTitle"_qs,
                                                                    PlistValue::uid(2)}}),
                                           PlistValue::integer(7)}))}),
    [](const ::testing::TestParamInfo<Payload>& info) { return std::string(info.param.name); });

TEST_F(LegacyReadingTest, ADateWithoutANumberIsTheTimeOfTheReading) {
    add(1, archive(PlistValue::array(
               {PlistValue::string(u"$null"_qs),
                PlistValue::dictionary({{u"NSTitle"_qs, PlistValue::uid(2)},
                                        {u"NSActualdeliverydate"_qs, PlistValue::uid(3)}}),
                PlistValue::string(u"a"_qs),
                PlistValue::dictionary({{u"NS.time"_qs, PlistValue::string(u"soon"_qs)}})})));
    ASSERT_EQ(read().size(), 1U);
    EXPECT_EQ(read().front().timestamp, readingTime);
}

// The cursor's range

TEST_F(LegacyReadingTest, TheGreatestCursorOfThirtyTwoBitsIsBound) {
    add(2147483647, {u"at the cursor"_qs, {}, base});
    EXPECT_THAT(read(2147483647), IsEmpty());
}

TEST_F(LegacyReadingTest, TheSmallestCursorOfThirtyTwoBitsIsBound) {
    add(-5, {u"a"_qs, {}, base});
    EXPECT_THAT(titles(read(-2147483648LL)), ElementsAre(u"a"_qs));
}

TEST_F(LegacyReadingTest, ACursorAboveThirtyTwoBitsEndsTheProcess) {
    EXPECT_DEATH(read(2147483648), "2147483648 does not fit");
}

TEST_F(LegacyReadingTest, ACursorBelowThirtyTwoBitsEndsTheProcess) {
    EXPECT_DEATH(read(-2147483649), "-2147483649 does not fit");
}

TEST_F(LegacyReadingTest, ACursorOfAnyRangeIsHarmlessWhereNothingCanBeRead) {
    replaceFile("no database");
    EXPECT_THAT(read(2147483648), IsEmpty());
}

// Names

TEST_F(LegacyReadingTest, ReadsTheNames) {
    ASSERT_TRUE(writer_.addApp(1, u"com.example.mail"_qs));
    ASSERT_TRUE(writer_.addApp(7, u"com.example.chat"_qs));
    EXPECT_THAT(names(),
                ElementsAre(Pair(1, u"com.example.mail"_qs), Pair(7, u"com.example.chat"_qs)));
}

TEST_F(LegacyReadingTest, ALaterNameReplacesAnEarlierOne) {
    ASSERT_TRUE(writer_.addApp(1, u"com.example.old"_qs));
    ASSERT_TRUE(writer_.addApp(1, u"com.example.new"_qs));
    EXPECT_THAT(names(), ElementsAre(Pair(1, u"com.example.new"_qs)));
}

TEST_F(LegacyReadingTest, AnEmptyNameIsAName) {
    ASSERT_TRUE(writer_.addApp(1, QString(u""_qs)));
    EXPECT_THAT(names(NullBundleId::fatal), ElementsAre(Pair(1, QString())));
}

TEST_F(LegacyReadingTest, ANullNameIsSkippedWhereTheReaderSaysSo) {
    ASSERT_TRUE(writer_.addApp(1, u"com.example.mail"_qs));
    ASSERT_TRUE(writer_.addApp(2, std::nullopt));
    ASSERT_TRUE(writer_.addApp(1, std::nullopt));
    EXPECT_THAT(names(), ElementsAre(Pair(1, u"com.example.mail"_qs)));
}

TEST_F(LegacyReadingTest, ANullNameEndsTheProcessElsewhere) {
    ASSERT_TRUE(writer_.addApp(2, std::nullopt));
    EXPECT_DEATH(names(NullBundleId::fatal), "without a bundle id");
}

TEST_F(LegacyReadingTest, ApplicationNumbersOfNamesAreThirtyTwoBits) {
    ASSERT_TRUE(writer_.addApp(4294967297, u"com.example.mail"_qs));
    EXPECT_THAT(names(), ElementsAre(Pair(1, u"com.example.mail"_qs)));
}

// Databases that can't be read

TEST_F(LegacyReadingTest, AMissingFileIsEmptyAndStaysMissing) {
    writer_.close();
    ASSERT_TRUE(QFile::remove(path_));
    EXPECT_THAT(read(), IsEmpty());
    EXPECT_THAT(names(NullBundleId::fatal), IsEmpty());
    EXPECT_FALSE(QFile::exists(path_));
}

TEST_F(LegacyReadingTest, AFolderIsEmpty) {
    path_ = folder_.path();
    EXPECT_THAT(read(), IsEmpty());
    EXPECT_THAT(names(NullBundleId::fatal), IsEmpty());
}

TEST_F(LegacyReadingTest, AFileThatIsNoDatabaseIsEmpty) {
    replaceFile(QByteArray(5000, 'x'));
    EXPECT_THAT(read(), IsEmpty());
    EXPECT_THAT(names(NullBundleId::fatal), IsEmpty());
}

TEST_F(LegacyReadingTest, AnEmptyFileIsEmpty) {
    replaceFile({});
    EXPECT_THAT(read(), IsEmpty());
    EXPECT_THAT(names(NullBundleId::fatal), IsEmpty());
}

TEST_F(LegacyReadingTest, ADatabaseWithoutTheTablesIsEmpty) {
    writer_.close();
    ASSERT_TRUE(
        testing::DatabaseFile(path_).run(u"DROP TABLE app_info; DROP TABLE notifications"_qs));
    EXPECT_THAT(read(), IsEmpty());
    EXPECT_THAT(names(NullBundleId::fatal), IsEmpty());
}

TEST_F(LegacyReadingTest, NotificationsAreReadWithoutATableOfNames) {
    add(1, {u"a"_qs, {}, base});
    writer_.close();
    ASSERT_TRUE(testing::DatabaseFile(path_).run(u"DROP TABLE app_info"_qs));
    EXPECT_THAT(names(NullBundleId::fatal), IsEmpty());
    EXPECT_THAT(titles(read()), ElementsAre(u"a"_qs));
}

TEST_F(LegacyReadingTest, ALockedDatabaseIsEmptyUntilItIsFree) {
    add(1, {u"a"_qs, {}, base});
    writer_.close();
    testing::LegacyWriter other(path_);
    ASSERT_TRUE(other.createTables());
    ASSERT_TRUE(other.lock());
    EXPECT_THAT(read(), IsEmpty());
    ASSERT_TRUE(other.commit());
    EXPECT_THAT(titles(read()), ElementsAre(u"a"_qs));
}

TEST_F(LegacyReadingTest, ADamagedDatabaseGivesWhatCanBeRead) {
    const QByteArray payload = testing::legacyPayload({u"title"_qs, QString(500, u'x'), base});
    ASSERT_TRUE(writer_.begin());
    for (int i = 1; i <= 200; ++i)
        add(i, payload);
    ASSERT_TRUE(writer_.commit());
    writer_.close();
    QFile file(path_);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.seek(file.size() / 2));
    ASSERT_GT(file.write(QByteArray(8192, '\xff')), 0);
    file.close();
    // The whole rows that SQLite itself reads before it comes to the damage.
    const QString wholeRows =
        u"SELECT note_id FROM notifications WHERE encoded_data = X'%1' ORDER BY note_id"_qs.arg(
            QString::fromLatin1(payload.toHex()));
    std::vector<qint64> whole;
    for (const QStringList& row : testing::DatabaseFile(path_).rows(wholeRows))
        whole.push_back(row.front().toLongLong());
    ASSERT_GT(whole.size(), 0U);
    ASSERT_LT(whole.size(), 200U);
    std::vector<qint64> found;
    for (const CapturedNotification& record : read())
        found.push_back(record.noteId);
    EXPECT_EQ(found, whole);
}

TEST_F(LegacyReadingTest, ADatabaseThatIsDamagedFromItsStartGivesNothing) {
    add(1, {u"a"_qs, {}, base});
    writer_.close();
    QFile file(path_);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QByteArray whole = file.readAll();
    ASSERT_TRUE(file.seek(0));
    file.write(QByteArray(whole.size(), '\xff'));
    file.close();
    EXPECT_THAT(read(), IsEmpty());
    EXPECT_THAT(names(NullBundleId::fatal), IsEmpty());
    makeFile(path_, whole);
    EXPECT_THAT(titles(read()), ElementsAre(u"a"_qs));
}

// A number in a text is that number, and a text without one is 0.
TEST_F(LegacyReadingTest, ColumnsOfOtherTypesAreReadAsFarAsTheyGo) {
    writer_.close();
    const QByteArray payload = testing::legacyPayload({u"Hello"_qs, u"World"_qs, base});
    const QString data = u"X'"_qs + QString::fromLatin1(payload.toHex()) + u'\'';
    ASSERT_TRUE(testing::DatabaseFile(path_).run(
        u"DROP TABLE app_info; DROP TABLE notifications;"
        "CREATE TABLE app_info(app_id TEXT, bundleid BLOB);"
        "CREATE TABLE notifications(note_id TEXT, app_id TEXT, encoded_data TEXT);"
        "INSERT INTO app_info VALUES('7', CAST('com.example.mail' AS BLOB)), ('x', 12);"
        "INSERT INTO notifications VALUES('41', '7', %1);"
        "INSERT INTO notifications VALUES('42', '7', 'no payload');"
        "INSERT INTO notifications VALUES('nine', 'seven', %1)"_qs.arg(data)));
    EXPECT_THAT(names(), ElementsAre(Pair(0, u"12"_qs), Pair(7, u"com.example.mail"_qs)));
    const NotificationList records = read(0, names());
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].noteId, 41);
    EXPECT_EQ(records[0].appBundleId, u"com.example.mail"_qs);
    EXPECT_EQ(records[0].title, u"Hello"_qs);
    EXPECT_EQ(records[0].timestamp, base);
    EXPECT_EQ(records[1].noteId, 0);
    EXPECT_EQ(records[1].appBundleId, u"12"_qs);
}

} // namespace
} // namespace tessarine
