#include "browser/NotificationRow.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

class NotificationRowTest : public ::testing::Test {
protected:
    NotificationRowTest() { row_.setNotificationId(QUuid::createUuid()); }

    void click() {
        row_.press();
        row_.click();
    }

    // As the pointer does it: the second press comes before the double click.
    void doubleClick() {
        click();
        row_.press();
        row_.doubleClick();
    }

    NotificationRow row_;
    QSignalSpy focused_{&row_, &NotificationRow::singleTap};
    QSignalSpy opened_{&row_, &NotificationRow::doubleTap};
    QSignalSpy toggled_{&row_, &NotificationRow::toggleSelection};
};

TEST_F(NotificationRowTest, AClickFocuses) {
    click();
    EXPECT_EQ(focused_.count(), 1);
    EXPECT_EQ(opened_.count(), 0);
}

TEST_F(NotificationRowTest, ADoubleClickFocusesAndOpens) {
    doubleClick();
    EXPECT_GE(focused_.count(), 1);
    EXPECT_EQ(opened_.count(), 1);
}

TEST_F(NotificationRowTest, AClickOnAMaskedRowRevealsAndTheNextOneFocuses) {
    row_.setPrivate(true);
    EXPECT_TRUE(row_.isMasked());
    click();
    EXPECT_FALSE(row_.isMasked());
    EXPECT_EQ(focused_.count(), 0);
    click();
    EXPECT_EQ(focused_.count(), 1);
}

TEST_F(NotificationRowTest, ADoubleClickOnAMaskedRowRevealsAndOpensNothing) {
    row_.setPrivate(true);
    doubleClick();
    EXPECT_FALSE(row_.isMasked());
    EXPECT_EQ(opened_.count(), 0);
    EXPECT_EQ(focused_.count(), 0);
}

TEST_F(NotificationRowTest, ADoubleClickOnARevealedRowOpens) {
    row_.setPrivate(true);
    click();
    doubleClick();
    EXPECT_EQ(opened_.count(), 1);
}

TEST_F(NotificationRowTest, EachClickTogglesInSelectionModeAndADoubleClickOpensNothing) {
    row_.setSelectionMode(true);
    doubleClick();
    EXPECT_EQ(toggled_.count(), 2);
    EXPECT_EQ(focused_.count(), 0);
    EXPECT_EQ(opened_.count(), 0);
}

TEST_F(NotificationRowTest, SelectionModeLiftsTheMaskAndLeavesItAsItWas) {
    row_.setPrivate(true);
    row_.setSelectionMode(true);
    EXPECT_FALSE(row_.isMasked());
    EXPECT_TRUE(row_.asksForReveal());
    row_.setSelectionMode(false);
    EXPECT_TRUE(row_.isMasked());
    click();
    row_.setSelectionMode(true);
    row_.setSelectionMode(false);
    EXPECT_FALSE(row_.isMasked()); // it had been revealed
}

TEST_F(NotificationRowTest, PrivacySwitchedOnMasksWhatWasRevealed) {
    row_.setPrivate(true);
    click();
    row_.setPrivate(false);
    EXPECT_FALSE(row_.isMasked());
    row_.setPrivate(true);
    EXPECT_TRUE(row_.isMasked());
}

TEST_F(NotificationRowTest, AReloadWithItsFreshIdEndsAReveal) {
    row_.setPrivate(true);
    click();
    row_.setNotificationId(QUuid::createUuid());
    EXPECT_TRUE(row_.isMasked());
}

} // namespace
} // namespace tessarine
