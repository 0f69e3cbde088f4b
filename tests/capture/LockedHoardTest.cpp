// What the listener does while another program holds the hoard.

#include "capture/ListenerFixture.h"
#include "store/Sqlite.h"

#include <gmock/gmock.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LockedHoard : public testing::ListenerFixture {
protected:
    // Another program begins to write.
    void takeLock() {
        hoard().open();
        other_.emplace(hoard().path(), SqliteConnection::Mode::ownFile);
        ASSERT_TRUE(other_->execute("BEGIN IMMEDIATE"));
    }

    void releaseLock() {
        ASSERT_TRUE(other_->execute("COMMIT"));
        system_.scheduler.advance(60);
    }

private:
    std::optional<SqliteConnection> other_;
};

TEST_F(LockedHoard, LosesNoRecordOfAPoll) {
    launchAndStart();
    takeLock();
    add(1, u"first"_qs, start - 2);
    add(2, u"second"_qs, start - 1);
    pollNow();
    EXPECT_THAT(stored(), IsEmpty());
    EXPECT_EQ(diagnostics_->capturedTotal(), 0);
    releaseLock();
    EXPECT_THAT(stored(), ElementsAre(u"first"_qs, u"second"_qs));
    EXPECT_EQ(diagnostics_->capturedTotal(), 2);
    EXPECT_EQ(listener_->notifications().size(), 2U);
}

TEST_F(LockedHoard, LosesNoRecordOfTheRecovery) {
    add(1, u"first"_qs, start - 2);
    add(2, u"second"_qs, start - 1);
    launch();
    takeLock();
    listener_->start();
    system_.scheduler.settle();
    EXPECT_THAT(stored(), IsEmpty());
    EXPECT_THAT(logged(), Contains(u"Hoard not writable — captures wait"_qs));
    releaseLock();
    EXPECT_THAT(stored(), ElementsAre(u"first"_qs, u"second"_qs));
    EXPECT_EQ(diagnostics_->capturedTotal(), 0) << "the recovery counts nothing";
    EXPECT_EQ(listener_->notifications().size(), 2U);
}

// The list that a burst of captures leads to

class PublishedList : public testing::ListenerFixture {
protected:
    void startCounting() {
        launchAndStart();
        QObject::connect(listener_.get(), &NotificationListener::notificationsChanged,
                         [this] { ++published_; });
    }

    int published_ = 0;
};

TEST_F(PublishedList, ComesOnceForPollsInARow) {
    startCounting();
    add(1, u"first"_qs, start - 2);
    listener_->pollUsernoted();
    add(2, u"second"_qs, start - 1);
    listener_->pollUsernoted();
    EXPECT_EQ(published_, 0);
    system_.scheduler.settle();
    EXPECT_EQ(published_, 1);
    EXPECT_EQ(listener_->notifications().size(), 2U);
}

TEST_F(PublishedList, IsNotReadAgainAfterAWindowHasReadIt) {
    startCounting();
    add(1, u"first"_qs, start - 2);
    listener_->pollUsernoted();
    listener_->setNotifications(hoard().fetchRecent(1000));
    system_.scheduler.settle();
    EXPECT_EQ(published_, 1);
    EXPECT_EQ(listener_->notifications().size(), 1U);
}

} // namespace
} // namespace tessarine
