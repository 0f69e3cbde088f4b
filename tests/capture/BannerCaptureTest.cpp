#include "capture/BannerLayerFixture.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarine {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace testing;

// From an event to the hoard.
class BannerCaptureTest : public BannerLayerFixture {};

// The watchdog

TEST_F(BannerCaptureTest, AScanThatHangsIsReportedOnceAfterTwoSeconds) {
    launch();
    showSlowly(u"Hello"_qs, 5.0);
    send();
    advance(1.75);
    EXPECT_THAT(logged(), ElementsAre(attached()));
    advance(0.25);
    EXPECT_THAT(logged(), ElementsAre(attached(), timedOut));
    advance(2.75);
    EXPECT_THAT(logged(), ElementsAre(attached(), timedOut));
}

TEST_F(BannerCaptureTest, WhatAScanFindsAfterItsTimeOutIsStored) {
    launch();
    showSlowly(u"Hello"_qs, 5.0);
    send();
    advance(4.75);
    EXPECT_THAT(stored(), IsEmpty());
    advance(0.25);
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
    EXPECT_EQ(diagnostics_->capturedTotal(), 1);
    EXPECT_EQ(published_, 1);
    EXPECT_THAT(logged(), ElementsAre(attached(), timedOut, captured(u"Mail"_qs)));
}

TEST_F(BannerCaptureTest, AScanThatTakesLessThanTwoSecondsIsNotReported) {
    launch();
    showSlowly(u"Hello"_qs, 1.75);
    send();
    advance(60);
    EXPECT_THAT(logged(), ElementsAre(attached(), captured(u"Mail"_qs)));
}

TEST_F(BannerCaptureTest, WhatAHangingScanFoundBeforeIsStoredAtOnce) {
    launch();
    show(u"Mail"_qs, {u"quick"_qs});
    showSlowly(u"slow"_qs, 5.0);
    send();
    EXPECT_THAT(stored(), ElementsAre(u"quick"_qs));
    advance(5);
    EXPECT_THAT(stored(), ElementsAre(u"quick"_qs, u"slow"_qs));
}

TEST_F(BannerCaptureTest, TwoOverlappingScansStoreOnce) {
    launch();
    const ElementPtr banner = showSlowly(u"Hello"_qs, 5.0);
    send(); // hangs until the fifth second
    banner->attributes[ax::children] =
        std::vector<AXElementRef>{testing::makeText(pid, u"Hello"_qs)};
    advance(1.0);
    send(); // answers at once
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
    advance(60);
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
    EXPECT_EQ(diagnostics_->capturedTotal(), 1);
    EXPECT_EQ(published_, 1);
    EXPECT_THAT(logged(), ElementsAre(attached(), captured(u"Mail"_qs), timedOut));
}

TEST_F(BannerCaptureTest, EachScanThatHangsIsReported) {
    launch();
    showSlowly(u"Hello"_qs, 30.0);
    send();
    advance(1.0);
    send();
    advance(5.0);
    EXPECT_THAT(logged(), ElementsAre(attached(), timedOut, timedOut));
}

TEST_F(BannerCaptureTest, WhileAScanHangsOtherWorkGoesOn) {
    launch();
    showSlowly(u"Hello"_qs, 60.0);
    send();
    bool worked = false;
    system_.scheduler.onGlobalQueue(QualityOfService::utility, [&] { worked = true; });
    advance(1.0);
    EXPECT_TRUE(worked);
    post(WorkspaceEvent::willSleep);
    EXPECT_EQ(status(), u"Inactive (sleep)"_qs);
    advance(29.0);
    EXPECT_EQ(diagnostics_->nextPollIn(), 30.0); // a poll has just been
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(BannerCaptureTest, ATimeOutDoesNotDetach) {
    launch();
    showSlowly(u"Hello"_qs, 5.0);
    send();
    advance(2.0);
    EXPECT_TRUE(listener_->hasAXObserver());
    EXPECT_EQ(status(), u"Active (pid 501)"_qs);
}

TEST_F(BannerCaptureTest, WhatComesLateForAListenerThatIsGoneIsDropped) {
    launch();
    showSlowly(u"Hello"_qs, 5.0);
    send();
    listener_.reset();
    advance(60);
    EXPECT_THAT(stored(), IsEmpty());
    EXPECT_THAT(logged(), ElementsAre(attached()));
}

// Storing

TEST_F(BannerCaptureTest, ACaptureIsStoredAsItWasRead) {
    show(u"Visual Studio Code, Build"_qs, {u"Build"_qs, u"All is well"_qs, u"5m ago"_qs});
    launch();
    const std::vector<QStringList> rows =
        testing::DatabaseFile(hoard().path())
            .rows(u"SELECT system_note_id, bundle_id, app_name, title, body, timestamp, pinned "
                  "FROM notifications"_qs);
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows.front(),
              (QStringList{u"NULL"_qs, u"visual.studio.code"_qs, u"Visual Studio Code"_qs,
                           u"Build"_qs, u"All is well"_qs, u"784999700.0"_qs, u"0"_qs}));
}

TEST_F(BannerCaptureTest, ACaptureIsCountedLoggedAndPublished) {
    launch();
    show(u"Mail"_qs, {u"Hello"_qs});
    send();
    EXPECT_EQ(diagnostics_->capturedTotal(), 1);
    EXPECT_THAT(logged(), ElementsAre(attached(), captured(u"Mail"_qs)));
    EXPECT_EQ(published_, 1);
    ASSERT_EQ(listener_->notifications().size(), 1U);
    EXPECT_EQ(listener_->notifications().front().title, u"Hello"_qs);
    EXPECT_GT(listener_->notifications().front().dbId, 0);
}

TEST_F(BannerCaptureTest, TheBannersOfAScanAreStoredInTheirOrderAndPublishedTogether) {
    launch();
    show(u"Mail"_qs, {u"a"_qs});
    show(u"Chat"_qs, {u"b"_qs});
    show(u"Mail"_qs, {u"c"_qs});
    send();
    EXPECT_THAT(stored(), ElementsAre(u"a"_qs, u"b"_qs, u"c"_qs));
    EXPECT_EQ(published_, 1);
    EXPECT_EQ(listener_->notifications().size(), 3U);
    EXPECT_THAT(logged(), ElementsAre(attached(), captured(u"Mail"_qs), captured(u"Chat"_qs),
                                      captured(u"Mail"_qs)));
}

TEST_F(BannerCaptureTest, ABannerThatStaysIsNotStoredAgain) {
    launch();
    show(u"Mail"_qs, {u"Hello"_qs});
    send();
    advance(60);
    send();
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
    EXPECT_EQ(diagnostics_->capturedTotal(), 1);
    EXPECT_EQ(published_, 1);
    EXPECT_THAT(logged(), ElementsAre(attached(), captured(u"Mail"_qs)));
}

TEST_F(BannerCaptureTest, TheSameTextJustUnderThreeHundredSecondsLaterIsTheSame) {
    launch();
    show(u"Mail"_qs, {u"Hello"_qs});
    send();
    advance(299.75);
    send();
    EXPECT_EQ(stored().size(), 1U);
}

TEST_F(BannerCaptureTest, TheSameTextThreeHundredSecondsLaterIsAnotherRow) {
    launch();
    show(u"Mail"_qs, {u"Hello"_qs});
    send();
    advance(300);
    send();
    EXPECT_EQ(stored().size(), 2U);
}

TEST_F(BannerCaptureTest, TheSameTextTenMinutesLaterIsAnotherRow) {
    launch();
    show(u"Mail"_qs, {u"Hello"_qs});
    send();
    advance(600);
    send();
    EXPECT_THAT(stored(u"timestamp"_qs), ElementsAre(u"785000000.0"_qs, u"785000600.0"_qs));
    EXPECT_EQ(diagnostics_->capturedTotal(), 2);
    EXPECT_EQ(published_, 2);
}

TEST_F(BannerCaptureTest, ABannerWhoseAgeGrowsStaysOneRow) {
    launch();
    show(u"Mail"_qs, {u"Hello"_qs, u"2m ago"_qs});
    send();
    advance(600);
    system_.accessibility.removeBanners(pid);
    show(u"Mail"_qs, {u"Hello"_qs, u"12m ago"_qs});
    send();
    EXPECT_EQ(stored().size(), 1U);
}

TEST_F(BannerCaptureTest, AChangedBodyIsAnotherRow) {
    launch();
    show(u"Mail"_qs, {u"Hello"_qs, u"1 message"_qs});
    send();
    advance(1);
    system_.accessibility.removeBanners(pid);
    show(u"Mail"_qs, {u"Hello"_qs, u"2 messages"_qs});
    send();
    EXPECT_THAT(stored(u"body"_qs), ElementsAre(u"1 message"_qs, u"2 messages"_qs));
}

TEST_F(BannerCaptureTest, TheSameTextOfAnotherApplicationIsAnotherRow) {
    launch();
    show(u"Mail"_qs, {u"Hello"_qs});
    show(u"Chat"_qs, {u"Hello"_qs});
    send();
    EXPECT_THAT(stored(u"bundle_id"_qs), ElementsAre(u"mail"_qs, u"chat"_qs));
}

TEST_F(BannerCaptureTest, TheDerivedIdExcludes) {
    system_.defaults.setTextList(u"excludedBundleIds"_qs, {u"visual.studio.code"_qs});
    launch();
    show(u"Visual Studio Code"_qs, {u"Hello"_qs});
    send();
    EXPECT_THAT(stored(), IsEmpty());
    EXPECT_EQ(diagnostics_->capturedTotal(), 0);
    EXPECT_EQ(published_, 0);
    EXPECT_THAT(logged(), ElementsAre(attached()));
}

TEST_F(BannerCaptureTest, NeitherARealIdNorANameExcludes) {
    system_.defaults.setTextList(u"excludedBundleIds"_qs,
                                 {u"com.microsoft.VSCode"_qs, u"Visual Studio Code"_qs});
    launch();
    show(u"Visual Studio Code"_qs, {u"Hello"_qs});
    send();
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
}

TEST_F(BannerCaptureTest, AnExclusionTakenBackLetsTheNextScanStore) {
    system_.defaults.setTextList(u"excludedBundleIds"_qs, {u"mail"_qs});
    show(u"Mail"_qs, {u"Hello"_qs});
    launch();
    system_.defaults.setTextList(u"excludedBundleIds"_qs, {});
    send();
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
}

TEST_F(BannerCaptureTest, AHoardThatCannotBeOpenedCountsAndLogsNothing) {
    ASSERT_TRUE(QDir(folder_.path()).mkpath(u"Library"_qs));
    QFile blocker(folder_.filePath(u"Library/Application Support"_qs));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    show(u"Mail"_qs, {u"Hello"_qs});
    launch();
    EXPECT_EQ(diagnostics_->capturedTotal(), 0);
    EXPECT_THAT(logged(), ElementsAre(attached()));
}

TEST_F(BannerCaptureTest, RecentTitlesStayEmptyWhateverIsCapturedAndRefused) {
    launch();
    show(u"Mail"_qs, {u"Hello"_qs});
    send();
    advance(2);
    send(); // the same banner once more
    ASSERT_THAT(stored(), ElementsAre(u"Hello"_qs));
    EXPECT_THAT(listener_->recentTitles(), IsEmpty());
}

TEST_F(BannerCaptureTest, TheHoardAloneTellsWhatWasCapturedBefore) {
    launch();
    show(u"Mail"_qs, {u"Hello"_qs});
    send();
    ASSERT_THAT(stored(), ElementsAre(u"Hello"_qs));
    hoard().deleteAll();
    advance(2);
    send();
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
}

} // namespace
} // namespace tessarine
