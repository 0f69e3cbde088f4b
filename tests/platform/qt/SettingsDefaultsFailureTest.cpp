#include "platform/qt/SettingsDefaults.h"
#include "platform/qt/SettingsDefaultsFixture.h"
#include "support/OrdinaryUser.h"
#include "support/Printers.h"
#include "support/SmallDisk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using SettingsDefaultsFailureTest = testing::SettingsDefaultsFixture;

// Where nothing can be written

TEST_F(SettingsDefaultsFailureTest, HoldsAValueForTheRunWhereTheFolderMayNotBeWritten) {
    const QString closed = folder.filePath(u"closed"_qs);
    ASSERT_TRUE(QDir().mkpath(closed));
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    ASSERT_EQ(chmod(QFile::encodeName(closed).constData(), 0555), 0);
    const QString answer = testing::asOrdinaryUser([&] {
        SettingsDefaults defaults(closed + u"/settings.conf"_qs);
        defaults.setInteger(u"number"_qs, 30);
        defaults.setTextList(u"list"_qs, {u"a"_qs});
        defaults.setInteger(u"number"_qs, 60);
        return QString::number(defaults.integer(u"number"_qs)) +
               defaults.textList(u"list"_qs).join(u',');
    });
    EXPECT_EQ(answer, u"60a"_qs);
    EXPECT_THAT(QDir(closed).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), IsEmpty());
}

TEST_F(SettingsDefaultsFailureTest, HoldsAValueForTheRunWhereTheFileMayNotBeWritten) {
    writeByHand("[General]\nold=1\n");
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0555), 0);
    ASSERT_EQ(chmod(QFile::encodeName(path()).constData(), 0444), 0);
    const QString answer = testing::asOrdinaryUser([&] {
        SettingsDefaults defaults(path());
        defaults.setInteger(key, 30);
        return QString::number(defaults.integer(key) + defaults.integer(u"old"_qs));
    });
    EXPECT_EQ(answer, u"31"_qs);
    EXPECT_THAT(linesOnDisk(), ElementsAre("[General]", "old=1", ""));
    chmod(QFile::encodeName(folder.path()).constData(), 0755);
}

TEST_F(SettingsDefaultsFailureTest, HoldsAValueWhileTheDiskIsFullAndWritesItOnceThereIsRoom) {
    const QString disk = folder.filePath(u"disk"_qs);
    const testing::SmallDisk small(disk);
    if (!small.isThere())
        GTEST_SKIP() << "only root may mount a small disk";
    const QString file = disk + u"/settings.conf"_qs;
    const auto content = [&file] {
        QFile read(file);
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
    };
    SettingsDefaults defaults(file);
    defaults.setInteger(u"before"_qs, 1);
    small.fill();
    defaults.setInteger(key, 30);
    EXPECT_EQ(defaults.integer(key), 30);
    EXPECT_EQ(content(), "[General]\nbefore=1\n");
    ASSERT_TRUE(QFile::remove(disk + u"/filler"_qs));
    defaults.setInteger(u"after"_qs, 2);
    EXPECT_EQ(content(), "[General]\nafter=2\nbefore=1\nkey=30\n");
}

TEST_F(SettingsDefaultsFailureTest, FollowsALinkAndLeavesItInPlace) {
    const QString target = folder.filePath(u"dotfiles/settings.conf"_qs);
    ASSERT_TRUE(QDir().mkpath(QFileInfo(target).path()));
    ASSERT_TRUE(QFile::link(target, path()));
    SettingsDefaults(path()).setInteger(key, 30);
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_EQ(SettingsDefaults(target).integer(key), 30);
}

TEST_F(SettingsDefaultsFailureTest, HoldsAValueForTheRunWhereAFolderLiesInThePlaceOfTheFile) {
    ASSERT_TRUE(QDir().mkpath(path()));
    SettingsDefaults defaults(path());
    defaults.setInteger(key, 30);
    EXPECT_EQ(defaults.integer(key), 30);
}

} // namespace
} // namespace tessarine
