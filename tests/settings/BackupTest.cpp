#include "settings/SettingsFixture.h"
#include "support/EventLoop.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class BackupTest : public SettingsTest {
protected:
    void showStorage() {
        show();
        choose(PrefTab::storage);
    }

    HoardBackup& backup() { return *view().storage()->backup(); }

    void ask() {
        click(u"exportBackup"_qs);
        ASSERT_TRUE(opens(u"backupWarning"_qs));
    }

    void answer(const QString& text) {
        user().click(*user().entry(text));
        ASSERT_TRUE(closes(u"backupWarning"_qs));
        system.scheduler.settle();
        user().draw();
    }

    static QByteArray content(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // The hoard's bytes, read by another process: this one must not open and close its file.
    QByteArray hoardContent() const {
        QProcess reader;
        reader.start(u"cat"_qs, {hoard.path()});
        return reader.waitForFinished(patienceMs) ? reader.readAllStandardOutput() : QByteArray();
    }

    QString target() const { return folder.filePath(u"backup.db"_qs); }
};

TEST_F(BackupTest, AsksBeforeAnythingElse) {
    showStorage();
    ask();
    EXPECT_TRUE(isShown(u"The backup can be read by anyone who has it."_qs));
    EXPECT_TRUE(savePanel.requests.empty());
    answer(u"Cancel"_qs);
    EXPECT_TRUE(savePanel.requests.empty());
}

TEST_F(BackupTest, TheQuestionForAPathSuggestsANameWithTheDay) {
    showStorage();
    ask();
    answer(u"Continue"_qs);
    ASSERT_EQ(savePanel.requests.size(), 1U);
    EXPECT_EQ(savePanel.requests[0],
              (SavePanel::Request{u"hoard-backup-2025-11-16.db"_qs, u"Back Up the Hoard"_qs,
                                  u"Save"_qs, u"db"_qs}));
    EXPECT_FALSE(backup().isRunning());
    EXPECT_TRUE(item(u"exportBackup"_qs).isEnabled());
}

TEST_F(BackupTest, CopiesTheMainFileSilentlyWithoutMovingTheLogIntoIt) {
    store(u"Mail"_qs, u"com.example.mail"_qs, 1);
    savePanel.answer = target();
    const QByteArray before = hoardContent();
    showStorage();
    ask();
    answer(u"Continue"_qs);
    EXPECT_FALSE(before.isEmpty());
    EXPECT_EQ(content(target()), before);
    EXPECT_EQ(hoardContent(), before);
    EXPECT_GT(QFileInfo(hoard.path() + u"-wal"_qs).size(), 0);
    EXPECT_FALSE(QFile::exists(target() + u"-wal"_qs));
    EXPECT_FALSE(backup().showError());
    EXPECT_EQ(hoard.totalCount(), 1);
}

TEST_F(BackupTest, ReplacesTheFileThatIsThere) {
    store(u"Mail"_qs, u"com.example.mail"_qs, 1);
    hoard.checkpoint();
    QFile old(target());
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write(QByteArray(1000000, 'o'));
    old.close();
    savePanel.answer = target();
    showStorage();
    ask();
    answer(u"Continue"_qs);
    EXPECT_TRUE(content(target()).startsWith("SQLite format 3"));
    EXPECT_EQ(content(target()), hoardContent());
}

struct FailingTarget {
    const char* name;
    const char* path; // "hoard" stands for the hoard itself
};

class BackupFailureTest : public BackupTest, public ::testing::WithParamInterface<FailingTarget> {};

TEST_P(BackupFailureTest, IsToldOnceAndTheHoardIsUntouched) {
    store(u"Mail"_qs, u"com.example.mail"_qs, 1);
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"a folder"_qs));
    const QString path = QString::fromUtf8(GetParam().path);
    savePanel.answer = path == u"hoard"_qs ? hoard.path() : folder.filePath(path);
    showStorage();
    ask();
    answer(u"Continue"_qs);
    ASSERT_TRUE(opens(u"backupError"_qs));
    EXPECT_TRUE(isShown(u"The backup could not be made."_qs));
    EXPECT_FALSE(backup().error().isEmpty());
    EXPECT_TRUE(isShown(backup().error()));
    user().press(Qt::Key_Return);
    EXPECT_TRUE(closes(u"backupError"_qs));
    EXPECT_FALSE(backup().showError());
    EXPECT_EQ(hoard.totalCount(), 1);
    EXPECT_EQ(hoard.integrityCheck(), u"ok"_qs);
    EXPECT_TRUE(window->isVisible());
}

INSTANTIATE_TEST_SUITE_P(Targets, BackupFailureTest,
                         ::testing::Values(FailingTarget{"NoFolder", "missing/backup.db"},
                                           FailingTarget{"AFolder", "a folder"},
                                           FailingTarget{"TheHoard", "hoard"}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(BackupTest, EachAttemptTellsItsOwnFailure) {
    savePanel.answer = folder.filePath(u"missing/backup.db"_qs);
    showStorage();
    for (int round = 0; round < 2; ++round) {
        ask();
        answer(u"Continue"_qs);
        ASSERT_TRUE(opens(u"backupError"_qs));
        user().press(Qt::Key_Escape);
        ASSERT_TRUE(closes(u"backupError"_qs));
    }
    savePanel.answer = target();
    ask();
    answer(u"Continue"_qs);
    EXPECT_FALSE(backup().showError());
    EXPECT_TRUE(QFile::exists(target()));
}

TEST_F(BackupTest, AnotherCannotBeginWhileOneRuns) {
    savePanel.answer = target();
    showStorage();
    system.scheduler.holdGlobalQueues(true);
    backup().proceed();
    system.scheduler.settle();
    EXPECT_TRUE(backup().isRunning());
    EXPECT_FALSE(item(u"exportBackup"_qs).isEnabled());
    backup().request();
    EXPECT_FALSE(backup().showWarning());
    backup().proceed();
    system.scheduler.settle();
    EXPECT_EQ(savePanel.requests.size(), 1U);
    system.scheduler.holdGlobalQueues(false);
    system.scheduler.settle();
    EXPECT_FALSE(backup().isRunning());
    EXPECT_TRUE(item(u"exportBackup"_qs).isEnabled());
}

TEST_F(BackupTest, TheWindowMayGoWhileTheUserIsAsked) {
    savePanel.answer = target();
    savePanel.meanwhile = [this] { window.reset(); };
    show();
    backup().proceed();
    system.scheduler.settle();
    EXPECT_FALSE(QFile::exists(target()));
}

TEST_F(BackupTest, TheWindowMayGoWhileTheCopyIsMade) {
    savePanel.answer = target();
    show();
    system.scheduler.holdGlobalQueues(true);
    backup().proceed();
    system.scheduler.settle();
    window.reset();
    system.scheduler.holdGlobalQueues(false);
    system.scheduler.settle();
    EXPECT_TRUE(QFile::exists(target()));
}

TEST_F(BackupTest, AClosedWindowComesBackWithoutItsQuestions) {
    showStorage();
    ask();
    close();
    EXPECT_FALSE(backup().showWarning());
    show();
    EXPECT_TRUE(closes(u"backupWarning"_qs));
}

TEST_F(BackupTest, ByKeyboardAlone) {
    savePanel.answer = target();
    showStorage();
    ASSERT_TRUE(user().tabTo(u"Back Up…"_qs));
    user().press(Qt::Key_Space);
    ASSERT_TRUE(opens(u"backupWarning"_qs));
    user().press(Qt::Key_Escape);
    ASSERT_TRUE(closes(u"backupWarning"_qs));
    EXPECT_EQ(user().focusName(), u"Back Up…"_qs);
    EXPECT_TRUE(window->isVisible());
    user().press(Qt::Key_Return);
    ASSERT_TRUE(opens(u"backupWarning"_qs));
    user().press(Qt::Key_Return); // the default answer
    ASSERT_TRUE(closes(u"backupWarning"_qs));
    system.scheduler.settle();
    EXPECT_TRUE(QFile::exists(target()));
}

} // namespace
} // namespace tessarine::testing
