#include "export/CsvDocument.h"
#include "export/ExportFixture.h"

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class CsvExportTest : public ExportTest {
protected:
    QByteArray exported(const NotificationList& notifications, bool includePrivate = false) {
        const QString file = path(u"out.csv"_qs);
        EXPECT_EQ(manager.exportCSV(notifications, includePrivate, file),
                  ExportResult::success(file));
        return contentOf(file);
    }
};

constexpr char start[] = "\xEF\xBB\xBF"
                         "Date;Time;App;Bundle ID;Title;Body";

QByteArray file(const QByteArray& rows) {
    return start + rows;
}

TEST_F(CsvExportTest, HasARowForEachNotificationInTheGivenOrder) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"Anna"_qs, u"The minutes"_qs, march3(9, 12, 44)),
                        notification(u"Chat"_qs, u"Tom"_qs, u"On my way"_qs, march3(23, 59, 59)),
                        notification(u"Mail"_qs, u"Old"_qs, u"News"_qs, march3(0) - 1)}),
              file("\n2026-03-03;09:12:44;Mail;com.example.mail;Anna;The minutes"
                   "\n2026-03-03;23:59:59;Chat;com.example.chat;Tom;On my way"
                   "\n2026-03-02;23:59:59;Mail;com.example.mail;Old;News"));
}

TEST_F(CsvExportTest, IsOnlyTheHeadingWithoutNotifications) {
    EXPECT_EQ(exported({}), QByteArray(start));
}

TEST_F(CsvExportTest, QuotesATitleWithASemicolonButNotOneWithAComma) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"a;b"_qs, u"c"_qs),
                        notification(u"Mail"_qs, u"a,b"_qs, u"c"_qs)}),
              file("\n2026-03-03;09:00:00;Mail;com.example.mail;\"a;b\";c"
                   "\n2026-03-03;09:00:00;Mail;com.example.mail;a,b;c"));
}

TEST_F(CsvExportTest, DoublesQuotes) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"t"_qs, u"say \"hi\""_qs)}),
              file("\n2026-03-03;09:00:00;Mail;com.example.mail;t;\"say \"\"hi\"\"\""));
}

TEST_F(CsvExportTest, KeepsALoneCarriageReturnInsideItsField) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"t"_qs, u"a\rb"_qs)}),
              file("\n2026-03-03;09:00:00;Mail;com.example.mail;t;\"a\rb\""));
}

TEST_F(CsvExportTest, QuotesOnlyTheAppWithASemicolonInItsName) {
    CapturedNotification odd = notification(u"Mail"_qs, u"t"_qs, u"b"_qs);
    odd.appName = u"Mail; fast"_qs;
    EXPECT_EQ(exported({odd}), file("\n2026-03-03;09:00:00;\"Mail; fast\";com.example.mail;t;b"));
}

TEST_F(CsvExportTest, QuotesABundleIdAlike) {
    CapturedNotification odd = notification(u"Mail"_qs, u"t"_qs, u"b"_qs);
    odd.appBundleId = u"a;b"_qs;
    EXPECT_EQ(exported({odd}), file("\n2026-03-03;09:00:00;Mail;\"a;b\";t;b"));
}

TEST_F(CsvExportTest, KeepsABodyOfThreeLinesInOneField) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"t"_qs, u"one\ntwo\nthree"_qs)}),
              file("\n2026-03-03;09:00:00;Mail;com.example.mail;t;\"one\ntwo\nthree\""));
}

TEST_F(CsvExportTest, WritesABodyThatRepeatsItsTitleTwice) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"same"_qs, u"same"_qs)}),
              file("\n2026-03-03;09:00:00;Mail;com.example.mail;same;same"));
}

TEST_F(CsvExportTest, LeavesEmptyFieldsEmpty) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, {}, {})}),
              file("\n2026-03-03;09:00:00;Mail;com.example.mail;;"));
}

TEST_F(CsvExportTest, LeavesWhatASpreadsheetTakesForAFormula) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"=1+1"_qs, u"@SUM(A1)"_qs)}),
              file("\n2026-03-03;09:00:00;Mail;com.example.mail;=1+1;@SUM(A1)"));
}

TEST_F(CsvExportTest, IsInUtf8) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"ü€😀"_qs, u"日本"_qs)}),
              file("\n2026-03-03;09:00:00;Mail;com.example.mail;"
                   "\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80;\xE6\x97\xA5\xE6\x9C\xAC"));
}

TEST_F(CsvExportTest, KeepsNulAndReplacesHalfACharacter) {
    CapturedNotification odd = notification(u"Mail"_qs, QString(QChar(0xD83D)), {});
    odd.body = QString(u'a') + QChar(0) + u'b';
    EXPECT_EQ(exported({odd}), file(QByteArray("\n2026-03-03;09:00:00;Mail;com.example.mail;"
                                               "\xEF\xBF\xBD;a") +
                                    '\0' + "b"));
}

TEST_F(CsvExportTest, WritesDatesInTheUsersDigitsAndZone) {
    const DateLocaleScope arabic("ar_EG.UTF-8");
    const TimeZoneScope tokyo("Asia/Tokyo");
    EXPECT_EQ(
        QString::fromUtf8(exported({notification(u"Mail"_qs, u"t"_qs, u"b"_qs, march3(20, 30))})),
        QString::fromUtf8(start) + u"\n٢٠٢٦-٠٣-٠٤;٠٥:٣٠:٠٠;Mail;com.example.mail;t;b"_qs);
}

TEST_F(CsvExportTest, LeavesTheDateOfNoMomentEmpty) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"t"_qs, u"b"_qs,
                                     std::numeric_limits<double>::quiet_NaN())}),
              file("\n;;Mail;com.example.mail;t;b"));
}

struct FieldCase {
    const char* name;
    QString text;
    QString field;
};

class CsvFieldTest : public ::testing::TestWithParam<FieldCase> {};

TEST_P(CsvFieldTest, IsQuotedWhereItMustBe) {
    EXPECT_EQ(csvField(GetParam().text), GetParam().field);
}

INSTANTIATE_TEST_SUITE_P(
    Each, CsvFieldTest,
    ::testing::Values(
        FieldCase{"Empty", {}, {}}, FieldCase{"Plain", u"a b"_qs, u"a b"_qs},
        FieldCase{"Comma", u"a,b"_qs, u"a,b"_qs}, FieldCase{"Tab", u"a\tb"_qs, u"a\tb"_qs},
        FieldCase{"Apostrophe", u"it's"_qs, u"it's"_qs}, FieldCase{"Blanks", u" a "_qs, u" a "_qs},
        FieldCase{"Semicolon", u";"_qs, u"\";\""_qs}, FieldCase{"Quote", u"\""_qs, u"\"\"\"\""_qs},
        FieldCase{"TwoQuotes", u"\"\""_qs, u"\"\"\"\"\"\""_qs},
        FieldCase{"LineFeed", u"a\n"_qs, u"\"a\n\""_qs},
        FieldCase{"CarriageReturn", u"\r"_qs, u"\"\r\""_qs},
        FieldCase{"Both", u"a\r\nb"_qs, u"\"a\r\nb\""_qs},
        FieldCase{"LineSeparator", u"a\u2028b"_qs, u"a\u2028b"_qs}),
    [](const auto& test) { return std::string(test.param.name); });

} // namespace
} // namespace tessarine::testing
