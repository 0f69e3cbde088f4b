#include "export/CsvDocument.h"
#include "export/ExportFixture.h"

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class MaskingTest : public ExportTest {
protected:
    // The only row of a CSV file, after date and time.
    QByteArray csvRow(bool includePrivate) {
        const QString file = path(u"out.csv"_qs);
        manager.exportCSV({secret}, includePrivate, file);
        return contentOf(file).split('\n').value(1).mid(20);
    }

    // The lines of the only record of a text file, after its time.
    QByteArray textLines(bool includePrivate) {
        const QString file = path(u"out.txt"_qs);
        manager.exportTXT({secret}, includePrivate, file);
        const QByteArray content = contentOf(file);
        const qsizetype start = content.indexOf("[Mail]");
        return content.mid(start, content.indexOf("\n\n", start) - start);
    }

    CapturedNotification secret = notification(u"Mail"_qs, u"Code"_qs, u"1234"_qs);
};

TEST_F(MaskingTest, LeavesWhatIsNotPrivate) {
    EXPECT_EQ(csvRow(false), "Mail;com.example.mail;Code;1234");
    EXPECT_EQ(textLines(false), "[Mail]\n  Code\n  1234");
}

TEST_F(MaskingTest, HidesTitleAndBodyOfAPrivateApp) {
    preferences.setPrivacyApps({u"com.example.mail"_qs});
    EXPECT_EQ(csvRow(false), "Mail;com.example.mail;[hidden];[hidden]");
    EXPECT_EQ(textLines(false), "[Mail]\n  [hidden]");
}

TEST_F(MaskingTest, HidesEveryAppInPrivacyMode) {
    preferences.setGlobalPrivacyMode(true);
    EXPECT_EQ(csvRow(false), "Mail;com.example.mail;[hidden];[hidden]");
}

TEST_F(MaskingTest, WritesTheMaskOnceInAText) {
    preferences.setGlobalPrivacyMode(true);
    EXPECT_EQ(textLines(false), "[Mail]\n  [hidden]");
}

TEST_F(MaskingTest, ShowsWhatTheUserIncluded) {
    preferences.setGlobalPrivacyMode(true);
    preferences.setPrivacyApps({u"com.example.mail"_qs});
    EXPECT_EQ(csvRow(true), "Mail;com.example.mail;Code;1234");
    EXPECT_EQ(textLines(true), "[Mail]\n  Code\n  1234");
}

TEST_F(MaskingTest, GoesByTheBundleIdAndNotByTheName) {
    preferences.setPrivacyApps({u"Mail"_qs});
    EXPECT_EQ(csvRow(false), "Mail;com.example.mail;Code;1234");
    secret.appName = u"Another name"_qs;
    preferences.setPrivacyApps({u"com.example.mail"_qs});
    EXPECT_EQ(csvRow(false), "Another name;com.example.mail;[hidden];[hidden]");
}

TEST_F(MaskingTest, HidesEmptyTextsToo) {
    preferences.setGlobalPrivacyMode(true);
    secret.title.clear();
    secret.body.clear();
    EXPECT_EQ(csvRow(false), "Mail;com.example.mail;[hidden];[hidden]");
}

// A user who makes everything private while the third record is being written.
TEST_F(MaskingTest, FollowsASettingThatChangesDuringTheExport) {
    int asked = 0;
    const ExportMask mask([&](const QString&) { return ++asked >= 3; }, false);
    const QByteArray bytes = csvDocument({4, secret}, mask);
    EXPECT_EQ(bytes.count("Code;1234"), 2);
    EXPECT_TRUE(bytes.endsWith("[hidden];[hidden]\n2026-03-03;09:00:00;Mail;com.example.mail;"
                               "[hidden];[hidden]"))
        << bytes.toStdString();
    EXPECT_EQ(asked, 4);
}

} // namespace
} // namespace tessarine::testing
