#include "controls/ControlsFixture.h"

#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class FieldsTest : public ControlsFixture {
protected:
    void SetUp() override { load(u"fields"_qs); }

    QString text() { return item(u"field"_qs).property("text").toString(); }
    QString selected() { return item(u"field"_qs).property("selectedText").toString(); }

    void type(const QString& letters) {
        for (const QChar letter : letters)
            QTest::keyClick(window.get(), letter.toLatin1());
    }

    QQuickItem& linkLabel() {
        return *firstBelow(item(u"link"_qs),
                           [](const QQuickItem& child) { return child.inherits("QQuickText"); });
    }

    bool isUnderlined() { return linkLabel().property("font").value<QFont>().underline(); }
};

// Text field

TEST_F(FieldsTest, AFieldShowsWhatItsOwnerHolds) {
    EXPECT_EQ(text(), u"Mail"_qs);
    scene->setProperty("name", u"Chat"_qs);
    EXPECT_EQ(text(), u"Chat"_qs);
}

TEST_F(FieldsTest, WhoComesByTheKeyboardFindsAllOfItSelected) {
    focus(u"before"_qs);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"field"_qs);
    EXPECT_EQ(selected(), u"Mail"_qs);
    type(u"new"_qs);
    EXPECT_EQ(text(), u"new"_qs);
}

TEST_F(FieldsTest, AClickSelectsNothing) {
    click(u"field"_qs);
    EXPECT_EQ(focusName(), u"field"_qs);
    EXPECT_EQ(selected(), QString());
}

TEST_F(FieldsTest, ReturnAndEnterOfferTheText) {
    focus(u"field"_qs);
    type(u"new"_qs);
    EXPECT_EQ(log(), QStringList());
    press(Qt::Key_Return);
    EXPECT_EQ(text(), u"NEW"_qs); // as the owner has it
    item(u"field"_qs).setProperty("text", u"next"_qs);
    press(Qt::Key_Enter);
    EXPECT_EQ(log(), QStringList({u"accepted new"_qs, u"accepted next"_qs}));
}

TEST_F(FieldsTest, EscapePutsTheOwnersValueBack) {
    focus(u"field"_qs);
    type(u"new"_qs);
    press(Qt::Key_Escape);
    EXPECT_EQ(text(), u"Mail"_qs);
    EXPECT_EQ(log(), QStringList());
    scene->setProperty("name", u"Chat"_qs); // it still follows its owner
    EXPECT_EQ(text(), u"Chat"_qs);
    type(u"x"_qs);
    press(Qt::Key_Escape);
    EXPECT_EQ(text(), u"Chat"_qs);
}

TEST_F(FieldsTest, EscapeGoesOnWhenThereIsNothingToPutBack) {
    focus(u"field"_qs);
    press(Qt::Key_Escape);
    EXPECT_EQ(log(), QStringList{u"escape"_qs});
}

TEST_F(FieldsTest, ATextThatItsOwnerRefusesCanStillBePutBack) {
    scene->setProperty("obedient", false);
    focus(u"field"_qs);
    type(u"bad"_qs);
    press(Qt::Key_Return);
    EXPECT_EQ(text(), u"bad"_qs);
    press(Qt::Key_Escape);
    EXPECT_EQ(text(), u"Mail"_qs);
}

TEST_F(FieldsTest, AFieldTakesNoMoreThanItsMaximumLength) {
    focus(u"field"_qs);
    type(u"abcdefghij"_qs);
    EXPECT_EQ(text(), u"abcdefgh"_qs);
}

TEST_F(FieldsTest, TheRingOfAFieldShowsWhileTheKeyboardIsThere) {
    EXPECT_FALSE(showsFocusRing(u"field"_qs));
    click(u"field"_qs);
    EXPECT_TRUE(showsFocusRing(u"field"_qs));
}

TEST_F(FieldsTest, ThePlaceholderOfAFieldGivesWayToTheText) {
    const auto asks = [this] {
        return firstBelow(item(u"field"_qs), [](const QQuickItem& child) {
                   return child.isVisible() && child.property("text") == u"A name"_qs;
               }) != nullptr;
    };
    EXPECT_FALSE(asks());
    scene->setProperty("name", QString());
    EXPECT_TRUE(asks());
}

TEST_F(FieldsTest, AScreenReaderSeesATextFieldWithItsValue) {
    QAccessibleInterface& field = spokenItem(u"field"_qs);
    EXPECT_EQ(field.role(), QAccessible::EditableText);
    EXPECT_EQ(nameOf(u"field"_qs), u"Name"_qs);
    EXPECT_EQ(field.text(QAccessible::Value), u"Mail"_qs);
    EXPECT_FALSE(field.state().searchEdit);
}

TEST_F(FieldsTest, AFieldWithoutTheKeyboardShowsWhereItsTextBegins) {
    const auto firstLetter = [this] {
        picture();
        QRectF place;
        QMetaObject::invokeMethod(&item(u"field"_qs), "positionToRectangle",
                                  Q_RETURN_ARG(QRectF, place), Q_ARG(int, 0));
        return place.left();
    };
    const double beginning = firstLetter();
    scene->setProperty("name", u"A text that is too long for a field of 200 points"_qs);
    item(u"field"_qs).setProperty("maximumLength", 100);
    scene->setProperty("name", u"Another text that is too long for a field of 200 points"_qs);
    EXPECT_EQ(firstLetter(), beginning);
    focus(u"field"_qs);
    press(Qt::Key_End);
    EXPECT_LT(firstLetter(), beginning);
    focus(u"before"_qs);
    EXPECT_EQ(firstLetter(), beginning);
}

// Check box

TEST_F(FieldsTest, AClickOnABoxOrItsTextTicksIt) {
    click(u"box"_qs); // its middle is on the text
    EXPECT_TRUE(item(u"box"_qs).property("checked").toBool());
    QTest::mouseClick(window.get(), Qt::LeftButton, {},
                      item(u"box"_qs).mapToScene(QPointF(8, 8)).toPoint());
    EXPECT_EQ(log(), QStringList({u"agree true"_qs, u"agree false"_qs}));
}

TEST_F(FieldsTest, SpaceTicksABoxAndUnticksIt) {
    focus(u"box"_qs);
    EXPECT_TRUE(showsFocusRing(u"box"_qs));
    press(Qt::Key_Space);
    press(Qt::Key_Space);
    EXPECT_EQ(log(), QStringList({u"agree true"_qs, u"agree false"_qs}));
}

TEST_F(FieldsTest, ABoxWhoseOwnerRefusesStaysAsItWas) {
    scene->setProperty("obedient", false);
    click(u"box"_qs);
    EXPECT_EQ(log(), QStringList{u"agree true"_qs});
    EXPECT_FALSE(item(u"box"_qs).property("checked").toBool());
    EXPECT_FALSE(spokenItem(u"box"_qs).state().checked);
}

TEST_F(FieldsTest, ATickedBoxIsFilled) {
    const QPointF nearEdge(8, 2); // clear of the mark
    EXPECT_EQ(colourIn(u"box"_qs, nearEdge), Palette::light().controlBackground);
    scene->setProperty("agreed", true);
    EXPECT_EQ(colourIn(u"box"_qs, nearEdge), Palette::light().accentFill);
    appearance.setDesktopIsDark(true);
    EXPECT_EQ(colourIn(u"box"_qs, nearEdge), Palette::dark().accentFill);
}

TEST_F(FieldsTest, ADisabledBoxStaysAndItsTextIsQuiet) {
    const QQuickItem* label = firstBelow(
        item(u"box"_qs), [](const QQuickItem& child) { return child.inherits("QQuickText"); });
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->property("color").value<QColor>(), Palette::light().label);
    scene->setProperty("usable", false);
    EXPECT_EQ(label->property("color").value<QColor>(), Palette::light().secondaryLabel);
    click(u"box"_qs);
    pressFromOutside(u"box"_qs, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(log(), QStringList());
}

TEST_F(FieldsTest, AScreenReaderSeesACheckBox) {
    EXPECT_EQ(spokenItem(u"box"_qs).role(), QAccessible::CheckBox);
    EXPECT_EQ(nameOf(u"box"_qs), u"I agree"_qs);
    EXPECT_TRUE(spokenItem(u"box"_qs).state().checkable);
    pressFromOutside(u"box"_qs, QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(spokenItem(u"box"_qs).state().checked);
}

TEST_F(FieldsTest, FromRightToLeftTheBoxStandsAtTheRight) {
    const QQuickItem* mark = item(u"box"_qs).property("indicator").value<QQuickItem*>();
    EXPECT_EQ(mark->x(), 0);
    scene->setProperty("mirrored", true);
    EXPECT_EQ(mark->x() + mark->width(), item(u"box"_qs).width());
}

// Link

TEST_F(FieldsTest, AClickFollowsALinkWithoutTakingTheKeyboard) {
    focus(u"before"_qs);
    const QPoint onText = item(u"link"_qs).mapToScene(QPointF(10, 8)).toPoint();
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, onText);
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, onText);
    EXPECT_EQ(log(), QStringList({u"link"_qs, u"link"_qs}));
    EXPECT_EQ(focusName(), u"before"_qs);
}

TEST_F(FieldsTest, AClickBesideTheTextOfALinkIsNone) {
    QTest::mouseClick(window.get(), Qt::LeftButton, {},
                      item(u"link"_qs).mapToScene(QPointF(190, 8)).toPoint());
    EXPECT_EQ(log(), QStringList());
}

TEST_F(FieldsTest, KeysFollowALinkOnceEach) {
    focus(u"link"_qs);
    EXPECT_TRUE(showsFocusRing(u"link"_qs));
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        press(key);
    EXPECT_EQ(log().size(), 3);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(window.get(), &held);
    EXPECT_EQ(log().size(), 3);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(log().size(), 3);
}

TEST_F(FieldsTest, ALinkIsUnderlinedUnderThePointerAlone) {
    EXPECT_FALSE(isUnderlined());
    QTest::mouseMove(window.get(), item(u"link"_qs).mapToScene(QPointF(10, 8)).toPoint());
    picture();
    EXPECT_TRUE(isUnderlined());
    EXPECT_EQ(item(u"linkArea"_qs).cursor().shape(), Qt::PointingHandCursor);
    hover(u"before"_qs);
    EXPECT_FALSE(isUnderlined());
}

TEST_F(FieldsTest, TheRingOfALinkShowsForTheKeyboardAlone) {
    item(u"link"_qs).forceActiveFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(showsFocusRing(u"link"_qs));
    focus(u"before"_qs);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"link"_qs);
    EXPECT_TRUE(showsFocusRing(u"link"_qs));
    press(Qt::Key_Tab);
    EXPECT_FALSE(showsFocusRing(u"link"_qs));
}

TEST_F(FieldsTest, AScreenReaderCanFollowALink) {
    EXPECT_EQ(spokenItem(u"link"_qs).role(), QAccessible::Link);
    EXPECT_EQ(nameOf(u"link"_qs), u"Read it"_qs);
    EXPECT_TRUE(spokenItem(u"link"_qs).state().focusable);
    pressFromOutside(u"link"_qs, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(log(), QStringList{u"link"_qs});
}

TEST_F(FieldsTest, ADisabledLinkLeadsNowhere) {
    scene->setProperty("usable", false);
    QTest::mouseClick(window.get(), Qt::LeftButton, {},
                      item(u"link"_qs).mapToScene(QPointF(10, 8)).toPoint());
    pressFromOutside(u"link"_qs, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(log(), QStringList());
}

TEST_F(FieldsTest, LongTextsOfBoxesAndLinksStayInTheirRoom) {
    for (const bool mirrored : {false, true}) {
        scene->setProperty("mirrored", mirrored);
        picture();
        EXPECT_EQ(overflowing(u"longBox"_qs), QStringList());
        EXPECT_EQ(overflowing(u"longLink"_qs), QStringList());
    }
}

} // namespace
} // namespace tessarine::testing
