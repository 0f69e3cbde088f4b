#include "platform/posix/Paths.h"

#include "support/PlantedLink.h"
#include "support/Printers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>
#include <ostream>
#include <string>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::nobody;
using testing::PlantedLink;

TEST(FolderOf, EndsWithTheSlash) {
    EXPECT_EQ(folderOf("/a/b"), "/a/");
    EXPECT_EQ(folderOf("/b"), "/");
    EXPECT_EQ(folderOf("b"), "");
    EXPECT_EQ(folderOf("a/"), "a/");
}

class FollowLinksTest : public ::testing::Test {
protected:
    QByteArray path(const char* name) const {
        return QFile::encodeName(folder.filePath(QString::fromLatin1(name)));
    }
    void link(const char* name, const QByteArray& target) const {
        ASSERT_EQ(symlink(target.constData(), path(name).constData()), 0);
    }

    // Where the path leads, or the error's name.
    static QByteArray followed(QByteArray path) {
        const std::error_code error = followLinks(path);
        return error ? QByteArray::fromStdString(error.message()) : path;
    }

    QTemporaryDir folder;
};

TEST_F(FollowLinksTest, LeavesAPathThatIsNoLink) {
    EXPECT_EQ(followed(path("file")), path("file"));
    EXPECT_EQ(followed("no-such-file"), "no-such-file");
    EXPECT_EQ(followed(folder.path().toUtf8()), folder.path().toUtf8());
}

TEST_F(FollowLinksTest, FollowsAWholePath) {
    link("a", "/nowhere/b");
    EXPECT_EQ(followed(path("a")), "/nowhere/b");
}

TEST_F(FollowLinksTest, FollowsANameInTheLinksFolder) {
    link("a", "b");
    link("b", "below/c");
    EXPECT_EQ(followed(path("a")), path("below/c"));
}

TEST_F(FollowLinksTest, LeavesLinksOnTheWay) {
    QDir(folder.path()).mkdir(u"real"_qs);
    link("link", "real");
    EXPECT_EQ(followed(path("link/file")), path("link/file"));
}

TEST_F(FollowLinksTest, FollowsAsManyLinksAsTheSystem) {
    link("0", "end");
    for (int i = 1; i < 50; ++i)
        link(std::to_string(i).c_str(), QByteArray::number(i - 1));
    for (int i = 1; i < 50; ++i) {
        const QByteArray chain = path(std::to_string(i).c_str());
        struct stat status {};
        ASSERT_NE(stat(chain.constData(), &status), 0); // nothing is at its end
        const bool isTooLong = errno == ELOOP;
        EXPECT_EQ(followed(chain),
                  isTooLong ? QByteArray("Too many levels of symbolic links") : path("end"))
            << i;
    }
}

TEST_F(FollowLinksTest, GivesUpOnALinkToItself) {
    link("a", "a");
    EXPECT_EQ(followed(path("a")), "Too many levels of symbolic links");
}

// Links that somebody put there. The rule is that of Linux where it protects links (the setting
// fs.protected_symlinks), but for folders without the sticky bit, which it leaves alone.

struct LinkCase {
    const char* name;
    PlantedLink link;
    bool isFollowed;
};

constexpr uid_t root = 0;
constexpr uid_t third = 12345;

class PlantedLinkTest : public FollowLinksTest, public ::testing::WithParamInterface<LinkCase> {};

TEST_P(PlantedLinkTest, IsFollowedOrRefused) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give files to others";
    ASSERT_TRUE(GetParam().link.make(folder.filePath(u"shared/a"_qs), u"/target"_qs));
    EXPECT_EQ(followed(path("shared/a")),
              GetParam().isFollowed ? QByteArray("/target") : QByteArray("Permission denied"));
}

TEST_P(PlantedLinkTest, IsFollowedOrRefusedBehindALinkOfOnesOwn) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give files to others";
    ASSERT_TRUE(GetParam().link.make(folder.filePath(u"shared/a"_qs), u"/target"_qs));
    link("own", "shared/a");
    EXPECT_EQ(followed(path("own")),
              GetParam().isFollowed ? QByteArray("/target") : QByteArray("Permission denied"));
}

INSTANTIATE_TEST_SUITE_P(
    Each, PlantedLinkTest,
    ::testing::Values(LinkCase{"StrangersInATemporaryFolder", {01777, root, nobody}, false},
                      LinkCase{"StrangersInAFolderOpenToAll", {0777, root, nobody}, false},
                      LinkCase{"StrangersInAFolderOfAThird", {01777, third, nobody}, false},
                      LinkCase{"StrangersWhereAllMayOnlyWrite", {0702, root, nobody}, false},
                      LinkCase{"OnesOwnInATemporaryFolder", {01777, third, root}, true},
                      LinkCase{"OfTheFoldersOwner", {01777, nobody, nobody}, true},
                      LinkCase{"StrangersInAFolderOfAGroup", {01775, root, nobody}, true},
                      LinkCase{"StrangersInAFolderOfTheUser", {0755, root, nobody}, true}),
    [](const auto& test) { return std::string(test.param.name); });

} // namespace
} // namespace tessarine
