#include "support/EventLoop.h"
#include "ui/UiFixture.h"

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class PreviewTest : public UiTest {
protected:
    PreviewTest() {
        NotificationList rows = numbered(4);
        for (CapturedNotification& row : rows)
            row.appBundleId = u"com.example.mail"_qs;
        rows[3].title.clear();
        rows[3].body.clear();
        rows[3].appBundleId.clear();
        showHoard(rows);
    }

    void openOn(const QString& title) {
        click(*row(title));
        press(Qt::Key_Space);
        ASSERT_TRUE(turnsUntil([&] { return isShown(u"preview"_qs); }));
        draw();
    }

    bool closes() {
        return turnsUntil([&] { return !view().isPreviewing() && isGone(u"preview"_qs); });
    }

    QString preview(const QString& name) const { return item(name).property("text").toString(); }
};

TEST_F(PreviewTest, SpaceOpensItOnTheFocusedRowAndClosesIt) {
    openOn(u"Title 3"_qs);
    EXPECT_EQ(preview(u"previewTitle"_qs), u"Title 3"_qs);
    EXPECT_EQ(preview(u"previewBody"_qs), u"Body 3"_qs);
    press(Qt::Key_Space);
    EXPECT_TRUE(closes());
    EXPECT_TRUE(view().focusedNotification());
}

TEST_F(PreviewTest, WithoutAFocusedRowSpaceGoesToTheField) {
    click(item(u"searchField"_qs));
    type(u"a b"_qs);
    EXPECT_EQ(view().searchText(), u"a b"_qs);
    EXPECT_FALSE(view().isPreviewing());
}

TEST_F(PreviewTest, WithAFocusedRowABlankInTheFieldOpensIt) {
    click(*row(u"Title 3"_qs));
    click(item(u"searchField"_qs));
    press(Qt::Key_Space);
    EXPECT_TRUE(view().isPreviewing());
    EXPECT_EQ(view().searchText(), QString());
}

TEST_F(PreviewTest, ShiftSpacePassesThrough) {
    click(*row(u"Title 3"_qs));
    press(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_FALSE(view().isPreviewing());
}

TEST_F(PreviewTest, EscapeClosesItAndTakesTheFocus) {
    openOn(u"Title 3"_qs);
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes());
    EXPECT_FALSE(view().focusedNotification());
}

TEST_F(PreviewTest, ItsButtonCloses) {
    openOn(u"Title 3"_qs);
    click(item(u"closePreview"_qs));
    EXPECT_TRUE(closes());
    EXPECT_TRUE(view().focusedNotification());
}

TEST_F(PreviewTest, CopyCopiesAndCloses) {
    openOn(u"Title 3"_qs);
    click(item(u"copyPreview"_qs));
    EXPECT_EQ(pasteboard, QStringList(u"Title 3\nBody 3"_qs));
    EXPECT_TRUE(closes());
}

TEST_F(PreviewTest, TheCopyShortcutDoesTheSame) {
    openOn(u"Title 3"_qs);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(pasteboard, QStringList(u"Title 3\nBody 3"_qs));
    EXPECT_TRUE(closes());
}

TEST_F(PreviewTest, WithoutATextItSaysSoAndCopyStays) {
    openOn({});
    EXPECT_TRUE(textsInWindow(*window).contains(u"This notification has no text."_qs));
    click(item(u"copyPreview"_qs));
    EXPECT_TRUE(pasteboard.isEmpty());
    EXPECT_TRUE(view().isPreviewing());
    EXPECT_FALSE(item(u"openPreviewed"_qs).isEnabled()); // it has no id either
}

TEST_F(PreviewTest, OpenStartsTheAppAndClosesWithoutABanner) {
    system.workspace.installed[u"com.example.mail"_qs] = u"/Applications/Mail.app"_qs;
    openOn(u"Title 3"_qs);
    click(item(u"openPreviewed"_qs));
    EXPECT_TRUE(closes());
    EXPECT_EQ(system.workspace.openedApplications, QStringList(u"/Applications/Mail.app"_qs));
    EXPECT_FALSE(view().hasInlineBanner());
}

TEST_F(PreviewTest, ShowsAMaskedRowInClear) {
    preferences.setGlobalPrivacyMode(true);
    draw();
    click(*row(u"Title 3"_qs)); // reveals
    openOn(u"Title 3"_qs);
    EXPECT_EQ(preview(u"previewBody"_qs), u"Body 3"_qs);
}

TEST_F(PreviewTest, ACaptureClosesIt) {
    openOn(u"Title 3"_qs);
    reload();
    EXPECT_TRUE(closes());
    EXPECT_NE(row(u"Title 3"_qs), nullptr);
}

} // namespace
} // namespace tessarine::testing
