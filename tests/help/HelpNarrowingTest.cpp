#include "help/HelpNarrowing.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

class HelpNarrowingTest : public ::testing::Test {
protected:
    HelpNarrowingTest() {
        addHeading(u"Exporting"_qs);
        add(u"Files of what was kept"_qs);
        addHeading(u"Formats"_qs);
        add(u"CSV, with semicolons"_qs);
        add({}); // a button, as it might be
        addHeading(u"Names"_qs);
        add(u"The date is in it"_qs);
        narrowing_.setPage(&page_);
    }

    void add(const QString& words) {
        auto* const part = new QQuickItem(&page_);
        part->setParent(&page_);
        part->setProperty("words", words);
    }

    void addHeading(const QString& words) {
        add(words);
        page_.childItems().last()->setProperty("leads", true);
    }

    // The places of those that are shown.
    QList<int> shown() const {
        QList<int> places;
        for (int i = 0; i < page_.childItems().size(); ++i) {
            if (page_.childItems().at(i)->isVisible())
                places << i;
        }
        return places;
    }

    QQuickItem page_;
    HelpNarrowing narrowing_;
};

TEST_F(HelpNarrowingTest, ShowsTheWholePageWhileNothingIsLookedFor) {
    EXPECT_EQ(shown(), QList<int>({0, 1, 2, 3, 4, 5, 6}));
    EXPECT_TRUE(narrowing_.isFound());
}

TEST_F(HelpNarrowingTest, ShowsWhatHoldsTheWordsBelowItsHeadingAndTheTitle) {
    narrowing_.setSoughtText(u"semicolon"_qs);
    EXPECT_EQ(shown(), QList<int>({0, 2, 3}));
}

TEST_F(HelpNarrowingTest, TakesUpperAndLowerCaseAlikeAndNoBlanksAtTheEnds) {
    narrowing_.setSoughtText(u"  CSV, WITH "_qs);
    EXPECT_EQ(shown(), QList<int>({0, 2, 3}));
}

TEST_F(HelpNarrowingTest, ShowsAllThatIsBelowAHeadingWithTheWords) {
    narrowing_.setSoughtText(u"formats"_qs);
    EXPECT_EQ(shown(), QList<int>({0, 2, 3, 4}));
}

TEST_F(HelpNarrowingTest, ShowsThePageWhoseTitleHasTheWords) {
    narrowing_.setSoughtText(u"export"_qs);
    EXPECT_EQ(shown(), QList<int>({0, 1, 2, 3, 4, 5, 6}));
}

TEST_F(HelpNarrowingTest, ShowsWhatIsBelowTheTitleWithoutAHeading) {
    narrowing_.setSoughtText(u"kept"_qs);
    EXPECT_EQ(shown(), QList<int>({0, 1}));
}

TEST_F(HelpNarrowingTest, FindsNothingWhereTheWordsAreNot) {
    narrowing_.setSoughtText(u"nowhere"_qs);
    EXPECT_EQ(shown(), QList<int>());
    EXPECT_FALSE(narrowing_.isFound());
}

TEST_F(HelpNarrowingTest, ShowsAllAgainWhenTheSearchEnds) {
    narrowing_.setSoughtText(u"nowhere"_qs);
    narrowing_.setSoughtText({});
    EXPECT_EQ(shown(), QList<int>({0, 1, 2, 3, 4, 5, 6}));
    EXPECT_TRUE(narrowing_.isFound());
}

TEST_F(HelpNarrowingTest, FindsNothingWithoutAPage) {
    HelpNarrowing empty;
    empty.setSoughtText(u"csv"_qs);
    EXPECT_FALSE(empty.isFound());
    QQuickItem page;
    empty.setPage(&page);
    EXPECT_FALSE(empty.isFound());
}

} // namespace
} // namespace tessarine
