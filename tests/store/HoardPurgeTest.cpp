#include "store/HoardFixture.h"
#include "store/SqlTrace.h"
#include "support/Numbers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::day;
using ::testing::ElementsAre;
using testing::hour;
using ::testing::IsEmpty;
using testing::ManualScheduler;
using testing::SqlTrace;

constexpr double now = ManualScheduler::startOfTime;

class HoardPurge : public testing::HoardFixture {
protected:
    HoardPurge() { start(); }

    // A row of such an age with such texts.
    void add(double age, const QString& title, const QString& body = u"plain"_qs) {
        CapturedNotification notification = capture(++last_, now - age);
        notification.title = title;
        notification.body = body;
        ASSERT_TRUE(store->insert(notification));
    }

    QStringList titles() const {
        QStringList found;
        for (const QStringList& row :
             file().rows(u"SELECT title FROM notifications ORDER BY id"_qs))
            found.append(row.front());
        return found;
    }

    // One of 100,000 rows for each ten seconds back from now; a title of its own for each tenth,
    // in which a code is.
    void fillWithManyRows() const {
        ASSERT_TRUE(file().run(
            u"WITH RECURSIVE n(i) AS (VALUES(0) UNION ALL SELECT i + 1 FROM n WHERE i < 99999) "
            "INSERT INTO notifications(system_note_id, bundle_id, app_name, title, body, "
            "timestamp, pinned) SELECT i, 'a.b', 'App', CASE WHEN i % 10 = 0 THEN 'Code 123456' "
            "ELSE 'Lunch' END, 'plain', 785000000.0 - 10 * i, i % 7 = 0 FROM n"_qs));
    }

private:
    qint64 last_ = 0;
};

// Retention

TEST_F(HoardPurge, TakesRowsOlderThanTheDaysAndTellsHowMany) {
    add(31 * day, u"old and pinned"_qs);
    add(40 * day, u"old"_qs);
    add(29 * day, u"young"_qs);
    store->togglePin(1);
    EXPECT_EQ(store->deleteOlderThan(30), 2);
    EXPECT_THAT(titles(), ElementsAre(u"young"_qs));
}

TEST_F(HoardPurge, KeepsARowThatIsJustSoOld) {
    add(30 * day, u"at the edge"_qs);
    add(30 * day + 0.001, u"past it"_qs);
    EXPECT_EQ(store->deleteOlderThan(30), 1);
    EXPECT_THAT(titles(), ElementsAre(u"at the edge"_qs));
}

TEST_F(HoardPurge, GoesByTheClockAtTheTimeOfTheCall) {
    add(0, u"new"_qs);
    EXPECT_EQ(store->deleteOlderThan(1), 0);
    scheduler.setWallClock(now + day + 1);
    EXPECT_EQ(store->deleteOlderThan(1), 1);
}

TEST_F(HoardPurge, KeepsRowsOfTheFuture) {
    add(-5 * day, u"ahead of the clock"_qs);
    EXPECT_EQ(store->deleteOlderThan(1), 0);
    EXPECT_THAT(titles(), ElementsAre(u"ahead of the clock"_qs));
}

TEST_F(HoardPurge, LeavesItToTheCallerWhetherADayIsAtLeastOne) {
    add(1, u"past"_qs);
    add(-1, u"to come"_qs);
    EXPECT_EQ(store->deleteOlderThan(0), 1);
    EXPECT_THAT(titles(), ElementsAre(u"to come"_qs));
}

TEST_F(HoardPurge, OfAnyNumberOfDaysIsHarmless) {
    add(0, u"new"_qs);
    EXPECT_EQ(store->deleteOlderThan(std::numeric_limits<qint64>::max()), 0);
    EXPECT_EQ(store->deleteOtpOlderThan(std::numeric_limits<qint64>::max()), 0);
    EXPECT_THAT(titles(), ElementsAre(u"new"_qs));
}

TEST_F(HoardPurge, CutsAHoardOfAHundredThousandRowsAtTheEdge) {
    fillWithManyRows();
    // 10 days are 864,000 seconds: row 86,400 is exactly so old and stays with all before it.
    EXPECT_EQ(store->deleteOlderThan(10), 99999 - 86400);
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications"_qs), 86401);
    EXPECT_EQ(file().number(u"SELECT MAX(system_note_id) FROM notifications"_qs), 86400);
    EXPECT_EQ(store->integrityCheck(), u"ok"_qs);
}

// One-time codes

TEST_F(HoardPurge, TakesCodesFromAHoardOfAHundredThousandRows) {
    fillWithManyRows();
    // 24 hours are 86,400 seconds: row 8,640 is exactly so old and stays. Of the rows after it,
    // 8,650, 8,660 ... 99,990 hold a code.
    EXPECT_EQ(store->deleteOtpOlderThan(24), (99990 - 8650) / 10 + 1);
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications WHERE title LIKE 'Code%'"_qs),
              8640 / 10 + 1);
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications WHERE title = 'Lunch'"_qs), 90000);
}

TEST_F(HoardPurge, OfLessThanAnHourRunsNoStatement) {
    store.reset();
    SqlTrace trace;
    start();
    add(1000 * hour, u"Your code is 123456"_qs);
    trace.taken();
    EXPECT_EQ(store->deleteOtpOlderThan(0), 0);
    EXPECT_EQ(store->deleteOtpOlderThan(-1), 0);
    EXPECT_EQ(store->deleteOtpOlderThan(std::numeric_limits<qint64>::min()), 0);
    EXPECT_THAT(trace.taken(), IsEmpty());
    EXPECT_THAT(titles(), ElementsAre(u"Your code is 123456"_qs));
}

TEST_F(HoardPurge, TakesAnInvoiceWithTheYearInItWhenItIsOldEnough) {
    add(25 * hour, u"25 hours"_qs, u"Your invoice of May 2025 is there"_qs);
    add(23 * hour, u"23 hours"_qs, u"Your invoice of May 2025 is there"_qs);
    EXPECT_EQ(store->deleteOtpOlderThan(24), 1);
    EXPECT_THAT(titles(), ElementsAre(u"23 hours"_qs));
}

TEST_F(HoardPurge, KeepsACodeThatIsJustSoOld) {
    add(24 * hour, u"123456 at the edge"_qs);
    add(24 * hour + 0.001, u"123456 past it"_qs);
    EXPECT_EQ(store->deleteOtpOlderThan(24), 1);
    EXPECT_THAT(titles(), ElementsAre(u"123456 at the edge"_qs));
}

TEST_F(HoardPurge, TakesAPinnedCode) {
    add(25 * hour, u"123456"_qs);
    store->togglePin(1);
    EXPECT_EQ(store->deleteOtpOlderThan(24), 1);
}

TEST_F(HoardPurge, LooksAtAllTextsThoughOneIsMissing) {
    ASSERT_TRUE(file().run(u"INSERT INTO notifications (title, body, timestamp) VALUES "
                           "(NULL, 'code 1234', 1), ('code 1234', NULL, 1), (NULL, NULL, 1)"_qs));
    EXPECT_EQ(store->deleteOtpOlderThan(1), 2);
    EXPECT_EQ(store->totalCount(), 1);
}

TEST_F(HoardPurge, LooksNeitherAtTheApplicationsNameNorAtItsId) {
    CapturedNotification notification = capture(1, now - 25 * hour);
    notification.appName = u"Passcode 1234"_qs;
    notification.appBundleId = u"com.example.otp1234"_qs;
    ASSERT_TRUE(store->insert(notification));
    EXPECT_EQ(store->deleteOtpOlderThan(24), 0);
}

TEST_F(HoardPurge, RunsExactlyThisStatement) {
    store.reset();
    SqlTrace trace;
    start();
    trace.taken();
    store->deleteOtpOlderThan(24);
    const QString statement =
        QString::fromUtf8("DELETE FROM notifications\n"
                          "WHERE timestamp < ?\n"
                          "AND (\n"
                          "    -- Short numeric codes: 4 to 8 digits as a standalone token\n"
                          "    title  GLOB '*[0-9][0-9][0-9][0-9]*'\n"
                          "    OR body GLOB '*[0-9][0-9][0-9][0-9]*'\n"
                          "    -- OTP keywords (checked via LOWER for unicode safety)\n"
                          "    OR LOWER(title) LIKE '%otp%'\n"
                          "    OR LOWER(body)  LIKE '%otp%'\n"
                          "    OR LOWER(title) LIKE '%2fa%'\n"
                          "    OR LOWER(body)  LIKE '%2fa%'\n"
                          "    OR LOWER(title) LIKE '%two-factor%'\n"
                          "    OR LOWER(body)  LIKE '%two-factor%'\n"
                          "    OR LOWER(title) LIKE '%two factor%'\n"
                          "    OR LOWER(body)  LIKE '%two factor%'\n"
                          "    OR LOWER(title) LIKE '%verification code%'\n"
                          "    OR LOWER(body)  LIKE '%verification code%'\n"
                          "    OR LOWER(title) LIKE '%verify%'\n"
                          "    OR LOWER(body)  LIKE '%verify%'\n"
                          "    OR LOWER(title) LIKE '%your code%'\n"
                          "    OR LOWER(body)  LIKE '%your code%'\n"
                          "    OR LOWER(title) LIKE '%codice%'\n"
                          "    OR LOWER(body)  LIKE '%codice%'\n"
                          "    OR LOWER(title) LIKE '%codice monouso%'\n"
                          "    OR LOWER(body)  LIKE '%codice monouso%'\n"
                          "    OR LOWER(title) LIKE '%bestätigungscode%'\n"
                          "    OR LOWER(body)  LIKE '%bestätigungscode%'\n"
                          "    OR LOWER(title) LIKE '%einmalpasswort%'\n"
                          "    OR LOWER(body)  LIKE '%einmalpasswort%'\n"
                          "    OR LOWER(title) LIKE '%code de vérification%'\n"
                          "    OR LOWER(body)  LIKE '%code de vérification%'\n"
                          "    OR LOWER(title) LIKE '%code de verification%'\n"
                          "    OR LOWER(body)  LIKE '%code de verification%'\n"
                          "    OR LOWER(title) LIKE '%passcode%'\n"
                          "    OR LOWER(body)  LIKE '%passcode%'\n"
                          "    OR LOWER(title) LIKE '%authenticate%'\n"
                          "    OR LOWER(body)  LIKE '%authenticate%'\n"
                          "    OR LOWER(title) LIKE '%one-time%'\n"
                          "    OR LOWER(body)  LIKE '%one-time%'\n"
                          "    OR LOWER(title) LIKE '%einmalig%'\n"
                          "    OR LOWER(body)  LIKE '%einmalig%'\n"
                          ");");
    EXPECT_THAT(trace.taken(), ElementsAre(statement));
}

struct Text {
    const char* name;
    const char* text;
};

std::string nameOf(const ::testing::TestParamInfo<Text>& test) {
    return test.param.name;
}

class TextOfACode : public HoardPurge, public ::testing::WithParamInterface<Text> {
protected:
    const QString text_ = QString::fromUtf8(GetParam().text);
};

TEST_P(TextOfACode, GoesWhenItIsInTheTitle) {
    add(25 * hour, text_);
    EXPECT_EQ(store->deleteOtpOlderThan(24), 1);
    EXPECT_THAT(titles(), IsEmpty());
}

TEST_P(TextOfACode, GoesWhenItIsInTheBody) {
    add(25 * hour, u"plain"_qs, text_);
    EXPECT_EQ(store->deleteOtpOlderThan(24), 1);
    EXPECT_THAT(titles(), IsEmpty());
}

TEST_P(TextOfACode, StaysWhileItIsYoung) {
    add(23 * hour, text_, text_);
    EXPECT_EQ(store->deleteOtpOlderThan(24), 0);
}

INSTANTIATE_TEST_SUITE_P(Digits, TextOfACode,
                         ::testing::Values(Text{"Four", "1234"}, Text{"Eight", "12345678"},
                                           Text{"More", "call 004912345678901"},
                                           Text{"InsideAWord", "ab1234cd"},
                                           Text{"House", "12345 Sunset Street"},
                                           Text{"OnALaterLine", "first\nthen 0000"}),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(
    Keywords, TextOfACode,
    ::testing::Values(Text{"Otp", "An OTP for you"}, Text{"OtpInsideAWord", "laptops and hotpants"},
                      Text{"TwoFa", "2FA is on"}, Text{"TwoHyphenFactor", "Two-Factor sign-in"},
                      Text{"TwoFactor", "two FACTOR sign-in"},
                      Text{"VerificationCode", "Verification Code"},
                      Text{"Verify", "Please VERIFY"}, Text{"VerifyInsideAWord", "reverifying it"},
                      Text{"YourCode", "This is Your Code"}, Text{"Codice", "Il Codice"},
                      Text{"CodiceMonouso", "codice monouso"},
                      Text{"Bestaetigungscode", "Dein Bestätigungscode"},
                      Text{"BestaetigungscodeInMixedCase", "bESTäTIGUNGScODE"},
                      Text{"Einmalpasswort", "EINMALPASSWORT"},
                      Text{"CodeDeVerificationWithAccent", "Code de Vérification"},
                      Text{"CodeDeVerificationWithout", "CODE DE VERIFICATION"},
                      Text{"Passcode", "Passcode"}, Text{"Authenticate", "Authenticate now"},
                      Text{"OneTime", "One-Time pad"}, Text{"Einmalig", "Einmaliges Angebot"}),
    nameOf);

class TextOfNoCode : public HoardPurge, public ::testing::WithParamInterface<Text> {};

TEST_P(TextOfNoCode, StaysHoweverOldItIs) {
    const QString text = QString::fromUtf8(GetParam().text);
    add(100000 * hour, text, text);
    EXPECT_EQ(store->deleteOtpOlderThan(1), 0);
    EXPECT_THAT(titles(), ElementsAre(text));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, TextOfNoCode,
    ::testing::Values(Text{"Empty", ""}, Text{"Plain", "Lunch at noon?"},
                      Text{"ThreeDigits", "Room 123"}, Text{"DigitsApart", "12:34 and 123 456"},
                      Text{"PriceWithPoint", "1.234,56"}, Text{"Code", "The code review"},
                      Text{"TwoFactors", "two  factor"}, Text{"VerificationAlone", "Verification"},
                      Text{"OneTimeWithBlank", "one time"},
                      // LOWER leaves letters outside ASCII as they are.
                      Text{"BestaetigungscodeInCapitals", "BESTÄTIGUNGSCODE"},
                      Text{"BestaetigungscodeDecomposed", "Besta\xCC\x88tigungscode"},
                      Text{"VerificationInFrenchCapitals", "CODE DE VÉRIFICATION"},
                      Text{"DigitsOfAnotherScript", "\xD9\xA1\xD9\xA2\xD9\xA3\xD9\xA4"}),
    nameOf);

} // namespace
} // namespace tessarine
