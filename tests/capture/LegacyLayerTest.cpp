#include "capture/CaptureFixture.h"
#include "support/Numbers.h"
#include "support/Printers.h"
#include "support/SystemDatabases.h"
#include "support/SystemPayloads.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

namespace tessarine {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::LegacyContent;
using testing::ManualScheduler;
using namespace Qt::StringLiterals;
using testing::day;

class LegacyLayerTest : public testing::CaptureFixture {
protected:
    // The services as a new process would make them.
    void launch() { makeServices(); }

    void launchAndStart() {
        launch();
        listener_->start();
        system_.scheduler.settle();
    }

    void relaunch() {
        endProcess();
        launchAndStart();
    }

    void createDatabase() {
        ASSERT_TRUE(writer_.createTables()) << writer_.lastError().toStdString();
    }

    void add(qint64 noteId, const LegacyContent& content,
             const QString& application = u"com.example.mail"_qs) {
        ASSERT_TRUE(
            writer_.append(noteId, *writer_.appId(application), testing::legacyPayload(content)))
            << writer_.lastError().toStdString();
    }

    void add(qint64 noteId, const QString& title) { add(noteId, {title, {}, start}); }

    // A payload that holds nothing.
    void addUnreadable(qint64 noteId) {
        ASSERT_TRUE(writer_.append(noteId, 1, testing::legacyPayload({}, 1)));
    }

    // Makes it readable afterwards.
    void repair(qint64 noteId, const QString& title) {
        const QByteArray payload = testing::legacyPayload({title, {}, start});
        ASSERT_TRUE(testing::DatabaseFile(writer_.path())
                        .run(u"UPDATE notifications SET encoded_data = x'%1' WHERE note_id = %2"_qs
                                 .arg(QString::fromLatin1(payload.toHex()))
                                 .arg(noteId)));
    }

    // A row of the usernoted database.
    void addUsernoted(qint64 recId, const QString& title) {
        testing::UsernotedWriter writer(
            folder_.filePath(u"Library/Group Containers/group.com.apple.usernoted/db2/db"_qs));
        ASSERT_TRUE(writer.createTables()) << writer.lastError().toStdString();
        ASSERT_TRUE(writer.append(
            recId, *writer.appId(u"com.example.mail"_qs),
            testing::usernotedPayload(testing::UsernotedForm::RequestTitle, {.title = title}),
            start - 10));
    }

    // A write of the file, as the watch tells it.
    void written(const QString& path) {
        published_ = 0;
        system_.fileWatcher.write(path);
        system_.scheduler.settle();
    }

    void written() { written(listener_->legacyDbPath()); }

    // This layer's lines, oldest first. Each one is a success.
    std::vector<QString> logged() const {
        std::vector<QString> messages;
        for (const DiagnosticEntry& entry : diagnostics_->entries()) {
            if (entry.category != Category::legacy)
                continue;
            EXPECT_EQ(entry.level, Level::success);
            messages.insert(messages.begin(), entry.message);
        }
        return messages;
    }

    qint64 savedCursor() const { return system_.defaults.integer(u"lastSeenSystemNoteId"_qs); }

    QString legacyFolder_ = folder_.filePath(u"Library/Application Support/NotificationCenter"_qs);
    testing::LegacyWriter writer_{legacyFolder_ + u"/legacy.db"_qs};
};

// Finding the file

TEST_F(LegacyLayerTest, WithoutAFolderThereIsNoWatchAndNoWord) {
    launchAndStart();
    EXPECT_EQ(listener_->legacyDbPath(), legacyFolder_);
    EXPECT_EQ(system_.fileWatcher.watches(legacyFolder_), 0U);
    listener_->pollLegacy();
    EXPECT_THAT(logged(), IsEmpty());
    EXPECT_EQ(diagnostics_->capturedTotal(), 0);
}

TEST_F(LegacyLayerTest, WithoutAFileTheFolderIsWatchedAndEachPollReadsNothing) {
    ASSERT_TRUE(QDir(folder_.path()).mkpath(legacyFolder_));
    launchAndStart();
    EXPECT_EQ(listener_->legacyDbPath(), legacyFolder_);
    EXPECT_EQ(system_.fileWatcher.watches(legacyFolder_), 1U);
    written();
    EXPECT_THAT(logged(), IsEmpty());
    EXPECT_EQ(published_, 0);
}

TEST_F(LegacyLayerTest, AFileThatComesLaterIsSeenAtTheNextLaunchOnly) {
    ASSERT_TRUE(QDir(folder_.path()).mkpath(legacyFolder_));
    launchAndStart();
    createDatabase();
    add(1, u"Hello"_qs);
    written();
    EXPECT_THAT(stored(), IsEmpty());
    relaunch();
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
}

TEST_F(LegacyLayerTest, OfTwoFilesTheFirstInTheListingIsRead) {
    createDatabase();
    add(1, u"legacy"_qs);
    writer_.close();
    ASSERT_TRUE(QFile::copy(writer_.path(), legacyFolder_ + u"/other.db"_qs));
    const std::filesystem::directory_iterator listing(legacyFolder_.toStdString());
    const QString first = QString::fromStdString(listing->path().string());
    launchAndStart();
    EXPECT_EQ(listener_->legacyDbPath(), first);
    EXPECT_EQ(system_.fileWatcher.watches(first), 1U);
    EXPECT_THAT(stored(), ElementsAre(u"legacy"_qs));
}

TEST_F(LegacyLayerTest, AFileThatIsNoDatabaseIsWatchedWithoutAWord) {
    ASSERT_TRUE(QDir(folder_.path()).mkpath(legacyFolder_));
    QFile file(writer_.path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(5000, 'x'));
    file.close();
    launchAndStart();
    EXPECT_EQ(system_.fileWatcher.watches(writer_.path()), 1U);
    written();
    EXPECT_THAT(logged(), IsEmpty());
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(LegacyLayerTest, ConstructionCapturesNothing) {
    createDatabase();
    add(1, u"Hello"_qs);
    launch();
    system_.scheduler.advance(120);
    EXPECT_FALSE(QFile::exists(hoard().path()));
    EXPECT_EQ(system_.fileWatcher.watches(writer_.path()), 0U);
}

// The reading at start

TEST_F(LegacyLayerTest, StartTakesWhatTheDatabaseHoldsWithoutCountingOrLoggingIt) {
    createDatabase();
    add(1, u"a"_qs);
    add(2, u"b"_qs);
    launchAndStart();
    EXPECT_THAT(stored(), ElementsAre(u"a"_qs, u"b"_qs));
    EXPECT_THAT(stored(u"system_note_id"_qs), ElementsAre(u"1"_qs, u"2"_qs));
    EXPECT_EQ(diagnostics_->capturedTotal(), 0);
    EXPECT_THAT(logged(), IsEmpty());
    EXPECT_EQ(listener_->notifications().size(), 2U);
}

TEST_F(LegacyLayerTest, StartSavesTheGreatestKey) {
    createDatabase();
    add(30, {u"a"_qs, {}, start});
    add(7, {u"b"_qs, {}, start + 5});
    launchAndStart();
    EXPECT_EQ(listener_->lastSeenNoteId(), 30);
    EXPECT_EQ(savedCursor(), 30);
}

TEST_F(LegacyLayerTest, ARestartAddsNothing) {
    createDatabase();
    add(1, u"a"_qs);
    launchAndStart();
    relaunch();
    EXPECT_THAT(stored(), ElementsAre(u"a"_qs));
}

TEST_F(LegacyLayerTest, ARestartTakesWhatCameMeanwhile) {
    createDatabase();
    add(1, u"a"_qs);
    launchAndStart();
    add(2, u"b"_qs);
    relaunch();
    EXPECT_THAT(stored(), ElementsAre(u"a"_qs, u"b"_qs));
}

TEST_F(LegacyLayerTest, WithoutAStoredCursorTheHighestKeyOfTheHoardIsIt) {
    addUsernoted(100, u"usernoted"_qs);
    createDatabase();
    add(100, u"at it"_qs);
    add(101, u"above it"_qs);
    launchAndStart();
    EXPECT_THAT(stored(), ElementsAre(u"usernoted"_qs, u"above it"_qs));
}

TEST_F(LegacyLayerTest, WithoutAnyNewRowTheCursorIsTheStoredOne) {
    system_.defaults.setInteger(u"lastSeenSystemNoteId"_qs, 50);
    createDatabase();
    add(50, u"seen"_qs);
    launchAndStart();
    EXPECT_EQ(listener_->lastSeenNoteId(), 50);
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(LegacyLayerTest, StartNamesApplicationsByTheirIdEvenWhileTheyRun) {
    system_.workspace.running = {{7, u"com.example.mail"_qs, u"Mail"_qs}};
    createDatabase();
    add(1, u"a"_qs);
    launchAndStart();
    EXPECT_THAT(stored(u"app_name"_qs), ElementsAre(u"mail"_qs));
}

TEST_F(LegacyLayerTest, StartReadsTheNamesAfresh) {
    createDatabase();
    launch();
    add(1, {u"a"_qs, {}, start}, u"com.example.new"_qs);
    listener_->start();
    system_.scheduler.settle();
    EXPECT_THAT(stored(u"bundle_id"_qs), ElementsAre(u"com.example.new"_qs));
}

TEST_F(LegacyLayerTest, ANullNameAtConstructionEndsTheProcess) {
    createDatabase();
    ASSERT_TRUE(writer_.addApp(1, std::nullopt));
    EXPECT_DEATH(launch(), "without a bundle id");
}

TEST_F(LegacyLayerTest, ANullNameAtStartIsSkipped) {
    createDatabase();
    launch();
    ASSERT_TRUE(writer_.addApp(1, std::nullopt));
    ASSERT_TRUE(writer_.append(5, 1, testing::legacyPayload({u"a"_qs, {}, start})));
    listener_->start();
    system_.scheduler.settle();
    EXPECT_THAT(stored(u"bundle_id"_qs), ElementsAre(u"app_id_1"_qs));
}

TEST_F(LegacyLayerTest, RetentionCutsWhatStartStoresButTheCursorMoves) {
    system_.defaults.setInteger(u"retentionDays"_qs, 7);
    createDatabase();
    add(1, {u"six days"_qs, {}, start - 6 * day});
    add(2, {u"exactly seven days"_qs, {}, start - 7 * day});
    add(3, {u"eight days"_qs, {}, start - 8 * day});
    launchAndStart();
    EXPECT_THAT(stored(), ElementsAre(u"six days"_qs, u"exactly seven days"_qs));
    EXPECT_EQ(savedCursor(), 3);
}

TEST_F(LegacyLayerTest, TheCursorMovesEvenIfRetentionKeepsNothing) {
    system_.defaults.setInteger(u"retentionDays"_qs, 1);
    createDatabase();
    add(3, {u"two days"_qs, {}, start - 2 * day});
    launchAndStart();
    EXPECT_THAT(stored(), IsEmpty());
    EXPECT_EQ(listener_->lastSeenNoteId(), 3);
    EXPECT_EQ(savedCursor(), 3);
    EXPECT_EQ(published_, 1); // the hoard as it was loaded
}

TEST_F(LegacyLayerTest, WithoutRetentionStartReachesBackAnyTime) {
    system_.defaults.setInteger(u"retentionDays"_qs, 0);
    createDatabase();
    add(1, {u"ancient"_qs, {}, 5.0});
    launchAndStart();
    EXPECT_THAT(stored(), ElementsAre(u"ancient"_qs));
}

TEST_F(LegacyLayerTest, AMissingDateAtStartIsTheTimeOfTheReading) {
    createDatabase();
    add(1, {u"a"_qs, {}, std::nullopt});
    launchAndStart();
    EXPECT_THAT(stored(u"timestamp"_qs), ElementsAre(u"785000000.0"_qs));
}

TEST_F(LegacyLayerTest, ACursorBeyondThirtyTwoBitsEndsTheProcess) {
    createDatabase();
    system_.defaults.setInteger(u"lastSeenSystemNoteId"_qs, 2147483648);
    EXPECT_DEATH(launchAndStart(), "2147483648 does not fit");
}

TEST_F(LegacyLayerTest, ACursorBeyondThirtyTwoBitsIsHarmlessWithoutADatabase) {
    system_.defaults.setInteger(u"lastSeenSystemNoteId"_qs, 2147483648);
    launchAndStart();
    listener_->pollLegacy();
    EXPECT_EQ(listener_->lastSeenNoteId(), 2147483648);
}

// The watch and the polls

TEST_F(LegacyLayerTest, AWriteLeadsToAPollThatCountsLogsAndPublishes) {
    createDatabase();
    ASSERT_TRUE(writer_.appId(u"com.example.mail"_qs));
    launchAndStart();
    add(1, {u"Hello"_qs, u"World"_qs, start + 1});
    written();
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
    EXPECT_EQ(diagnostics_->capturedTotal(), 1);
    EXPECT_THAT(logged(), ElementsAre(u"Notification from [mail]"_qs));
    EXPECT_EQ(published_, 1);
    ASSERT_EQ(listener_->notifications().size(), 1U);
    EXPECT_EQ(listener_->notifications().front().body, u"World"_qs);
    EXPECT_EQ(listener_->notifications().front().timestamp, start + 1);
    EXPECT_EQ(savedCursor(), 1);
}

TEST_F(LegacyLayerTest, ABatchIsPublishedOnce) {
    createDatabase();
    launchAndStart();
    for (int i = 1; i <= 5; ++i)
        add(i, QString::number(i));
    written();
    EXPECT_EQ(stored().size(), 5U);
    EXPECT_EQ(logged().size(), 5U);
    EXPECT_EQ(published_, 1);
}

TEST_F(LegacyLayerTest, APollWithoutNewRowsSaysAndPublishesNothing) {
    createDatabase();
    add(1, u"a"_qs);
    launchAndStart();
    written();
    EXPECT_THAT(logged(), IsEmpty());
    EXPECT_EQ(published_, 0);
}

TEST_F(LegacyLayerTest, NoTimerPollsThisLayer) {
    createDatabase();
    launchAndStart();
    add(1, u"a"_qs);
    system_.scheduler.advance(600);
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(LegacyLayerTest, NoLogBesideTheFileIsWatched) {
    createDatabase();
    ASSERT_TRUE(testing::DatabaseFile(writer_.path()).run(u"PRAGMA journal_mode=WAL"_qs));
    launchAndStart();
    EXPECT_EQ(system_.fileWatcher.watches(writer_.path()), 1U);
    EXPECT_EQ(system_.fileWatcher.watches(writer_.path() + u"-wal"_qs), 0U);
}

TEST_F(LegacyLayerTest, ASecondStartAddsNoWatch) {
    createDatabase();
    launchAndStart();
    listener_->start();
    system_.scheduler.settle();
    EXPECT_EQ(system_.fileWatcher.watches(writer_.path()), 1U);
}

TEST_F(LegacyLayerTest, AWriteForAListenerThatIsGoneDoesNothing) {
    createDatabase();
    launchAndStart();
    add(1, u"a"_qs);
    system_.fileWatcher.write(writer_.path());
    listener_.reset();
    system_.scheduler.settle();
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(LegacyLayerTest, APollNamesARunningApplicationAsItIsShown) {
    createDatabase();
    ASSERT_TRUE(writer_.appId(u"com.example.mail"_qs));
    launchAndStart();
    system_.workspace.running = {{7, u"com.example.mail"_qs, u"Mail"_qs}};
    add(1, u"a"_qs);
    written();
    EXPECT_THAT(stored(u"app_name"_qs), ElementsAre(u"Mail"_qs));
    EXPECT_THAT(logged(), ElementsAre(u"Notification from [Mail]"_qs));
}

TEST_F(LegacyLayerTest, APollKnowsOnlyTheNamesOfTheConstruction) {
    createDatabase();
    launchAndStart();
    ASSERT_TRUE(writer_.addApp(42, u"com.example.new"_qs));
    ASSERT_TRUE(writer_.append(1, 42, testing::legacyPayload({u"a"_qs, {}, start})));
    written();
    EXPECT_THAT(stored(u"bundle_id"_qs), ElementsAre(u"app_id_42"_qs));
    EXPECT_THAT(stored(u"app_name"_qs), ElementsAre(u"app_id_42"_qs));
    EXPECT_THAT(logged(), ElementsAre(u"Notification from [app_id_42]"_qs));
}

TEST_F(LegacyLayerTest, ANullNameAfterTheConstructionDisturbsNoPoll) {
    createDatabase();
    launchAndStart();
    ASSERT_TRUE(writer_.addApp(42, std::nullopt));
    ASSERT_TRUE(writer_.append(1, 42, testing::legacyPayload({u"a"_qs, {}, start})));
    written();
    EXPECT_THAT(stored(u"bundle_id"_qs), ElementsAre(u"app_id_42"_qs));
}

TEST_F(LegacyLayerTest, AMissingDateInAPollIsTheTimeOfTheReading) {
    createDatabase();
    launchAndStart();
    add(1, {u"a"_qs, {}, std::nullopt});
    system_.scheduler.advance(12.5);
    written();
    EXPECT_THAT(stored(u"timestamp"_qs), ElementsAre(u"785000012.5"_qs));
}

TEST_F(LegacyLayerTest, RetentionDoesNotCutPolls) {
    system_.defaults.setInteger(u"retentionDays"_qs, 1);
    createDatabase();
    launchAndStart();
    add(1, {u"old"_qs, {}, start - 10 * day});
    written();
    EXPECT_THAT(stored(), ElementsAre(u"old"_qs));
}

TEST_F(LegacyLayerTest, ARowThatDecodesToNothingDoesNotMoveTheCursorAndIsReadAgain) {
    createDatabase();
    launchAndStart();
    addUnreadable(5);
    written();
    EXPECT_EQ(listener_->lastSeenNoteId(), 0);
    EXPECT_EQ(published_, 0);
    repair(5, u"repaired"_qs);
    written();
    EXPECT_THAT(stored(), ElementsAre(u"repaired"_qs));
    EXPECT_EQ(listener_->lastSeenNoteId(), 5);
}

TEST_F(LegacyLayerTest, ALaterRowCarriesTheCursorPastOneThatDecodesToNothing) {
    createDatabase();
    launchAndStart();
    addUnreadable(5);
    add(6, u"later"_qs);
    written();
    EXPECT_EQ(listener_->lastSeenNoteId(), 6);
    repair(5, u"repaired"_qs);
    written();
    EXPECT_THAT(stored(), ElementsAre(u"later"_qs));
}

TEST_F(LegacyLayerTest, ARowThatDecodesToNothingDoesNotMoveTheCursorAtStart) {
    createDatabase();
    add(4, u"a"_qs);
    addUnreadable(5);
    launchAndStart();
    EXPECT_EQ(listener_->lastSeenNoteId(), 4);
    EXPECT_EQ(savedCursor(), 4);
}

TEST_F(LegacyLayerTest, AKeyThatTheOtherDatabaseHasUsedIsIgnored) {
    createDatabase();
    launchAndStart();
    addUsernoted(7, u"usernoted"_qs);
    listener_->pollUsernoted();
    system_.scheduler.settle();
    const qint64 counted = diagnostics_->capturedTotal();
    add(7, u"legacy"_qs);
    written();
    EXPECT_THAT(stored(), ElementsAre(u"usernoted"_qs));
    EXPECT_EQ(diagnostics_->capturedTotal(), counted);
    EXPECT_THAT(logged(), IsEmpty());
    EXPECT_EQ(listener_->lastSeenNoteId(), 7);
    EXPECT_EQ(published_, 1);
}

TEST_F(LegacyLayerTest, AnExcludedApplicationLeavesNothingButMovesTheCursor) {
    system_.defaults.setTextList(u"excludedBundleIds"_qs, {u"com.example.mail"_qs});
    createDatabase();
    add(1, u"at start"_qs);
    launchAndStart();
    EXPECT_EQ(listener_->lastSeenNoteId(), 1);
    add(2, u"polled"_qs);
    written();
    EXPECT_EQ(listener_->lastSeenNoteId(), 2);
    EXPECT_THAT(stored(), IsEmpty());
    EXPECT_EQ(diagnostics_->capturedTotal(), 0);
    EXPECT_THAT(logged(), IsEmpty());
}

TEST_F(LegacyLayerTest, TheGreatestKeyIsTheCursorEvenWhenItIsNotTheLast) {
    createDatabase();
    launchAndStart();
    add(5, u"a"_qs);
    add(4294967297, u"b"_qs); // read as 1
    written();
    EXPECT_EQ(listener_->lastSeenNoteId(), 5);
    EXPECT_EQ(savedCursor(), 5);
}

TEST_F(LegacyLayerTest, AKeyAtTheEdgeOfThirtyTwoBitsIsTheLastCursor) {
    createDatabase();
    launchAndStart();
    add(2147483647, u"edge"_qs);
    written();
    written();
    EXPECT_THAT(stored(), ElementsAre(u"edge"_qs));
    EXPECT_EQ(listener_->lastSeenNoteId(), 2147483647);
}

TEST_F(LegacyLayerTest, AHoardThatCannotBeOpenedCountsAndLogsNothing) {
    ASSERT_TRUE(QDir(folder_.path()).mkpath(legacyFolder_));
    createDatabase();
    launch();
    QFile blocker(QFileInfo(hoard().path()).path()); // a file where the folder should be
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    listener_->start();
    system_.scheduler.settle();
    add(1, u"a"_qs);
    written();
    EXPECT_EQ(diagnostics_->capturedTotal(), 0);
    EXPECT_THAT(logged(), IsEmpty());
    EXPECT_TRUE(listener_->notifications().empty());
}

} // namespace
} // namespace tessarine
