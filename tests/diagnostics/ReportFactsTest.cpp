#include "diagnostics/ReportFacts.h"

#include "support/Printers.h"
#include "support/SimulatedPlatform.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

TEST(LaunchStatus, HasATextForEachState) {
    EXPECT_EQ(launchStatusText(LoginItemStatus(0)), u"not registered"_qs);
    EXPECT_EQ(launchStatusText(LoginItemStatus(1)), u"enabled"_qs);
    EXPECT_EQ(launchStatusText(LoginItemStatus(2)), u"requires approval"_qs);
    EXPECT_EQ(launchStatusText(LoginItemStatus(3)), u"not found"_qs);
    EXPECT_EQ(launchStatusText(LoginItemStatus(4)), u"unknown"_qs);
}

class ReportFactsTest : public ::testing::Test {
protected:
    ReportFacts facts() const {
        return reportFacts(system.platform, home.filePath(u"db"_qs), home.filePath(u"hoard.db"_qs));
    }

    QTemporaryDir home;
    testing::SimulatedPlatform system{home.path()};
};

TEST_F(ReportFactsTest, ComeFromTheSystem) {
    EXPECT_EQ(facts().programVersion, u"1.2.3"_qs);
    EXPECT_EQ(facts().programBuild, u"45"_qs);
    EXPECT_EQ(facts().systemLabel, u"System"_qs);
    EXPECT_EQ(facts().systemVersion, u"Example 6.7 (Linux 8.9)"_qs);
}

TEST_F(ReportFactsTest, HaveTheVersionOfTheLibraryThatIsInstalled) {
    QProcess python;
    python.start(u"python3"_qs, {u"-c"_qs, u"import sqlite3; print(sqlite3.sqlite_version)"_qs});
    ASSERT_TRUE(python.waitForFinished(-1));
    EXPECT_EQ(facts().sqliteVersion, QString::fromLatin1(python.readAll()).trimmed());
}

TEST_F(ReportFactsTest, FollowThePermissions) {
    system.accessibility.trusted = false;
    EXPECT_FALSE(facts().hasAccessibility);
    EXPECT_FALSE(facts().hasFullDiskAccess);
    system.accessibility.trusted = true;
    QFile database(home.filePath(u"db"_qs));
    ASSERT_TRUE(database.open(QIODevice::WriteOnly));
    EXPECT_TRUE(facts().hasAccessibility);
    EXPECT_TRUE(facts().hasFullDiskAccess);
}

TEST_F(ReportFactsTest, FollowTheLoginItem) {
    EXPECT_EQ(facts().launchAtLogin, u"not registered"_qs);
    system.loginItem.current = LoginItemStatus::requiresApproval;
    EXPECT_EQ(facts().launchAtLogin, u"requires approval"_qs);
}

TEST_F(ReportFactsTest, ShowThePathWithAndWithoutTheUsersHome) {
    EXPECT_EQ(facts().hoardPath, home.filePath(u"hoard.db"_qs));
    EXPECT_EQ(facts().shownHoardPath, u"~/hoard.db"_qs);
}

} // namespace
} // namespace tessarine
