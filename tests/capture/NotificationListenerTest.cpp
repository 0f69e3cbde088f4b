#include "capture/ListenerFixture.h"
#include "support/Numbers.h"
#include "support/PropertyListWriter.h"

#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <utility>

namespace tessarine {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using testing::ManualScheduler;
using ::testing::Not;
using testing::UsernotedContent;
using testing::UsernotedForm;
using namespace Qt::StringLiterals;
using testing::day;

class ListenerTest : public testing::ListenerFixture {};

// Construction and start

TEST_F(ListenerTest, ConstructionOpensNoHoardAndCapturesNothing) {
    add(1, u"Hello"_qs, start - 10);
    launch();
    system_.scheduler.advance(120);
    EXPECT_FALSE(QFile::exists(hoard().path()));
    EXPECT_FALSE(listener_->isStarted());
    EXPECT_TRUE(listener_->notifications().empty());
}

TEST_F(ListenerTest, ASecondStartChangesNothing) {
    launchAndStart();
    const auto timers = system_.scheduler.runningTimers();
    const auto lines = logged().size();
    listener_->start();
    system_.scheduler.settle();
    EXPECT_EQ(system_.scheduler.runningTimers(), timers);
    EXPECT_EQ(logged().size(), lines);
    EXPECT_EQ(system_.fileWatcher.watches(listener_->usernotedDbPath() + u"-wal"_qs), 1U);
}

TEST_F(ListenerTest, WithoutAccessibilityTheDatabaseLayersStartAllTheSame) {
    add(1, u"Hello"_qs, start - 10);
    launchAndStart();
    EXPECT_EQ(diagnostics_->axStatus(), u"Waiting for Accessibility permission"_qs);
    EXPECT_THAT(logged(), Contains(u"AXObserver deferred — Accessibility not yet granted"_qs));
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
    EXPECT_EQ(diagnostics_->dbStatus(), u"Polling every 30s"_qs);
}

TEST_F(ListenerTest, TellsTheWatchBeforeTheTimer) {
    launchAndStart();
    const std::vector<QString> lines = logged();
    EXPECT_THAT(lines, Contains(u"File watcher active on WAL"_qs));
    const auto watch = std::find(lines.begin(), lines.end(), u"File watcher active on WAL"_qs);
    const auto timer =
        std::find(lines.begin(), lines.end(), u"Poll timer active (30s interval)"_qs);
    EXPECT_LT(watch, timer);
}

TEST_F(ListenerTest, WithoutALogFileOnlyTheTimerIsArmed) {
    writer_.close();
    launchAndStart();
    EXPECT_THAT(logged(), Not(Contains(u"File watcher active on WAL"_qs)));
    EXPECT_THAT(logged(), Contains(u"Poll timer active (30s interval)"_qs));
}

TEST_F(ListenerTest, AListenerThatIsGoneEndsItsTasksSilently) {
    launch();
    listener_->start();
    listener_.reset();
    system_.scheduler.advance(60);
    EXPECT_EQ(diagnostics_->dbStatus(), u"Initializing..."_qs);
}

TEST_F(ListenerTest, AListenerThatGoesBeforeTheRecoveryLeavesTheHoardAlone) {
    add(1, u"Hello"_qs, start - 10);
    launch();
    system_.scheduler.holdGlobalQueues(true);
    listener_->start();
    system_.scheduler.settle();
    listener_.reset();
    system_.scheduler.holdGlobalQueues(false);
    system_.scheduler.settle();
    EXPECT_FALSE(QFile::exists(hoard().path()));
}

// The recovery

TEST_F(ListenerTest, AnEmptyHoardLogsZero) {
    launchAndStart();
    EXPECT_THAT(logged(), Contains(u"Hoard loaded — 0 notifications"_qs));
    EXPECT_EQ(diagnostics_->capturedTotal(), 0);
}

TEST_F(ListenerTest, AHoardOfThreeThousandRowsLogsFiveHundred) {
    hoard().open();
    ASSERT_TRUE(
        testing::DatabaseFile(hoard().path())
            .run(u"WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i+1 FROM n WHERE i<3000) "
                 "INSERT INTO notifications(title, timestamp) SELECT 'row', i FROM n"_qs));
    launchAndStart();
    EXPECT_THAT(logged(), Contains(u"Hoard loaded — 500 notifications"_qs));
    EXPECT_EQ(diagnostics_->capturedTotal(), 500);
    EXPECT_EQ(listener_->notifications().size(), 500U);
}

TEST_F(ListenerTest, TheFirstRunGoesBackThirtyDays) {
    add(1, u"too old"_qs, start - 30 * day - 3);
    add(2, u"old"_qs, start - 30 * day + 1);
    add(3, u"new"_qs, start - 1);
    launchAndStart();
    EXPECT_THAT(stored(), ElementsAre(u"old"_qs, u"new"_qs));
}

TEST_F(ListenerTest, TheResumeLineShowsTheCursorAsADecimal) {
    system_.defaults.setReal(u"lastSeenUsernotedTimestamp"_qs, 778912345.5);
    launchAndStart();
    EXPECT_THAT(logged(), Contains(u"Resuming from timestamp 778912345.5"_qs));
}

TEST_F(ListenerTest, RetentionCutsWhatTheFirstRunStoresButTheCursorMovesToTheNewest) {
    system_.defaults.setInteger(u"retentionDays"_qs, 7);
    add(1, u"eight days"_qs, start - 8 * day);
    add(2, u"six days"_qs, start - 6 * day);
    launchAndStart();
    EXPECT_THAT(stored(), ElementsAre(u"six days"_qs));
    EXPECT_EQ(listener_->lastSeenTimestamp(), start - 6 * day);
}

TEST_F(ListenerTest, TheCursorMovesEvenIfRetentionKeepsNothing) {
    system_.defaults.setInteger(u"retentionDays"_qs, 1);
    add(7, u"two days"_qs, start - 2 * day);
    launchAndStart();
    EXPECT_THAT(stored(), ElementsAre());
    EXPECT_EQ(system_.defaults.real(u"lastSeenUsernotedTimestamp"_qs), start - 2 * day);
    EXPECT_EQ(system_.defaults.integer(u"lastSeenUsernotedRecId"_qs), 7);
}

TEST_F(ListenerTest, WithoutRetentionEverythingFoundIsStored) {
    for (const qint64 days : {0, -3}) {
        system_.defaults.setInteger(u"retentionDays"_qs, days);
        add(100 + days, u"old"_qs, start - 29 * day);
        relaunch();
    }
    EXPECT_THAT(stored(u"system_note_id"_qs), ElementsAre(u"100"_qs, u"97"_qs));
}

TEST_F(ListenerTest, TheRecoveryNeitherCountsNorLogsItsRows) {
    add(1, u"Hello"_qs, start - 10);
    launchAndStart();
    EXPECT_EQ(diagnostics_->capturedTotal(), 0);
    EXPECT_THAT(logged(), Not(Contains(u"Captured notification from [mail]"_qs)));
    EXPECT_EQ(listener_->notifications().size(), 1U);
}

TEST_F(ListenerTest, TheRecoveryNamesApplicationsByTheirIdEvenWhileTheyRun) {
    system_.workspace.running = {{7, u"com.example.mail"_qs, u"Mail"_qs}};
    add(1, u"Hello"_qs, start - 10);
    launchAndStart();
    EXPECT_EQ(listener_->notifications().front().appName, u"mail"_qs);
}

TEST_F(ListenerTest, TheRecoverySavesTheCursorWithTheKeysAtIt) {
    add(4, u"a"_qs, start - 20);
    add(9, u"b"_qs, start - 30);
    add(5, u"c"_qs, start - 20);
    launchAndStart();
    EXPECT_EQ(system_.defaults.real(u"lastSeenUsernotedTimestamp"_qs), start - 20);
    EXPECT_EQ(system_.defaults.integerList(u"lastSeenUsernotedRecIds"_qs),
              (std::vector<qint64>{4, 5}));
    EXPECT_EQ(system_.defaults.integer(u"lastSeenUsernotedRecId"_qs), 9);
    EXPECT_EQ(listener_->lastSeenRecId(), 9);
    EXPECT_EQ(diagnostics_->lastSeenRecId(), 9);
}

TEST_F(ListenerTest, ARestartAddsNothing) {
    add(1, u"a"_qs, start - 20);
    add(2, u"b"_qs, start - 20);
    launchAndStart();
    relaunch();
    relaunch();
    EXPECT_THAT(stored(), ElementsAre(u"a"_qs, u"b"_qs));
}

TEST_F(ListenerTest, ARowWrittenWhileTheProgramWasOffIsRecovered) {
    add(1, u"a"_qs, start - 20);
    launchAndStart();
    add(2, u"same instant"_qs, start - 20);
    add(3, u"slightly behind"_qs, start - 21);
    relaunch();
    EXPECT_THAT(stored(), ElementsAre(u"a"_qs, u"slightly behind"_qs, u"same instant"_qs));
}

TEST_F(ListenerTest, AnInfiniteDateIsRecoveredButNeverBecomesTheCursor) {
    add(1, u"endless"_qs, std::numeric_limits<double>::infinity());
    add(2, u"usual"_qs, start - 5);
    launchAndStart();
    EXPECT_EQ(stored().size(), 2U);
    EXPECT_EQ(listener_->lastSeenTimestamp(), start - 5);
    add(3, u"later"_qs, start - 4);
    pollNow();
    EXPECT_EQ(stored().size(), 3U);
    EXPECT_EQ(listener_->lastSeenTimestamp(), start - 4);
}

TEST_F(ListenerTest, AnExcludedApplicationLeavesNoRowNoCountAndNoLineButMovesTheCursor) {
    system_.defaults.setTextList(u"excludedBundleIds"_qs, {u"com.example.secret"_qs});
    add(1, u"recovered"_qs, start - 10, u"com.example.secret"_qs);
    launchAndStart();
    EXPECT_EQ(listener_->lastSeenTimestamp(), start - 10);
    add(2, u"polled"_qs, start + 1, u"com.example.secret"_qs);
    pollNow();
    EXPECT_EQ(listener_->lastSeenTimestamp(), start + 1);
    EXPECT_THAT(stored(), ElementsAre());
    EXPECT_EQ(diagnostics_->capturedTotal(), 0);
    EXPECT_THAT(logged(), Not(Contains(u"Captured notification from [secret]"_qs)));
    EXPECT_THAT(logged(), Contains(u"Found 1 new record(s)"_qs));
}

TEST_F(ListenerTest, APollBeforeTheRecoveryReadsFromTheBeginningWithoutHarm) {
    add(1, u"ancient"_qs, 100.0);
    add(2, u"new"_qs, start - 10);
    launch();
    system_.scheduler.holdGlobalQueues(true);
    listener_->start();
    system_.scheduler.settle();
    pollNow();
    EXPECT_THAT(stored(), ElementsAre(u"ancient"_qs, u"new"_qs));
    system_.scheduler.holdGlobalQueues(false);
    system_.scheduler.settle();
    EXPECT_THAT(stored(), ElementsAre(u"ancient"_qs, u"new"_qs));
    EXPECT_EQ(listener_->lastSeenTimestamp(), start - 10);
}

// The watch and the timer

TEST_F(ListenerTest, AWriteToTheLogLeadsToAPoll) {
    launchAndStart();
    add(1, u"Hello"_qs, start + 1);
    system_.fileWatcher.write(listener_->usernotedDbPath() + u"-wal"_qs);
    system_.scheduler.settle();
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
    EXPECT_THAT(logged(), Contains(u"Captured notification from [mail]"_qs));
    EXPECT_EQ(diagnostics_->capturedTotal(), 1);
    ASSERT_EQ(listener_->notifications().size(), 1U);
    EXPECT_EQ(listener_->notifications().front().title, u"Hello"_qs);
}

TEST_F(ListenerTest, TheTimerPollsEveryThirtySeconds) {
    writer_.close();
    launchAndStart();
    const auto polls = [this] {
        const std::vector<QString> lines = logged();
        return std::count_if(lines.begin(), lines.end(), [](const QString& line) {
            return line.startsWith(u"Polling usernoted DB"_qs);
        });
    };
    system_.scheduler.advance(29.9);
    EXPECT_EQ(polls(), 0);
    system_.scheduler.advance(0.1);
    EXPECT_EQ(polls(), 1);
    system_.scheduler.advance(60);
    EXPECT_EQ(polls(), 3);
}

TEST_F(ListenerTest, TheTimerCarriesOnWhenTheLogIsReplaced) {
    launchAndStart();
    writer_.close();
    ASSERT_TRUE(writer_.createTables());
    add(1, u"Hello"_qs, start + 1);
    system_.scheduler.advance(30);
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
}

TEST_F(ListenerTest, AWriteDuringAPollLeadsToOneMoreWhichFindsNothingNew) {
    launchAndStart();
    add(1, u"Hello"_qs, start + 1);
    bool written = false;
    QObject::connect(listener_.get(), &NotificationListener::notificationsChanged, [&] {
        if (!written)
            system_.fileWatcher.write(listener_->usernotedDbPath() + u"-wal"_qs);
        written = true;
    });
    pollNow();
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
    EXPECT_EQ(logged().back(), u"Poll complete — no new records"_qs);
}

// A poll

TEST_F(ListenerTest, APollShowsItsCursorInTheLog) {
    launchAndStart();
    add(1, u"a"_qs, 785000100.25);
    pollNow();
    pollNow();
    EXPECT_THAT(logged(), Contains(u"Polling usernoted DB (ts: 785000100.25)"_qs));
}

TEST_F(ListenerTest, APollBeforeTheRecoveryShowsZeroWithItsFraction) {
    launch();
    pollNow();
    EXPECT_THAT(logged(), Contains(u"Polling usernoted DB (ts: 0.0)"_qs));
}

TEST_F(ListenerTest, APollRestartsTheCountdown) {
    launchAndStart();
    system_.scheduler.advance(12);
    EXPECT_EQ(diagnostics_->nextPollIn(), 18.0);
    pollNow();
    EXPECT_EQ(diagnostics_->nextPollIn(), 30.0);
    EXPECT_TRUE(diagnostics_->isPolling());
}

TEST_F(ListenerTest, RowsAtOneInstantBothArriveWhenTheSecondComesLater) {
    launchAndStart();
    add(1, u"first"_qs, start + 1);
    pollNow();
    add(2, u"second"_qs, start + 1);
    pollNow();
    EXPECT_THAT(stored(), ElementsAre(u"first"_qs, u"second"_qs));
    EXPECT_EQ(listener_->lastSeenRecIds(), (std::set<qint64>{1, 2}));
    EXPECT_EQ(system_.defaults.integerList(u"lastSeenUsernotedRecIds"_qs),
              (std::vector<qint64>{1, 2}));
}

TEST_F(ListenerTest, ARowOneSecondBehindTheCursorIsStoredAndTheCursorStays) {
    launchAndStart();
    add(1, u"first"_qs, start + 10);
    pollNow();
    add(2, u"late"_qs, start + 9);
    pollNow();
    EXPECT_THAT(stored(), ElementsAre(u"first"_qs, u"late"_qs));
    EXPECT_EQ(listener_->lastSeenTimestamp(), start + 10);
    EXPECT_EQ(listener_->lastSeenRecIds(), std::set<qint64>{1});
}

TEST_F(ListenerTest, ARowThatDecodesToNothingMovesTheCursorAndCountsAsNoRecord) {
    launchAndStart();
    addUnreadable(3, start + 2);
    pollNow();
    EXPECT_EQ(logged().back(), u"Poll complete — no new records"_qs);
    EXPECT_EQ(listener_->lastSeenTimestamp(), start + 2);
    EXPECT_EQ(listener_->lastSeenRecId(), 0);
}

TEST_F(ListenerTest, ARecordThatIsReadAgainIsStoredAndCountedOnce) {
    launchAndStart();
    add(1, u"a"_qs, start + 1);
    add(2, u"b"_qs, start + 1.5);
    pollNow();
    add(3, u"c"_qs, start + 2);
    pollNow();
    EXPECT_THAT(stored(), ElementsAre(u"a"_qs, u"b"_qs, u"c"_qs));
    EXPECT_EQ(diagnostics_->capturedTotal(), 3);
    EXPECT_THAT(logged(), Contains(u"Found 2 new record(s)"_qs)); // "a" once more, and "c"
}

TEST_F(ListenerTest, APollNamesARunningApplicationAsItIsShown) {
    launchAndStart();
    system_.workspace.running = {{7, u"com.example.mail"_qs, u"Mail"_qs},
                                 {8, u"com.example.mail"_qs, u"Other"_qs}};
    add(1, u"Hello"_qs, start + 1);
    pollNow();
    EXPECT_EQ(listener_->notifications().front().appName, u"Mail"_qs);
    EXPECT_THAT(logged(), Contains(u"Captured notification from [Mail]"_qs));
}

TEST_F(ListenerTest, ARunningApplicationWithoutANameIsNamedByItsId) {
    launchAndStart();
    system_.workspace.running = {{7, u"com.example.mail"_qs, std::nullopt}};
    add(1, u"Hello"_qs, start + 1);
    pollNow();
    EXPECT_EQ(listener_->notifications().front().appName, u"mail"_qs);
}

TEST_F(ListenerTest, APollWithOnlyKnownRecordsStillPublishesTheList) {
    launchAndStart();
    add(1, u"a"_qs, start + 1);
    pollNow();
    add(2, u"newer"_qs, start + 1.5);
    pollNow();
    int published = 0;
    QObject::connect(listener_.get(), &NotificationListener::notificationsChanged,
                     [&] { ++published; });
    pollNow(); // "a" comes again from the overlap
    EXPECT_EQ(published, 1);
    EXPECT_EQ(stored().size(), 2U);
}

TEST_F(ListenerTest, TheDiagnosticsRecordIdFollowsInATaskOfItsOwn) {
    launchAndStart();
    add(12, u"a"_qs, start + 1);
    listener_->pollUsernoted();
    EXPECT_EQ(listener_->lastSeenRecId(), 12);
    EXPECT_EQ(diagnostics_->lastSeenRecId(), 0);
    system_.scheduler.settle();
    EXPECT_EQ(diagnostics_->lastSeenRecId(), 12);
}

TEST_F(ListenerTest, TheListIsTheFirstFiveHundredRows) {
    launchAndStart();
    ASSERT_TRUE(writer_.begin());
    for (int i = 1; i <= 600; ++i)
        add(i, QString::number(i), start + i);
    ASSERT_TRUE(writer_.commit());
    pollNow();
    ASSERT_EQ(listener_->notifications().size(), 500U);
    EXPECT_EQ(listener_->notifications().front().title, u"600"_qs);
    EXPECT_EQ(listener_->notifications().back().title, u"101"_qs);
    EXPECT_EQ(diagnostics_->capturedTotal(), 600);
}

TEST_F(ListenerTest, ARecordIdAtTheEdgeOfThirtyTwoBitsIsStored) {
    launchAndStart();
    add(2147483647, u"edge"_qs, start + 1);
    pollNow();
    EXPECT_THAT(stored(u"system_note_id"_qs), ElementsAre(u"2147483647"_qs));
}

TEST_F(ListenerTest, ARecordIdBeyondThirtyTwoBitsEndsTheProcess) {
    launchAndStart();
    add(2147483648, u"beyond"_qs, start + 1);
    EXPECT_DEATH(listener_->pollUsernoted(), "2147483648 does not fit");
}

TEST_F(ListenerTest, AMissingDatabaseIsPolledWithoutAnError) {
    writer_.close();
    ASSERT_TRUE(QFile::remove(writer_.path()));
    launchAndStart();
    pollNow();
    EXPECT_EQ(logged().back(), u"Poll complete — no new records"_qs);
}

TEST_F(ListenerTest, AHoardThatCannotBeOpenedCountsAndLogsNothing) {
    QFile blocker(folder_.filePath(u"Library/Application Support"_qs));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    add(1, u"Hello"_qs, start - 1);
    launchAndStart();
    add(2, u"Again"_qs, start + 1);
    pollNow();
    EXPECT_EQ(diagnostics_->capturedTotal(), 0);
    EXPECT_TRUE(listener_->notifications().empty());
    EXPECT_THAT(logged(), Not(Contains(u"Captured notification from [mail]"_qs)));
}

TEST_F(ListenerTest, RecentTitlesStayEmptyWhateverIsRecoveredAndPolled) {
    add(1, u"recovered"_qs, start - 1);
    launchAndStart();
    ASSERT_THAT(stored(), ElementsAre(u"recovered"_qs));
    EXPECT_TRUE(listener_->recentTitles().empty());
    add(2, u"polled"_qs, start + 1);
    pollNow();
    ASSERT_THAT(stored(), ElementsAre(u"recovered"_qs, u"polled"_qs));
    EXPECT_TRUE(listener_->recentTitles().empty());
}

// The two readings guess at a body in their own ways: only a poll takes a text that ends in
// "Thread" for one of the archive's own.
TEST_F(ListenerTest, TheRecoveryAndThePollReadArchivesEachInItsWay) {
    using testing::PlistValue;
    const QByteArray archive = testing::writeBinaryPropertyList(PlistValue::dictionary(
        {{u"$objects"_qs, PlistValue::array({PlistValue::string(u"Reply in the Thread"_qs),
                                             PlistValue::string(u"a short one"_qs)})}}));
    const QByteArray payload = testing::writeBinaryPropertyList(PlistValue::dictionary(
        {{u"titl"_qs, PlistValue::string(u"Title"_qs)}, {u"req"_qs, PlistValue::data(archive)}}));
    ASSERT_TRUE(writer_.append(1, 1, payload, start - 1));
    launchAndStart();
    ASSERT_TRUE(writer_.append(2, 1, payload, start + 1));
    pollNow();
    EXPECT_THAT(stored(u"body"_qs), ElementsAre(u"Reply in the Thread"_qs, u"a short one"_qs));
}

TEST_F(ListenerTest, ANotificationOfBothBannerAndDatabaseGivesTwoRows) {
    launchAndStart();
    CapturedNotification banner;
    banner.appBundleId = u"mail"_qs;
    banner.appName = u"Mail"_qs;
    banner.title = u"Hello"_qs;
    banner.timestamp = start + 1;
    ASSERT_TRUE(hoard().insertDeduplicated(banner));
    add(1, u"Hello"_qs, start + 1);
    pollNow();
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs, u"Hello"_qs));
}

// Tells when the hoard's file is opened.
class OpeningWatch : public testing::SimulatedFileSystem {
public:
    OpeningWatch(const QString& home, std::function<void()> onOpening)
        : SimulatedFileSystem(home)
        , onOpening_(std::move(onOpening)) {}

    bool makePrivate(const QString& path) const override {
        onOpening_();
        return SimulatedFileSystem::makePrivate(path);
    }

private:
    std::function<void()> onOpening_;
};

TEST_F(ListenerTest, ACaptureDuringTheRecoveryIsNotHiddenByTheOlderReading) {
    const auto capture = [this] { // on the main thread, after the recovery has read the hoard
        CapturedNotification banner;
        banner.appName = u"Mail"_qs;
        banner.title = u"just now"_qs;
        banner.timestamp = system_.scheduler.now();
        ASSERT_TRUE(hoard().insertDeduplicated(banner));
        listener_->setNotifications(hoard().fetchRecent(500));
    };
    system_.platform.fileSystem =
        std::make_unique<OpeningWatch>(folder_.path(), [&] { system_.scheduler.onMain(capture); });
    launch();
    listener_->start();
    system_.scheduler.settle();
    ASSERT_EQ(listener_->notifications().size(), 1U);
    EXPECT_EQ(listener_->notifications().front().title, u"just now"_qs);
    EXPECT_EQ(diagnostics_->capturedTotal(), 1);
}

} // namespace
} // namespace tessarine
