#include "platform/ChangeMerger.h"

#include "support/ManualScheduler.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

class ChangeMergerTest : public ::testing::Test {
protected:
    testing::ManualScheduler scheduler_;
    int calls_ = 0;
    std::shared_ptr<ChangeMerger> merger_ = ChangeMerger::make(scheduler_, [this] { ++calls_; });
};

TEST_F(ChangeMergerTest, CallsAtOnceAndOnceMoreWhenTheFileIsStill) {
    merger_->changed();
    EXPECT_EQ(calls_, 0) << "not before the main thread turns";
    scheduler_.settle();
    EXPECT_EQ(calls_, 1);
    scheduler_.advance(0.24);
    EXPECT_EQ(calls_, 1);
    scheduler_.advance(0.02);
    EXPECT_EQ(calls_, 2);
    scheduler_.advance(60);
    EXPECT_EQ(calls_, 2);
}

TEST_F(ChangeMergerTest, MergesChangesThatComeBeforeTheCallHasBegun) {
    for (int i = 0; i < 5; ++i)
        merger_->changed();
    scheduler_.settle();
    EXPECT_EQ(calls_, 1);
}

TEST_F(ChangeMergerTest, CallsAgainForAChangeAfterTheCall) {
    merger_->changed();
    scheduler_.settle();
    merger_->changed();
    scheduler_.settle();
    EXPECT_EQ(calls_, 2);
}

TEST_F(ChangeMergerTest, CallsOnceMoreForChangesDuringTheCall) {
    const auto merger = ChangeMerger::make(scheduler_, [this] {
        if (++calls_ == 1) {
            merger_->changed();
            merger_->changed();
        }
    });
    merger_ = merger;
    merger_->changed();
    scheduler_.settle();
    EXPECT_EQ(calls_, 2);
}

TEST_F(ChangeMergerTest, IsStillOnlyAfterTheLastChange) {
    for (int i = 0; i < 10; ++i) {
        merger_->changed();
        scheduler_.settle();
        scheduler_.advance(0.2);
    }
    EXPECT_EQ(calls_, 10) << "each at once, and no last one between them";
    scheduler_.advance(0.06);
    EXPECT_EQ(calls_, 11);
    scheduler_.advance(60);
    EXPECT_EQ(calls_, 11);
}

TEST_F(ChangeMergerTest, TellsOfTheEndOfEachWriting) {
    for (int writing = 1; writing <= 3; ++writing) {
        merger_->changed();
        scheduler_.advance(10);
        EXPECT_EQ(calls_, 2 * writing);
    }
}

TEST_F(ChangeMergerTest, NoCallComesAfterTheEnd) {
    merger_->changed();
    merger_->end();
    scheduler_.advance(1);
    merger_->changed();
    scheduler_.advance(1);
    EXPECT_EQ(calls_, 0);
}

// The system's own thread may hold the merger a moment longer than the watch does.
TEST_F(ChangeMergerTest, NoCallComesAfterTheEndThoughSomebodyHoldsIt) {
    const std::shared_ptr<ChangeMerger> held = merger_;
    merger_->changed();
    scheduler_.settle();
    merger_->end();
    merger_.reset();
    scheduler_.advance(1);
    EXPECT_EQ(calls_, 1);
}

TEST_F(ChangeMergerTest, ItsTasksEndWithIt) {
    merger_->changed();
    merger_.reset();
    scheduler_.advance(1);
    EXPECT_EQ(calls_, 0);
}

TEST_F(ChangeMergerTest, CanBeEndedAndDestroyedInItsOwnCall) {
    auto merger = ChangeMerger::make(scheduler_, [this] {
        merger_->end();
        merger_.reset();
        ++calls_;
    });
    merger_ = std::move(merger);
    merger_->changed();
    scheduler_.advance(1);
    EXPECT_EQ(calls_, 1);
}

} // namespace
} // namespace tessarine
