#include "controls/TypeAhead.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

class TypeAheadTest : public ::testing::Test {
protected:
    const QStringList texts_{u"Mail"_qs, u"Maps"_qs, u"Music"_qs, u"Notes"_qs, u"éclair"_qs};
    TypeAhead search_;
};

TEST_F(TypeAheadTest, ALetterLeadsToTheNextRowThatBeginsWithIt) {
    EXPECT_EQ(search_.find(u"n"_qs, 5000, texts_, -1), 3);
}

TEST_F(TypeAheadTest, TheCurrentRowIsLeftEvenIfItMatches) {
    EXPECT_EQ(search_.find(u"m"_qs, 5000, texts_, 0), 1);
}

TEST_F(TypeAheadTest, LettersWithinASecondBelongTogether) {
    EXPECT_EQ(search_.find(u"m"_qs, 5000, texts_, -1), 0);
    EXPECT_EQ(search_.find(u"u"_qs, 6000, texts_, 0), 2);
}

TEST_F(TypeAheadTest, AWordThatStillMatchesStaysAtItsRow) {
    EXPECT_EQ(search_.find(u"m"_qs, 5000, texts_, 0), 1);
    EXPECT_EQ(search_.find(u"a"_qs, 5100, texts_, 1), 1);
    EXPECT_EQ(search_.find(u"i"_qs, 5200, texts_, 1), 0);
}

TEST_F(TypeAheadTest, AfterASecondAWordBeginsAnew) {
    EXPECT_EQ(search_.find(u"m"_qs, 5000, texts_, -1), 0);
    EXPECT_EQ(search_.find(u"n"_qs, 6001, texts_, 0), 3);
}

TEST_F(TypeAheadTest, OneLetterAgainAndAgainGoesRoundTheMatches) {
    EXPECT_EQ(search_.find(u"m"_qs, 5000, texts_, -1), 0);
    EXPECT_EQ(search_.find(u"m"_qs, 5100, texts_, 0), 1);
    EXPECT_EQ(search_.find(u"m"_qs, 5200, texts_, 1), 2);
    EXPECT_EQ(search_.find(u"m"_qs, 5300, texts_, 2), 0);
}

TEST_F(TypeAheadTest, ADoubleLetterThatARowBeginsWithIsAWord) {
    const QStringList texts{u"Arc"_qs, u"Ab"_qs, u"Aardvark"_qs};
    EXPECT_EQ(search_.find(u"a"_qs, 5000, texts, -1), 0);
    EXPECT_EQ(search_.find(u"a"_qs, 5100, texts, 0), 2);
}

TEST_F(TypeAheadTest, CaseDoesNotCount) {
    EXPECT_EQ(search_.find(u"N"_qs, 5000, texts_, -1), 3);
    EXPECT_EQ(search_.find(u"É"_qs, 9000, texts_, -1), 4);
}

TEST_F(TypeAheadTest, WhatNothingBeginsWithLeadsNowhere) {
    EXPECT_EQ(search_.find(u"x"_qs, 5000, texts_, 2), -1);
    EXPECT_EQ(search_.find(u"m"_qs, 5000, {}, -1), -1);
}

TEST_F(TypeAheadTest, TheFirstLetterEverCountsAtAnyTime) {
    EXPECT_EQ(search_.find(u"n"_qs, 0, texts_, -1), 3);
}

} // namespace
} // namespace tessarine
