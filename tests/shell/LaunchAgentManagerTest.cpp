#include "shell/LaunchAgentManager.h"

#include "support/Printers.h"
#include "support/SimulatedPlatform.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

class LaunchAgentManagerTest : public ::testing::Test {
protected:
    void launch() {
        printed_.clear();
        manager_.emplace(system_.loginItem, system_.fileSystem,
                         [this](const QString& line) { printed_ << line; });
    }

    void plantLegacyFile() {
        ASSERT_TRUE(QDir(folder_.path()).mkpath(u"Library/LaunchAgents"_qs));
        ASSERT_TRUE(QFile(legacyPath_).open(QIODevice::WriteOnly));
    }

    QTemporaryDir folder_;
    testing::SimulatedPlatform system_{folder_.path()};
    QString legacyPath_ = folder_.path() + u"/Library/LaunchAgents/org.zorvek.tessarine.plist"_qs;
    QStringList printed_;
    std::optional<LaunchAgentManager> manager_;
};

TEST_F(LaunchAgentManagerTest, TheFirstLaunchRemovesTheLegacyFileAndTheSecondSaysNothing) {
    plantLegacyFile();
    launch();
    EXPECT_FALSE(QFile::exists(legacyPath_));
    EXPECT_EQ(printed_, QStringList(u"[LaunchAgent] Removed legacy plist at "_qs + legacyPath_));
    launch();
    EXPECT_EQ(printed_, QStringList());
}

TEST_F(LaunchAgentManagerTest, OtherFilesOfThatFolderStay) {
    plantLegacyFile();
    const QString other = folder_.path() + u"/Library/LaunchAgents/org.example.plist"_qs;
    ASSERT_TRUE(QFile(other).open(QIODevice::WriteOnly));
    launch();
    EXPECT_TRUE(QFile::exists(other));
}

TEST_F(LaunchAgentManagerTest, ALegacyFileThatStaysIsTold) {
    // A folder with something in it can't be removed as a file is, by anybody.
    ASSERT_TRUE(
        QDir(folder_.path()).mkpath(u"Library/LaunchAgents/org.zorvek.tessarine.plist/inside"_qs));
    launch();
    ASSERT_EQ(printed_.size(), 1);
    EXPECT_TRUE(printed_[0].startsWith(u"[LaunchAgent] Could not remove legacy plist: "_qs));
    EXPECT_TRUE(QFile::exists(legacyPath_ + u"/inside"_qs));
}

TEST_F(LaunchAgentManagerTest, PrintsWhatCameOfRegistering) {
    launch();
    manager_->registerMainApp();
    EXPECT_EQ(manager_->status(), LoginItemStatus::enabled);
    manager_->unregisterMainApp();
    EXPECT_EQ(manager_->status(), LoginItemStatus::notRegistered);
    EXPECT_EQ(printed_, QStringList({u"[LaunchAgent] Registered with SMAppService"_qs,
                                     u"[LaunchAgent] Unregistered from SMAppService"_qs}));
}

TEST_F(LaunchAgentManagerTest, PrintsFailuresAndLeavesTheStatus) {
    launch();
    system_.loginItem.nextFailure = u"no room"_qs;
    manager_->registerMainApp();
    EXPECT_EQ(manager_->status(), LoginItemStatus::notRegistered);
    manager_->unregisterMainApp();
    EXPECT_EQ(printed_, QStringList({u"[LaunchAgent] register() failed: no room"_qs,
                                     u"[LaunchAgent] unregister() failed: no room"_qs}));
}

TEST_F(LaunchAgentManagerTest, TogglingTurnsOffWhatIsEnabledAndElseOn) {
    launch();
    for (const auto status : {LoginItemStatus::notRegistered, LoginItemStatus::requiresApproval,
                              LoginItemStatus::notFound}) {
        system_.loginItem.current = status;
        EXPECT_FALSE(manager_->isEnabled());
        manager_->toggle();
        EXPECT_TRUE(manager_->isEnabled());
    }
    manager_->toggle();
    EXPECT_EQ(manager_->status(), LoginItemStatus::notRegistered);
}

} // namespace
} // namespace tessarine
