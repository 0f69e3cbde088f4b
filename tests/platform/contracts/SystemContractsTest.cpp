#include "platform/contracts/Subjects.h"
#include "support/Printers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tessarine {
namespace {

using ::testing::IsEmpty;
using testing::Subject;
using namespace Qt::StringLiterals;

template <typename Port>
class Contract : public ::testing::TestWithParam<Subject<Port>> {
protected:
    const std::shared_ptr<Port> port = this->GetParam().make();
};

const auto nameOfSubject = [](const auto& test) { return test.param.name; };

// The user's folders

using FileSystemContract = Contract<FileSystem>;

TEST_P(FileSystemContract, TheFoldersForApplicationDataAreAbsolute) {
    const QStringList folders = port->applicationSupportDirectories();
    ASSERT_FALSE(folders.isEmpty());
    for (const QString& folder : folders)
        EXPECT_TRUE(QDir::isAbsolutePath(folder)) << folder.toStdString();
}

TEST_P(FileSystemContract, ALeadingTildeIsTheHomeFolder) {
    const QString home = port->expandingTilde(u"~"_qs);
    EXPECT_TRUE(QDir::isAbsolutePath(home));
    EXPECT_EQ(port->expandingTilde(u"~/Library/a b"_qs), home + u"/Library/a b"_qs);
    EXPECT_EQ(port->abbreviatingWithTilde(home + u"/Library/a b"_qs), u"~/Library/a b"_qs);
}

TEST_P(FileSystemContract, OtherPathsStay) {
    const QString home = port->expandingTilde(u"~"_qs);
    for (const QString& path : {u"/tmp/~/x"_qs, u"relative/x"_qs, QString(), u"/"_qs}) {
        EXPECT_EQ(port->expandingTilde(path), path);
        EXPECT_EQ(port->abbreviatingWithTilde(path), path);
    }
    EXPECT_EQ(port->abbreviatingWithTilde(home + u"2/x"_qs), home + u"2/x"_qs);
}

TEST_P(FileSystemContract, WhatThisProcessHasWrittenItMayRead) {
    QTemporaryDir folder;
    QFile file(folder.filePath(u"dätä"_qs));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(port->grantsReading(file.fileName()));
}

TEST_P(FileSystemContract, APrivateFileIsItsOwnersAlone) {
    QTemporaryDir folder;
    QFile file(folder.filePath(u"dätä"_qs));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::ReadOther | QFile::ExeOwner));
    EXPECT_TRUE(port->makePrivate(file.fileName()));
    struct stat status {};
    ASSERT_EQ(stat(QFile::encodeName(file.fileName()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600U);
    EXPECT_FALSE(port->makePrivate(folder.filePath(u"missing"_qs)));
}

INSTANTIATE_TEST_SUITE_P(Each, FileSystemContract,
                         ::testing::ValuesIn(testing::fileSystemSubjects()), nameOfSubject);

// Applications

using WorkspaceContract = Contract<Workspace>;

const QString nobody = u"com.example.nobody-has-this.4711"_qs;

TEST_P(WorkspaceContract, KnowsNothingOfWhatIsNotThere) {
    EXPECT_THAT(port->runningApplications(nobody), IsEmpty());
    EXPECT_THAT(port->runningApplications(QString()), IsEmpty());
    EXPECT_EQ(port->pathForApplication(nobody), std::nullopt);
    EXPECT_EQ(port->pathForApplication(QString()), std::nullopt);
    EXPECT_EQ(port->applicationInFolder(u"/Applications"_qs, nobody), std::nullopt);
    EXPECT_EQ(port->applicationInFolder(u"/nowhere"_qs, u"Mail"_qs), std::nullopt);
}

TEST_P(WorkspaceContract, ObservationsOfEachEventComeAndGo) {
    for (const WorkspaceEvent event :
         {WorkspaceEvent::willSleep, WorkspaceEvent::didWake,
          WorkspaceEvent::didTerminateApplication, WorkspaceEvent::didLaunchApplication}) {
        const auto first = port->observe(event, [](const auto&) {});
        auto second = port->observe(event, [](const auto&) {});
        EXPECT_NE(first, nullptr);
        EXPECT_NE(second, nullptr);
        second.reset();
    }
}

INSTANTIATE_TEST_SUITE_P(Each, WorkspaceContract, ::testing::ValuesIn(testing::workspaceSubjects()),
                         nameOfSubject);

// What others draw

using AccessibilityContract = Contract<Accessibility>;

constexpr qint32 noProcess = 0x7ffffff0;

class ForeignElement : public AXElement {};

TEST_P(AccessibilityContract, AProcessThatIsNotThereHasARootThatAnswersNothing) {
    const AXElementRef root = port->applicationElement(noProcess);
    ASSERT_NE(root, nullptr);
    port->setMessagingTimeout(root, 0.5);
    EXPECT_EQ(port->copyAttributeValue(root, ax::windows), std::nullopt);
    EXPECT_EQ(port->takeAnnouncement(root), std::nullopt);
}

TEST_P(AccessibilityContract, AnObserverOfAProcessThatIsNotThereDoesNoHarm) {
    const AXElementRef root = port->applicationElement(noProcess);
    if (const auto observer = port->createObserver(noProcess, [](const auto&, const auto&) {})) {
        observer->addNotification(root, ax::windowCreated);
        observer->attachToMainRunLoop();
    }
}

TEST_P(AccessibilityContract, AsksNothingOfElementsOfAnotherMaking) {
    for (const AXElementRef& element : {AXElementRef(), AXElementRef(new ForeignElement)}) {
        port->setMessagingTimeout(element, 1);
        EXPECT_EQ(port->copyAttributeValue(element, ax::role), std::nullopt);
        EXPECT_EQ(port->takeAnnouncement(element), std::nullopt);
        EXPECT_EQ(port->pid(element), std::nullopt);
    }
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(AccessibilityContract);
INSTANTIATE_TEST_SUITE_P(Each, AccessibilityContract,
                         ::testing::ValuesIn(testing::accessibilitySubjects()), nameOfSubject);

// The login

using LoginItemContract = Contract<LoginItem>;

TEST_P(LoginItemContract, IsEnabledByRegisteringAndGoneByUnregistering) {
    EXPECT_EQ(port->status(), LoginItemStatus::notRegistered);
    EXPECT_EQ(port->registerMainApp(), std::nullopt);
    EXPECT_EQ(port->status(), LoginItemStatus::enabled);
    EXPECT_EQ(port->registerMainApp(), std::nullopt) << "again";
    EXPECT_EQ(port->status(), LoginItemStatus::enabled);
    EXPECT_EQ(port->unregisterMainApp(), std::nullopt);
    EXPECT_EQ(port->status(), LoginItemStatus::notRegistered);
    EXPECT_EQ(port->unregisterMainApp(), std::nullopt) << "again";
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(LoginItemContract);
INSTANTIATE_TEST_SUITE_P(Each, LoginItemContract, ::testing::ValuesIn(testing::loginItemSubjects()),
                         nameOfSubject);

// Settings and facts

using SystemSettingsContract = Contract<SystemSettings>;

TEST_P(SystemSettingsContract, APageThatNobodyKnowsIsNotOffered) {
    EXPECT_FALSE(port->offers(u"no such page"_qs));
    EXPECT_FALSE(port->offers(QString()));
    EXPECT_FALSE(port->open(QString()));
}

INSTANTIATE_TEST_SUITE_P(Each, SystemSettingsContract,
                         ::testing::ValuesIn(testing::systemSettingsSubjects()), nameOfSubject);

using SystemFactsContract = Contract<SystemFacts>;

TEST_P(SystemFactsContract, EveryFactIsOneLineWithSomethingOnIt) {
    for (const QString& fact : {port->programVersion(), port->programBuild(), port->systemLabel(),
                                port->systemVersion()}) {
        EXPECT_FALSE(fact.trimmed().isEmpty());
        EXPECT_FALSE(fact.contains(u'\n')) << fact.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Each, SystemFactsContract,
                         ::testing::ValuesIn(testing::systemFactsSubjects()), nameOfSubject);

} // namespace
} // namespace tessarine
