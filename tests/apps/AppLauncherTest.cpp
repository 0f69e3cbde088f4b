#include "apps/AppLauncher.h"

#include "shared/CapturedNotification.h"
#include "support/Printers.h"
#include "support/SimulatedPlatform.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::SimulatedPlatform;

class AppLauncherTest : public ::testing::Test {
protected:
    // What the launcher decides, and what it says meanwhile.
    OpenOutcome open(const QString& bundleId, const QString& appName, const QString& body = {}) {
        CapturedNotification notification;
        notification.appBundleId = bundleId;
        notification.appName = appName;
        notification.body = body;
        notification.timestamp = system.scheduler.now() - 7 * 86400;
        ::testing::internal::CaptureStdout();
        const OpenOutcome outcome = launcher.open(notification);
        said = QString::fromStdString(::testing::internal::GetCapturedStdout());
        return outcome;
    }

    SimulatedPlatform system{u"/home/anna"_qs};
    AppLauncher launcher{system.workspace, system.fileSystem, system.scheduler};
    QString said;
};

TEST_F(AppLauncherTest, HandsOverALink) {
    system.workspace.installed[u"com.apple.mail"_qs] = u"/Applications/Mail.app"_qs;
    EXPECT_EQ(open(u"com.apple.mail"_qs, u"Mail"_qs, u"<Id@Host>"_qs), OpenOutcome::deepLinkOpened);
    EXPECT_EQ(system.workspace.openedURLs, QStringList({u"message://Id@Host"_qs}));
    EXPECT_EQ(system.workspace.openedApplications, QStringList());
    EXPECT_EQ(said, u"[AppLauncher] Deep link opened: message://Id@Host\n"_qs);
}

TEST_F(AppLauncherTest, CountsFromTheClickNotFromTheNotification) {
    system.workspace.installed[u"com.apple.iCal"_qs] = u"/Applications/Calendar.app"_qs;
    open(u"com.apple.iCal"_qs, u"Calendar"_qs, u"Lunch in 5 minutes"_qs);
    // 785000000 + 978307200 + 300
    EXPECT_EQ(system.workspace.openedURLs, QStringList({u"calshow://1763307500"_qs}));
}

TEST_F(AppLauncherTest, FindsNothingWhereTheCalendarIsNotInstalled) {
    EXPECT_EQ(open(u"com.apple.iCal"_qs, u"Calendar"_qs), OpenOutcome::notFound);
    EXPECT_EQ(system.workspace.openedURLs, QStringList());
    EXPECT_EQ(said, u"[AppLauncher] App not found: Calendar (com.apple.iCal)\n"_qs);
}

TEST_F(AppLauncherTest, OpensAnApplicationWithoutALinkByItsBundleId) {
    system.workspace.installed[u"net.whatsapp.WhatsApp"_qs] = u"/Applications/WhatsApp.app"_qs;
    EXPECT_EQ(open(u"net.whatsapp.WhatsApp"_qs, u"WhatsApp"_qs), OpenOutcome::appOpened);
    EXPECT_EQ(system.workspace.openedApplications, QStringList({u"/Applications/WhatsApp.app"_qs}));
    EXPECT_EQ(said, u"[AppLauncher] Opened WhatsApp via bundle ID\n"_qs);
}

TEST_F(AppLauncherTest, OpensAnApplicationWhoseMessageIdMakesNoAddress) {
    system.workspace.installed[u"com.apple.mail"_qs] = u"/Applications/Mail.app"_qs;
    EXPECT_EQ(open(u"com.apple.mail"_qs, u"Mail"_qs, u"<a b@c>"_qs), OpenOutcome::appOpened);
    EXPECT_EQ(system.workspace.openedApplications, QStringList({u"/Applications/Mail.app"_qs}));
}

TEST_F(AppLauncherTest, PrefersTheBundleIdToTheName) {
    system.workspace.installed[u"com.example.foo"_qs] = u"/elsewhere/Foo.app"_qs;
    system.workspace.bundles.insert(u"/Applications/Foo.app"_qs);
    open(u"com.example.foo"_qs, u"Foo"_qs);
    EXPECT_EQ(system.workspace.openedApplications, QStringList({u"/elsewhere/Foo.app"_qs}));
}

TEST_F(AppLauncherTest, FindsAnApplicationByItsNameInAFolder) {
    system.workspace.bundles.insert(u"/Applications/Foo.app"_qs);
    EXPECT_EQ(open(u"app_id_42"_qs, u"Foo"_qs), OpenOutcome::appOpened);
    EXPECT_EQ(system.workspace.openedApplications, QStringList({u"/Applications/Foo.app"_qs}));
    EXPECT_EQ(said, u"[AppLauncher] Opened Foo via path lookup\n"_qs);
}

TEST_F(AppLauncherTest, FindsAnApplicationByItsNameWithoutAnyBundleId) {
    system.workspace.bundles.insert(u"/Applications/Foo.app"_qs);
    EXPECT_EQ(open({}, u"Foo"_qs), OpenOutcome::appOpened);
}

TEST_F(AppLauncherTest, LooksThroughFourFoldersInTheirOrder) {
    EXPECT_EQ(open(u"app_id_42"_qs, u" My App"_qs), OpenOutcome::notFound);
    EXPECT_EQ(system.workspace.askedPaths,
              QStringList({u"/Applications/ My App.app"_qs, u"/System/Applications/ My App.app"_qs,
                           u"/System/Applications/Utilities/ My App.app"_qs,
                           u"/home/anna/Applications/ My App.app"_qs}));
    EXPECT_EQ(said, u"[AppLauncher] App not found:  My App (app_id_42)\n"_qs);
}

TEST_F(AppLauncherTest, OpensTheFirstOfTwoWithTheSameName) {
    system.workspace.bundles = {u"/home/anna/Applications/Foo.app"_qs,
                                u"/System/Applications/Utilities/Foo.app"_qs};
    open({}, u"Foo"_qs);
    EXPECT_EQ(system.workspace.openedApplications,
              QStringList({u"/System/Applications/Utilities/Foo.app"_qs}));
}

TEST_F(AppLauncherTest, DoesNotLaunchWhatOnlyLiesAmongTheLocalUtilities) {
    system.workspace.bundles.insert(u"/Applications/Utilities/Foo.app"_qs);
    EXPECT_EQ(open({}, u"Foo"_qs), OpenOutcome::notFound);
}

TEST_F(AppLauncherTest, KnowsNoAliasesOfTheSettings) {
    system.workspace.bundles.insert(u"/System/Applications/System Settings.app"_qs);
    EXPECT_EQ(open(u"com.apple.btmnotificationagent"_qs, u"Background Items Added"_qs),
              OpenOutcome::notFound);
}

TEST_F(AppLauncherTest, OpensPlainlyByTheBundleIdAlone) {
    system.workspace.installed[u"com.apple.mail"_qs] = u"/Applications/Mail.app"_qs;
    system.workspace.bundles.insert(u"/Applications/Foo.app"_qs);
    ::testing::internal::CaptureStdout();
    launcher.openByBundleId(u"com.apple.mail"_qs);
    launcher.openByBundleId(u"Foo"_qs);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(system.workspace.openedApplications, QStringList({u"/Applications/Mail.app"_qs}));
    EXPECT_EQ(system.workspace.openedURLs, QStringList());
}

} // namespace
} // namespace tessarine
