#include "apps/DeepLink.h"

#include "shared/CapturedNotification.h"
#include "support/Printers.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

constexpr double now = 790671600; // 1768978800 in Unix time

CapturedNotification from(const QString& bundleId, const QString& body = {}) {
    CapturedNotification notification;
    notification.appBundleId = bundleId;
    notification.body = body;
    notification.timestamp = 100.75; // 978307300.75 in Unix time
    return notification;
}

QString link(const CapturedNotification& notification) {
    const auto url = deepLink(notification, {now, [](const QString&) { return true; }});
    return url.value_or(u"(none)"_qs);
}

struct Row {
    const char16_t* bundleId;
    const char16_t* url;
};

class DeepLinkTableTest : public ::testing::TestWithParam<Row> {};

TEST_P(DeepLinkTableTest, HasTheAddress) {
    EXPECT_EQ(link(from(QString::fromUtf16(GetParam().bundleId))),
              QString::fromUtf16(GetParam().url));
}

TEST_P(DeepLinkTableTest, HasNoAddressWhereTheApplicationIsNotInstalled) {
    const auto url = deepLink(from(QString::fromUtf16(GetParam().bundleId)),
                              {now, [](const QString&) { return false; }});
    EXPECT_EQ(url, std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    Table, DeepLinkTableTest,
    ::testing::Values(
        Row{u"com.apple.iCal", u"calshow://978307300"},
        Row{u"com.apple.reminders", u"x-apple-reminderkit://"},
        Row{u"com.apple.mail", u"message://"}, Row{u"com.apple.MobileSMS", u"sms://"},
        Row{u"com.apple.facetime", u"facetime://"},
        Row{u"com.tinyspeck.slackmacgap", u"slack://open"}, Row{u"ru.keepcoder.Telegram", u"tg://"},
        Row{u"org.telegram.desktop", u"tg://"}, Row{u"net.whatsapp.WhatsApp", u"(none)"},
        Row{u"com.whatsapp.WhatsApp", u"(none)"},
        Row{u"com.readdle.smartemail", u"readdle-spark://"},
        Row{u"com.mimestream.Mimestream", u"mimestream://"},
        Row{u"it.bloop.airmail5", u"airmail5://"},
        Row{u"com.flexibits.fantastical2.mac", u"x-fantastical2://show/calendar?date=978307300"},
        Row{u"com.culturedcode.ThingsMac", u"things:///show?id=today"},
        Row{u"com.omnigroup.OmniFocus3", u"omnifocus:///forecast"},
        Row{u"net.shinyfrog.bear", u"bear://"}));

TEST(DeepLinkTest, IsNoneForAnUnlistedApplication) {
    EXPECT_EQ(link(from(u"com.example.app"_qs)), u"(none)"_qs);
    EXPECT_EQ(link(from(u"app_id_42"_qs)), u"(none)"_qs);
    EXPECT_EQ(link(from({})), u"(none)"_qs);
}

TEST(DeepLinkTest, ComparesBundleIdsExactly) {
    EXPECT_EQ(link(from(u"com.apple.ical"_qs)), u"(none)"_qs);
    EXPECT_EQ(link(from(u"com.apple.iCal "_qs)), u"(none)"_qs);
}

TEST(DeepLinkTest, AsksWhetherTheVeryApplicationIsInstalled) {
    QStringList asked;
    deepLink(from(u"com.apple.mail"_qs), {now, [&asked](const QString& id) {
                                              asked << id;
                                              return true;
                                          }});
    EXPECT_EQ(asked, QStringList({u"com.apple.mail"_qs}));
}

TEST(DeepLinkTest, DoesNotAskForWhatHasNoAddress) {
    bool asked = false;
    deepLink(from(u"com.whatsapp.WhatsApp"_qs), {now, [&asked](const QString&) {
                                                     asked = true;
                                                     return true;
                                                 }});
    EXPECT_FALSE(asked);
}

TEST(DeepLinkTest, OpensTheCalendarAtTheTimeOfTheClick) {
    EXPECT_EQ(link(from(u"com.apple.iCal"_qs, u"Lunch in 5 minutes"_qs)),
              u"calshow://1768979100"_qs);
}

TEST(DeepLinkTest, CutsSecondsTowardsZero) {
    CapturedNotification notification = from(u"com.apple.iCal"_qs);
    notification.timestamp = -978307200 - 5.75; // before 1970
    EXPECT_EQ(link(notification), u"calshow://-5"_qs);
}

class FarTextTest : public ::testing::TestWithParam<const char16_t*> {};

TEST_P(FarTextTest, MakesNoLink) {
    const QString text = QString::fromUtf16(GetParam());
    EXPECT_EQ(link(from(u"com.apple.iCal"_qs, text)), u"(none)"_qs);
    EXPECT_EQ(link(from(u"com.flexibits.fantastical2.mac"_qs, text)), u"(none)"_qs);
}

INSTANTIATE_TEST_SUITE_P(Texts, FarTextTest,
                         ::testing::Values(u"in 9223372036854775807 minutes",
                                           u"in 9223372036854775807 hours",
                                           u"in 153722867280912930 minutes", // 2^63 seconds
                                           u"in 2562047788015215 hours",     // and a bit less
                                           u"in 9223372036854775807 minutes, today at 10:30",
                                           u"IN 9223372036854775807 MINUTES",
                                           u"in ９２２３３７２０３６８５４７７５８０７ minutes",
                                           u"in 4193888720 minutes", u"in 69898146 hours"));

class ExtremeTextTest : public ::testing::TestWithParam<const char16_t*> {};

// What each text makes of its numbers is told by the tests of dates; here it only must not be lost.
TEST_P(ExtremeTextTest, StillMakesALink) {
    const QString address = link(from(u"com.apple.iCal"_qs, QString::fromUtf16(GetParam())));
    EXPECT_TRUE(address.startsWith(u"calshow://17"_qs)) << address.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Texts, ExtremeTextTest,
                         ::testing::Values(u"in 9223372036854775808 minutes", // no integer: 0
                                           u"in 99999999999999999999999 hours", u"in 0 minutes",
                                           u"today at 99:99", u"tomorrow at 99:99", u"99:99",
                                           u"today at 00:00", u"tomorrow at 24:60"));

TEST(DeepLinkTest, OpensNoCalendarAtADateThatItCannotShow) {
    CapturedNotification notification = from(u"com.apple.iCal"_qs);
    // The ends of the years 1 to 9999 in Unix time, by Python's date.
    notification.timestamp = 253402300799.0 - 978307200;
    EXPECT_EQ(link(notification), u"calshow://253402300799"_qs);
    notification.timestamp += 1;
    EXPECT_EQ(link(notification), u"(none)"_qs);
    notification.timestamp = -62135596800.0 - 978307200;
    EXPECT_EQ(link(notification), u"calshow://-62135596800"_qs);
    notification.timestamp -= 1;
    EXPECT_EQ(link(notification), u"(none)"_qs);
    notification.timestamp = 9.2e18; // seconds that an integer holds
    EXPECT_EQ(link(notification), u"(none)"_qs);
}

class NoSecondsTest : public ::testing::TestWithParam<double> {};
using NoSecondsDeathTest = NoSecondsTest;

TEST_P(NoSecondsDeathTest, EndTheProgramAsATimestamp) {
    CapturedNotification notification = from(u"com.apple.iCal"_qs);
    notification.timestamp = GetParam();
    EXPECT_DEATH(link(notification), "has no number of seconds");
}

TEST_P(NoSecondsTest, DoNotMatterWhereTheTextsNameADate) {
    CapturedNotification notification = from(u"com.apple.iCal"_qs, u"Lunch in 5 minutes"_qs);
    notification.timestamp = GetParam();
    EXPECT_EQ(link(notification), u"calshow://1768979100"_qs);
    notification.body = u"in 9223372036854775807 minutes"_qs;
    EXPECT_EQ(link(notification), u"(none)"_qs);
}

TEST_P(NoSecondsTest, DoNotMatterToOtherApplications) {
    CapturedNotification notification = from(u"com.apple.mail"_qs);
    notification.timestamp = GetParam();
    EXPECT_EQ(link(notification), u"message://"_qs);
}

constexpr std::array strangeTimestamps{std::numeric_limits<double>::infinity(),
                                       -std::numeric_limits<double>::infinity(),
                                       std::numeric_limits<double>::quiet_NaN(), 1e19, -1e19};
INSTANTIATE_TEST_SUITE_P(Timestamps, NoSecondsTest, ::testing::ValuesIn(strangeTimestamps));
INSTANTIATE_TEST_SUITE_P(Timestamps, NoSecondsDeathTest, ::testing::ValuesIn(strangeTimestamps));

TEST(DeepLinkTest, OpensAMessageByItsId) {
    EXPECT_EQ(link(from(u"com.apple.mail"_qs, u"From Anna <CAF=x+1.y@Mail.example.com> today"_qs)),
              u"message://CAF=x+1.y@Mail.example.com"_qs);
}

TEST(DeepLinkTest, LooksForAMessageIdInTheBodyAlone) {
    CapturedNotification notification = from(u"com.apple.mail"_qs, u"No id"_qs);
    notification.title = u"<a@b>"_qs;
    EXPECT_EQ(link(notification), u"message://"_qs);
}

TEST(DeepLinkTest, IsNoneWhereTheIdMakesNoAddress) {
    EXPECT_EQ(link(from(u"com.apple.mail"_qs, u"<two words@b>"_qs)), u"(none)"_qs);
    EXPECT_EQ(link(from(u"com.apple.mail"_qs, u"<50%@b>"_qs)), u"(none)"_qs);
    EXPECT_EQ(link(from(u"com.apple.mail"_qs, u"<größe@b>"_qs)), u"(none)"_qs);
}

// The id of a message

TEST(MailMessageIdTest, StandsBetweenAngleBrackets) {
    EXPECT_EQ(mailMessageId(u"Re: <id@host> and more"_qs), u"id@host"_qs);
}

TEST(MailMessageIdTest, IsTheFirst) {
    EXPECT_EQ(mailMessageId(u"<one@a> <two@b>"_qs), u"one@a"_qs);
}

TEST(MailMessageIdTest, NeedsAnAtSignWithSomethingOnEachSide) {
    EXPECT_EQ(mailMessageId(u"<id>"_qs), std::nullopt);
    EXPECT_EQ(mailMessageId(u"<@host>"_qs), std::nullopt);
    EXPECT_EQ(mailMessageId(u"<id@>"_qs), std::nullopt);
    EXPECT_EQ(mailMessageId(u"<@>"_qs), std::nullopt);
    EXPECT_EQ(mailMessageId(u"<a@@>"_qs), u"a@@"_qs);
    EXPECT_EQ(mailMessageId(u"<@@b>"_qs), u"@@b"_qs);
}

TEST(MailMessageIdTest, NeedsBothBrackets) {
    EXPECT_EQ(mailMessageId(u"id@host>"_qs), std::nullopt);
    EXPECT_EQ(mailMessageId(u"<id@host"_qs), std::nullopt);
    EXPECT_EQ(mailMessageId({}), std::nullopt);
}

TEST(MailMessageIdTest, GoesOnAfterBracketsWithoutOne) {
    EXPECT_EQ(mailMessageId(u"<b>Bold</b> <id@host>"_qs), u"id@host"_qs);
}

TEST(MailMessageIdTest, BeginsAtTheFirstOpeningBracket) {
    EXPECT_EQ(mailMessageId(u"1 < 2 <id@host>"_qs), u" 2 <id@host"_qs);
}

TEST(MailMessageIdTest, MayHaveLineBreaksInside) {
    EXPECT_EQ(mailMessageId(u"<id@\nhost>"_qs), u"id@\nhost"_qs);
}

TEST(MailMessageIdTest, IsSoughtInOnePassOfAHugeBody) {
    EXPECT_EQ(mailMessageId(u"<@"_qs.repeated(500000)), std::nullopt);
    EXPECT_EQ(mailMessageId(u"<>"_qs.repeated(500000) + u"<a@b>"_qs), u"a@b"_qs);
}

// Addresses

class AddressTest : public ::testing::TestWithParam<const char16_t*> {};
class NoAddressTest : public ::testing::TestWithParam<const char16_t*> {};

TEST_P(AddressTest, IsOne) {
    EXPECT_TRUE(isAddress(QString::fromUtf16(GetParam())));
}

TEST_P(NoAddressTest, IsNone) {
    EXPECT_FALSE(isAddress(QString::fromUtf16(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(Texts, AddressTest,
                         ::testing::Values(u"message://", u"message://a@b", u"message://a/b@c",
                                           u"message://A.b_c~d!$&'()*+,;=@[::1]", u"calshow://-5",
                                           u"message://a%3Cb@c", u"x://h:80/p?q=1#f"));
INSTANTIATE_TEST_SUITE_P(Texts, NoAddressTest,
                         ::testing::Values(u"", u"message", u"message:/a", u"message://a b",
                                           u"message://a\n", u"message://a%zz@b", u"message://a%",
                                           u"message://a@b@c", u"message://a\"@b",
                                           u"message://a<@b", u"message://é@b", u"message://h:x",
                                           u"message://a\\b@c", u"message://a@b#c#d"));

} // namespace
} // namespace tessarine
