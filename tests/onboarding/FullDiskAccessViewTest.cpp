#include "onboarding/FullDiskAccessView.h"

#include "support/Printers.h"
#include "support/SimulatedPlatform.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// Grants what the test says.
class SwitchedFileSystem : public testing::SimulatedFileSystem {
public:
    using SimulatedFileSystem::SimulatedFileSystem;

    bool grantsReading(const QString&) const override {
        ++questions;
        return isGranted;
    }

    bool isGranted = false;
    mutable int questions = 0;
};

class FullDiskAccessViewTest : public ::testing::Test {
protected:
    FullDiskAccessView& open() {
        view_.emplace(
            FullDiskAccessView::Services{files_, system_.scheduler, system_.systemSettings,
                                         u"/the/database"_qs},
            [this] { ++enabled_; }, [this] { ++skipped_; });
        view_->appear();
        return *view_;
    }

    QTemporaryDir folder_;
    testing::SimulatedPlatform system_{folder_.path()};
    SwitchedFileSystem files_{folder_.path()};
    std::optional<FullDiskAccessView> view_;
    int enabled_ = 0;
    int skipped_ = 0;
};

TEST_F(FullDiskAccessViewTest, EndsAtOnceWhereTheAccessIsThereAlready) {
    files_.isGranted = true;
    open();
    EXPECT_EQ(enabled_, 1);
}

TEST_F(FullDiskAccessViewTest, NoticesTheAccessWithinASecond) {
    open();
    system_.scheduler.advance(5);
    files_.isGranted = true;
    system_.scheduler.advance(0.9);
    EXPECT_EQ(enabled_, 0);
    system_.scheduler.advance(0.1);
    EXPECT_EQ(enabled_, 1);
}

TEST_F(FullDiskAccessViewTest, GivesUpAfterFifteenTicksAndThenBelievesTheUserAlone) {
    open();
    system_.scheduler.advance(14.5);
    files_.isGranted = true;
    system_.scheduler.advance(0.5); // the fifteenth tick
    EXPECT_EQ(enabled_, 1);

    files_.isGranted = false;
    FullDiskAccessView& late = open();
    system_.scheduler.advance(15);
    const int questions = files_.questions;
    files_.isGranted = true;
    system_.scheduler.advance(60);
    EXPECT_EQ(files_.questions, questions);
    EXPECT_EQ(enabled_, 1);
    late.claimEnabled();
    EXPECT_EQ(enabled_, 2);
}

TEST_F(FullDiskAccessViewTest, AClaimThatIsNotSoGetsAWarningThatGoesWithTheAccess) {
    FullDiskAccessView& view = open();
    view.claimEnabled();
    EXPECT_TRUE(view.showNotActiveWarning());
    EXPECT_EQ(enabled_, 0);
    files_.isGranted = true;
    system_.scheduler.advance(1);
    EXPECT_FALSE(view.showNotActiveWarning());
    EXPECT_EQ(enabled_, 1);
}

TEST_F(FullDiskAccessViewTest, TwoTriggersInTheSameInstantEndItOnce) {
    FullDiskAccessView& view = open();
    files_.isGranted = true;
    view.claimEnabled();
    view.claimEnabled();
    system_.scheduler.advance(3);
    view.skip();
    EXPECT_EQ(enabled_, 1);
    EXPECT_EQ(skipped_, 0);
}

TEST_F(FullDiskAccessViewTest, ASkipIsTold) {
    open().skip();
    EXPECT_EQ(skipped_, 1);
    EXPECT_EQ(enabled_, 0);
}

TEST_F(FullDiskAccessViewTest, OpensTheSystemsPageWhereItHasOne) {
    FullDiskAccessView& view = open();
    EXPECT_TRUE(view.offersSettings());
    view.openSettings();
    EXPECT_EQ(system_.systemSettings.opened, QStringList(settingsPages::fullDiskAccess));
    system_.systemSettings.pages.clear();
    EXPECT_FALSE(view.offersSettings());
}

TEST_F(FullDiskAccessViewTest, PicturesTheListOfProgramsWhereTheSystemHasOne) {
    EXPECT_TRUE(open().showsPicture());
    system_.systemSettings.hasLists = false;
    EXPECT_FALSE(open().showsPicture());
}

TEST_F(FullDiskAccessViewTest, NothingTicksOnceItIsGone) {
    for (int phase = 0; phase < 200; ++phase) {
        open();
        system_.scheduler.advance(0.005 * phase);
        view_.reset();
    }
    const int questions = files_.questions;
    system_.scheduler.advance(20);
    EXPECT_EQ(files_.questions, questions);
}

} // namespace
} // namespace tessarine
