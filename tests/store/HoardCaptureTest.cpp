#include "store/HoardFixture.h"
#include "store/SqlTrace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <limits>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using testing::SqlTrace;
using ::testing::Truly;

const QString allTexts =
    u"SELECT system_note_id, bundle_id, app_name, title, body, timestamp, pinned "
    "FROM notifications ORDER BY id"_qs;

class HoardCapture : public testing::HoardFixture {
protected:
    HoardCapture() { start(); }

    qint64 rowCount() const { return file().number(u"SELECT COUNT(*) FROM notifications"_qs); }
    QString column(const QString& name) const {
        return file().rows(u"SELECT "_qs + name + u" FROM notifications"_qs).front().front();
    }
    QString hexOf(const QString& name) const { return column(u"hex("_qs + name + u')'); }
};

// With a key of the system's database

TEST_F(HoardCapture, StoresANotificationUnderItsKey) {
    EXPECT_TRUE(store->insert(capture(42, 778912345.5)));
    EXPECT_THAT(file().rows(allTexts),
                ElementsAre(QStringList{u"42"_qs, u"org.example.mail"_qs, u"Mail"_qs, u"Title"_qs,
                                        u"Body"_qs, u"778912345.5"_qs, u"0"_qs}));
}

TEST_F(HoardCapture, StoresTheTypesOfItsColumns) {
    store->insert(capture(42));
    EXPECT_THAT(
        file().rows(u"SELECT typeof(system_note_id), typeof(bundle_id), typeof(title), "
                    "typeof(timestamp), typeof(captured_at) FROM notifications"_qs),
        ElementsAre(QStringList{u"integer"_qs, u"text"_qs, u"text"_qs, u"real"_qs, u"real"_qs}));
}

TEST_F(HoardCapture, StampsTheRowWithTheTimeInUnixSeconds) {
    const auto clock = [] {
        return std::chrono::duration_cast<std::chrono::seconds>(
                   std::chrono::system_clock::now().time_since_epoch())
            .count();
    };
    const auto before = clock();
    store->insert(capture(1));
    const auto after = clock();
    const qint64 capturedAt =
        file().number(u"SELECT CAST(captured_at AS INTEGER) FROM notifications"_qs);
    EXPECT_GE(capturedAt, before);
    EXPECT_LE(capturedAt, after);
}

TEST_F(HoardCapture, StoresAKeyOnce) {
    EXPECT_TRUE(store->insert(capture(42)));
    CapturedNotification other = capture(42, 600000000.0);
    other.title = u"Another"_qs;
    EXPECT_FALSE(store->insert(other));
    EXPECT_EQ(rowCount(), 1);
    EXPECT_EQ(column(u"title"_qs), u"Title"_qs);
}

TEST_F(HoardCapture, StoresEqualTextsUnderTwoKeys) {
    EXPECT_TRUE(store->insert(capture(1)));
    EXPECT_TRUE(store->insert(capture(2)));
    EXPECT_EQ(rowCount(), 2);
}

TEST_F(HoardCapture, StoresOnlyOneRowUnderTheKeyZero) {
    EXPECT_TRUE(store->insert(capture(0)));
    EXPECT_FALSE(store->insert(capture(0)));
    EXPECT_EQ(column(u"system_note_id"_qs), u"0"_qs);
}

TEST_F(HoardCapture, StoresANegativeKey) {
    EXPECT_TRUE(store->insert(capture(-3)));
    EXPECT_EQ(column(u"system_note_id"_qs), u"-3"_qs);
}

TEST_F(HoardCapture, StoresTheLargestAndTheSmallestKey) {
    EXPECT_TRUE(store->insert(capture(2147483647)));
    EXPECT_TRUE(store->insert(capture(Q_INT64_C(-2147483648))));
    EXPECT_THAT(file().rows(u"SELECT system_note_id FROM notifications ORDER BY system_note_id"_qs),
                ElementsAre(QStringList{u"-2147483648"_qs}, QStringList{u"2147483647"_qs}));
}

TEST_F(HoardCapture, NeverTakesABannerRowForADuplicate) {
    store->insertDeduplicated(capture(0));
    EXPECT_TRUE(store->insert(capture(42)));
    EXPECT_EQ(rowCount(), 2);
}

TEST_F(HoardCapture, StoresNeitherRowIdNorPinOfACapture) {
    CapturedNotification notification = capture(1);
    notification.dbId = 99;
    notification.pinned = true;
    store->insert(notification);
    EXPECT_EQ(column(u"id"_qs), u"1"_qs);
    EXPECT_EQ(column(u"pinned"_qs), u"0"_qs);
}

TEST_F(HoardCapture, RunsThisStatementForAKey) {
    store.reset();
    SqlTrace trace;
    start();
    trace.taken();
    store->insert(capture(42));
    EXPECT_THAT(trace.taken(),
                ElementsAre(u"INSERT OR IGNORE INTO notifications\n"
                            "    (system_note_id, bundle_id, app_name, title, body, timestamp)\n"
                            "VALUES (?, ?, ?, ?, ?, ?);"_qs));
}

// Without a key

TEST_F(HoardCapture, StoresABannerWithoutAKey) {
    EXPECT_TRUE(store->insertDeduplicated(capture(42, 778912345.5)));
    EXPECT_THAT(file().rows(allTexts),
                ElementsAre(QStringList{u"NULL"_qs, u"org.example.mail"_qs, u"Mail"_qs, u"Title"_qs,
                                        u"Body"_qs, u"778912345.5"_qs, u"0"_qs}));
    EXPECT_EQ(column(u"typeof(system_note_id)"_qs), u"null"_qs);
}

const QString probe = u"SELECT COUNT(*) FROM notifications\n"
                      "WHERE bundle_id = ? AND title = ? AND body = ?\n"
                      "AND ABS(timestamp - ?) < 300;"_qs;
const QString insertionWithoutKey =
    u"INSERT INTO notifications (system_note_id, bundle_id, app_name, title, body, "
    "timestamp)\n"
    "VALUES (NULL, ?, ?, ?, ?, ?);"_qs;

bool readsNeighbours(const QString& statement) {
    return statement.contains(u"timestamp > ?"_qs);
}

TEST_F(HoardCapture, StoresABannerByThisStatementOnceItsNeighboursAreKnown) {
    store.reset();
    SqlTrace trace;
    start();
    store->insertDeduplicated(capture(0));
    trace.taken();
    store->insertDeduplicated(capture(0, 700000400.0));
    const QStringList statements = trace.taken();
    EXPECT_THAT(statements, Contains(insertionWithoutKey));
    EXPECT_THAT(statements, Not(Contains(probe)));
    EXPECT_THAT(statements, Not(Contains(Truly(readsNeighbours))));
}

TEST_F(HoardCapture, ProbesTheWholeHoardWhereTheNeighboursCanNotBeTold) {
    ASSERT_TRUE(file().run(u"INSERT INTO notifications (bundle_id, title, body, timestamp) VALUES "
                           "('org.example.mail', 'Title', 'Body', '700000000 and a bit')"_qs));
    store.reset();
    SqlTrace trace;
    start();
    EXPECT_FALSE(store->insertDeduplicated(capture(0)));
    EXPECT_THAT(trace.taken(), Contains(probe));
    EXPECT_TRUE(store->insertDeduplicated(capture(0, 700000300.0)));
    const QStringList statements = trace.taken();
    EXPECT_THAT(statements, Contains(probe));
    EXPECT_THAT(statements, Contains(insertionWithoutKey));
}

TEST_F(HoardCapture, ProbesTheWholeHoardForATimeWithoutEnd) {
    store.reset();
    SqlTrace trace;
    start();
    trace.taken();
    store->insertDeduplicated(capture(0, std::numeric_limits<double>::infinity()));
    EXPECT_THAT(trace.taken(), ElementsAre(u"PRAGMA data_version;"_qs, probe, insertionWithoutKey));
}

// The span of the probe: below 300 seconds, both ways
struct Distance {
    const char* name;
    double seconds;
    bool stored;
};

class BannerDistance : public testing::HoardFixture,
                       public ::testing::WithParamInterface<Distance> {};

TEST_P(BannerDistance, DecidesWhetherTheSecondIsStored) {
    start();
    ASSERT_TRUE(store->insertDeduplicated(capture(0, 700000000.0)));
    EXPECT_EQ(store->insertDeduplicated(capture(0, 700000000.0 + GetParam().seconds)),
              GetParam().stored);
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications"_qs), GetParam().stored ? 2 : 1);
    EXPECT_EQ(file().number(u"SELECT COUNT(system_note_id) FROM notifications"_qs), 0);
}

INSTANTIATE_TEST_SUITE_P(Spans, BannerDistance,
                         ::testing::Values(Distance{"None", 0.0, false},
                                           Distance{"JustBelowLater", 299.9, false},
                                           Distance{"JustBelowEarlier", -299.9, false},
                                           Distance{"ExactlyLater", 300.0, true},
                                           Distance{"ExactlyEarlier", -300.0, true},
                                           Distance{"JustAboveLater", 300.1, true},
                                           Distance{"JustAboveEarlier", -300.1, true},
                                           Distance{"ADayLater", 86400.0, true}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(HoardCapture, KeepsAllEqualBannersThatAreFarApart) {
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(store->insertDeduplicated(capture(0, 700000000.0 + 301.0 * i)));
    EXPECT_EQ(rowCount(), 5);
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications "
                            "WHERE system_note_id IS NULL"_qs),
              5);
}

TEST_F(HoardCapture, DropsABannerThatIsStoredUnderAKeyAlready) {
    store->insert(capture(42, 700000000.0));
    EXPECT_FALSE(store->insertDeduplicated(capture(0, 700000100.0)));
    EXPECT_EQ(rowCount(), 1);
}

TEST_F(HoardCapture, LooksAtEveryRowForADuplicateNotOnlyTheNewest) {
    store->insertDeduplicated(capture(0, 700000000.0));
    store->insertDeduplicated(capture(0, 700001000.0));
    store->insertDeduplicated(capture(0, 700002000.0));
    EXPECT_FALSE(store->insertDeduplicated(capture(0, 700000100.0)));
}

struct Difference {
    const char* name;
    void (*apply)(CapturedNotification&);
    bool stored;
};

class BannerDifference : public testing::HoardFixture,
                         public ::testing::WithParamInterface<Difference> {};

TEST_P(BannerDifference, DecidesWhetherItIsAnother) {
    start();
    store->insertDeduplicated(capture(0));
    CapturedNotification second = capture(0);
    GetParam().apply(second);
    EXPECT_EQ(store->insertDeduplicated(second), GetParam().stored);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, BannerDifference,
    ::testing::Values(
        Difference{"BundleId", [](CapturedNotification& n) { n.appBundleId += u'x'; }, true},
        Difference{"Title", [](CapturedNotification& n) { n.title += u'x'; }, true},
        Difference{"Body", [](CapturedNotification& n) { n.body += u'x'; }, true},
        Difference{"CaseOfBundleId",
                   [](CapturedNotification& n) { n.appBundleId = n.appBundleId.toUpper(); }, true},
        Difference{"CaseOfTitle", [](CapturedNotification& n) { n.title = n.title.toUpper(); },
                   true},
        Difference{"CaseOfBody", [](CapturedNotification& n) { n.body = n.body.toUpper(); }, true},
        Difference{"TrailingBlank", [](CapturedNotification& n) { n.title += u' '; }, true},
        Difference{"AppNameAlone", [](CapturedNotification& n) { n.appName += u'x'; }, false},
        Difference{"KeyAlone", [](CapturedNotification& n) { n.noteId = 9; }, false}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_F(HoardCapture, ComparesEmptyTextsToo) {
    CapturedNotification empty;
    EXPECT_TRUE(store->insertDeduplicated(empty));
    EXPECT_FALSE(store->insertDeduplicated(empty));
    EXPECT_EQ(column(u"typeof(title)"_qs), u"text"_qs);
}

int denyAbs(void*, int action, const char*, const char* function, const char*, const char*) {
    return action == SQLITE_FUNCTION && qstricmp(function, "abs") == 0 ? SQLITE_DENY : SQLITE_OK;
}

TEST_F(HoardCapture, StoresABannerWhoseProbeCanNotBePrepared) {
    store.reset();
    SqlTrace trace;
    start();
    trace.listenToNoFurtherConnection();
    store->insertDeduplicated(capture(0));
    sqlite3_set_authorizer(trace.connection(), denyAbs, nullptr);
    EXPECT_TRUE(store->insertDeduplicated(capture(0)));
    EXPECT_EQ(rowCount(), 2);
}

TEST_F(HoardCapture, IsFalseWhereTheTableLacksAColumn) {
    ASSERT_TRUE(file().run(u"ALTER TABLE notifications RENAME COLUMN body TO text"_qs));
    EXPECT_FALSE(store->insert(capture(1)));
    EXPECT_FALSE(store->insertDeduplicated(capture(0)));
    EXPECT_EQ(rowCount(), 0);
}

TEST_F(HoardCapture, StoresABannerWhoseProbeFailsWhileItRuns) {
    store->insertDeduplicated(capture(0));
    // Reading a timestamp is now an integer overflow, while writing goes on.
    ASSERT_TRUE(file().run(
        u"ALTER TABLE notifications RENAME TO kept;"
        "CREATE VIEW notifications AS SELECT bundle_id, title, body, app_name, system_note_id, "
        "abs(-9223372036854775807 - id) AS timestamp FROM kept;"
        "CREATE TRIGGER taking INSTEAD OF INSERT ON notifications BEGIN INSERT INTO kept "
        "(bundle_id, title, body) VALUES (new.bundle_id, new.title, new.body); END;"_qs));
    ASSERT_EQ(file().rows(u"SELECT timestamp FROM notifications"_qs).size(), 0U);
    EXPECT_TRUE(store->insertDeduplicated(capture(0)));
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM kept"_qs), 2);
}

// Texts

TEST_F(HoardCapture, StoresTextUpToItsFirstNul) {
    CapturedNotification notification = capture(1);
    notification.title = u"before"_qs + QChar(u'\0') + u"after"_qs;
    notification.body = QString(QChar(u'\0')) + u"all gone"_qs;
    EXPECT_TRUE(store->insert(notification));
    EXPECT_EQ(column(u"title"_qs), u"before"_qs);
    EXPECT_EQ(hexOf(u"title"_qs), u"6265666F7265"_qs);
    EXPECT_EQ(hexOf(u"body"_qs), QString());
    EXPECT_EQ(column(u"typeof(body)"_qs), u"text"_qs);
}

TEST_F(HoardCapture, StoresABannersTextUpToItsFirstNul) {
    CapturedNotification notification = capture(0);
    notification.title = u"before"_qs + QChar(u'\0') + u"after"_qs;
    EXPECT_TRUE(store->insertDeduplicated(notification));
    EXPECT_EQ(hexOf(u"title"_qs), u"6265666F7265"_qs);
    EXPECT_FALSE(store->insertDeduplicated(notification));
}

TEST_F(HoardCapture, ReplacesHalfASurrogatePair) {
    CapturedNotification notification = capture(1);
    notification.title = u"a"_qs + QChar(0xD83D) + u"b"_qs;
    notification.body = QString(QChar(0xDE00));
    EXPECT_TRUE(store->insert(notification));
    EXPECT_EQ(hexOf(u"title"_qs), u"61EFBFBD62"_qs);
    EXPECT_EQ(hexOf(u"body"_qs), u"EFBFBD"_qs);
}

TEST_F(HoardCapture, StoresTextsOfAnyScriptAsUtf8) {
    CapturedNotification notification = capture(1);
    notification.title = u"é€😀"_qs;
    EXPECT_TRUE(store->insert(notification));
    EXPECT_EQ(hexOf(u"title"_qs), u"C3A9E282ACF09F9880"_qs);
}

TEST_F(HoardCapture, StoresQuotesAndStatementsAsText) {
    CapturedNotification notification = capture(1);
    notification.body = u"'); DROP TABLE notifications; --"_qs;
    EXPECT_TRUE(store->insert(notification));
    EXPECT_EQ(column(u"body"_qs), u"'); DROP TABLE notifications; --"_qs);
}

TEST_F(HoardCapture, StoresALongTextWhole) {
    CapturedNotification notification = capture(1);
    notification.body = QString(1'000'000, u'ä');
    EXPECT_TRUE(store->insert(notification));
    EXPECT_EQ(column(u"length(body)"_qs), u"1000000"_qs);
}

TEST_F(HoardCapture, StoresMomentsBeforeTheReferenceDateAndFractions) {
    store->insert(capture(1, -0.25));
    EXPECT_EQ(column(u"timestamp"_qs), u"-0.25"_qs);
}

// Excluded applications

const QString excludedKey = u"excludedBundleIds"_qs;

class ExcludedCapture : public testing::HoardFixture {
protected:
    ExcludedCapture() {
        start();
        trace.listenToNoFurtherConnection();
        trace.taken();
    }

    SqlTrace trace;
};

TEST_F(ExcludedCapture, IsRefusedByBothPathsWithoutAStatement) {
    defaults.setTextList(excludedKey, {u"x.y"_qs, u"org.example.mail"_qs});
    EXPECT_FALSE(store->insert(capture(1)));
    EXPECT_FALSE(store->insertDeduplicated(capture(0)));
    EXPECT_THAT(trace.taken(), IsEmpty());
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications"_qs), 0);
}

TEST_F(ExcludedCapture, IsRefusedEvenWithAKeyOutOfRange) {
    defaults.setTextList(excludedKey, {u"org.example.mail"_qs});
    EXPECT_FALSE(store->insert(capture(std::numeric_limits<qint64>::max())));
}

TEST_F(ExcludedCapture, IsJudgedByTheExactId) {
    defaults.setTextList(excludedKey,
                         {u"org.example.Mail"_qs, u"org.example"_qs, u"org.example.mail2"_qs});
    EXPECT_TRUE(store->insert(capture(1)));
}

TEST_F(ExcludedCapture, IsTakenAgainOnceItsIdLeavesTheList) {
    defaults.setTextList(excludedKey, {u"org.example.mail"_qs});
    store->insert(capture(1));
    defaults.setTextList(excludedKey, {});
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications"_qs), 0);
    EXPECT_TRUE(store->insert(capture(2)));
}

TEST_F(ExcludedCapture, LeavesTheRowsThatAreThere) {
    store->insert(capture(1));
    defaults.setTextList(excludedKey, {u"org.example.mail"_qs});
    store->insert(capture(2));
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications"_qs), 1);
    EXPECT_EQ(store->fetchRecent(10).size(), 1U);
}

TEST_F(ExcludedCapture, ExcludesTheEmptyIdWhenItIsListed) {
    defaults.setTextList(excludedKey, {QString(u""_qs)});
    EXPECT_FALSE(store->insert(CapturedNotification()));
}

TEST_F(ExcludedCapture, ExcludesNothingWhenTheListIsOfAnotherType) {
    defaults.values[excludedKey] = QByteArray("org.example.mail");
    EXPECT_TRUE(store->insert(capture(1)));
}

// Keys beyond 32 bits

class HoardCaptureDeathTest : public testing::HoardFixture {
protected:
    HoardCaptureDeathTest() { GTEST_FLAG_SET(death_test_style, "fast"); } // no threads run here
};

TEST_F(HoardCaptureDeathTest, EndsTheProcessForAKeyAboveTheRange) {
    EXPECT_DEATH(start().insert(capture(Q_INT64_C(2147483648))), "does not fit");
}

TEST_F(HoardCaptureDeathTest, EndsTheProcessForAKeyBelowTheRange) {
    EXPECT_DEATH(start().insert(capture(Q_INT64_C(-2147483649))), "does not fit");
}

TEST_F(HoardCaptureDeathTest, StoresNothingUnderAKeyOutOfRange) {
    EXPECT_DEATH(start().insert(capture(Q_INT64_C(4294967297))), "does not fit");
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications"_qs), 0);
}

} // namespace
} // namespace tessarine
