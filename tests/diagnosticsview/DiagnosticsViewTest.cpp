// What the window says of the status board, and the log's filter.

#include "diagnosticsview/DiagnosticsView.h"

#include "diagnosticsview/DiagnosticsFixture.h"

#include <gtest/gtest.h>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class DiagnosticsViewTest : public DiagnosticsFixture {
protected:
    DiagnosticsView state{views.diagnostics()};
    DiagnosticsLog& logState = *state.log();
};

TEST_F(DiagnosticsViewTest, SaysHowManyWereCaptured) {
    EXPECT_EQ(state.captured(), u"0 captured"_qs);
    diagnostics.setCapturedTotal(1234);
    EXPECT_EQ(state.captured(), u"1234 captured"_qs);
}

TEST_F(DiagnosticsViewTest, SaysHowTheLayersStand) {
    EXPECT_EQ(state.axStatus(), u"Initializing..."_qs);
    EXPECT_EQ(state.dbStatus(), u"Initializing..."_qs);
    diagnostics.setAxStatus(u"a"_qs);
    diagnostics.setDbStatus(u"d"_qs);
    EXPECT_EQ(state.axStatus(), u"a"_qs);
    EXPECT_EQ(state.dbStatus(), u"d"_qs);
}

TEST_F(DiagnosticsViewTest, SaysWhereTheCursorIs) {
    EXPECT_EQ(state.records(), u"0 total · cursor 0"_qs);
    diagnostics.setLastSeenRecId(5000000000);
    EXPECT_EQ(state.records(), u"0 total · cursor 5000000000"_qs);
}

TEST_F(DiagnosticsViewTest, CountsDownToTheNextPoll) {
    EXPECT_EQ(state.nextPoll(), u"idle"_qs);
    EXPECT_EQ(state.pollFraction(), 1.0);
    diagnostics.startPollCountdown();
    EXPECT_EQ(state.nextPoll(), u"30s"_qs);
    EXPECT_EQ(state.pollFraction(), 0.0);
    system.scheduler.advance(15);
    EXPECT_EQ(state.nextPoll(), u"15s"_qs);
    EXPECT_EQ(state.pollFraction(), 0.5);
    system.scheduler.advance(15);
    EXPECT_EQ(state.nextPoll(), u"idle"_qs);
    EXPECT_EQ(state.pollFraction(), 1.0);
}

TEST_F(DiagnosticsViewTest, HasAPillForEachCategory) {
    const QList<CategoryPillContent> pills = DiagnosticsLog::categories();
    ASSERT_EQ(pills.size(), 5);
    EXPECT_EQ(pills[0].name, u"AX"_qs);
    EXPECT_EQ(pills[1].name, u"DB"_qs);
    EXPECT_EQ(pills[2].name, u"Legacy"_qs);
    EXPECT_EQ(pills[3].name, u"Hoard"_qs);
    EXPECT_EQ(pills[4].name, u"System"_qs);
    EXPECT_EQ(pills[3].colour.name(), u"#ce93d8"_qs);
}

TEST_F(DiagnosticsViewTest, TakesAChoiceBackAtASecondTap) {
    EXPECT_EQ(logState.selectedPill(), -1);
    logState.tapPill(3);
    EXPECT_EQ(logState.selectedCategory(), Category::hoard);
    logState.tapPill(1);
    EXPECT_EQ(logState.selectedPill(), 1);
    logState.tapPill(1);
    EXPECT_EQ(logState.selectedCategory(), std::nullopt);
}

TEST_F(DiagnosticsViewTest, TellsAnEmptyLogFromOneThatIsHidden) {
    EXPECT_TRUE(logState.showsNothing());
    EXPECT_FALSE(logState.hidesAll());
    log(u"a line"_qs);
    EXPECT_FALSE(logState.showsNothing());
    logState.setSearchText(u"another"_qs);
    EXPECT_TRUE(logState.showsNothing());
    EXPECT_TRUE(logState.hidesAll());
    logState.clear();
    EXPECT_FALSE(logState.hidesAll());
}

TEST_F(DiagnosticsViewTest, ClearsTheLogAndNothingElse) {
    log(u"a line"_qs);
    diagnostics.setCapturedTotal(7);
    logState.clear();
    EXPECT_TRUE(diagnostics.entries().isEmpty());
    EXPECT_EQ(state.captured(), u"7 captured"_qs);
}

} // namespace
} // namespace tessarine::testing
