#include "settings/SettingsFixture.h"
#include "support/EventLoop.h"

#include <QAccessible>
#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class PreferencesKeyboardTest : public SettingsTest {
protected:
    // Every stop of Tab from the tab bar on, until it comes back there.
    QStringList stops() {
        EXPECT_TRUE(user().tabTo(view().tabs()[view().selectedIndex()].label));
        QStringList names{user().focusName()};
        for (int i = 0; i < 30; ++i) {
            user().press(Qt::Key_Tab);
            if (user().focusName() == names.front())
                break;
            names << user().focusName();
        }
        return names;
    }

    bool heightIs(int height) {
        return turnsUntil([&] { return window->window()->height() == height; });
    }
};

TEST_F(PreferencesKeyboardTest, TabGoesThroughGeneralInTheOrderOfReading) {
    show();
    EXPECT_EQ(stops(),
              QStringList({u"General"_qs, u"Automatic"_qs, u"Launch at login"_qs, u"Manage…"_qs}));
}

TEST_F(PreferencesKeyboardTest, TabGoesThroughStorageInTheOrderOfReading) {
    show();
    choose(PrefTab::storage);
    EXPECT_EQ(stops(), QStringList({u"Storage"_qs, u"Keep notifications"_qs, u"Back Up…"_qs}));
}

TEST_F(PreferencesKeyboardTest, TabGoesThroughPrivacyInTheOrderOfReading) {
    show();
    choose(PrefTab::privacy);
    EXPECT_EQ(stops(), QStringList({u"Privacy"_qs, u"Hide content"_qs, u"Delete codes after"_qs,
                                    u"Read…"_qs, u"Open…"_qs}));
}

TEST_F(PreferencesKeyboardTest, TabGoesThroughPermissionsInTheOrderOfReading) {
    show();
    choose(PrefTab::permissions);
    EXPECT_EQ(stops(), QStringList({u"Permissions"_qs, u"Open System Settings"_qs, u"Re-check"_qs,
                                    u"Open System Settings"_qs, u"Re-check"_qs}));
}

TEST_F(PreferencesKeyboardTest, TabComesToTheTabsFirstAndArrowsChangeThem) {
    show();
    user().press(Qt::Key_Tab);
    EXPECT_EQ(user().focusName(), u"General"_qs);
    user().press(Qt::Key_Right);
    EXPECT_EQ(view().selectedTab(), PrefTab::storage);
    EXPECT_TRUE(heightIs(333));
    user().press(Qt::Key_Right);
    user().press(Qt::Key_Right);
    EXPECT_EQ(view().selectedTab(), PrefTab::permissions);
    EXPECT_TRUE(heightIs(313));
    EXPECT_EQ(user().focusName(), u"Permissions"_qs);
    user().press(Qt::Key_Right);
    EXPECT_EQ(view().selectedTab(), PrefTab::permissions);
    user().press(Qt::Key_Left);
    EXPECT_EQ(view().selectedTab(), PrefTab::privacy);
}

TEST_F(PreferencesKeyboardTest, EverySettingCanBeChanged) {
    show();
    ASSERT_TRUE(user().tabTo(u"Automatic"_qs));
    user().press(Qt::Key_Right);
    user().press(Qt::Key_Right);
    system.scheduler.settle();
    EXPECT_EQ(preferences.appearanceMode(), u"dark"_qs);
    ASSERT_TRUE(user().tabTo(u"Launch at login"_qs));
    user().press(Qt::Key_Space);
    EXPECT_EQ(system.loginItem.current, LoginItemStatus::enabled);

    choose(PrefTab::storage);
    ASSERT_TRUE(user().tabTo(u"Keep notifications"_qs));
    user().press(Qt::Key_Space);
    ASSERT_TRUE(turnsUntil([this] { return item(u"keepFor"_qs).property("opened").toBool(); }));
    user().press(Qt::Key_End);
    user().press(Qt::Key_Return);
    EXPECT_EQ(preferences.retentionDays(), 7);
    ASSERT_TRUE(turnsUntil([this] { return !item(u"keepFor"_qs).property("opened").toBool(); }));

    choose(PrefTab::privacy);
    ASSERT_TRUE(user().tabTo(u"Hide content"_qs));
    user().press(Qt::Key_Return);
    EXPECT_TRUE(preferences.globalPrivacyMode());
    ASSERT_TRUE(user().tabTo(u"Delete codes after"_qs));
    user().press(Qt::Key_Down);
    ASSERT_TRUE(
        turnsUntil([this] { return item(u"otpAutoDelete"_qs).property("opened").toBool(); }));
    user().press(Qt::Key_Down);
    user().press(Qt::Key_Down);
    user().press(Qt::Key_Return);
    EXPECT_EQ(preferences.otpRetentionHours(), 4);

    choose(PrefTab::permissions);
    system.accessibility.trusted = true;
    ASSERT_TRUE(user().tabTo(u"Re-check"_qs));
    user().press(Qt::Key_Return);
    EXPECT_TRUE(view().permissions()->axEnabled());
}

TEST_F(PreferencesKeyboardTest, EscapeInAnOpenMenuClosesTheMenuAlone) {
    show();
    choose(PrefTab::storage);
    ASSERT_TRUE(user().tabTo(u"Keep notifications"_qs));
    for (int round = 0; round < 2; ++round) {
        user().press(Qt::Key_Space);
        ASSERT_TRUE(turnsUntil([this] { return item(u"keepFor"_qs).property("opened").toBool(); }));
        user().press(Qt::Key_Escape);
        ASSERT_TRUE(
            turnsUntil([this] { return !item(u"keepFor"_qs).property("opened").toBool(); }));
        EXPECT_TRUE(window->isVisible());
        EXPECT_EQ(user().focusName(), u"Keep notifications"_qs);
    }
    EXPECT_EQ(preferences.retentionDays(), 0);
}

TEST_F(PreferencesKeyboardTest, EscapeClosesTheWindowAndSoDoesControlW) {
    show();
    user().press(Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    show();
    ASSERT_TRUE(user().tabTo(u"Manage…"_qs));
    user().press(Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    show();
    user().press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(PreferencesKeyboardTest, AHeldEscapeClosesTheSheetAndNotTheWindowBehindIt) {
    show();
    view().general()->setShowExcludedAppsSheet(true);
    system.scheduler.settle();
    ASSERT_TRUE(opens(u"excludedAppsSheet"_qs));
    user().press(Qt::Key_Escape);
    ASSERT_TRUE(closes(u"excludedAppsSheet"_qs));
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(window->window(), &repeated);
    EXPECT_TRUE(window->isVisible());
}

// What a screen reader is told

struct SpokenControl {
    const char* item;
    QAccessible::Role role;
    const char* name;
};

class SpokenControlTest : public PreferencesKeyboardTest,
                          public ::testing::WithParamInterface<std::tuple<PrefTab, SpokenControl>> {
};

TEST_P(SpokenControlTest, HasItsRoleAndItsName) {
    const auto& [tab, control] = GetParam();
    show();
    choose(tab);
    const QString name = QString::fromUtf8(control.item);
    const QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(&item(name));
    EXPECT_EQ(spoken->role(), control.role);
    EXPECT_EQ(spokenName(name), QString::fromUtf8(control.name));
}

INSTANTIATE_TEST_SUITE_P(
    Controls, SpokenControlTest,
    ::testing::Values(
        std::tuple(PrefTab::general,
                   SpokenControl{"tabs", QAccessible::PageTabList, "Preferences"}),
        std::tuple(PrefTab::general, SpokenControl{"appearance", QAccessible::Grouping, "Look"}),
        std::tuple(PrefTab::general,
                   SpokenControl{"launchAtLogin", QAccessible::CheckBox, "Launch at login"}),
        std::tuple(PrefTab::general,
                   SpokenControl{"excludedApps", QAccessible::Grouping, "Excluded apps"}),
        std::tuple(PrefTab::general, SpokenControl{"manage", QAccessible::Button, "Manage…"}),
        std::tuple(PrefTab::storage,
                   SpokenControl{"keepFor", QAccessible::ComboBox, "Keep notifications"}),
        std::tuple(PrefTab::storage,
                   SpokenControl{"hoardSize", QAccessible::Grouping, "Size on disk"}),
        std::tuple(PrefTab::storage,
                   SpokenControl{"exportBackup", QAccessible::Button, "Back Up…"}),
        std::tuple(PrefTab::privacy,
                   SpokenControl{"hideContent", QAccessible::CheckBox, "Hide content"}),
        std::tuple(PrefTab::privacy,
                   SpokenControl{"otpAutoDelete", QAccessible::ComboBox, "Delete codes after"}),
        std::tuple(PrefTab::permissions,
                   SpokenControl{"accessibility", QAccessible::Grouping, "Accessibility"}),
        std::tuple(PrefTab::permissions,
                   SpokenControl{"openSettings", QAccessible::Button, "Open System Settings"}),
        std::tuple(PrefTab::permissions,
                   SpokenControl{"recheck", QAccessible::Button, "Re-check"})));

TEST_F(PreferencesKeyboardTest, ValuesAndNotesAreSpokenWithTheirRows) {
    preferences.setRetentionDays(14);
    show();
    EXPECT_EQ(spokenDescription(u"launchAtLogin"_qs),
              u"Tessarine starts in the background when you log in.\n"
              u"Notifications that come while Tessarine is not running may be missed."_qs);
    choose(PrefTab::storage);
    EXPECT_EQ(spokenDescription(u"keepFor"_qs),
              u"14 days\nNotifications go after a short time, pinned ones too."_qs);
    choose(PrefTab::permissions);
    EXPECT_EQ(spokenDescription(u"accessibility"_qs),
              u"Not enabled\n"
              u"Required to capture notifications from Notification Center in real time."_qs);
}

} // namespace
} // namespace tessarine::testing
