#include "support/EventLoop.h"
#include "support/PointerInput.h"
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

    // Where the sheet lies in the window.
    QRectF place() const {
        const auto* panel =
            root().findChild<QObject*>(u"preview"_qs)->property("background").value<QQuickItem*>();
        return panel->mapRectToScene(QRectF(0, 0, panel->width(), panel->height()));
    }

    // The part of the sheet of this type.
    const QQuickItem* below(const char* type) const {
        return firstBelow(*root()
                               .findChild<QObject*>(u"preview"_qs)
                               ->property("contentItem")
                               .value<QQuickItem*>(),
                          type);
    }

    static const QQuickItem* firstBelow(const QQuickItem& top, const char* type) {
        for (const QQuickItem* child : top.childItems()) {
            if (QByteArray(child->metaObject()->className()).startsWith(type))
                return child;
            if (const QQuickItem* deeper = firstBelow(*child, type))
                return deeper;
        }
        return nullptr;
    }

    bool closes() {
        return turnsUntil(
            [&] { return !view().actions()->isPreviewing() && isGone(u"preview"_qs); });
    }

    QString preview(const QString& name) const { return item(name).property("text").toString(); }
};

TEST_F(PreviewTest, SpaceOpensItOnTheFocusedRowAndClosesIt) {
    openOn(u"Title 3"_qs);
    EXPECT_EQ(preview(u"previewTitle"_qs), u"Title 3"_qs);
    EXPECT_EQ(preview(u"previewBody"_qs), u"Body 3"_qs);
    press(Qt::Key_Space);
    EXPECT_TRUE(closes());
    EXPECT_TRUE(view().actions()->focusedNotification());
}

TEST_F(PreviewTest, HasItsIdealSizeInTheMiddleOfTheWindow) {
    openOn(u"Title 3"_qs);
    EXPECT_EQ(place(), QRectF((720 - 480) / 2.0, (520 - 280) / 2.0, 480, 280));
    const QObject& sheet = *root().findChild<QObject*>(u"preview"_qs);
    EXPECT_EQ(sheet.property("minimumWidth").toDouble(), 420);
    EXPECT_EQ(sheet.property("maximumWidth").toDouble(), 600);
    EXPECT_EQ(sheet.property("minimumHeight").toDouble(), 200);
}

TEST_F(PreviewTest, ItsPartsHaveTheirPlaces) {
    openOn(u"Title 3"_qs);
    const QRectF panel = place();
    const QQuickItem& icon = *below("AppIconTile");
    EXPECT_EQ(icon.mapRectToScene(icon.boundingRect()),
              QRectF(panel.left() + 20, panel.top() + 20, 44, 44));
    EXPECT_EQ(icon.property("cornerRadius").toDouble(), 10);
    EXPECT_EQ(item(u"closePreview"_qs).property("size").toInt(), 20);
    EXPECT_EQ(item(u"closePreview"_qs).property("symbol").toString(), u"xmark.circle.fill"_qs);
    const QQuickItem& copy = item(u"copyPreview"_qs);
    const QRectF button = copy.mapRectToScene(QRectF(0, 0, copy.width(), copy.height()));
    EXPECT_EQ(button.left(), panel.left() + 20);
    EXPECT_EQ(button.bottom(), panel.bottom() - 12);
}

TEST_F(PreviewTest, TheMouseMarksTextAndDragsNothing) {
    openOn(u"Title 3"_qs);
    QQuickItem& body = item(u"previewBody"_qs);
    body.setProperty("text", u"line\n"_qs.repeated(60));
    draw();
    auto* scroller = body.parentItem()->parentItem()->parentItem();
    const QPoint text = body.mapToScene(QPointF(20, 30)).toPoint();
    dragByMouse(*window->window(), text, text + QPoint(0, 60));
    EXPECT_FALSE(body.property("selectedText").toString().isEmpty());
    const QPoint margin = scroller->mapToScene(QPointF(8, 90)).toPoint();
    dragByMouse(*window->window(), margin, margin - QPoint(0, 60));
    EXPECT_EQ(scroller->property("contentY").toDouble(), 0);
    turnWheel(*window->window(), margin, -30);
    EXPECT_TRUE(turnsUntil([&] {
        draw();
        return scroller->property("contentY").toDouble() > 0;
    }));
}

TEST_F(PreviewTest, KeysScrollALongText) {
    openOn(u"Title 3"_qs);
    item(u"previewBody"_qs).setProperty("text", u"line\n"_qs.repeated(60));
    draw();
    const QQuickItem& texts = item(u"previewTexts"_qs);
    const auto top = [&] { return texts.property("contentY").toDouble(); };
    const double end = texts.property("contentHeight").toDouble() - texts.height();
    press(Qt::Key_Down);
    EXPECT_EQ(top(), 48);
    press(Qt::Key_PageDown);
    EXPECT_EQ(top(), texts.height());
    press(Qt::Key_End);
    EXPECT_EQ(top(), end);
    press(Qt::Key_Tab); // the buttons leave the keys to it
    press(Qt::Key_Up);
    EXPECT_EQ(top(), end - 48);
    press(Qt::Key_Home);
    EXPECT_EQ(top(), 0);
}

TEST_F(PreviewTest, WithoutAFocusedRowSpaceGoesToTheField) {
    click(item(u"searchField"_qs));
    type(u"a b"_qs);
    EXPECT_EQ(view().list()->searchText(), u"a b"_qs);
    EXPECT_FALSE(view().actions()->isPreviewing());
}

TEST_F(PreviewTest, WithAFocusedRowABlankInTheFieldOpensIt) {
    click(*row(u"Title 3"_qs));
    click(item(u"searchField"_qs));
    press(Qt::Key_Space);
    EXPECT_TRUE(view().actions()->isPreviewing());
    EXPECT_EQ(view().list()->searchText(), QString());
}

TEST_F(PreviewTest, ShiftSpacePassesThrough) {
    click(*row(u"Title 3"_qs));
    press(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_FALSE(view().actions()->isPreviewing());
}

TEST_F(PreviewTest, EscapeClosesItAndTakesTheFocus) {
    openOn(u"Title 3"_qs);
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes());
    EXPECT_FALSE(view().actions()->focusedNotification());
}

TEST_F(PreviewTest, ItsButtonCloses) {
    openOn(u"Title 3"_qs);
    click(item(u"closePreview"_qs));
    EXPECT_TRUE(closes());
    EXPECT_TRUE(view().actions()->focusedNotification());
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
    EXPECT_TRUE(view().actions()->isPreviewing());
    EXPECT_FALSE(item(u"openPreviewed"_qs).isEnabled()); // it has no id either
}

TEST_F(PreviewTest, OpenStartsTheAppAndClosesWithoutABanner) {
    system.workspace.installed[u"com.example.mail"_qs] = u"/Applications/Mail.app"_qs;
    openOn(u"Title 3"_qs);
    click(item(u"openPreviewed"_qs));
    EXPECT_TRUE(closes());
    EXPECT_EQ(system.workspace.openedApplications, QStringList(u"/Applications/Mail.app"_qs));
    EXPECT_FALSE(view().overlays()->hasInlineBanner());
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
