#include "platform/linux/LinuxFileSystem.h"

#include "support/OrdinaryUser.h"
#include "support/Printers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

// Sets a variable of the environment for the length of a test.
class Variable {
public:
    Variable(const char* name, const QByteArray& value)
        : name_(name)
        , was_(qgetenv(name))
        , wasSet_(qEnvironmentVariableIsSet(name)) {
        value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { wasSet_ ? qputenv(name_, was_) : qunsetenv(name_); }

private:
    const char* name_;
    QByteArray was_;
    bool wasSet_;
};

class LinuxFileSystemTest : public ::testing::Test {
protected:
    LinuxFileSystemTest() { setMode(folder.path(), 0755); }

    QString path(const QString& name) const { return folder.filePath(name); }

    static QByteArray encoded(const QString& path) { return QFile::encodeName(path); }

    static void setMode(const QString& path, mode_t mode) {
        ASSERT_EQ(chmod(encoded(path).constData(), mode), 0);
    }

    QString makeFile(const QString& name, mode_t mode) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("content");
        file.close();
        setMode(path(name), mode);
        return path(name);
    }

    QString makeFolder(const QString& name) const {
        EXPECT_TRUE(QDir().mkpath(path(name)));
        return path(name);
    }

    bool grantsAnOrdinaryUser(const QString& read) const {
        return testing::asOrdinaryUser(
                   [&] { return QString::number(fileSystem.grantsReading(read)); }) == u"1"_qs;
    }

    QTemporaryDir folder;
    const LinuxFileSystem fileSystem;
};

// Folders

TEST_F(LinuxFileSystemTest, PutsApplicationDataWhereTheDesktopSays) {
    const Variable dataHome("XDG_DATA_HOME", "/somewhere/else");
    EXPECT_THAT(fileSystem.applicationSupportDirectories(), ElementsAre(u"/somewhere/else"_qs));
}

TEST_F(LinuxFileSystemTest, PutsApplicationDataUnderTheHomeFolderOtherwise) {
    const Variable dataHome("XDG_DATA_HOME", QByteArray());
    const Variable home("HOME", encoded(folder.path()));
    EXPECT_THAT(fileSystem.applicationSupportDirectories(), ElementsAre(path(u".local/share"_qs)));
}

TEST_F(LinuxFileSystemTest, PutsTheHomeFolderForATilde) {
    const Variable home("HOME", "/home/somebody");
    EXPECT_EQ(fileSystem.expandingTilde(u"~/Library/db"_qs), u"/home/somebody/Library/db"_qs);
    EXPECT_EQ(fileSystem.expandingTilde(u"~"_qs), u"/home/somebody"_qs);
    EXPECT_EQ(fileSystem.expandingTilde(u"~/"_qs), u"/home/somebody/"_qs);
}

TEST_F(LinuxFileSystemTest, LeavesOtherTildesAlone) {
    const Variable home("HOME", "/home/somebody");
    EXPECT_EQ(fileSystem.expandingTilde(u"~other/db"_qs), u"~other/db"_qs);
    EXPECT_EQ(fileSystem.expandingTilde(u"/a/~/b"_qs), u"/a/~/b"_qs);
    EXPECT_EQ(fileSystem.expandingTilde(u"/plain"_qs), u"/plain"_qs);
    EXPECT_EQ(fileSystem.expandingTilde(QString()), QString());
}

// Who may read

TEST_F(LinuxFileSystemTest, GrantsReadingOfAReadableFile) {
    EXPECT_TRUE(grantsAnOrdinaryUser(makeFile(u"file"_qs, 0644)));
}

TEST_F(LinuxFileSystemTest, DoesNotGrantReadingOfAFileThatIsClosedToTheUser) {
    EXPECT_FALSE(grantsAnOrdinaryUser(makeFile(u"file"_qs, 0000)));
}

TEST_F(LinuxFileSystemTest, DoesNotGrantReadingOfAFileThatMayOnlyBeWritten) {
    EXPECT_FALSE(grantsAnOrdinaryUser(makeFile(u"file"_qs, 0222)));
}

TEST_F(LinuxFileSystemTest, DoesNotGrantReadingInAFolderThatIsClosedToTheUser) {
    const QString closed = makeFolder(u"closed"_qs);
    makeFile(u"closed/file"_qs, 0644);
    setMode(closed, 0000);
    EXPECT_FALSE(grantsAnOrdinaryUser(closed + u"/file"_qs));
    EXPECT_FALSE(grantsAnOrdinaryUser(closed + u"/missing"_qs));
    setMode(closed, 0755);
}

TEST_F(LinuxFileSystemTest, GrantsReadingOfWhatIsNotThere) {
    EXPECT_TRUE(grantsAnOrdinaryUser(path(u"missing"_qs)));
    EXPECT_TRUE(grantsAnOrdinaryUser(path(u"missing/deeper/file"_qs)));
}

TEST_F(LinuxFileSystemTest, GrantsReadingWhereAFileLiesInThePlaceOfAFolder) {
    makeFile(u"file"_qs, 0644);
    EXPECT_TRUE(grantsAnOrdinaryUser(path(u"file/db"_qs)));
}

TEST_F(LinuxFileSystemTest, GrantsReadingOfALinkThatLeadsNowhere) {
    ASSERT_TRUE(QFile::link(path(u"missing"_qs), path(u"link"_qs)));
    EXPECT_TRUE(grantsAnOrdinaryUser(path(u"link"_qs)));
}

TEST_F(LinuxFileSystemTest, JudgesALinkByWhereItLeads) {
    makeFile(u"file"_qs, 0000);
    ASSERT_TRUE(QFile::link(path(u"file"_qs), path(u"link"_qs)));
    EXPECT_FALSE(grantsAnOrdinaryUser(path(u"link"_qs)));
}

// Keeping private

TEST_F(LinuxFileSystemTest, LeavesAFileToItsOwnerAlone) {
    const QString file = makeFile(u"file"_qs, 0666);
    EXPECT_TRUE(fileSystem.makePrivate(file));
    struct stat status {};
    ASSERT_EQ(stat(encoded(file).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600U);
}

TEST_F(LinuxFileSystemTest, OpensAnUnreadableFileToItsOwner) {
    const QString file = makeFile(u"file"_qs, 0000);
    EXPECT_TRUE(fileSystem.makePrivate(file));
    struct stat status {};
    ASSERT_EQ(stat(encoded(file).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600U);
}

TEST_F(LinuxFileSystemTest, CanNotMakePrivateWhatIsNotThere) {
    EXPECT_FALSE(fileSystem.makePrivate(path(u"missing"_qs)));
}

TEST_F(LinuxFileSystemTest, CanNotMakePrivateWhatBelongsToAnother) {
    if (geteuid() != 0)
        GTEST_SKIP() << "needs files of two users";
    const QString file = makeFile(u"file"_qs, 0666);
    EXPECT_EQ(
        testing::asOrdinaryUser([&] { return QString::number(fileSystem.makePrivate(file)); }),
        u"0"_qs);
    struct stat status {};
    ASSERT_EQ(stat(encoded(file).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0666U);
}

TEST_F(LinuxFileSystemTest, PutsATildeInThePlaceOfTheHomeFolder) {
    const Variable home("HOME", "/home/ann");
    const LinuxFileSystem files;
    EXPECT_EQ(files.abbreviatingWithTilde(u"/home/ann/.local/x"_qs), u"~/.local/x"_qs);
    EXPECT_EQ(files.abbreviatingWithTilde(u"/home/anna/x"_qs), u"/home/anna/x"_qs);
    EXPECT_EQ(files.abbreviatingWithTilde(u"/srv/home/ann/x"_qs), u"/srv/home/ann/x"_qs);
}

} // namespace
} // namespace tessarine
