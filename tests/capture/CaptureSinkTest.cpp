#include "capture/CaptureSink.h"

#include "store/Sqlite.h"
#include "support/HoardFile.h"
#include "support/SimulatedPlatform.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString waiting = u"Hoard not writable — captures wait"_qs;

class CaptureSinkTest : public ::testing::Test {
protected:
    CaptureSinkTest()
        : system_(folder_.path()) {
        hoard_.open(); // tests lock the file and put triggers into it
        diagnostics_.emplace(system_.scheduler, hoard_);
        sink_ = std::make_shared<CaptureSink>(CaptureSink::Services{
            hoard_, *diagnostics_, system_.scheduler, [this] { ++publicationRequests_; }});
    }

    CapturedNotification record(const QString& title, qint64 noteId = 0) const {
        CapturedNotification notification;
        notification.noteId = noteId;
        notification.appBundleId = u"mail"_qs;
        notification.appName = u"Mail"_qs;
        notification.title = title;
        notification.timestamp = 785000000.0;
        return notification;
    }

    void storeBanner(const QString& title) { sink_->store(CaptureOrigin::banner, record(title)); }

    testing::DatabaseFile file() const { return testing::DatabaseFile(hoard_.path()); }

    // From now on the hoard takes no row with a title like this.
    void refuse(const QString& pattern) {
        ASSERT_TRUE(
            file().run(u"CREATE TRIGGER refusing BEFORE INSERT ON notifications WHEN "
                       "new.title LIKE '%1' BEGIN SELECT RAISE(ABORT, 'no'); END"_qs.arg(pattern)));
    }
    void refuseNoLonger() { ASSERT_TRUE(file().run(u"DROP TRIGGER refusing"_qs)); }

    std::vector<QString> stored() const {
        std::vector<QString> titles;
        for (const QStringList& row :
             file().rows(u"SELECT title FROM notifications ORDER BY id"_qs))
            titles.push_back(row.front());
        return titles;
    }

    // Oldest first.
    std::vector<QString> logged() const {
        std::vector<QString> messages;
        for (const DiagnosticEntry& entry : diagnostics_->entries())
            messages.insert(messages.begin(), entry.message);
        return messages;
    }

    void advance(double seconds) { system_.scheduler.advance(seconds); }

    QTemporaryDir folder_;
    testing::SimulatedPlatform system_;
    HoardStore hoard_{system_.fileSystem, system_.defaults, system_.scheduler};
    std::optional<DiagnosticsStore> diagnostics_;
    int publicationRequests_ = 0;
    std::shared_ptr<CaptureSink> sink_;
};

// What is said of a stored row

TEST_F(CaptureSinkTest, CountsAndLogsABanner) {
    EXPECT_TRUE(sink_->store(CaptureOrigin::banner, record(u"a"_qs)));
    EXPECT_EQ(diagnostics_->capturedTotal(), 1);
    ASSERT_EQ(diagnostics_->entries().size(), 1);
    EXPECT_EQ(diagnostics_->entries().front().message, u"Notification from [Mail]"_qs);
    EXPECT_EQ(diagnostics_->entries().front().level, Level::success);
    EXPECT_EQ(diagnostics_->entries().front().category, Category::ax);
}

TEST_F(CaptureSinkTest, CountsAndLogsARecordOfTheDaemonsDatabase) {
    EXPECT_TRUE(sink_->store(CaptureOrigin::usernoted, record(u"a"_qs, 1)));
    EXPECT_EQ(diagnostics_->capturedTotal(), 1);
    EXPECT_EQ(diagnostics_->entries().front().message, u"Captured notification from [Mail]"_qs);
    EXPECT_EQ(diagnostics_->entries().front().category, Category::usernoted);
}

TEST_F(CaptureSinkTest, CountsAndLogsARecordOfTheLegacyDatabase) {
    EXPECT_TRUE(sink_->store(CaptureOrigin::legacy, record(u"a"_qs, 1)));
    EXPECT_EQ(diagnostics_->capturedTotal(), 1);
    EXPECT_EQ(diagnostics_->entries().front().message, u"Notification from [Mail]"_qs);
    EXPECT_EQ(diagnostics_->entries().front().category, Category::legacy);
}

TEST_F(CaptureSinkTest, NeitherCountsNorLogsTheRecoverysRows) {
    EXPECT_TRUE(sink_->store(CaptureOrigin::recovery, record(u"a"_qs, 1)));
    EXPECT_EQ(diagnostics_->capturedTotal(), 0);
    EXPECT_THAT(logged(), IsEmpty());
    EXPECT_THAT(stored(), ElementsAre(u"a"_qs));
}

TEST_F(CaptureSinkTest, NeitherCountsNorLogsWhatTheHoardHas) {
    storeBanner(u"a"_qs);
    EXPECT_FALSE(sink_->store(CaptureOrigin::banner, record(u"a"_qs)));
    EXPECT_EQ(diagnostics_->capturedTotal(), 1);
    EXPECT_EQ(logged().size(), 1U);
    EXPECT_EQ(sink_->pendingCount(), 0U);
}

// What the hoard doesn't take at the moment

TEST_F(CaptureSinkTest, StoresInTheirOrderWhatCameWhileAnotherProgramHeldTheHoard) {
    const SqliteConnection other(hoard_.path(), SqliteConnection::Mode::ownFile);
    ASSERT_TRUE(other.execute("BEGIN IMMEDIATE"));
    EXPECT_FALSE(sink_->store(CaptureOrigin::banner, record(u"first"_qs)));
    EXPECT_FALSE(sink_->store(CaptureOrigin::usernoted, record(u"second"_qs, 1)));
    EXPECT_FALSE(sink_->store(CaptureOrigin::legacy, record(u"third"_qs, 2)));
    advance(1.4); // one more attempt, which fails
    EXPECT_THAT(logged(), ElementsAre(waiting));
    EXPECT_EQ(publicationRequests_, 0);
    ASSERT_TRUE(other.execute("COMMIT"));
    advance(0.2);
    EXPECT_THAT(stored(), ElementsAre(u"first"_qs, u"second"_qs, u"third"_qs));
    EXPECT_EQ(diagnostics_->capturedTotal(), 3);
    EXPECT_EQ(publicationRequests_, 1);
    EXPECT_THAT(logged(),
                ElementsAre(waiting, u"Notification from [Mail]"_qs,
                            u"Captured notification from [Mail]"_qs, u"Notification from [Mail]"_qs,
                            u"Hoard writable again — 3 waiting notification(s) stored"_qs));
    EXPECT_TRUE(sink_->store(CaptureOrigin::banner, record(u"fourth"_qs)));
}

TEST_F(CaptureSinkTest, TriesAgainAtGrowingIntervalsUpToThirtySeconds) {
    refuse(u"%"_qs);
    storeBanner(u"a"_qs);
    // Tries after 0.5, 1, 2, 4, 8 and 16 seconds, then every 30.
    advance(31.6);
    refuseNoLonger();
    advance(29.8);
    EXPECT_THAT(stored(), IsEmpty());
    advance(0.2);
    EXPECT_THAT(stored(), ElementsAre(u"a"_qs));
}

TEST_F(CaptureSinkTest, StoresWhatDoesNotFailAtOnce) {
    refuse(u"bad%"_qs);
    storeBanner(u"bad"_qs);
    storeBanner(u"good"_qs);
    EXPECT_THAT(stored(), ElementsAre(u"good"_qs));
    EXPECT_EQ(sink_->pendingCount(), 1U);
}

TEST_F(CaptureSinkTest, LetsNoCaptureKeepOthersFromBeingStored) {
    refuse(u"%"_qs);
    for (int i = 0; i < 120; ++i)
        storeBanner(u"bad %1"_qs.arg(i));
    storeBanner(u"good"_qs);
    refuseNoLonger();
    refuse(u"bad%"_qs);
    advance(600);
    EXPECT_THAT(stored(), ElementsAre(u"good"_qs));
    EXPECT_EQ(sink_->pendingCount(), 120U);
}

TEST_F(CaptureSinkTest, StoresAllPendingOnesAsSoonAsOneIsStored) {
    refuse(u"%"_qs);
    for (int i = 0; i < 175; ++i)
        storeBanner(QString::number(i));
    refuseNoLonger();
    advance(0.5);
    EXPECT_EQ(stored().size(), 175U);
    EXPECT_EQ(sink_->pendingCount(), 0U);
    EXPECT_EQ(logged().back(), u"Hoard writable again — 175 waiting notification(s) stored"_qs);
}

TEST_F(CaptureSinkTest, DropsTheOldestWhereTooManyArePending) {
    for (std::size_t i = 0; i <= CaptureSink::maximumPending; ++i)
        sink_->storeLater(CaptureOrigin::recovery, record(QString::number(i), qint64(i)));
    EXPECT_LE(sink_->pendingCount(), CaptureSink::maximumPending);
    EXPECT_GE(sink_->pendingCount(), CaptureSink::maximumPending / 2);
    const std::size_t dropped = CaptureSink::maximumPending + 1 - sink_->pendingCount();
    EXPECT_THAT(logged(), ElementsAre(waiting, u"Hoard not writable — %1 notification(s) given "
                                               "up"_qs.arg(dropped)));
}

TEST_F(CaptureSinkTest, DropsTheOldestWhereTooMuchTextIsPending) {
    refuse(u"%"_qs);
    CapturedNotification huge = record(u"huge"_qs);
    huge.body = QString(CaptureSink::maximumPendingCharacters / 2, u'x');
    sink_->store(CaptureOrigin::banner, huge);
    huge.title = u"next"_qs;
    sink_->store(CaptureOrigin::banner, huge);
    EXPECT_EQ(logged().back(), u"Hoard not writable — 1 notification(s) given up"_qs);
    refuseNoLonger();
    advance(0.5);
    EXPECT_THAT(stored(), ElementsAre(u"next"_qs));
}

TEST_F(CaptureSinkTest, EndsSilentlyWhileCapturesArePending) {
    refuse(u"%"_qs);
    storeBanner(u"a"_qs);
    sink_.reset();
    refuseNoLonger();
    advance(60);
    EXPECT_THAT(stored(), IsEmpty());
}

} // namespace
} // namespace tessarine
