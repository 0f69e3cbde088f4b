// From an announcement on the bus, as the monitor tells it, to the hoard: the Linux source under
// the same observer, throttle and scan as on any system, with a clock that the test turns.

#include "core/Services.h"
#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/banners/BannerProcess.h"
#include "platform/linux/banners/BannerProcessFixture.h"
#include "platform/linux/banners/LinuxAccessibility.h"
#include "support/HoardFile.h"
#include "support/Printers.h"
#include "support/SimulatedPlatform.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace tessarine {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::ManualScheduler;
using testing::pid;
using ::testing::SizeIs;

// A session with a daemon, in which the program was started.
struct BannersToHoardTest : ::testing::Test {
    QTemporaryDir folder;
    testing::SimulatedPlatform system{folder.path()};
    ManualScheduler& scheduler = system.scheduler;
    std::shared_ptr<BannerProcess> process = std::make_shared<BannerProcess>(scheduler);
    std::optional<Services> services; // over the platform with its Linux parts
    std::uint32_t lastSerial = 0;
    std::uint64_t lastTurn = 0;

    BannersToHoardTest() {
        process->setService({true, BannerOwner{pid, ++lastTurn}});
        system.platform.accessibility =
            std::make_unique<LinuxAccessibility>(process, std::string());
        system.platform.workspace =
            std::make_unique<LinuxWorkspace>(scheduler, process, LinuxWorkspace::Buses());
        scheduler.settle();
        process->setService({true, BannerOwner{pid, ++lastTurn}}); // there was no bus to ask
        scheduler.settle();
        services.emplace(system.platform);
        services->listener->start();
        scheduler.settle();
    }

    void announce(const AnnouncedTexts& texts, const BannerId& id = 0U) {
        process->announce({{":1.1", ++lastSerial}, id, texts, scheduler.uptime()});
        scheduler.settle();
    }

    void announce(const QString& title) { announce({u"Mail"_qs, title, {}}); }

    void serviceIs(const std::optional<BannerOwner>& owner) {
        process->setService({true, owner});
        scheduler.settle();
    }

    std::vector<QString> stored(const QString& column = u"title"_qs) const {
        std::vector<QString> texts;
        for (const QStringList& row :
             testing::DatabaseFile(services->hoard.path())
                 .rows(u"SELECT %1 FROM notifications ORDER BY id"_qs.arg(column)))
            texts.push_back(row.front());
        return texts;
    }
};

TEST_F(BannersToHoardTest, StoresTextsToTheCharacter) {
    announce({u"Foo, Inc."_qs, u"Meeting 14:30 - 15:00, Room 5"_qs, u"07:30"_qs});
    EXPECT_EQ(
        testing::DatabaseFile(services->hoard.path())
            .rows(u"SELECT bundle_id, app_name, title, body, timestamp FROM notifications"_qs),
        (std::vector<QStringList>{{u"foo,.inc."_qs, u"Foo, Inc."_qs,
                                   u"Meeting 14:30 - 15:00, Room 5"_qs, u"07:30"_qs,
                                   u"785000000.0"_qs}}));
}

TEST_F(BannersToHoardTest, StoresAtOnceWhatTheThrottleLetsThrough) {
    announce(u"one"_qs);
    EXPECT_THAT(stored(), ElementsAre(u"one"_qs));
    scheduler.advance(1.5);
    announce(u"two"_qs);
    EXPECT_THAT(stored(), ElementsAre(u"one"_qs, u"two"_qs));
}

TEST_F(BannersToHoardTest, StoresTheSecondOfTwoInASecondOnceTheThrottleIsOver) {
    announce(u"one"_qs);
    scheduler.advance(0.4);
    announce(u"two"_qs);
    EXPECT_THAT(stored(), ElementsAre(u"one"_qs));
    scheduler.advance(0.7); // 1.1 after the scan
    EXPECT_THAT(stored(), ElementsAre(u"one"_qs, u"two"_qs));
    EXPECT_THAT(stored(u"timestamp"_qs), ElementsAre(u"785000000.0"_qs, u"785000000.4"_qs));
}

// An announcement at this part of the throttle's time, counted from the scan before it.
struct InTheThrottle : BannersToHoardTest, ::testing::WithParamInterface<double> {};

TEST_P(InTheThrottle, IsStoredOnceTheThrottleIsOver) {
    announce(u"one"_qs);
    scheduler.advance(GetParam() * axThrottle);
    announce(u"two"_qs);
    EXPECT_THAT(stored(), ElementsAre(u"one"_qs)) << "the throttle is in force";
    scheduler.advance((1 - GetParam()) * axThrottle + 0.1);
    EXPECT_THAT(stored(), ElementsAre(u"one"_qs, u"two"_qs));
}

INSTANTIATE_TEST_SUITE_P(Moments, InTheThrottle, ::testing::Values(0.0, 0.25, 0.5, 0.9, 0.999));

TEST_F(BannersToHoardTest, StoresEachOfASeriesWithinTwoThrottles) {
    for (int i = 0; i < 100; ++i) {
        announce(QString::number(i));
        scheduler.advance(0.13);
    }
    EXPECT_GT(stored().size(), 90U);
    scheduler.advance(1.1);
    EXPECT_THAT(stored(), SizeIs(100));
}

TEST_F(BannersToHoardTest, StoresEachOfTwoThousandAtOnceOnce) {
    for (int i = 0; i < 2000; ++i)
        process->announce({{":1.1", ++lastSerial},
                           0U,
                           {u"Mail"_qs, QString::number(i), u"body"_qs},
                           scheduler.uptime()});
    scheduler.advance(3);
    const auto titles = stored();
    ASSERT_THAT(titles, SizeIs(2000));
    for (int i = 0; i < 2000; ++i)
        EXPECT_EQ(titles[static_cast<std::size_t>(i)], QString::number(i));
    EXPECT_EQ(services->diagnostics.capturedTotal(), 2000);
}

TEST_F(BannersToHoardTest, StoresOnceWhatArrivesByBothServices) {
    announce({u"Teapot Timer"_qs, u"Tea"_qs, u"is ready"_qs});
    announce({u"Teapot Timer"_qs, u"Tea"_qs, u"is ready"_qs},
             BannerName{"com.example.Teapot", "tea"});
    scheduler.advance(2);
    EXPECT_THAT(stored(), ElementsAre(u"Tea"_qs));
}

TEST_F(BannersToHoardTest, DatesWhatCameJustBeforeASleepBeforeIt) {
    announce(u"one"_qs);
    scheduler.advance(0.25);
    announce(u"just before"_qs); // in the throttle
    scheduler.sleep(8 * 3600);
    scheduler.advance(2);
    EXPECT_THAT(stored(u"timestamp"_qs), ElementsAre(u"785000000.0"_qs, u"785000000.25"_qs));
}

TEST_F(BannersToHoardTest, StoresWhatCameWhileTheListenerWasDetached) {
    serviceIs(std::nullopt);
    EXPECT_FALSE(services->listener->hasAXObserver());
    serviceIs(BannerOwner{pid + 1, ++lastTurn});
    announce(u"between two daemons"_qs); // the listener attaches a second after the launch
    EXPECT_THAT(stored(), IsEmpty());
    scheduler.advance(1);
    EXPECT_THAT(stored(), ElementsAre(u"between two daemons"_qs));
}

TEST_F(BannersToHoardTest, RunsNothingOnceAllIsStored) {
    announce(u"one"_qs);
    scheduler.advance(5);
    const auto scans = [this] { return scheduler.waitingGlobalTasks(); };
    scheduler.holdGlobalQueues(true);
    scheduler.advance(20); // less than a poll of the databases
    EXPECT_EQ(scans(), 0U);
}

} // namespace
} // namespace tessarine
