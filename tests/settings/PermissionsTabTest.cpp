#include "settings/SettingsFixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class PermissionsTest : public SettingsTest {
protected:
    QQuickItem& button(const QString& row, const QString& name) {
        return *item(row).findChild<QQuickItem*>(name);
    }
    QString status(const QString& row) {
        return button(row, u"status"_qs).property("text").toString();
    }
    void showPermissions() {
        show();
        choose(PrefTab::permissions);
    }
    void makeUsernoted() {
        const QString path = system.fileSystem.expandingTilde(
            u"~/Library/Group Containers/group.com.apple.usernoted/db2/db"_qs);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
};

TEST_F(PermissionsTest, TheTextsAreTheirs) {
    showPermissions();
    for (const QString& text :
         {u"System Permissions"_qs, u"Accessibility"_qs,
          u"Required to capture notifications from Notification Center in real time."_qs,
          u"Full Disk Access"_qs,
          u"Enables recovery of past notifications from the system database."_qs, u"Not enabled"_qs,
          u"Open System Settings"_qs, u"Re-check"_qs,
          u"macOS does not allow apps to grant or revoke permissions directly. Use “Open System "
          u"Settings” to manage each permission, then tap “Re-check” to update the status shown "
          u"here."_qs})
        EXPECT_TRUE(isShown(text)) << text.toStdString();
}

TEST_F(PermissionsTest, AllOfItFitsIntoItsWindow) {
    showPermissions();
    QQuickItem& tab = item(u"permissionsTab"_qs);
    EXPECT_LE(tab.property("contentHeight").toDouble(), tab.height());
}

TEST_F(PermissionsTest, WhatWasGrantedMeanwhileIsSeenByReCheckAlone) {
    showPermissions();
    EXPECT_EQ(status(u"accessibility"_qs), u"Not enabled"_qs);
    EXPECT_EQ(status(u"fullDiskAccess"_qs), u"Not enabled"_qs);
    system.accessibility.trusted = true;
    makeUsernoted();
    system.scheduler.advance(100);
    EXPECT_EQ(status(u"accessibility"_qs), u"Not enabled"_qs);
    user().click(button(u"fullDiskAccess"_qs, u"recheck"_qs));
    EXPECT_EQ(status(u"fullDiskAccess"_qs), u"Enabled"_qs);
    EXPECT_EQ(status(u"accessibility"_qs), u"Not enabled"_qs);
    user().click(button(u"accessibility"_qs, u"recheck"_qs));
    EXPECT_EQ(status(u"accessibility"_qs), u"Enabled"_qs);
}

TEST_F(PermissionsTest, ReCheckOfOneLeavesTheOtherAsItWas) {
    showPermissions();
    makeUsernoted();
    user().click(button(u"accessibility"_qs, u"recheck"_qs));
    EXPECT_EQ(status(u"fullDiskAccess"_qs), u"Not enabled"_qs);
}

TEST_F(PermissionsTest, WhatWasGrantedMeanwhileIsSeenWhenTheWindowAppears) {
    showPermissions();
    close();
    system.accessibility.trusted = true;
    show();
    EXPECT_EQ(status(u"accessibility"_qs), u"Enabled"_qs);
}

TEST_F(PermissionsTest, EachButtonOpensItsPage) {
    showPermissions();
    user().click(button(u"accessibility"_qs, u"openSettings"_qs));
    user().click(button(u"fullDiskAccess"_qs, u"openSettings"_qs));
    EXPECT_EQ(
        system.systemSettings.opened,
        QStringList(
            {u"x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility"_qs,
             u"x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles"_qs}));
}

TEST_F(PermissionsTest, WhereTheSystemHasNoPageTheButtonSaysSo) {
    system.systemSettings.pages = {settingsPages::accessibility};
    showPermissions();
    QQuickItem& open = button(u"fullDiskAccess"_qs, u"openSettings"_qs);
    EXPECT_EQ(open.property("text").toString(), u"No System Settings for This"_qs);
    EXPECT_FALSE(open.isEnabled());
    user().click(open);
    EXPECT_TRUE(system.systemSettings.opened.isEmpty());
    EXPECT_TRUE(button(u"accessibility"_qs, u"openSettings"_qs).isEnabled());
}

TEST_F(PermissionsTest, APageThatCannotBeOpenedIsMissingUntilTheNextAppearance) {
    system.systemSettings.canStart = false;
    showPermissions();
    user().click(button(u"accessibility"_qs, u"openSettings"_qs));
    EXPECT_FALSE(button(u"accessibility"_qs, u"openSettings"_qs).isEnabled());
    EXPECT_TRUE(button(u"fullDiskAccess"_qs, u"openSettings"_qs).isEnabled());
    close();
    show();
    EXPECT_TRUE(button(u"accessibility"_qs, u"openSettings"_qs).isEnabled());
}

} // namespace
} // namespace tessarine::testing
