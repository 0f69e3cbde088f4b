#include "controls/ControlsFixture.h"

#include <QTest>

#include <limits>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class ContentsTest : public ControlsFixture {
protected:
    void SetUp() override { load(u"contents"_qs); }

    QQuickItem* textIn(const QString& name, const QString& text) {
        return firstBelow(item(name), [&](const QQuickItem& child) {
            return child.inherits("QQuickText") && child.property("text") == text;
        });
    }
};

// Table

TEST_F(ContentsTest, TheTextsOfATableStandInColumns) {
    const auto place = [&](const QString& text) {
        return textIn(u"table"_qs, text)->mapToItem(&item(u"table"_qs), {});
    };
    EXPECT_EQ(place(u"Event"_qs).x(), 0);
    EXPECT_EQ(place(u"Banner"_qs).x(), 0);
    EXPECT_EQ(place(u"At once"_qs).x(), 160); // a third of 480
    EXPECT_EQ(place(u"Database"_qs).x(), 320);
    EXPECT_EQ(place(u"Also"_qs).x(), 320);
    EXPECT_EQ(place(u"At once"_qs).y(), place(u"Banner"_qs).y());
    EXPECT_GT(place(u"Silent"_qs).y(), place(u"Banner"_qs).y());
    scene->setProperty("mirrored", true);
    picture();
    EXPECT_EQ(place(u"Event"_qs).x(), 320);
    EXPECT_EQ(place(u"Also"_qs).x(), 0);
}

TEST_F(ContentsTest, LongTextsOfATableWrapInTheirColumns) {
    const QQuickItem* text = textIn(u"table"_qs, scene->property("longText").toString());
    ASSERT_NE(text, nullptr);
    EXPECT_GT(text->property("lineCount").toInt(), 1);
    EXPECT_EQ(overflowing(u"table"_qs), QStringList());
}

TEST_F(ContentsTest, TheFirstColumnOfATableMayBeMonospaced) {
    const auto family = [&](const QString& text) {
        return textIn(u"table"_qs, text)->property("font").value<QFont>().families().value(0);
    };
    EXPECT_EQ(family(u"Banner"_qs), family(u"At once"_qs));
    scene->setProperty("mono", true);
    EXPECT_NE(family(u"Banner"_qs), family(u"At once"_qs));
    EXPECT_EQ(family(u"Banner"_qs), theme.monospacedFont(11).families().value(0));
    EXPECT_EQ(family(u"Event"_qs), family(u"At once"_qs)); // the header is none of it
}

TEST_F(ContentsTest, AScreenReaderReadsATableRowByRow) {
    QAccessibleInterface& table = spokenItem(u"table"_qs);
    EXPECT_EQ(table.role(), QAccessible::Table);
    EXPECT_EQ(nameOf(u"table"_qs), u"Layers"_qs);
    EXPECT_NE(spokenBelow(table, QAccessible::ColumnHeader, u"Database"_qs), nullptr);
    QAccessibleInterface* row = spokenBelow(table, QAccessible::Row, u"Banner\nAt once\nAlso"_qs);
    ASSERT_NE(row, nullptr);
    ASSERT_EQ(row->childCount(), 3);
    EXPECT_EQ(row->child(1)->role(), QAccessible::Cell);
    EXPECT_EQ(row->child(1)->text(QAccessible::Name), u"At once"_qs);
    EXPECT_EQ(row->child(1)->text(QAccessible::Description), u"Accessibility"_qs);
}

// Bar and ring

class ProgressTest : public ContentsTest, public ::testing::WithParamInterface<const char*> {
protected:
    const QString name_ = QString::fromLatin1(GetParam());

    double shown() { return item(name_).property("shown").toDouble(); }
    bool moves() { return item(name_).property("moving").toBool(); }
};

TEST_P(ProgressTest, ItBeginsAtItsFraction) {
    EXPECT_EQ(shown(), 0.25);
    EXPECT_FALSE(moves());
}

TEST_P(ProgressTest, ItMovesToANewFractionAndRests) {
    for (const double fraction : {0.75, 0.5}) {
        scene->setProperty("fraction", fraction);
        EXPECT_TRUE(moves());
        EXPECT_NE(shown(), fraction);
        EXPECT_TRUE(becomes(name_, "moving", false));
        EXPECT_EQ(shown(), fraction);
    }
}

TEST_P(ProgressTest, ItDoesNotMoveWhileItIsHidden) {
    item(name_).setVisible(false);
    scene->setProperty("fraction", 0.75);
    EXPECT_FALSE(moves());
    EXPECT_EQ(shown(), 0.75);
}

TEST_P(ProgressTest, ItDoesNotMoveInAHiddenWindow) {
    window->hide();
    scene->setProperty("fraction", 0.75);
    EXPECT_FALSE(moves());
    EXPECT_EQ(shown(), 0.75);
}

TEST_P(ProgressTest, HiddenOnItsWayItIsThereAtOnce) {
    scene->setProperty("fraction", 0.75);
    EXPECT_TRUE(moves());
    item(name_).setVisible(false);
    EXPECT_FALSE(moves());
    EXPECT_EQ(shown(), 0.75);
    item(name_).setVisible(true);
    EXPECT_FALSE(moves());
}

TEST_P(ProgressTest, AScreenReaderReadsItsPercentage) {
    EXPECT_EQ(spokenItem(name_).role(), QAccessible::ProgressBar);
    EXPECT_EQ(descriptionOf(name_), u"25%"_qs);
    scene->setProperty("fraction", 0.29); // in floating point a little less than 29 hundredths
    EXPECT_EQ(descriptionOf(name_), u"29%"_qs);
    scene->setProperty("fraction", 0.999);
    EXPECT_EQ(descriptionOf(name_), u"99%"_qs);
    scene->setProperty("fraction", 1);
    EXPECT_EQ(descriptionOf(name_), u"100%"_qs);
}

struct FractionBound {
    double fraction;
    double shown;
};

TEST_P(ProgressTest, WhatIsNoFractionIsTakenForTheNearest) {
    item(name_).setVisible(false);
    for (const FractionBound& bound :
         {FractionBound{1.5, 1}, FractionBound{-0.5, 0},
          FractionBound{std::numeric_limits<double>::infinity(), 1},
          FractionBound{std::numeric_limits<double>::quiet_NaN(), 0}}) {
        scene->setProperty("fraction", bound.fraction);
        EXPECT_EQ(shown(), bound.shown) << bound.fraction;
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, ProgressTest, ::testing::Values("bar", "ring"),
                         [](const auto& info) { return std::string(info.param); });

TEST_F(ContentsTest, ABarFillsFromWhereReadingBegins) {
    EXPECT_EQ(item(u"fill"_qs).x(), 0);
    EXPECT_EQ(item(u"fill"_qs).width(), 50); // a quarter of 200
    EXPECT_EQ(colourIn(u"bar"_qs, QPointF(25, 3)), Palette::light().accent);
    EXPECT_NE(colourIn(u"bar"_qs, QPointF(175, 3)), Palette::light().accent);
    scene->setProperty("mirrored", true);
    picture();
    EXPECT_EQ(item(u"fill"_qs).x(), 150);
}

TEST_F(ContentsTest, AnEmptyBarHasNoFill) {
    item(u"bar"_qs).setVisible(false);
    scene->setProperty("fraction", 0);
    item(u"bar"_qs).setVisible(true);
    EXPECT_FALSE(item(u"fill"_qs).isVisible());
}

TEST_F(ContentsTest, ARingOf22PointsFillsFromTheTopClockwise) {
    EXPECT_EQ(item(u"ring"_qs).size(), QSizeF(22, 22));
    // A quarter is filled: of four points on the stroke, only the one at half past one.
    const QColor accent = Palette::light().accent;
    EXPECT_EQ(colourIn(u"ring"_qs, QPointF(17.7, 4.3)), accent);
    EXPECT_NE(colourIn(u"ring"_qs, QPointF(17.7, 17.7)), accent);
    EXPECT_NE(colourIn(u"ring"_qs, QPointF(4.3, 17.7)), accent);
    EXPECT_NE(colourIn(u"ring"_qs, QPointF(4.3, 4.3)), accent);
}

// Steps and dots

TEST_F(ContentsTest, AScreenReaderReadsANumberedStepAsOne) {
    QAccessibleInterface& step = spokenItem(u"step"_qs);
    EXPECT_EQ(step.role(), QAccessible::StaticText);
    EXPECT_EQ(nameOf(u"step"_qs), u"3. Open the settings"_qs);
    EXPECT_EQ(descriptionOf(u"step"_qs), u"It takes a moment."_qs);
    EXPECT_EQ(step.childCount(), 0);
}

TEST_F(ContentsTest, LongTextsOfAStepWrap) {
    EXPECT_EQ(overflowing(u"longStep"_qs), QStringList());
    EXPECT_GT(item(u"longStep"_qs).height(), item(u"step"_qs).height());
}

TEST_F(ContentsTest, FromRightToLeftTheNumberStandsAtTheRight) {
    const auto place = [&] {
        return textIn(u"step"_qs, u"3"_qs)->mapToItem(&item(u"step"_qs), {}).x();
    };
    EXPECT_LT(place(), 20);
    scene->setProperty("mirrored", true);
    picture();
    EXPECT_GT(place(), 180);
}

TEST_F(ContentsTest, DotsShowHowFarOneHasCome) {
    scene->setProperty("current", 1);
    EXPECT_TRUE(becomes(u"dot1"_qs, "width", 24.0));
    EXPECT_TRUE(becomes(u"dot0"_qs, "width", 8.0));
    EXPECT_EQ(item(u"dot1"_qs).height(), 6);
    EXPECT_TRUE(becomes(u"dot1"_qs, "opacity", 1.0));
    EXPECT_EQ(item(u"dot0"_qs).opacity(), 1);
    EXPECT_EQ(item(u"dot2"_qs).opacity(), 0.25);
    EXPECT_EQ(item(u"dot0"_qs).property("color").value<QColor>(), Palette::light().accent);
    EXPECT_EQ(item(u"dot3"_qs).property("color").value<QColor>(), Palette::light().secondaryLabel);
    scene->setProperty("current", 0);
    EXPECT_TRUE(becomes(u"dot1"_qs, "width", 8.0));
    EXPECT_TRUE(becomes(u"dot1"_qs, "opacity", 0.25));
}

TEST_F(ContentsTest, HiddenDotsDoNotMove) {
    item(u"dots"_qs).setVisible(false);
    scene->setProperty("current", 2);
    EXPECT_EQ(item(u"dot2"_qs).width(), 24);
    EXPECT_EQ(item(u"dot0"_qs).width(), 8);
}

TEST_F(ContentsTest, AScreenReaderReadsTheDotsAsAStepOfHowMany) {
    EXPECT_EQ(spokenItem(u"dots"_qs).role(), QAccessible::Indicator);
    EXPECT_EQ(nameOf(u"dots"_qs), u"Step 1 of 4"_qs);
    scene->setProperty("current", 3);
    EXPECT_EQ(nameOf(u"dots"_qs), u"Step 4 of 4"_qs);
    EXPECT_EQ(spokenItem(u"dots"_qs).childCount(), 0);
    EXPECT_FALSE(spokenItem(u"dots"_qs).state().focusable);
}

TEST_F(ContentsTest, NothingOfItTakesTheKeyboard) {
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), QString());
}

} // namespace
} // namespace tessarine::testing
