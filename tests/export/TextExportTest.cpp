#include "export/ExportFixture.h"

#include <limits>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

const QString solid = u"────────────────────────────────────────────────────────────"_qs;
const QString dotted =
    u"············································································"_qs.left(60);

class TextExportTest : public ExportTest {
protected:
    QString exported(const NotificationList& notifications, bool includePrivate = false) {
        const QString file = path(u"out.txt"_qs);
        EXPECT_EQ(manager.exportTXT(notifications, includePrivate, file),
                  ExportResult::success(file));
        return QString::fromUtf8(contentOf(file));
    }

    // The whole file around the lines of its days.
    static QString file(const QString& total, const QString& days) {
        return u"Tessarine — Notification Archive\nGenerated : 2026-03-03 09:15:02\n"
               u"Total     : "_qs +
               total + u'\n' + solid + u"\n\n"_qs + days + solid +
               u"\nEnd of report — Tessarine · zorvek.com"_qs;
    }

    // The same for one record at nine.
    static QString fileOfOne(const QString& record) {
        return file(u"1 notification"_qs, u"▸ 2026-03-03  (1 notification)\n"_qs + dotted +
                                              u"\n09:00:00  [Mail]\n"_qs + record + u"\n"_qs);
    }
};

TEST_F(TextExportTest, HasADayForEachDateTheNewestFirst) {
    EXPECT_EQ(exported({notification(u"Clock"_qs, u"Older"_qs, {}, march3(0) - 1),
                        notification(u"Mail"_qs, u"Anna"_qs, u"The minutes"_qs, march3(9, 12, 44)),
                        notification(u"Chat"_qs, u"Tom"_qs, u"On my way"_qs, march3(23, 59, 59))}),
              file(u"3 notifications"_qs, u"▸ 2026-03-03  (2 notifications)\n"_qs + dotted +
                                              u"\n09:12:44  [Mail]\n  Anna\n  The minutes\n\n"
                                              u"23:59:59  [Chat]\n  Tom\n  On my way\n\n"
                                              u"▸ 2026-03-02  (1 notification)\n"_qs +
                                              dotted + u"\n23:59:59  [Clock]\n  Older\n\n"_qs));
}

TEST_F(TextExportTest, KeepsTheGivenOrderWithinADay) {
    const QString text = exported({notification(u"Mail"_qs, u"b"_qs, {}, march3(8)),
                                   notification(u"Mail"_qs, u"old"_qs, {}, march3(8) - 86400),
                                   notification(u"Mail"_qs, u"a"_qs, {}, march3(7)),
                                   notification(u"Mail"_qs, u"c"_qs, {}, march3(9))});
    EXPECT_TRUE(text.contains(u"08:00:00  [Mail]\n  b\n\n07:00:00  [Mail]\n  a\n\n"
                              u"09:00:00  [Mail]\n  c\n\n▸ 2026-03-02"_qs))
        << text.toStdString();
}

TEST_F(TextExportTest, StartsWithoutAByteOrderMarkAndEndsWithoutALineFeed) {
    const QString out = path(u"out.txt"_qs);
    manager.exportTXT({}, false, out);
    EXPECT_TRUE(contentOf(out).startsWith("Tessarine"));
    EXPECT_TRUE(contentOf(out).endsWith("zorvek.com"));
}

TEST_F(TextExportTest, SaysZeroNotificationsOfAnEmptyList) {
    EXPECT_EQ(exported({}), file(u"0 notifications"_qs, {}));
}

TEST_F(TextExportTest, HasOnlyTheTimeAndAppOfARecordWithoutTexts) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, {}, {})}), fileOfOne({}));
}

TEST_F(TextExportTest, HasABodyWithoutATitle) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, {}, u"body"_qs)}), fileOfOne(u"  body\n"_qs));
}

TEST_F(TextExportTest, WritesABodyThatRepeatsItsTitleOnce) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"same"_qs, u"same"_qs)}),
              fileOfOne(u"  same\n"_qs));
}

TEST_F(TextExportTest, WritesABodyThatDiffersInCaseFromItsTitle) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"same"_qs, u"Same"_qs)}),
              fileOfOne(u"  same\n  Same\n"_qs));
}

TEST_F(TextExportTest, IndentsEachLineOfABody) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"t"_qs, u"one\ntwo\nthree"_qs)}),
              fileOfOne(u"  t\n  one\n  two\n  three\n"_qs));
}

TEST_F(TextExportTest, KeepsEmptyLinesOfABodyAsBlanks) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"t"_qs, u"\none\n\ntwo\n"_qs)}),
              fileOfOne(u"  t\n  \n  one\n  \n  two\n  \n"_qs));
}

TEST_F(TextExportTest, SplitsABodyAtLineFeedsOnly) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"t"_qs, u"one\r\ntwo\rthree\u2028four"_qs)}),
              fileOfOne(u"  t\n  one\r\n  two\rthree\u2028four\n"_qs));
}

TEST_F(TextExportTest, LeavesATitleOfTwoLinesAsItIs) {
    EXPECT_EQ(exported({notification(u"Mail"_qs, u"one\ntwo"_qs, {})}),
              fileOfOne(u"  one\ntwo\n"_qs));
}

TEST_F(TextExportTest, WritesDatesInTheUsersDigitsAndTheHeadInEnglish) {
    const DateLocaleScope arabic("ar_EG.UTF-8");
    const QString text = exported({notification(u"Mail"_qs, {}, {})});
    EXPECT_TRUE(text.contains(u"\nGenerated : 2026-03-03 09:15:02\n"_qs)) << text.toStdString();
    EXPECT_TRUE(text.contains(u"\n▸ ٢٠٢٦-٠٣-٠٣  (1 notification)\n"_qs)) << text.toStdString();
    EXPECT_TRUE(text.contains(u"\n٠٩:٠٠:٠٠  [Mail]\n"_qs)) << text.toStdString();
}

TEST_F(TextExportTest, CutsDaysByTheUsersClock) {
    const TimeZoneScope tokyo("Asia/Tokyo");
    const QString text = exported({notification(u"Mail"_qs, {}, {}, march3(14, 59, 59)),
                                   notification(u"Mail"_qs, {}, {}, march3(15))});
    EXPECT_TRUE(text.contains(u"▸ 2026-03-04  (1 notification)\n"_qs + dotted +
                              u"\n00:00:00  [Mail]\n\n▸ 2026-03-03  (1 notification)\n"_qs +
                              dotted + u"\n23:59:59  [Mail]\n\n"_qs))
        << text.toStdString();
}

TEST_F(TextExportTest, PutsMomentsBeyondAllDaysFirstAndLast) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const QString text =
        exported({notification(u"A"_qs, {}, {}, -infinity), notification(u"B"_qs, {}, {}),
                  notification(u"C"_qs, {}, {}, infinity), notification(u"D"_qs, {}, {}, 1e18)});
    const QString groups =
        u"▸ 9999-12-31  (2 notifications)\n"_qs + dotted +
        u"\n23:59:59  [C]\n\n23:59:59  [D]\n\n▸ 2026-03-03  (1 notification)\n"_qs + dotted +
        u"\n09:00:00  [B]\n\n▸ 0001-01-01  (1 notification)\n"_qs + dotted +
        u"\n00:00:00  [A]\n\n"_qs;
    EXPECT_TRUE(text.contains(groups)) << text.toStdString();
}

} // namespace
} // namespace tessarine::testing
