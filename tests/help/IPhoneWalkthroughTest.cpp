#include "help/IPhoneWalkthrough.h"

#include "support/ManualScheduler.h"
#include "support/Printers.h"

#include <QQuickItem>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

class IPhoneWalkthroughTest : public ::testing::Test {
protected:
    testing::ManualScheduler scheduler_;
    std::optional<IPhoneWalkthrough> walkthrough_{scheduler_};
};

TEST_F(IPhoneWalkthroughTest, StandsAtItsFirstStepUntilItIsPlayed) {
    scheduler_.advance(10);
    EXPECT_EQ(walkthrough_->animStep(), 0);
    EXPECT_EQ(walkthrough_->position(), u"Step 1 of 5"_qs);
    EXPECT_FALSE(walkthrough_->isPlaying());
    EXPECT_EQ(scheduler_.runningTimers(), 0U);
}

TEST_F(IPhoneWalkthroughTest, GoesOnEachTimeThatItsIntervalIsOver) {
    walkthrough_->restart();
    scheduler_.advance(1.7);
    EXPECT_EQ(walkthrough_->animStep(), 0);
    scheduler_.advance(0.2);
    EXPECT_EQ(walkthrough_->animStep(), 1);
    scheduler_.advance(1.8);
    EXPECT_EQ(walkthrough_->animStep(), 2);
    EXPECT_EQ(walkthrough_->position(), u"Step 3 of 5"_qs);
}

TEST_F(IPhoneWalkthroughTest, GoesRound) {
    walkthrough_->restart();
    scheduler_.advance(5 * 1.8 + 0.1);
    EXPECT_EQ(walkthrough_->animStep(), 0);
    EXPECT_TRUE(walkthrough_->isPlaying());
}

TEST_F(IPhoneWalkthroughTest, BeginsAgainWithOneTimerAndAWholeInterval) {
    walkthrough_->restart();
    scheduler_.advance(1.8 + 1.7);
    walkthrough_->restart();
    EXPECT_EQ(walkthrough_->animStep(), 0);
    EXPECT_EQ(scheduler_.runningTimers(), 1U);
    scheduler_.advance(1.7);
    EXPECT_EQ(walkthrough_->animStep(), 0);
}

TEST_F(IPhoneWalkthroughTest, StandsStillOnceSomebodyStepsByHand) {
    walkthrough_->restart();
    walkthrough_->next();
    EXPECT_EQ(walkthrough_->animStep(), 1);
    EXPECT_EQ(scheduler_.runningTimers(), 0U);
    walkthrough_->previous();
    walkthrough_->previous();
    EXPECT_EQ(walkthrough_->animStep(), 4);
    walkthrough_->next();
    EXPECT_EQ(walkthrough_->animStep(), 0);
}

TEST_F(IPhoneWalkthroughTest, PausesWhereItIsAndPlaysFromTheFirstStep) {
    walkthrough_->restart();
    scheduler_.advance(2);
    walkthrough_->togglePlaying();
    EXPECT_FALSE(walkthrough_->isPlaying());
    EXPECT_EQ(walkthrough_->animStep(), 1);
    walkthrough_->togglePlaying();
    EXPECT_TRUE(walkthrough_->isPlaying());
    EXPECT_EQ(walkthrough_->animStep(), 0);
}

TEST_F(IPhoneWalkthroughTest, TakesItsTimerAlongWhenItGoes) {
    walkthrough_->restart();
    walkthrough_.reset();
    EXPECT_EQ(scheduler_.runningTimers(), 0U);
}

TEST_F(IPhoneWalkthroughTest, StopsWhenItsStageIsHiddenOrGoes) {
    auto stage = std::make_unique<QQuickItem>();
    walkthrough_->setStage(stage.get());
    walkthrough_->restart();
    stage->setVisible(false);
    EXPECT_FALSE(walkthrough_->isPlaying());
    stage->setVisible(true);
    EXPECT_FALSE(walkthrough_->isPlaying());
    walkthrough_->restart();
    stage.reset();
    EXPECT_FALSE(walkthrough_->isPlaying());
}

TEST_F(IPhoneWalkthroughTest, DoesNotCareForAStageThatAnotherHasTakenThePlaceOf) {
    auto before = std::make_unique<QQuickItem>();
    QQuickItem stage;
    walkthrough_->setStage(before.get());
    walkthrough_->setStage(&stage);
    walkthrough_->restart();
    before->setVisible(false);
    before.reset();
    EXPECT_TRUE(walkthrough_->isPlaying());
}

TEST_F(IPhoneWalkthroughTest, EachStepSaysSomething) {
    for (const WalkthroughStep& step : walkthrough_->steps()) {
        EXPECT_FALSE(step.icon.isEmpty());
        EXPECT_FALSE(step.screen.isEmpty() || step.screen.startsWith(u"help."_qs));
        EXPECT_FALSE(step.label.isEmpty() || step.label.startsWith(u"help."_qs));
    }
}

} // namespace
} // namespace tessarine
