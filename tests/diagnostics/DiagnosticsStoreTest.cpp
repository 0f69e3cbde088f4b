#include "diagnostics/DiagnosticsStore.h"

#include "support/HoardFile.h"
#include "support/Printers.h"
#include "support/SimulatedPlatform.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::ManualScheduler;

// The log and the status board, for which nobody needs the hoard.
class DiagnosticsStoreTest : public ::testing::Test {
public:
    ~DiagnosticsStoreTest() override { EXPECT_FALSE(QFile::exists(hoard.path())); }

protected:
    void log(const QString& message) { store.log(message, Level::info, Category::system); }

    QTemporaryDir home;
    testing::SimulatedPlatform platform{home.path()};
    ManualScheduler& scheduler = platform.scheduler;
    HoardStore hoard{platform.fileSystem, platform.defaults, scheduler};
    DiagnosticsStore store{scheduler, hoard};
};

TEST_F(DiagnosticsStoreTest, StartsEmpty) {
    EXPECT_TRUE(store.entries().isEmpty());
    EXPECT_EQ(store.capturedTotal(), 0);
    EXPECT_EQ(store.axStatus(), u"Initializing..."_qs);
    EXPECT_EQ(store.dbStatus(), u"Initializing..."_qs);
    EXPECT_EQ(store.lastSeenRecId(), 0);
    EXPECT_EQ(store.dbRecordCount(), 0);
    EXPECT_EQ(store.nextPollIn(), 30.0);
    EXPECT_FALSE(store.isPolling());
    EXPECT_EQ(store.hoardStats(), HoardStats());
    EXPECT_EQ(scheduler.runningTimers(), 0U);
}

// The log

TEST_F(DiagnosticsStoreTest, RecordsWhatItIsToldAndWhen) {
    store.log(u"hello"_qs, Level::warning, Category::legacy);
    ASSERT_EQ(store.entries().size(), 1);
    const DiagnosticEntry& entry = store.entries().first();
    EXPECT_EQ(entry.message, u"hello"_qs);
    EXPECT_EQ(entry.level, Level::warning);
    EXPECT_EQ(entry.category, Category::legacy);
    EXPECT_EQ(entry.timestamp, ManualScheduler::startOfTime);
    EXPECT_FALSE(entry.id.isNull());
}

TEST_F(DiagnosticsStoreTest, PutsTheNewestFirst) {
    log(u"first"_qs);
    scheduler.advance(1.5);
    log(u"second"_qs);
    EXPECT_EQ(store.entries().at(0).message, u"second"_qs);
    EXPECT_EQ(store.entries().at(0).timestamp, ManualScheduler::startOfTime + 1.5);
    EXPECT_EQ(store.entries().at(1).message, u"first"_qs);
    EXPECT_NE(store.entries().at(0).id, store.entries().at(1).id);
}

TEST_F(DiagnosticsStoreTest, LendsAWayToLogThatOutlivesIt) {
    auto lender = std::make_unique<DiagnosticsStore>(scheduler, hoard);
    const DiagnosticsStore::Logger logger = lender->logger();
    const std::function<void()> refresher = lender->statsRefresher();
    logger(u"hello"_qs, Level::warning, Category::hoard);
    ASSERT_EQ(lender->entries().size(), 1);
    EXPECT_EQ(lender->entries().first().message, u"hello"_qs);
    lender.reset();
    logger(u"to nobody"_qs, Level::info, Category::hoard);
    refresher();
    scheduler.settle();
}

TEST_F(DiagnosticsStoreTest, KeepsTwoHundredEntries) {
    for (int i = 1; i <= 200; ++i)
        log(QString::number(i));
    EXPECT_EQ(store.entries().size(), 200);
    EXPECT_EQ(store.entries().last().message, u"1"_qs);
}

TEST_F(DiagnosticsStoreTest, LosesTheVeryFirstEntryToTheTwoHundredAndFirst) {
    for (int i = 1; i <= 201; ++i)
        log(QString::number(i));
    EXPECT_EQ(store.entries().size(), 200);
    EXPECT_EQ(store.entries().first().message, u"201"_qs);
    EXPECT_EQ(store.entries().last().message, u"2"_qs);
}

TEST_F(DiagnosticsStoreTest, TellsOnceOfAnInsertionAndOnceMoreOfATruncation) {
    int told = 0;
    QObject::connect(&store, &DiagnosticsStore::entriesChanged, &store, [&] { ++told; });
    for (int i = 1; i <= 200; ++i)
        log(QString::number(i));
    EXPECT_EQ(told, 200);
    log(u"201"_qs);
    EXPECT_EQ(told, 202);
}

TEST_F(DiagnosticsStoreTest, LeavesTheStatusFieldsAloneWhenItIsCleared) {
    store.setCapturedTotal(12);
    store.setAxStatus(u"Active"_qs);
    store.startPollCountdown();
    log(u"line"_qs);
    store.clearEntries();
    EXPECT_TRUE(store.entries().isEmpty());
    EXPECT_EQ(store.capturedTotal(), 12);
    EXPECT_EQ(store.axStatus(), u"Active"_qs);
    EXPECT_TRUE(store.isPolling());
}

TEST_F(DiagnosticsStoreTest, DoesNotCountItsLinesAsCaptures) {
    log(u"line"_qs);
    EXPECT_EQ(store.capturedTotal(), 0);
}

TEST_F(DiagnosticsStoreTest, TellsWhenItIsCleared) {
    log(u"line"_qs);
    int told = 0;
    QObject::connect(&store, &DiagnosticsStore::entriesChanged, &store, [&] { ++told; });
    store.clearEntries();
    EXPECT_EQ(told, 1);
}

// The status fields

TEST_F(DiagnosticsStoreTest, PublishesEachStatusField) {
    int told = 0;
    QObject::connect(&store, &DiagnosticsStore::statusChanged, &store, [&] { ++told; });
    store.setCapturedTotal(5);
    store.setAxStatus(u"Active"_qs);
    store.setDbStatus(u"Polling every 30s"_qs);
    store.setLastSeenRecId(Q_INT64_C(5000000000));
    store.setPolling(true);
    EXPECT_EQ(told, 5);
    EXPECT_EQ(store.capturedTotal(), 5);
    EXPECT_EQ(store.axStatus(), u"Active"_qs);
    EXPECT_EQ(store.dbStatus(), u"Polling every 30s"_qs);
    EXPECT_EQ(store.lastSeenRecId(), Q_INT64_C(5000000000));
    EXPECT_TRUE(store.isPolling());
}

// The countdown

TEST_F(DiagnosticsStoreTest, CountsDownFromThirtyOnceASecond) {
    store.startPollCountdown();
    EXPECT_TRUE(store.isPolling());
    EXPECT_EQ(store.nextPollIn(), 30.0);
    scheduler.advance(0.9);
    EXPECT_EQ(store.nextPollIn(), 30.0);
    scheduler.advance(0.1);
    EXPECT_EQ(store.nextPollIn(), 29.0);
    scheduler.advance(9.0);
    EXPECT_EQ(store.nextPollIn(), 20.0);
}

TEST_F(DiagnosticsStoreTest, StillCountsAfterTwentyNineTicks) {
    store.startPollCountdown();
    scheduler.advance(29.0);
    EXPECT_EQ(store.nextPollIn(), 1.0);
    EXPECT_TRUE(store.isPolling());
    EXPECT_EQ(scheduler.runningTimers(), 1U);
}

TEST_F(DiagnosticsStoreTest, IsIdleAfterThirtyTicks) {
    store.startPollCountdown();
    scheduler.advance(30.0);
    EXPECT_EQ(store.nextPollIn(), 0.0);
    EXPECT_FALSE(store.isPolling());
    EXPECT_EQ(scheduler.runningTimers(), 0U);
}

TEST_F(DiagnosticsStoreTest, StaysAtZeroWhenThePollIsLate) {
    store.startPollCountdown();
    scheduler.advance(45.0);
    EXPECT_EQ(store.nextPollIn(), 0.0);
    EXPECT_FALSE(store.isPolling());
}

TEST_F(DiagnosticsStoreTest, CountsAgainAfterItWasIdle) {
    store.startPollCountdown();
    scheduler.advance(40.0);
    store.startPollCountdown();
    EXPECT_EQ(store.nextPollIn(), 30.0);
    EXPECT_TRUE(store.isPolling());
    scheduler.advance(3.0);
    EXPECT_EQ(store.nextPollIn(), 27.0);
}

TEST_F(DiagnosticsStoreTest, HasOneTimerHoweverOftenItIsRestarted) {
    store.startPollCountdown();
    store.startPollCountdown();
    EXPECT_EQ(scheduler.runningTimers(), 1U);
    EXPECT_EQ(store.nextPollIn(), 30.0);
    scheduler.advance(1.0);
    EXPECT_EQ(store.nextPollIn(), 29.0);
}

TEST_F(DiagnosticsStoreTest, StartsOverWhenAPollComesEarly) {
    store.startPollCountdown();
    scheduler.advance(12.5);
    store.startPollCountdown();
    EXPECT_EQ(store.nextPollIn(), 30.0);
    scheduler.advance(0.9);
    EXPECT_EQ(store.nextPollIn(), 30.0);
    scheduler.advance(0.1);
    EXPECT_EQ(store.nextPollIn(), 29.0);
}

TEST_F(DiagnosticsStoreTest, KeepsARestartThatMeetsTheLastTick) {
    store.startPollCountdown();
    bool restarted = false;
    QObject::connect(&store, &DiagnosticsStore::statusChanged, &store, [&] {
        if (store.isPolling() || store.nextPollIn() > 0 || restarted)
            return;
        restarted = true; // a poll that begins and ends before the loop turns again
        store.startPollCountdown();
        store.setPolling(false);
    });
    scheduler.advance(30.0);
    ASSERT_TRUE(restarted);
    EXPECT_EQ(scheduler.runningTimers(), 1U);
    scheduler.advance(5.0);
    EXPECT_EQ(store.nextPollIn(), 25.0);
}

TEST_F(DiagnosticsStoreTest, TellsOfEachTick) {
    store.startPollCountdown();
    int told = 0;
    QObject::connect(&store, &DiagnosticsStore::statusChanged, &store, [&] { ++told; });
    scheduler.advance(3.0);
    EXPECT_EQ(told, 3);
}

TEST_F(DiagnosticsStoreTest, LeavesNoTimerBehindWhenItGoes) {
    {
        DiagnosticsStore passing(scheduler, hoard);
        passing.startPollCountdown();
    }
    EXPECT_EQ(scheduler.runningTimers(), 0U);
    scheduler.advance(2.0);
}

// Statistics of the hoard

class HoardStatsRefresh : public ::testing::Test {
protected:
    CapturedNotification capture(qint64 noteId) const {
        CapturedNotification notification;
        notification.noteId = noteId;
        notification.appBundleId = u"a.b"_qs;
        notification.timestamp = 700000000.0 + static_cast<double>(noteId);
        return notification;
    }

    QTemporaryDir home;
    testing::SimulatedPlatform platform{home.path()};
    HoardStore hoard{platform.fileSystem, platform.defaults, platform.scheduler};
    DiagnosticsStore store{platform.scheduler, hoard};

    bool isHoardOpened() const { return QFile::exists(hoard.path()); }
};

TEST_F(HoardStatsRefresh, DoesNotTouchTheHoardBeforeItIsAskedTo) {
    platform.scheduler.advance(60.0);
    EXPECT_FALSE(isHoardOpened());
}

TEST_F(HoardStatsRefresh, LooksAtTheHoardOnAWorkerOnly) {
    platform.scheduler.holdGlobalQueues(true);
    store.refreshHoardStats();
    platform.scheduler.settle();
    EXPECT_FALSE(isHoardOpened());
    EXPECT_EQ(platform.scheduler.waitingGlobalTasks(), 1U);
    platform.scheduler.holdGlobalQueues(false);
    platform.scheduler.settle();
    EXPECT_TRUE(isHoardOpened());
}

TEST_F(HoardStatsRefresh, PublishesWhatTheHoardHolds) {
    hoard.insert(capture(1));
    hoard.insert(capture(2));
    store.refreshHoardStats();
    EXPECT_EQ(store.hoardStats(), HoardStats());
    platform.scheduler.settle();
    EXPECT_EQ(store.hoardStats().totalCount, 2);
    EXPECT_EQ(store.hoardStats().distinctAppsCount, 1);
    EXPECT_EQ(store.hoardStats().firstTimestamp, 700000001.0);
    EXPECT_EQ(store.hoardStats().lastTimestamp, 700000002.0);
}

TEST_F(HoardStatsRefresh, ComesBackToTheMainThreadBeforeItAssigns) {
    hoard.insert(capture(1));
    store.refreshHoardStats();
    int told = 0;
    QObject::connect(&store, &DiagnosticsStore::statusChanged, &store, [&] { ++told; });
    platform.scheduler.settle();
    EXPECT_EQ(told, 1);
}

TEST_F(HoardStatsRefresh, EndsSilentlyWhenTheStoreIsGone) {
    auto passing = std::make_unique<DiagnosticsStore>(platform.scheduler, hoard);
    passing->refreshHoardStats();
    passing.reset();
    platform.scheduler.settle();
    EXPECT_TRUE(isHoardOpened());
}

} // namespace
} // namespace tessarine
