#include "shared/CapturedNotification.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

CapturedNotification sample() {
    CapturedNotification notification;
    notification.dbId = 3;
    notification.noteId = 7;
    notification.appBundleId = u"org.example.mail"_qs;
    notification.appName = u"Mail"_qs;
    notification.title = u"Title"_qs;
    notification.body = u"Body"_qs;
    notification.timestamp = 778912345.5;
    return notification;
}

// Each change by itself makes another row of it.
struct Change {
    const char* name;
    void (*apply)(CapturedNotification&);
};

class ShowsSameRow : public ::testing::TestWithParam<Change> {};

TEST_P(ShowsSameRow, IsFalseAfterAChange) {
    CapturedNotification changed = sample();
    GetParam().apply(changed);
    EXPECT_FALSE(showsSameRow(sample(), changed));
}

INSTANTIATE_TEST_SUITE_P(
    Fields, ShowsSameRow,
    ::testing::Values(Change{"RowId", [](CapturedNotification& n) { n.dbId = 4; }},
                      Change{"Key", [](CapturedNotification& n) { n.noteId = 8; }},
                      Change{"BundleId", [](CapturedNotification& n) { n.appBundleId += u'x'; }},
                      Change{"AppName", [](CapturedNotification& n) { n.appName += u'x'; }},
                      Change{"Title", [](CapturedNotification& n) { n.title += u'x'; }},
                      Change{"Body", [](CapturedNotification& n) { n.body += u'x'; }},
                      Change{"Timestamp", [](CapturedNotification& n) { n.timestamp += 0.5; }},
                      Change{"Pinned", [](CapturedNotification& n) { n.pinned = true; }}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(ShowsSameRowOfRecords, IsTrueForTwoReadingsOfOneRow) {
    const CapturedNotification first = sample();
    const CapturedNotification second = sample();
    EXPECT_NE(first.id, second.id);
    EXPECT_TRUE(showsSameRow(first, second));
}

TEST(CapturedNotificationRecord, HasAFreshIdentityEachTime) {
    EXPECT_FALSE(CapturedNotification().id.isNull());
    EXPECT_NE(CapturedNotification().id, CapturedNotification().id);
}

TEST(CapturedNotificationRecord, KeepsItsIdentityInACopy) {
    const CapturedNotification first = sample();
    const CapturedNotification copy = first;
    EXPECT_EQ(copy.id, first.id);
    EXPECT_EQ(copy, first);
}

} // namespace
} // namespace tessarine
