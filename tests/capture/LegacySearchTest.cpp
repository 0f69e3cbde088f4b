#include "capture/LegacyDatabase.h"
#include "support/Printers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

void makeEmptyFile(const QString& path) {
    ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
}

class LegacySearchTest : public ::testing::Test {
protected:
    QTemporaryDir temporary_;
    QString folder_ = temporary_.path();
};

TEST_F(LegacySearchTest, AMissingFolderGivesTheFolder) {
    const QString missing = folder_ + u"/missing"_qs;
    EXPECT_EQ(findLegacyDatabase(missing), missing);
}

TEST_F(LegacySearchTest, AnEmptyFolderGivesTheFolder) {
    EXPECT_EQ(findLegacyDatabase(folder_), folder_);
}

TEST_F(LegacySearchTest, FindsTheDatabaseAmongOtherFiles) {
    for (const QString& name : {u"a.txt"_qs, u"b.db-wal"_qs, u"c.db"_qs, u"d.sqlite"_qs})
        makeEmptyFile(folder_ + u'/' + name);
    EXPECT_EQ(findLegacyDatabase(folder_), folder_ + u"/c.db"_qs);
}

TEST_F(LegacySearchTest, OnlyTheEndOfANameCounts) {
    for (const QString& name : {u"a.db.old"_qs, u"b.db-shm"_qs, u"db"_qs, u"c.DB"_qs, u"dadb"_qs})
        makeEmptyFile(folder_ + u'/' + name);
    EXPECT_EQ(findLegacyDatabase(folder_), folder_);
}

TEST_F(LegacySearchTest, AHiddenFileCounts) {
    makeEmptyFile(folder_ + u"/.db"_qs);
    EXPECT_EQ(findLegacyDatabase(folder_), folder_ + u"/.db"_qs);
}

TEST_F(LegacySearchTest, AFolderWithSuchANameCounts) {
    ASSERT_TRUE(QDir(folder_).mkdir(u"a.db"_qs));
    EXPECT_EQ(findLegacyDatabase(folder_), folder_ + u"/a.db"_qs);
}

TEST_F(LegacySearchTest, ADanglingLinkCounts) {
    ASSERT_TRUE(QFile::link(folder_ + u"/nowhere"_qs, folder_ + u"/a.db"_qs));
    EXPECT_EQ(findLegacyDatabase(folder_), folder_ + u"/a.db"_qs);
}

TEST_F(LegacySearchTest, OfSeveralTheFirstInTheListingIsTaken) {
    for (int i = 0; i < 20; ++i)
        makeEmptyFile(folder_ + u"/%1.db"_qs.arg(i * 7919 % 100));
    const std::filesystem::directory_iterator listing(folder_.toStdString());
    EXPECT_EQ(findLegacyDatabase(folder_), QString::fromStdString(listing->path().string()));
}

} // namespace
} // namespace tessarine
