#include "controls/ControlsFixture.h"

#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class SettingsRowsTest : public ControlsFixture {
protected:
    void SetUp() override { load(u"rows"_qs); }

    // A click near the beginning of a row, far from the control at its end.
    void clickTitle(const QString& name) {
        const QPointF title = item(name).mapToScene(QPointF(20, item(name).height() / 2));
        QTest::mouseClick(window.get(), Qt::LeftButton, {}, title.toPoint());
    }

    // A click on the control at the end of a row.
    void clickEnd(const QString& name) {
        const QPointF end(item(name).width() - 20, item(name).height() / 2);
        QTest::mouseClick(window.get(), Qt::LeftButton, {}, item(name).mapToScene(end).toPoint());
    }

    QQuickItem* textIn(const QString& name, const QString& text) {
        return firstBelow(item(name), [&](const QQuickItem& child) {
            return child.isVisible() && child.inherits("QQuickText") &&
                   child.property("text") == text;
        });
    }

    double leftOf(const QString& name, const QString& text) {
        const QQuickItem* found = textIn(name, text);
        return found ? found->mapRectToItem(&item(name), found->boundingRect()).left() : -1;
    }
};

// Switch

TEST_F(SettingsRowsTest, AClickOnTheTitleOrOnTheSwitchTurnsTheRowOver) {
    clickTitle(u"switchRow"_qs);
    EXPECT_TRUE(item(u"switchRow"_qs).property("checked").toBool());
    clickEnd(u"switchRow"_qs);
    EXPECT_FALSE(item(u"switchRow"_qs).property("checked").toBool());
    EXPECT_EQ(log(), QStringList({u"switch true"_qs, u"switch false"_qs}));
}

TEST_F(SettingsRowsTest, KeysTurnASwitchRowOver) {
    focus(u"switchRow"_qs);
    EXPECT_TRUE(showsFocusRing(u"switchRow"_qs));
    press(Qt::Key_Space);
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    EXPECT_EQ(log(), QStringList({u"switch true"_qs, u"switch false"_qs, u"switch true"_qs}));
}

TEST_F(SettingsRowsTest, ASwitchRowShowsWhatItsOwnerHolds) {
    scene->setProperty("on", true);
    EXPECT_TRUE(becomes(u"switchRow"_qs, "position", 1.0));
    scene->setProperty("obedient", false);
    clickTitle(u"switchRow"_qs);
    EXPECT_TRUE(becomes(u"switchRow"_qs, "position", 0.0));
    clickTitle(u"switchRow"_qs);
    EXPECT_FALSE(item(u"switchRow"_qs).property("checked").toBool());
}

TEST_F(SettingsRowsTest, AScreenReaderReadsASwitchRowAsOneSwitch) {
    scene->setProperty("note", u"Not registered."_qs);
    QAccessibleInterface& row = spokenItem(u"switchRow"_qs);
    EXPECT_EQ(row.role(), QAccessible::CheckBox);
    EXPECT_EQ(nameOf(u"switchRow"_qs), u"Launch at login"_qs);
    EXPECT_EQ(descriptionOf(u"switchRow"_qs),
              u"It captures only while it runs.\nNot registered."_qs);
    EXPECT_EQ(row.childCount(), 0);
    EXPECT_FALSE(row.state().checked);
    pressFromOutside(u"switchRow"_qs, QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(row.state().checked);
    EXPECT_EQ(log(), QStringList{u"switch true"_qs});
}

TEST_F(SettingsRowsTest, ANoteComesAndGoesWithItsText) {
    const double height = item(u"switchRow"_qs).height();
    scene->setProperty("note", u"Not registered."_qs);
    picture();
    EXPECT_NE(textIn(u"switchRow"_qs, u"Not registered."_qs), nullptr);
    EXPECT_GT(item(u"switchRow"_qs).height(), height);
    scene->setProperty("note", QString());
    picture();
    EXPECT_EQ(textIn(u"switchRow"_qs, u"Not registered."_qs), nullptr);
    EXPECT_EQ(item(u"switchRow"_qs).height(), height);
}

// Menu

TEST_F(SettingsRowsTest, AClickOnThePickerOpensItsMenuAgainAndAgain) {
    for (int times = 0; times < 2; ++times) {
        clickEnd(u"choiceRow"_qs);
        EXPECT_TRUE(becomes(u"choiceRow"_qs, "opened", true));
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        EXPECT_TRUE(becomes(u"choiceRow"_qs, "opened", false));
    }
    EXPECT_EQ(log(), QStringList({u"keep 1"_qs, u"keep 2"_qs}));
    EXPECT_NE(textIn(u"choiceRow"_qs, u"30 days"_qs), nullptr);
}

class MenuRowKeysTest : public SettingsRowsTest, public ::testing::WithParamInterface<Qt::Key> {};

TEST_P(MenuRowKeysTest, OpenTheMenuAndTheKeyboardComesBack) {
    focus(u"choiceRow"_qs);
    EXPECT_TRUE(showsFocusRing(u"choiceRow"_qs));
    press(GetParam());
    EXPECT_TRUE(becomes(u"choiceRow"_qs, "opened", true));
    press(Qt::Key_Escape);
    EXPECT_TRUE(becomes(u"choiceRow"_qs, "opened", false));
    EXPECT_EQ(focusName(), u"choiceRow"_qs);
    EXPECT_TRUE(showsFocusRing(u"choiceRow"_qs));
    EXPECT_EQ(log(), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Keys, MenuRowKeysTest,
                         ::testing::Values(Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter,
                                           Qt::Key_Down, Qt::Key_Up),
                         [](const auto& info) {
                             return QKeySequence(info.param).toString().toStdString();
                         });

TEST_F(SettingsRowsTest, AScreenReaderReadsAMenuRowAsOneComboBoxWithItsValue) {
    scene->setProperty("note", u"Everything is kept."_qs);
    QAccessibleInterface& row = spokenItem(u"choiceRow"_qs);
    EXPECT_EQ(row.role(), QAccessible::ComboBox);
    EXPECT_EQ(nameOf(u"choiceRow"_qs), u"Keep for"_qs);
    EXPECT_EQ(descriptionOf(u"choiceRow"_qs), u"Forever\nEverything is kept."_qs);
    EXPECT_TRUE(row.state().focusable);
    EXPECT_EQ(spokenBelow(row, QAccessible::Button), nullptr);
    scene->setProperty("kept", 2);
    scene->setProperty("note", QString());
    EXPECT_EQ(descriptionOf(u"choiceRow"_qs), u"30 days"_qs);
    pressFromOutside(u"choiceRow"_qs, QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(becomes(u"choiceRow"_qs, "opened", true));
}

TEST_F(SettingsRowsTest, AMenuRowOfAValueThatIsNotInTheListIsEmpty) {
    scene->setProperty("kept", -1);
    EXPECT_EQ(descriptionOf(u"choiceRow"_qs), QString());
    EXPECT_EQ(item(u"choiceRow"_qs).property("displayText").toString(), QString());
}

// Status

TEST_F(SettingsRowsTest, AStatusRowShowsInColourAndWordWhetherItIsGranted) {
    QQuickItem& row = item(u"statusRow"_qs);
    EXPECT_EQ(row.property("symbol").toString(), u"xmark.circle.fill"_qs);
    EXPECT_EQ(row.property("tint").value<QColor>(), Palette::light().secondaryLabel);
    EXPECT_NE(textIn(u"statusRow"_qs, u"Not enabled"_qs), nullptr);
    scene->setProperty("granted", true);
    EXPECT_EQ(row.property("symbol").toString(), u"checkmark.circle.fill"_qs);
    EXPECT_EQ(row.property("tint").value<QColor>(), Palette::light().green);
    EXPECT_NE(textIn(u"statusRow"_qs, u"Enabled"_qs), nullptr);
    appearance.setDesktopIsDark(true);
    EXPECT_EQ(row.property("tint").value<QColor>(), Palette::dark().green);
}

TEST_F(SettingsRowsTest, TheButtonOfAStatusRowWorksAgainAndAgain) {
    click(u"recheck"_qs);
    click(u"recheck"_qs);
    EXPECT_EQ(log(), QStringList({u"check"_qs, u"check"_qs}));
}

TEST_F(SettingsRowsTest, AScreenReaderReadsTheStateOfAStatusRowAndItsButton) {
    QAccessibleInterface& row = spokenItem(u"statusRow"_qs);
    EXPECT_EQ(row.role(), QAccessible::Grouping);
    EXPECT_EQ(nameOf(u"statusRow"_qs), u"Full Disk Access"_qs);
    EXPECT_EQ(descriptionOf(u"statusRow"_qs), u"Not enabled\nRecovers past notifications."_qs);
    EXPECT_EQ(row.childCount(), 1);
    EXPECT_NE(spokenBelow(row, QAccessible::Button, u"Re-check"_qs), nullptr);
}

// All of them

TEST_F(SettingsRowsTest, TabStopsOnceAtEachRowAndAtEachButton) {
    focus(u"before"_qs);
    QStringList visited;
    for (int i = 0; i < 5; ++i) {
        press(Qt::Key_Tab);
        visited << focusName();
    }
    EXPECT_EQ(visited, QStringList({u"switchRow"_qs, u"choiceRow"_qs, u"recheck"_qs,
                                    u"longSwitch"_qs, u"longMenu"_qs}));
}

TEST_F(SettingsRowsTest, DisabledRowsDoNothing) {
    scene->setProperty("usable", false);
    for (const QString& name : {u"switchRow"_qs, u"choiceRow"_qs}) {
        clickTitle(name);
        clickEnd(name);
        pressFromOutside(name, QAccessibleActionInterface::pressAction());
    }
    EXPECT_EQ(log(), QStringList());
    EXPECT_FALSE(item(u"choiceRow"_qs).property("opened").toBool());
}

class RowWidthsTest : public SettingsRowsTest, public ::testing::WithParamInterface<int> {};

TEST_P(RowWidthsTest, LongTextsStayInTheirRows) {
    scene->setProperty("rowWidth", GetParam());
    for (const bool mirrored : {false, true}) {
        scene->setProperty("mirrored", mirrored);
        picture();
        for (const QString& name : {u"longSwitch"_qs, u"longMenu"_qs, u"longStatus"_qs})
            EXPECT_EQ(overflowing(name), QStringList()) << name.toStdString() << mirrored;
    }
}

INSTANTIATE_TEST_SUITE_P(Widths, RowWidthsTest, ::testing::Values(260, 320, 480));

TEST_F(SettingsRowsTest, FromRightToLeftTheControlsStandAtTheLeft) {
    EXPECT_EQ(leftOf(u"switchRow"_qs, u"Launch at login"_qs), 0);
    EXPECT_GT(leftOf(u"choiceRow"_qs, u"Forever"_qs), 200);
    EXPECT_GT(leftOf(u"statusRow"_qs, u"Re-check"_qs), 200);
    scene->setProperty("mirrored", true);
    picture();
    EXPECT_GT(leftOf(u"switchRow"_qs, u"Launch at login"_qs), 36);
    EXPECT_LT(leftOf(u"choiceRow"_qs, u"Forever"_qs), 60);
    EXPECT_LT(leftOf(u"statusRow"_qs, u"Re-check"_qs), 60);
}

} // namespace
} // namespace tessarine::testing
