#include "controls/PanelsFixture.h"
#include "ui/AnimationClock.h"

#include <QFontMetricsF>
#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

// Popovers

TEST_F(PanelsTest, APopoverOpensUnderItsButton) {
    click(u"button"_qs);
    EXPECT_TRUE(becomes(u"popover"_qs, "opened", true));
    EXPECT_GE(place(u"popover"_qs).top(), 16 + 26);
    EXPECT_TRUE(isInWindow(u"popover"_qs));
}

TEST_F(PanelsTest, EscapeClosesAPopover) {
    click(u"button"_qs);
    EXPECT_TRUE(becomes(u"popover"_qs, "opened", true));
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes(u"popover"_qs));
    EXPECT_EQ(focusName(), u"list"_qs);
}

TEST_F(PanelsTest, AClickOutsideClosesAPopover) {
    click(u"button"_qs);
    EXPECT_TRUE(becomes(u"popover"_qs, "opened", true));
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, QPoint(600, 400));
    EXPECT_TRUE(closes(u"popover"_qs));
}

TEST_F(PanelsTest, TabStaysInAPopover) {
    open(u"popover"_qs);
    QStringList visited;
    for (int i = 0; i < 4; ++i) {
        press(Qt::Key_Tab);
        visited << focusName();
    }
    EXPECT_EQ(visited, QStringList({u"today"_qs, u"yesterday"_qs, u"today"_qs, u"yesterday"_qs}));
}

TEST_F(PanelsTest, AReopenedPopoverBeginsAnew) {
    open(u"popover"_qs);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"today"_qs);
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes(u"popover"_qs));
    open(u"popover"_qs);
    EXPECT_NE(focusName(), u"today"_qs);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList());
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"today"_qs);
}

// Sheets

TEST_F(PanelsTest, ASheetHasItsIdealSizeInTheMiddle) {
    open(u"sheet"_qs);
    EXPECT_EQ(place(u"sheet"_qs), QRectF(80, 70, 480, 280));
}

TEST_F(PanelsTest, ASheetKeepsWithinItsBoundsAndTheWindow) {
    open(u"sheet"_qs);
    object(u"sheet"_qs).setProperty("idealWidth", 2000);
    EXPECT_EQ(object(u"sheet"_qs).property("width"), 600);
    object(u"sheet"_qs).setProperty("idealWidth", 100);
    EXPECT_EQ(object(u"sheet"_qs).property("width"), 420);
    window->resize(400, 300);
    EXPECT_TRUE(becomes(u"sheet"_qs, "width", 360.0));
    EXPECT_TRUE(becomes(u"sheet"_qs, "height", 260.0));
}

TEST_F(PanelsTest, TheWindowBehindASheetIsDimmed) {
    const QColor before = picture().pixelColor(5, 5);
    open(u"sheet"_qs);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return picture().pixelColor(5, 5).lightness() < before.lightness() * 0.8; }, 20000));
}

TEST_F(PanelsTest, WhatLiesBehindASheetTakesNoClicks) {
    open(u"sheet"_qs);
    click(u"button"_qs);
    EXPECT_FALSE(object(u"popover"_qs).property("visible").toBool());
    EXPECT_TRUE(object(u"sheet"_qs).property("opened").toBool());
}

TEST_F(PanelsTest, TheKeyboardIsInASheetWhileItIsOpen) {
    open(u"sheet"_qs);
    EXPECT_EQ(focusName(), u"sheetField"_qs);
    QStringList visited;
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_Tab);
        visited << focusName();
    }
    EXPECT_EQ(visited, QStringList({u"sheetOpen"_qs, u"sheetCopy"_qs, u"sheetField"_qs}));
}

TEST_F(PanelsTest, ReturnPressesTheDefaultButtonOfASheet) {
    open(u"sheet"_qs);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"sheet copy"_qs});
}

TEST_F(PanelsTest, ReturnPressesTheButtonThatHasTheKeyboard) {
    open(u"sheet"_qs);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"sheet open"_qs});
}

TEST_F(PanelsTest, ADisabledDefaultButtonIsNotPressed) {
    open(u"sheet"_qs);
    item(u"sheetCopy"_qs).setEnabled(false);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(PanelsTest, EscapeClosesASheetAndGivesTheKeyboardBack) {
    open(u"sheet"_qs);
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes(u"sheet"_qs));
    EXPECT_EQ(focusName(), u"list"_qs);
}

TEST_F(PanelsTest, ASheetMayRefuseEscape) {
    object(u"sheet"_qs).setProperty("closesOnEscape", false);
    open(u"sheet"_qs);
    press(Qt::Key_Escape);
    EXPECT_TRUE(object(u"sheet"_qs).property("opened").toBool());
}

TEST_F(PanelsTest, AReopenedSheetBeginsAnew) {
    open(u"sheet"_qs);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"sheetOpen"_qs);
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes(u"sheet"_qs));
    open(u"sheet"_qs);
    EXPECT_EQ(focusName(), u"sheetField"_qs);
}

TEST_F(PanelsTest, EscapeClosesASheetWhoseFocusedControlWasDisabled) {
    open(u"sheet"_qs);
    item(u"sheetField"_qs).setEnabled(false);
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes(u"sheet"_qs));
}

TEST_F(PanelsTest, AScreenReaderSeesADialogWithItsName) {
    const ScreenReaderRuns reader;
    open(u"sheet"_qs);
    QAccessibleInterface* dialog = spokenInWindow(QAccessible::Dialog);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->text(QAccessible::Name), u"Preview"_qs); // none around it without a name
    EXPECT_EQ(spokenBelow(*dialog, QAccessible::Dialog), nullptr);
}

// Alerts

class ThemeAlertTest : public PanelsTest {
protected:
    // The button of the open alert with this text.
    QQuickItem* button(const QString& text) {
        QAccessibleInterface* found = spokenInWindow(QAccessible::Button, text);
        EXPECT_NE(found, nullptr) << text.toStdString();
        return found ? qobject_cast<QQuickItem*>(found->object()) : nullptr;
    }

    QQuickItem* label(const QString& text) const {
        return firstBelow(*window->contentItem(), [&](const QQuickItem& child) {
            return child.isVisible() && child.inherits("QQuickText") &&
                   child.property("text") == text;
        });
    }

    bool shows(const QString& text) const { return label(text) != nullptr; }

    int questionLines(const QString& text) const {
        return label(text)->property("lineCount").toInt();
    }

    // Of a question, in one line.
    double lineWidth(const QString& text) const {
        QFont font = theme.textFont(13);
        font.setWeight(QFont::DemiBold);
        return QFontMetricsF(font).horizontalAdvance(text);
    }
};

TEST_F(ThemeAlertTest, EscapeCancels) {
    open(u"alert"_qs);
    press(Qt::Key_Escape);
    EXPECT_EQ(log(), QStringList{u"cancel"_qs});
    EXPECT_TRUE(closes(u"alert"_qs));
    EXPECT_EQ(focusName(), u"list"_qs);
}

TEST_F(ThemeAlertTest, ReturnDoesNotDestroyWhereThereIsAnotherAnswer) {
    open(u"alert"_qs);
    EXPECT_FALSE(button(u"Delete"_qs)->property("prominent").toBool());
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"cancel"_qs});
}

TEST_F(ThemeAlertTest, WhatDestroysNeedsAClickOrTab) {
    open(u"alert"_qs);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"destroy"_qs});
}

TEST_F(ThemeAlertTest, AClickAnswers) {
    open(u"alert"_qs);
    QQuickItem* destroy = button(u"Delete"_qs);
    ASSERT_NE(destroy, nullptr);
    QTest::mouseClick(window.get(), Qt::LeftButton, {},
                      destroy->mapToScene(QPointF(10, 10)).toPoint());
    EXPECT_EQ(log(), QStringList{u"destroy"_qs});
    EXPECT_TRUE(closes(u"alert"_qs));
}

TEST_F(ThemeAlertTest, ReturnGivesTheDefaultAnswer) {
    open(u"notice"_qs);
    EXPECT_TRUE(button(u"OK"_qs)->property("prominent").toBool());
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"ok"_qs});
}

TEST_F(ThemeAlertTest, WithoutAnAnswerThatCancelsEscapeDoesNothing) {
    open(u"notice"_qs);
    press(Qt::Key_Escape);
    EXPECT_EQ(log(), QStringList());
    EXPECT_TRUE(object(u"notice"_qs).property("opened").toBool());
}

TEST_F(ThemeAlertTest, TheOnlyAnswerIsTheDefaultWhateverItDoes) {
    open(u"single"_qs);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"only"_qs});
}

TEST_F(ThemeAlertTest, EscapeCancelsAlsoWhenTheFocusedAnswerWasDisabled) {
    open(u"alert"_qs);
    button(u"Cancel"_qs)->setEnabled(false);
    press(Qt::Key_Escape);
    EXPECT_EQ(log(), QStringList{u"cancel"_qs});
}

TEST_F(ThemeAlertTest, KeepsItsWordsWhileItFades) {
    AnimationClock clock;
    object(u"alert"_qs).setProperty("visible", true);
    clock.turnOn(1000);
    press(Qt::Key_Escape);
    scene->setProperty("question", u"Delete 0 notifications?"_qs);
    clock.turnOn(50);
    EXPECT_TRUE(object(u"alert"_qs).property("visible").toBool());
    EXPECT_TRUE(shows(u"Delete 12 notifications?"_qs));
    EXPECT_FALSE(shows(u"Delete 0 notifications?"_qs));
    clock.turnOn(1000);
    EXPECT_FALSE(object(u"alert"_qs).property("visible").toBool());
    object(u"alert"_qs).setProperty("visible", true);
    clock.turnOn(1000);
    EXPECT_TRUE(shows(u"Delete 0 notifications?"_qs));
}

TEST_F(ThemeAlertTest, IsAnsweredOnce) {
    AnimationClock clock;
    object(u"alert"_qs).setProperty("visible", true);
    clock.turnOn(1000);
    QQuickItem* destroy = button(u"Delete"_qs);
    const QPoint place = destroy->mapToScene(QPointF(10, 10)).toPoint();
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, place);
    clock.turnOn(50);
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, place);
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    EXPECT_EQ(log(), QStringList{u"destroy"_qs});
}

// The widths are worked out from the font: the room of a question is its line and 20 on each side.

TEST_F(ThemeAlertTest, IsAsWideAsItsTextAsks) {
    const QString question = u"Delete all these 1,234,567 notifications?"_qs;
    scene->setProperty("question", question);
    open(u"brief"_qs);
    const double wanted = lineWidth(question) + 40;
    ASSERT_GT(wanted, 262);
    ASSERT_LT(wanted, 378);
    EXPECT_NEAR(object(u"brief"_qs).property("width").toDouble(), wanted, 1);
    EXPECT_EQ(questionLines(question), 1);
}

TEST_F(ThemeAlertTest, IsAtLeast260Wide) {
    scene->setProperty("question", u"Go on?"_qs);
    open(u"brief"_qs);
    EXPECT_EQ(object(u"brief"_qs).property("width").toDouble(), 260);
}

TEST_F(ThemeAlertTest, IsAtMost380Wide) {
    const QString question = u"Delete "_qs + u"a great many "_qs.repeated(6) + u"notifications?"_qs;
    scene->setProperty("question", question);
    open(u"brief"_qs);
    EXPECT_EQ(object(u"brief"_qs).property("width").toDouble(), 380);
    EXPECT_GT(questionLines(question), 1);
    EXPECT_TRUE(isInWindow(u"brief"_qs));
}

TEST_F(ThemeAlertTest, IsAsWideAsItsMessageAsks) {
    open(u"alert"_qs); // whose message fills several lines
    EXPECT_EQ(object(u"alert"_qs).property("width").toDouble(), 380);
}

TEST_F(ThemeAlertTest, AScreenReaderHearsTheQuestion) {
    const ScreenReaderRuns reader;
    open(u"alert"_qs);
    QAccessibleInterface* dialog =
        spokenInWindow(QAccessible::Dialog, u"Delete 12 notifications?"_qs);
    ASSERT_NE(dialog, nullptr);
    EXPECT_NE(spokenBelow(*dialog, QAccessible::StaticText,
                          object(u"alert"_qs).property("message").toString()),
              nullptr);
}

} // namespace
} // namespace tessarine::testing
