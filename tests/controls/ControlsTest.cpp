#include "controls/ControlsFixture.h"

#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class ControlsTest : public ControlsFixture {
protected:
    void SetUp() override { load(u"controls"_qs); }

    void disableAll() { scene->setProperty("usable", false); }

    // Inside the edge, clear of the text.
    static constexpr QPointF corner_{4, 4};
};

// Buttons

struct ButtonCase {
    const char* item;
    const char* noted;
    const char* spokenName;
};

class ThemeButtonTest : public ControlsTest, public ::testing::WithParamInterface<ButtonCase> {
protected:
    const QString item_ = QString::fromLatin1(GetParam().item);
    const QStringList noted_{QString::fromLatin1(GetParam().noted)};
};

TEST_P(ThemeButtonTest, AClickPressesItWithoutTakingTheKeyboard) {
    focus(u"search"_qs);
    click(item_);
    EXPECT_EQ(log(), noted_);
    EXPECT_EQ(focusName(), u"search"_qs);
}

TEST_P(ThemeButtonTest, SpaceReturnAndEnterPressIt) {
    focus(item_);
    int expected = 0;
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        press(key);
        EXPECT_EQ(log().size(), ++expected) << key;
    }
}

TEST_P(ThemeButtonTest, AScreenReaderCanPressIt) {
    EXPECT_EQ(spokenItem(item_).role(), QAccessible::Button);
    EXPECT_EQ(nameOf(item_), QString::fromLatin1(GetParam().spokenName));
    pressFromOutside(item_, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(log(), noted_);
}

TEST_P(ThemeButtonTest, DisabledItDoesNothing) {
    disableAll();
    click(item_);
    pressFromOutside(item_, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(log(), QStringList());
    EXPECT_LT(item(item_).opacity(), 0.5);
}

TEST_P(ThemeButtonTest, ItsRingShowsForTheKeyboardAlone) {
    EXPECT_FALSE(showsFocusRing(item_));
    item(item_).forceActiveFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(showsFocusRing(item_));
    focus(u"search"_qs);
    focus(item_);
    EXPECT_TRUE(showsFocusRing(item_));
}

TEST_P(ThemeButtonTest, HoveringAndPressingShadeIt) {
    const QColor resting = colourIn(item_, corner_);
    hover(item_);
    const QColor hovered = colourIn(item_, corner_);
    QTest::mousePress(window.get(), Qt::LeftButton, {}, centre(item_));
    const QColor pressed = colourIn(item_, corner_);
    QTest::mouseRelease(window.get(), Qt::LeftButton, {}, centre(item_));
    EXPECT_LT(hovered.lightness(), resting.lightness());
    EXPECT_LT(pressed.lightness(), hovered.lightness());
}

INSTANTIATE_TEST_SUITE_P(Buttons, ThemeButtonTest,
                         ::testing::Values(ButtonCase{"textButton", "text", "Cancel"},
                                           ButtonCase{"iconButton", "icon", "Delete"}),
                         [](const auto& info) { return std::string(info.param.item); });

TEST_F(ControlsTest, ADestructiveButtonIsRed) {
    item(u"textButton"_qs).setProperty("destructive", true);
    EXPECT_EQ(item(u"textButton"_qs).property("ink").value<QColor>(), theme.colours().red);
}

TEST_F(ControlsTest, AProminentButtonIsFilledAndSaysThatItIsTheDefault) {
    item(u"textButton"_qs).setProperty("prominent", true);
    EXPECT_EQ(colourIn(u"textButton"_qs, corner_), theme.colours().accentFill);
    EXPECT_TRUE(spokenItem(u"textButton"_qs).state().defaultButton);
}

TEST_F(ControlsTest, APlainButtonHasNoGround) {
    item(u"textButton"_qs).setProperty("plain", true);
    EXPECT_EQ(colourIn(u"textButton"_qs, corner_), theme.colours().windowBackground);
}

TEST_F(ControlsTest, AButtonTooNarrowForItsTextCutsItWithAnEllipsis) {
    item(u"textButton"_qs).setWidth(40);
    picture();
    EXPECT_NE(
        firstBelow(item(u"textButton"_qs),
                   [](const QQuickItem& text) { return text.property("truncated").toBool(); }),
        nullptr);
}

// Switch

TEST_F(ControlsTest, AClickTurnsASwitchOverAndBack) {
    click(u"toggle"_qs);
    click(u"toggle"_qs);
    EXPECT_EQ(log(), QStringList({u"switch true"_qs, u"switch false"_qs}));
}

TEST_F(ControlsTest, KeysTurnASwitchOver) {
    focus(u"toggle"_qs);
    EXPECT_TRUE(showsFocusRing(u"toggle"_qs));
    press(Qt::Key_Space);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList({u"switch true"_qs, u"switch false"_qs}));
}

TEST_F(ControlsTest, ASwitchShowsWhatItsOwnerHolds) {
    scene->setProperty("on", true);
    EXPECT_TRUE(item(u"toggle"_qs).property("checked").toBool());
    EXPECT_TRUE(spokenItem(u"toggle"_qs).state().checked);
    EXPECT_TRUE(becomes(u"toggle"_qs, "position", 1.0));
    scene->setProperty("on", false);
    EXPECT_FALSE(spokenItem(u"toggle"_qs).state().checked);
    EXPECT_TRUE(becomes(u"toggle"_qs, "position", 0.0));
}

TEST_F(ControlsTest, ASwitchWhoseOwnerRefusesStaysAsItWas) {
    scene->setProperty("obedient", false);
    click(u"toggle"_qs);
    EXPECT_EQ(log(), QStringList{u"switch true"_qs});
    EXPECT_FALSE(item(u"toggle"_qs).property("checked").toBool());
}

TEST_F(ControlsTest, AScreenReaderCanTurnASwitchOver) {
    EXPECT_EQ(spokenItem(u"toggle"_qs).role(), QAccessible::CheckBox);
    EXPECT_EQ(nameOf(u"toggle"_qs), u"Launch at login"_qs);
    EXPECT_TRUE(spokenItem(u"toggle"_qs).state().checkable);
    pressFromOutside(u"toggle"_qs, QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(log(), QStringList{u"switch true"_qs});
}

TEST_F(ControlsTest, ADisabledSwitchStays) {
    disableAll();
    click(u"toggle"_qs);
    EXPECT_EQ(log(), QStringList());
}

// Segments

class ThemeSegmentsTest : public ControlsTest {
protected:
    // One part of the row, by its text.
    QQuickItem& part(const QString& text) {
        QQuickItem* found = firstBelow(item(u"segments"_qs), [&](const QQuickItem& child) {
            return child.inherits("QQuickAbstractButton") && child.property("text") == text;
        });
        if (!found)
            qFatal("There is no part %s", qPrintable(text));
        return *found;
    }

    void clickPart(const QString& text) {
        const QPointF middle(part(text).width() / 2, part(text).height() / 2);
        QTest::mouseClick(window.get(), Qt::LeftButton, {},
                          part(text).mapToScene(middle).toPoint());
    }

    void focusPart(const QString& text) { part(text).forceActiveFocus(Qt::TabFocusReason); }
};

TEST_F(ThemeSegmentsTest, AClickChoosesAPart) {
    clickPart(u"Date"_qs);
    EXPECT_EQ(log(), QStringList{u"group 2"_qs});
    EXPECT_TRUE(spoken(part(u"Date"_qs)).state().checked);
    EXPECT_FALSE(spoken(part(u"App"_qs)).state().checked);
}

TEST_F(ThemeSegmentsTest, ArrowsGoFromPartToPartAndStopAtTheEnds) {
    focusPart(u"App"_qs);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(log(), QStringList{u"group 2"_qs});
    EXPECT_EQ(window->activeFocusItem(), &part(u"Date"_qs));
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(log().mid(1), QStringList({u"group 1"_qs, u"group 0"_qs}));
    EXPECT_EQ(window->activeFocusItem(), &part(u"None"_qs));
}

TEST_F(ThemeSegmentsTest, FromRightToLeftTheArrowsTurnRound) {
    scene->setProperty("mirrored", true);
    picture();
    EXPECT_GT(part(u"None"_qs).x(), part(u"Date"_qs).x());
    focusPart(u"App"_qs);
    press(Qt::Key_Left);
    EXPECT_EQ(log(), QStringList{u"group 2"_qs});
}

TEST_F(ThemeSegmentsTest, TheRowIsOneStopForTab) {
    focus(u"picker"_qs);
    press(Qt::Key_Tab);
    EXPECT_EQ(window->activeFocusItem(), &part(u"App"_qs));
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"search"_qs);
}

TEST_F(ThemeSegmentsTest, TheRowIsOneStopForTabAlsoAfterTheArrows) {
    focusPart(u"App"_qs);
    press(Qt::Key_Right);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"search"_qs);
    press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(window->activeFocusItem(), &part(u"Date"_qs));
    press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(focusName(), u"picker"_qs);
}

TEST_F(ThemeSegmentsTest, AScreenReaderSeesAGroupOfRadioButtons) {
    QAccessibleInterface& group = spokenItem(u"segments"_qs);
    EXPECT_EQ(group.role(), QAccessible::Grouping);
    EXPECT_EQ(group.text(QAccessible::Name), u"Group"_qs);
    QAccessibleInterface* date = spokenBelow(group, QAccessible::RadioButton, u"Date"_qs);
    ASSERT_NE(date, nullptr);
    date->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(log(), QStringList{u"group 2"_qs});
}

TEST_F(ThemeSegmentsTest, DisabledItStays) {
    disableAll();
    clickPart(u"Date"_qs);
    EXPECT_EQ(log(), QStringList());
}

// Search

TEST_F(ControlsTest, TypingIntoTheSearchFieldTellsItsText) {
    click(u"search"_qs);
    press(Qt::Key_A);
    press(Qt::Key_B);
    EXPECT_EQ(log(), QStringList({u"search a"_qs, u"search ab"_qs}));
}

TEST_F(ControlsTest, ThePlaceholderGivesWayToTheText) {
    const auto asks = [this] {
        return firstBelow(item(u"search"_qs), [](const QQuickItem& child) {
                   return child.isVisible() && child.property("text") == u"Search"_qs;
               }) != nullptr;
    };
    EXPECT_TRUE(asks());
    item(u"search"_qs).setProperty("text", u"x"_qs);
    EXPECT_FALSE(asks());
}

TEST_F(ControlsTest, TheClearButtonIsThereWithATextAndEmptiesIt) {
    QAccessibleInterface& field = spokenItem(u"search"_qs);
    item(u"search"_qs).setProperty("text", u"abc"_qs);
    QAccessibleInterface* clear = spokenBelow(field, QAccessible::Button, u"Clear the search"_qs);
    ASSERT_NE(clear, nullptr);
    EXPECT_FALSE(clear->state().invisible);
    focus(u"search"_qs);
    QTest::mouseClick(window.get(), Qt::LeftButton, {},
                      item(u"search"_qs).mapToScene(QPointF(187, 13)).toPoint());
    EXPECT_EQ(item(u"search"_qs).property("text").toString(), QString());
    EXPECT_EQ(log(), QStringList{u"search "_qs});
    EXPECT_EQ(focusName(), u"search"_qs);
    EXPECT_TRUE(clear->state().invisible);
}

TEST_F(ControlsTest, AScreenReaderSeesASearchField) {
    QAccessibleInterface& field = spokenItem(u"search"_qs);
    EXPECT_EQ(field.role(), QAccessible::EditableText);
    EXPECT_EQ(field.text(QAccessible::Name), u"Search"_qs);
    EXPECT_TRUE(field.state().searchEdit);
    item(u"search"_qs).setProperty("text", u"café"_qs);
    EXPECT_EQ(field.text(QAccessible::Value), u"café"_qs);
}

TEST_F(ControlsTest, ADisabledSearchFieldTakesNoKeys) {
    disableAll();
    click(u"search"_qs);
    press(Qt::Key_A);
    EXPECT_EQ(log(), QStringList());
}

// Spinner and tag

TEST_F(ControlsTest, TheSpinnerTurnsOnlyWhileItCanBeSeen) {
    const auto turns = [this] { return object(u"turning"_qs).property("running").toBool(); };
    EXPECT_TRUE(turns());
    item(u"spinner"_qs).setVisible(false);
    EXPECT_FALSE(turns());
    item(u"spinner"_qs).setVisible(true);
    EXPECT_TRUE(turns());
    item(u"spinner"_qs).setProperty("running", false);
    EXPECT_FALSE(turns());
    item(u"spinner"_qs).setProperty("running", true);
    window->hide();
    EXPECT_FALSE(turns());
}

TEST_F(ControlsTest, SpinnerAndTagAreSpoken) {
    EXPECT_EQ(nameOf(u"spinner"_qs), u"Working"_qs);
    EXPECT_EQ(spokenItem(u"spinner"_qs).role(), QAccessible::Indicator);
    EXPECT_EQ(nameOf(u"tag"_qs), u"42"_qs);
    EXPECT_EQ(spokenItem(u"tag"_qs).role(), QAccessible::StaticText);
}

// All of them

TEST_F(ControlsTest, TabVisitsEveryControlInOrder) {
    focus(u"textButton"_qs);
    QStringList visited{focusName()};
    for (int i = 0; i < 6; ++i) {
        press(Qt::Key_Tab);
        visited << focusName();
    }
    EXPECT_EQ(visited, QStringList({u"textButton"_qs, u"iconButton"_qs, u"picker"_qs, QString(),
                                    u"search"_qs, u"toggle"_qs, u"textButton"_qs}));
}

TEST_F(ControlsTest, EveryControlFollowsTheAppearanceAtOnce) {
    EXPECT_EQ(colourIn(u"textButton"_qs, corner_), Palette::light().controlBackground);
    EXPECT_EQ(colourIn(u"picker"_qs, corner_), Palette::light().controlBackground);
    EXPECT_EQ(colourIn(u"search"_qs, corner_), Palette::light().controlBackground);
    EXPECT_EQ(colourIn(u"toggle"_qs, QPointF(27, 10)), Palette::light().switchOff);
    appearance.setDesktopIsDark(true);
    EXPECT_EQ(colourIn(u"textButton"_qs, corner_), Palette::dark().controlBackground);
    EXPECT_EQ(colourIn(u"picker"_qs, corner_), Palette::dark().controlBackground);
    EXPECT_EQ(colourIn(u"search"_qs, corner_), Palette::dark().controlBackground);
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return colourIn(u"toggle"_qs, QPointF(27, 10)) == Palette::dark().switchOff; },
        20000));
}

TEST_F(ControlsTest, ATipComesWhenThePointerRestsAndGoesWithIt) {
    hover(u"iconButton"_qs);
    QObject* tip = nullptr;
    for (QObject* child : item(u"iconButton"_qs).findChildren<QObject*>())
        if (child->inherits("QQuickToolTip"))
            tip = child;
    ASSERT_NE(tip, nullptr);
    EXPECT_FALSE(tip->property("visible").toBool());
    EXPECT_TRUE(QTest::qWaitFor([&] { return tip->property("opened").toBool(); }, 20000));
    EXPECT_EQ(tip->property("text").toString(), u"Deletes what is selected"_qs);
    hover(u"tag"_qs);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !tip->property("visible").toBool(); }, 20000));
}

} // namespace
} // namespace tessarine::testing
