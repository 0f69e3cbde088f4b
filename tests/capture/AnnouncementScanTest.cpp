// Scans of banners whose announcements the system hands over as they are.

#include "capture/BannerScan.h"
#include "support/Printers.h"
#include "support/SimulatedAccessibility.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarine {
namespace {

using testing::ElementPtr;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::makeElement;
using testing::makeGroup;
using testing::makeText;
using testing::ManualScheduler;
using testing::SimulatedAccessibility;
using namespace Qt::StringLiterals;

constexpr qint32 shellPid = 501;

class AnnouncementScanTest : public ::testing::Test {
protected:
    std::vector<QString> scan() {
        std::vector<QString> titles;
        runBannerScan(accessibility_, scheduler_, shellPid,
                      [&](const CapturedNotification& record) { titles.push_back(record.title); });
        return titles;
    }

    void show(const std::vector<AXElementRef>& windows) {
        accessibility_.application(shellPid)->attributes[ax::windows] = windows;
    }

    static ElementPtr banner(const QString& title) {
        return makeGroup(shellPid, u"Mail"_qs, {makeText(shellPid, title)});
    }

    ManualScheduler scheduler_;
    SimulatedAccessibility accessibility_{scheduler_};
};

TEST_F(AnnouncementScanTest, TakesAnAnnouncementAsItIs) {
    const ElementPtr group =
        makeGroup(shellPid, u"drawn, otherwise"_qs,
                  {makeText(shellPid, u"drawn title"_qs), makeText(shellPid, u"5m ago"_qs)});
    group->announcement = Announcement{u"Foo, Inc."_qs, u"Meeting 14:30 - 15:00, Room 5"_qs,
                                       u"Today at 10:00"_qs, 784999999.75};
    show({group});
    std::vector<CapturedNotification> records;
    runBannerScan(accessibility_, scheduler_, shellPid,
                  [&](CapturedNotification record) { records.push_back(std::move(record)); });
    ASSERT_EQ(records.size(), 1U);
    CapturedNotification expected;
    expected.id = records.front().id;
    expected.noteId = 1763307199; // 2025-11-16 15:33:19 UTC
    expected.appBundleId = u"foo,.inc."_qs;
    expected.appName = u"Foo, Inc."_qs;
    expected.title = u"Meeting 14:30 - 15:00, Room 5"_qs;
    expected.body = u"Today at 10:00"_qs;
    expected.timestamp = 784999999.75;
    EXPECT_EQ(records.front(), expected);
}

TEST_F(AnnouncementScanTest, TakesAnAnnouncementOnce) {
    const ElementPtr group = banner(u"drawn"_qs);
    group->announcement = Announcement{u"Mail"_qs, u"announced"_qs, {}, 0};
    show({group, banner(u"only drawn"_qs)});
    EXPECT_THAT(scan(), ElementsAre(u"announced"_qs, u"only drawn"_qs));
    EXPECT_THAT(scan(), ElementsAre(u"only drawn"_qs));
}

// Another scan was quicker.
TEST_F(AnnouncementScanTest, GivesNoRecordForAnAnnouncementThatIsTakenBeforeItsTurn) {
    const ElementPtr group = banner(u"drawn"_qs);
    group->announcement = Announcement{u"Mail"_qs, u"announced"_qs, {}, 0};
    const ElementPtr last = makeElement(shellPid, u"AXWindow"_qs);
    last->onRead = [&](const QString&) { accessibility_.takeAnnouncement(group); };
    show({group, last});
    EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(AnnouncementScanTest, CancelledBetweenBannersLeavesTheNextAnnouncementUntaken) {
    bool cancelled = false;
    const ElementPtr first = banner(u"drawn"_qs);
    const ElementPtr second = banner(u"drawn"_qs);
    first->announcement = Announcement{u"Mail"_qs, u"a"_qs, {}, 0};
    second->announcement = Announcement{u"Mail"_qs, u"b"_qs, {}, 0};
    show({first, second});
    runBannerScan(
        accessibility_, scheduler_, shellPid,
        [&](const CapturedNotification&) { cancelled = true; }, [&] { return cancelled; });
    EXPECT_THAT(scan(), ElementsAre(u"b"_qs));
}

} // namespace
} // namespace tessarine
