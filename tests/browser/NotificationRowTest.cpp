#include "browser/rows/NotificationRow.h"

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

    // As a capture does it: the same row under another id.
    void reload() { row_.setNotificationId(QUuid::createUuid()); }

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
    row_.endGesture();
    EXPECT_FALSE(row_.isMasked());
    reload();
    EXPECT_TRUE(row_.isMasked());
}

// A reload between the two presses of a double click

TEST_F(NotificationRowTest, AReloadInTheMiddleOfAGestureMasksWhenThatIsOver) {
    row_.setPrivate(true);
    click();
    reload();
    EXPECT_FALSE(row_.isMasked());
    row_.endGesture();
    EXPECT_TRUE(row_.isMasked());
}

TEST_F(NotificationRowTest, ASecondPressInTheSameGestureRevealsAfterTheReload) {
    row_.setPrivate(true);
    click();
    reload();
    row_.press();
    row_.doubleClick();
    row_.endGesture();
    EXPECT_FALSE(row_.isMasked());
    EXPECT_EQ(opened_.count(), 0);
    EXPECT_EQ(focused_.count(), 0);
    reload();
    EXPECT_TRUE(row_.isMasked());
}

TEST_F(NotificationRowTest, ASecondPressThatComesWhenTheMaskIsBackRevealsTooAndOpensNothing) {
    row_.setPrivate(true);
    click();
    reload();
    row_.endGesture(); // on a machine that stalls
    row_.press();
    row_.doubleClick();
    EXPECT_FALSE(row_.isMasked());
    EXPECT_EQ(opened_.count(), 0);
}

TEST_F(NotificationRowTest, ADoubleClickOnARowThatWasSeenOpensItAndMasksIt) {
    row_.setPrivate(true);
    click();
    row_.endGesture();
    click();
    reload();
    row_.press();
    row_.doubleClick();
    EXPECT_EQ(opened_.count(), 1);
    EXPECT_TRUE(row_.isMasked());
}

TEST_F(NotificationRowTest, ARowThatWasMaskedBeforeTheGestureStaysSo) {
    row_.setPrivate(true);
    row_.press();
    reload();
    EXPECT_TRUE(row_.isMasked());
}

TEST_F(NotificationRowTest, ADoubleClickThatBeganOnAnotherRowDoesNothing) {
    row_.press();
    row_.doubleClick();
    EXPECT_EQ(focused_.count() + opened_.count(), 0);

    click();
    row_.forgetPress(); // another row was pressed, and long after that this one
    row_.press();
    row_.doubleClick();
    EXPECT_EQ(focused_.count(), 1);
    EXPECT_EQ(opened_.count(), 0);

    row_.setSelectionMode(true);
    row_.forgetPress();
    row_.press();
    row_.doubleClick();
    EXPECT_EQ(toggled_.count(), 0);
}

TEST_F(NotificationRowTest, APressOnAnotherRowEndsTheGesture) {
    row_.setPrivate(true);
    click();
    reload();
    row_.forgetPress();
    EXPECT_TRUE(row_.isMasked());
}

} // namespace
} // namespace tessarine
