#include "platform/linux/LinuxUserDefaults.h"
#include "platform/linux/LinuxUserDefaultsFixture.h"
#include "support/OrdinaryUser.h"
#include "support/Printers.h"
#include "support/SmallDisk.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSysInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using LinuxUserDefaultsFailureTest = testing::LinuxUserDefaultsFixture;

// Where nothing can be written

TEST_F(LinuxUserDefaultsFailureTest, HoldsAValueForTheRunWhereTheFolderMayNotBeWritten) {
    const QString closed = folder.filePath(u"closed"_qs);
    ASSERT_TRUE(QDir().mkpath(closed));
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    ASSERT_EQ(chmod(QFile::encodeName(closed).constData(), 0555), 0);
    const QString answer = testing::asOrdinaryUser([&] {
        LinuxUserDefaults defaults(closed + u"/settings.conf"_qs);
        defaults.setInteger(u"number"_qs, 30);
        defaults.setTextList(u"list"_qs, {u"a"_qs});
        defaults.setInteger(u"number"_qs, 60);
        return QString::number(defaults.integer(u"number"_qs)) +
               defaults.textList(u"list"_qs).join(u',') +
               (defaults.hasUnsavedValues() ? u" unsaved"_qs : u" saved"_qs);
    });
    EXPECT_EQ(answer, u"60a unsaved"_qs);
    EXPECT_THAT(QDir(closed).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), IsEmpty());
}

TEST_F(LinuxUserDefaultsFailureTest, HoldsAValueForTheRunWhereTheFileMayNotBeWritten) {
    writeByHand("[General]\nold=1\n");
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0555), 0);
    ASSERT_EQ(chmod(QFile::encodeName(path()).constData(), 0444), 0);
    const QString answer = testing::asOrdinaryUser([&] {
        LinuxUserDefaults defaults(path());
        defaults.setInteger(key, 30);
        return QString::number(defaults.integer(key) + defaults.integer(u"old"_qs)) +
               (defaults.hasUnsavedValues() ? u" unsaved"_qs : u" saved"_qs);
    });
    EXPECT_EQ(answer, u"31 unsaved"_qs);
    EXPECT_THAT(linesOnDisk(), ElementsAre("[General]", "old=1", ""));
    chmod(QFile::encodeName(folder.path()).constData(), 0755);
}

TEST_F(LinuxUserDefaultsFailureTest, HoldsAValueWhileTheDiskIsFullAndWritesItOnceThereIsRoom) {
    const QString disk = folder.filePath(u"disk"_qs);
    const testing::SmallDisk small(disk);
    if (!small.isThere())
        GTEST_SKIP() << "only root may mount a small disk";
    const QString file = disk + u"/settings.conf"_qs;
    const auto content = [&file] {
        QFile read(file);
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
    };
    LinuxUserDefaults defaults(file);
    defaults.setInteger(u"before"_qs, 1);
    small.fill();
    defaults.setInteger(key, 30);
    EXPECT_EQ(defaults.integer(key), 30);
    EXPECT_TRUE(defaults.hasUnsavedValues());
    EXPECT_EQ(content(), "[General]\nbefore=1\n");
    ASSERT_TRUE(QFile::remove(disk + u"/filler"_qs));
    defaults.setInteger(u"after"_qs, 2);
    EXPECT_FALSE(defaults.hasUnsavedValues());
    EXPECT_EQ(content(), "[General]\nafter=2\nbefore=1\nkey=30\n");
}

TEST_F(LinuxUserDefaultsFailureTest, FollowsALinkAndLeavesItInPlace) {
    const QString target = folder.filePath(u"dotfiles/settings.conf"_qs);
    ASSERT_TRUE(QDir().mkpath(QFileInfo(target).path()));
    ASSERT_TRUE(QFile::link(target, path()));
    LinuxUserDefaults(path()).setInteger(key, 30);
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_EQ(LinuxUserDefaults(target).integer(key), 30);
}

TEST_F(LinuxUserDefaultsFailureTest, HoldsAValueForTheRunWhereAFolderLiesInThePlaceOfTheFile) {
    ASSERT_TRUE(QDir().mkpath(path()));
    LinuxUserDefaults defaults(path());
    defaults.setInteger(key, 30);
    EXPECT_EQ(defaults.integer(key), 30);
    EXPECT_TRUE(defaults.hasUnsavedValues());
}

TEST_F(LinuxUserDefaultsFailureTest, SavesAgainAfterEachFailureThatHasPassed) {
    ASSERT_TRUE(QDir().mkpath(path()));
    LinuxUserDefaults defaults(path());
    for (int round = 1; round <= 2; ++round) {
        QFile::remove(path());
        ASSERT_TRUE(QDir().mkpath(path()));
        defaults.setInteger(key, round);
        EXPECT_TRUE(defaults.hasUnsavedValues());
        ASSERT_TRUE(QDir().rmdir(path()));
        defaults.setInteger(u"other"_qs, round);
        EXPECT_FALSE(defaults.hasUnsavedValues());
        const QByteArray number = QByteArray::number(round);
        EXPECT_THAT(linesOnDisk(),
                    ElementsAre("[General]", "key=" + number, "other=" + number, ""));
    }
}

// While another program has the file

TEST_F(LinuxUserDefaultsFailureTest, HoldsAValueWhileAnotherProgramWritesAndSavesItThereafter) {
    writeByHand("[General]\nold=1\n");
    LinuxUserDefaults defaults(path());
    QLockFile other(path() + u".lock"_qs);
    ASSERT_TRUE(other.lock());
    QElapsedTimer clock;
    clock.start();
    for (int value = 1; value <= 30; ++value)
        defaults.setInteger(key, value);
    EXPECT_LT(clock.elapsed(), 10000); // QSettings itself would wait for half a minute, each time
    EXPECT_TRUE(defaults.hasUnsavedValues());
    EXPECT_EQ(defaults.integer(key), 30);
    EXPECT_TRUE(defaults.contains(key));
    EXPECT_THAT(linesOnDisk(), ElementsAre("[General]", "old=1", ""));
    other.unlock();
    defaults.setInteger(u"other"_qs, 2);
    EXPECT_FALSE(defaults.hasUnsavedValues());
    EXPECT_THAT(linesOnDisk(), ElementsAre("[General]", "key=30", "old=1", "other=2", ""));
}

TEST_F(LinuxUserDefaultsFailureTest, ALockWhoseProgramHasGoneHoldsNothingUp) {
    writeByHand("[General]\nold=1\n");
    QFile lock(path() + u".lock"_qs);
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.write("999999999\nnobody\n" + QSysInfo::machineHostName().toUtf8() + "\n\n\n");
    lock.close();
    LinuxUserDefaults defaults(path());
    defaults.setInteger(key, 30);
    EXPECT_FALSE(defaults.hasUnsavedValues());
    EXPECT_THAT(linesOnDisk(), ElementsAre("[General]", "key=30", "old=1", ""));
}

TEST_F(LinuxUserDefaultsFailureTest, AProgramThatOnlyHasTheFileOpenIsInNobodysWay) {
    writeByHand("[General]\nold=1\n");
    QFile reader(path());
    ASSERT_TRUE(reader.open(QIODevice::ReadWrite));
    LinuxUserDefaults defaults(path());
    defaults.setInteger(key, 30);
    EXPECT_FALSE(defaults.hasUnsavedValues());
    EXPECT_THAT(linesOnDisk(), ElementsAre("[General]", "key=30", "old=1", ""));
}

TEST_F(LinuxUserDefaultsFailureTest, ALineThatIsNoSettingTakesNoneAlong) {
    writeByHand("[General]\nold=1\nno setting\nother=2\n");
    LinuxUserDefaults defaults(path());
    defaults.setInteger(key, 30);
    EXPECT_FALSE(defaults.hasUnsavedValues());
    EXPECT_THAT(linesOnDisk(), ElementsAre("[General]", "key=30", "old=1", "other=2", ""));
}

} // namespace
} // namespace tessarine
