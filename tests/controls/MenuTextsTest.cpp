#include "controls/MenuTexts.h"

#include "support/Printers.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class MenuTextsTest : public ::testing::Test {
protected:
    MenuTextsTest() {
        menu_.setTexts({u"All"_qs, u"Chat"_qs, u"Mail"_qs});
        menu_.setChosenIndex(2);
    }

    MenuTexts menu_;
};

TEST_F(MenuTextsTest, ShowsWhatItsOwnerHasWhileItIsClosed) {
    EXPECT_EQ(menu_.shown(), QStringList({u"All"_qs, u"Chat"_qs, u"Mail"_qs}));
    EXPECT_EQ(menu_.shownIndex(), 2);
    EXPECT_EQ(menu_.ownersIndex(1), 1);
}

TEST_F(MenuTextsTest, StaysAsItOpened) {
    menu_.setOpen(true);
    const QSignalSpy changes(&menu_, &MenuTexts::shownChanged);
    menu_.setTexts({u"All"_qs, u"Books"_qs, u"Chat"_qs, u"Mail"_qs});
    menu_.setChosenIndex(3);
    EXPECT_EQ(menu_.shown(), QStringList({u"All"_qs, u"Chat"_qs, u"Mail"_qs}));
    EXPECT_EQ(menu_.shownIndex(), 2);
    EXPECT_EQ(changes.count(), 0);
    menu_.setOpen(false);
    EXPECT_EQ(menu_.shown(), QStringList({u"All"_qs, u"Books"_qs, u"Chat"_qs, u"Mail"_qs}));
    EXPECT_EQ(menu_.shownIndex(), 3);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(MenuTextsTest, FindsAShownTextInTheListAsItIsNow) {
    menu_.setOpen(true);
    menu_.setTexts({u"All"_qs, u"Books"_qs, u"Mail"_qs});
    EXPECT_EQ(menu_.ownersIndex(0), 0);
    EXPECT_EQ(menu_.ownersIndex(1), -1);
    EXPECT_EQ(menu_.ownersIndex(2), 2);
}

// An application may be called as the entry for all of them.
TEST_F(MenuTextsTest, TellsEqualTextsApartByTheirOrder) {
    menu_.setTexts({u"All"_qs, u"All"_qs, u"Chat"_qs});
    menu_.setOpen(true);
    menu_.setTexts({u"All"_qs, u"Ajar"_qs, u"All"_qs});
    EXPECT_EQ(menu_.ownersIndex(0), 0);
    EXPECT_EQ(menu_.ownersIndex(1), 2);
    menu_.setTexts({u"All"_qs});
    EXPECT_EQ(menu_.ownersIndex(1), -1);
}

TEST_F(MenuTextsTest, NoneIsNowhere) {
    EXPECT_EQ(menu_.ownersIndex(-1), -1);
}

TEST_F(MenuTextsTest, TellsNothingWhenNothingChanges) {
    const QSignalSpy texts(&menu_, &MenuTexts::shownChanged);
    const QSignalSpy index(&menu_, &MenuTexts::shownIndexChanged);
    menu_.setTexts({u"All"_qs, u"Chat"_qs, u"Mail"_qs});
    menu_.setChosenIndex(2);
    menu_.setOpen(true);
    menu_.setOpen(false);
    EXPECT_EQ(texts.count() + index.count(), 0);
}

} // namespace
} // namespace tessarine::testing
