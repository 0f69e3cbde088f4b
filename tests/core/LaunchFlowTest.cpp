#include "core/LaunchFlow.h"

#include "support/Numbers.h"
#include "support/SimulatedPlatform.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::day;
using ::testing::ElementsAre;

class LaunchFlowTest : public ::testing::Test {
protected:
    LaunchFlowTest() { services.preferences.setHasAcceptedEULA(true); }

    void store(const QString& title, double age) {
        CapturedNotification row;
        row.noteId = ++lastNoteId;
        row.title = title;
        row.timestamp = system.scheduler.now() - age;
        ASSERT_TRUE(services.hoard.insert(row));
    }

    QStringList titles() {
        QStringList found;
        for (const CapturedNotification& row : services.listener->notifications())
            found << row.title;
        return found;
    }

    QTemporaryDir folder;
    testing::SimulatedPlatform system{folder.path()};
    Services services{system.platform};
    LaunchFlow flow{services, {[this] { ++guides; }, [] {}}};
    qint64 lastNoteId = 0;
    int guides = 0;
};

TEST_F(LaunchFlowTest, CapturesOnceItHasBegun) {
    EXPECT_FALSE(services.listener->isStarted());
    flow.beginLaunchFlow();
    EXPECT_TRUE(services.listener->isStarted());
}

TEST_F(LaunchFlowTest, DoesNothingButShowTheGuideBeforeTheUserHasAgreed) {
    services.preferences.setHasAcceptedEULA(false);
    flow.beginLaunchFlow();
    system.scheduler.advance(0.39);
    EXPECT_EQ(guides, 0);
    system.scheduler.advance(0.01);
    EXPECT_EQ(guides, 1);
    system.scheduler.advance(60);
    EXPECT_EQ(guides, 1);
    EXPECT_FALSE(services.listener->isStarted());
    EXPECT_FALSE(QFile::exists(services.hoard.path()));
}

TEST_F(LaunchFlowTest, DeletesNothingBeforeTheUserHasAgreedHoweverOldItIs) {
    services.preferences.setRetentionDays(7);
    services.preferences.setOtpRetentionHours(1);
    store(u"old code 1234"_qs, 400 * day);
    services.preferences.setHasAcceptedEULA(false);
    flow.beginLaunchFlow();
    system.scheduler.advance(60);
    ASSERT_EQ(services.hoard.fetchRecent(10).size(), 1U);
    services.preferences.setHasAcceptedEULA(true);
    flow.finishStartup();
    system.scheduler.settle();
    EXPECT_EQ(services.hoard.fetchRecent(10).size(), 0U);
}

TEST_F(LaunchFlowTest, ChecksWhatTheProgramMayDoOnceItIsAtWork) {
    bool wasAtWork = false;
    LaunchFlow other{services, {{}, [&] { wasAtWork = services.listener->isStarted(); }}};
    other.beginLaunchFlow();
    EXPECT_TRUE(wasAtWork);
}

TEST_F(LaunchFlowTest, LetsGoWhatIsTooOldBeforeTheListIsRead) {
    services.preferences.setRetentionDays(30);
    store(u"old"_qs, 31 * day);
    store(u"young"_qs, 29 * day);
    flow.beginLaunchFlow();
    system.scheduler.settle();
    EXPECT_THAT(titles(), ElementsAre(u"young"_qs));
    EXPECT_EQ(services.diagnostics.entries().back().message,
              u"Retention: Policy — deleteOlderThan(30d) → 1 deleted"_qs);
}

TEST_F(LaunchFlowTest, RecordsThatTheSystemsDatabaseCanBeRead) {
    const QString path = services.listener->usernotedDbPath();
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile database(path);
    ASSERT_TRUE(database.open(QIODevice::WriteOnly));
    EXPECT_FALSE(flow.fdaConfirmedAtLaunch());
    flow.beginLaunchFlow();
    EXPECT_TRUE(flow.fdaConfirmedAtLaunch());
}

TEST_F(LaunchFlowTest, RecordsThatItCannot) {
    flow.beginLaunchFlow();
    EXPECT_FALSE(flow.fdaConfirmedAtLaunch());
}

// What is told on standard error

QStringList toldLines;

void note(QtMsgType, const QMessageLogContext&, const QString& text) {
    toldLines << text;
}

class LaunchComplaintsTest : public LaunchFlowTest {
public:
    ~LaunchComplaintsTest() override { qInstallMessageHandler(before_); }

protected:
    LaunchComplaintsTest() {
        toldLines.clear();
        before_ = qInstallMessageHandler(note);
    }

    const QString blindness_ = u"Notifications can't be seen: the system gives no access to them, "
                               "as where there is no session bus"_qs;

private:
    QtMessageHandler before_;
};

TEST_F(LaunchComplaintsTest, NothingIsToldWhereAllIsWell) {
    system.accessibility.trusted = true;
    flow.beginLaunchFlow();
    system.scheduler.advance(60);
    EXPECT_THAT(toldLines, ElementsAre());
}

TEST_F(LaunchComplaintsTest, AccessThatDoesNotComeIsToldOfOnce) {
    flow.beginLaunchFlow();
    system.scheduler.advance(4);
    EXPECT_THAT(toldLines, ElementsAre());
    system.scheduler.advance(60);
    EXPECT_THAT(toldLines, ElementsAre(blindness_));
}

TEST_F(LaunchComplaintsTest, AccessThatComesInTimeIsNotMissed) {
    flow.beginLaunchFlow();
    system.accessibility.trusted = true;
    system.scheduler.advance(60);
    EXPECT_THAT(toldLines, ElementsAre());
}

TEST_F(LaunchComplaintsTest, AHoardThatCannotBeOpenedIsToldOfWithItsPath) {
    system.accessibility.trusted = true;
    ASSERT_TRUE(QDir().mkpath(services.hoard.path())); // a folder in the file's place
    flow.beginLaunchFlow();
    system.scheduler.advance(60);
    EXPECT_THAT(toldLines, ElementsAre(u"The hoard can't be opened: "_qs + services.hoard.path()));
}

} // namespace
} // namespace tessarine
