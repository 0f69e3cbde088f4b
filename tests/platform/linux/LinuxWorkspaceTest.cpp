#include "platform/linux/LinuxWorkspace.h"

#include "support/ManualScheduler.h"
#include "support/Printers.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::ManualScheduler;

// An application of the test's own: a copy of a program that waits, and an entry that starts it.
class LinuxWorkspaceTest : public ::testing::Test {
public:
    ~LinuxWorkspaceTest() override {
        for (const auto& process : processes) {
            process->kill();
            process->waitForFinished();
        }
        qputenv("XDG_DATA_HOME", dataHomeBefore);
        qputenv("PATH", pathBefore);
    }

protected:
    LinuxWorkspaceTest() {
        qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
        EXPECT_TRUE(QDir().mkpath(home.filePath(u"applications"_qs)));
        EXPECT_TRUE(
            QFile::copy(QStandardPaths::findExecutable(u"sleep"_qs), home.filePath(u"waiter"_qs)));
        writeEntry(home.filePath(u"waiter"_qs).toUtf8() + " 60");
        const QByteArray noBus = "unix:path=" + QFile::encodeName(home.filePath(u"no bus"_qs));
        workspace =
            std::make_unique<LinuxWorkspace>(scheduler, std::make_shared<BannerProcess>(scheduler),
                                             LinuxWorkspace::Buses{{}, noBus.toStdString()});
    }

    void writeEntry(const QByteArray& exec) const {
        QFile entry(home.filePath(u"applications/org.example.Waiter.desktop"_qs));
        ASSERT_TRUE(entry.open(QIODevice::WriteOnly));
        entry.write("[Desktop Entry]\nType=Application\nName=The Waiter\nExec=" + exec + '\n');
    }

    qint32 startWaiter() {
        auto& process = processes.emplace_back(std::make_unique<QProcess>());
        process->start(home.filePath(u"waiter"_qs), {u"60"_qs});
        EXPECT_TRUE(process->waitForStarted());
        return static_cast<qint32>(process->processId());
    }

    void stop(std::size_t number) const {
        processes.at(number)->kill();
        ASSERT_TRUE(processes.at(number)->waitForFinished());
    }

    std::vector<qint32> pids(const QString& bundleIdentifier = u"org.example.Waiter"_qs) const {
        std::vector<qint32> found;
        for (const RunningApplication& running : workspace->runningApplications(bundleIdentifier))
            found.push_back(running.pid);
        return found;
    }

    const QByteArray dataHomeBefore = qgetenv("XDG_DATA_HOME");
    const QByteArray pathBefore = qgetenv("PATH");
    QTemporaryDir home;
    std::vector<std::unique_ptr<QProcess>> processes;
    ManualScheduler scheduler;
    std::unique_ptr<LinuxWorkspace> workspace;
};

TEST_F(LinuxWorkspaceTest, FindsNoApplicationThatDoesNotRun) {
    EXPECT_THAT(pids(), IsEmpty());
}

TEST_F(LinuxWorkspaceTest, FindsARunningApplicationByItsEntryId) {
    const qint32 pid = startWaiter();
    const auto running = workspace->runningApplications(u"org.example.Waiter"_qs);
    ASSERT_EQ(running.size(), 1U);
    EXPECT_EQ(running.front().pid, pid);
    EXPECT_EQ(running.front().bundleIdentifier, u"org.example.Waiter"_qs);
    EXPECT_EQ(running.front().localizedName, u"The Waiter"_qs);
}

TEST_F(LinuxWorkspaceTest, FindsARunningApplicationByItsDerivedId) {
    const qint32 pid = startWaiter();
    const auto running = workspace->runningApplications(u"the.waiter"_qs);
    ASSERT_EQ(running.size(), 1U);
    EXPECT_EQ(running.front().pid, pid);
    EXPECT_EQ(running.front().bundleIdentifier, u"the.waiter"_qs);
}

TEST_F(LinuxWorkspaceTest, FindsAllCopiesOfAnApplication) {
    const qint32 first = startWaiter();
    const qint32 second = startWaiter();
    EXPECT_THAT(pids(), ElementsAre(std::min(first, second), std::max(first, second)));
}

TEST_F(LinuxWorkspaceTest, FindsNothingForAnUnknownId) {
    startWaiter();
    EXPECT_THAT(pids(u"org.example.Unknown"_qs), IsEmpty());
    EXPECT_THAT(pids(QString()), IsEmpty());
}

TEST_F(LinuxWorkspaceTest, FindsAProgramByItsNameOnTheSearchPath) {
    qputenv("PATH", QFile::encodeName(home.path()) + ':' + pathBefore);
    writeEntry("waiter 60");
    const qint32 pid = startWaiter();
    EXPECT_THAT(pids(), ElementsAre(pid));
}

TEST_F(LinuxWorkspaceTest, FindsAProgramThatTheEntryNamesByALink) {
    ASSERT_TRUE(QFile::link(home.filePath(u"waiter"_qs), home.filePath(u"link"_qs)));
    writeEntry(home.filePath(u"link"_qs).toUtf8());
    const qint32 pid = startWaiter();
    EXPECT_THAT(pids(), ElementsAre(pid));
}

TEST_F(LinuxWorkspaceTest, FindsNothingWhereTheProgramIsNotInstalled) {
    writeEntry("/no/such/program");
    EXPECT_THAT(pids(), IsEmpty());
}

TEST_F(LinuxWorkspaceTest, NoticesWithinASecondThatAnApplicationStartsOrEnds) {
    EXPECT_THAT(pids(), IsEmpty());
    const qint32 pid = startWaiter();
    scheduler.advance(1.0);
    EXPECT_THAT(pids(), ElementsAre(pid));
    stop(0);
    scheduler.advance(1.0);
    EXPECT_THAT(pids(), IsEmpty());
}

TEST_F(LinuxWorkspaceTest, FindsAProgramThatAnUpdateReplaced) {
    const qint32 pid = startWaiter();
    ASSERT_TRUE(QFile::remove(home.filePath(u"waiter"_qs)));
    ASSERT_TRUE(
        QFile::copy(QStandardPaths::findExecutable(u"sleep"_qs), home.filePath(u"waiter"_qs)));
    EXPECT_THAT(pids(), ElementsAre(pid));
}

} // namespace
} // namespace tessarine
