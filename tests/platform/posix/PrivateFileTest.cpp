#include "platform/PrivateFile.h"

#include "support/ChildRun.h"
#include "support/OrdinaryUser.h"
#include "support/Printers.h"
#include "support/SmallDisk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <string>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::asOrdinaryUser;
using testing::SmallDisk;

using Write = std::error_code (*)(const QString& path, const QByteArray& bytes);

struct Writer {
    const char* name;
    Write write;
};

const Writer inPlace{"InPlace", &writePrivately};
const Writer atOnce{"AtOnce", &replacePrivately};

// A umask for the length of a scope.
class UmaskScope {
public:
    explicit UmaskScope(mode_t mask)
        : before_(umask(mask)) {}
    UmaskScope(const UmaskScope&) = delete;
    UmaskScope& operator=(const UmaskScope&) = delete;
    ~UmaskScope() { umask(before_); }

private:
    mode_t before_;
};

mode_t modeOf(const QString& path) {
    struct stat status {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

ino_t inodeOf(const QString& path) {
    struct stat status {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_ino : 0;
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("no file");
}

void makeFile(const QString& path, const QByteArray& content, mode_t mode) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), mode), 0);
}

QStringList entriesOf(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

class PrivateFileTest : public ::testing::TestWithParam<Writer> {
protected:
    std::error_code write(const QString& path, const QByteArray& bytes) {
        return GetParam().write(path, bytes);
    }
    QString path(const QString& name) const { return folder.filePath(name); }

    QTemporaryDir folder;
};

TEST_P(PrivateFileTest, MakesAFileForItsOwnerAlone) {
    EXPECT_FALSE(write(path(u"a"_qs), "content"));
    EXPECT_EQ(contentOf(path(u"a"_qs)), "content");
    EXPECT_EQ(modeOf(path(u"a"_qs)), mode_t(0600));
    EXPECT_EQ(entriesOf(folder.path()), QStringList(u"a"_qs));
}

TEST_P(PrivateFileTest, IgnoresTheUmask) {
    for (const mode_t mask : {mode_t(0), mode_t(0777)}) {
        const UmaskScope scope(mask);
        const QString file = path(QString::number(mask));
        EXPECT_FALSE(write(file, "content"));
        EXPECT_EQ(modeOf(file), mode_t(0600));
    }
}

TEST_P(PrivateFileTest, NarrowsAFileThatWasThereAndCutsIt) {
    makeFile(path(u"a"_qs), "a longer content", 0666);
    EXPECT_FALSE(write(path(u"a"_qs), "short"));
    EXPECT_EQ(contentOf(path(u"a"_qs)), "short");
    EXPECT_EQ(modeOf(path(u"a"_qs)), mode_t(0600));
}

TEST_P(PrivateFileTest, WritesNothingToo) {
    EXPECT_FALSE(write(path(u"a"_qs), {}));
    EXPECT_EQ(contentOf(path(u"a"_qs)), QByteArray());
}

TEST_P(PrivateFileTest, WritesMoreThanAPageful) {
    const QByteArray much(10'000'000, 'x');
    EXPECT_FALSE(write(path(u"a"_qs), much));
    EXPECT_EQ(contentOf(path(u"a"_qs)), much);
}

TEST_P(PrivateFileTest, TakesANameAsLongAsNamesCanBe) {
    EXPECT_FALSE(write(path(QString(255, u'n')), "content"));
    EXPECT_EQ(contentOf(path(QString(255, u'n'))), "content");
}

TEST_P(PrivateFileTest, RefusesALongerName) {
    EXPECT_EQ(write(path(QString(256, u'n')), "content").value(), ENAMETOOLONG);
    EXPECT_EQ(entriesOf(folder.path()), QStringList());
}

TEST_P(PrivateFileTest, RefusesAFolder) {
    QDir(folder.path()).mkdir(u"a"_qs);
    EXPECT_EQ(write(path(u"a"_qs), "content").value(), EISDIR);
    EXPECT_EQ(entriesOf(folder.path()), QStringList(u"a"_qs));
}

TEST_P(PrivateFileTest, RefusesAFolderThatIsGone) {
    EXPECT_EQ(write(path(u"gone/a"_qs), "content").value(), ENOENT);
    EXPECT_EQ(entriesOf(folder.path()), QStringList());
}

TEST_P(PrivateFileTest, RefusesAFolderThatMayNotBeWrittenTo) {
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0555), 0);
    const QString answer =
        asOrdinaryUser([&] { return QString::number(write(path(u"a"_qs), "content").value()); });
    EXPECT_EQ(answer, QString::number(EACCES));
    EXPECT_EQ(entriesOf(folder.path()), QStringList());
    chmod(QFile::encodeName(folder.path()).constData(), 0755);
}

TEST_P(PrivateFileTest, LeavesASymbolicLinkInPlace) {
    makeFile(path(u"target"_qs), "old", 0644);
    ASSERT_TRUE(QFile::link(u"target"_qs, path(u"link"_qs)));
    EXPECT_FALSE(write(path(u"link"_qs), "new"));
    EXPECT_TRUE(QFile::symLinkTarget(path(u"link"_qs)).endsWith(u"/target"_qs));
    EXPECT_EQ(contentOf(path(u"target"_qs)), "new");
    EXPECT_EQ(modeOf(path(u"target"_qs)), mode_t(0600));
    EXPECT_EQ(entriesOf(folder.path()), (QStringList{u"link"_qs, u"target"_qs}));
}

TEST_P(PrivateFileTest, FollowsALinkToWhatIsNotThereYet) {
    QDir(folder.path()).mkdir(u"below"_qs);
    ASSERT_TRUE(QFile::link(u"below/target"_qs, path(u"first"_qs)));
    ASSERT_TRUE(QFile::link(path(u"first"_qs), path(u"second"_qs)));
    EXPECT_FALSE(write(path(u"second"_qs), "new"));
    EXPECT_EQ(contentOf(path(u"below/target"_qs)), "new");
}

TEST_P(PrivateFileTest, GivesUpOnALinkToItself) {
    ASSERT_EQ(symlink("loop", QFile::encodeName(path(u"loop"_qs)).constData()), 0);
    EXPECT_EQ(write(path(u"loop"_qs), "content").value(), ELOOP);
}

TEST_P(PrivateFileTest, TellsThatTheDiskIsFull) {
    const SmallDisk disk(path(u"disk"_qs));
    if (!disk.isThere())
        GTEST_SKIP() << "only root may mount a small disk";
    EXPECT_EQ(write(path(u"disk/a"_qs), QByteArray(1'000'000, 'x')).value(), ENOSPC);
}

INSTANTIATE_TEST_SUITE_P(Each, PrivateFileTest, ::testing::Values(inPlace, atOnce),
                         [](const auto& test) { return std::string(test.param.name); });

// What sets the two apart

TEST(WritePrivately, KeepsTheFileThatIsThere) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a"_qs);
    makeFile(path, "old", 0644);
    const ino_t before = inodeOf(path);
    EXPECT_FALSE(writePrivately(path, "new"));
    EXPECT_EQ(inodeOf(path), before);
}

TEST(WritePrivately, NarrowsAFileBeforeItIsFilled) {
    const QTemporaryDir folder;
    const SmallDisk disk(folder.filePath(u"disk"_qs));
    if (!disk.isThere())
        GTEST_SKIP() << "only root may mount a small disk";
    const QString path = folder.filePath(u"disk/a"_qs);
    makeFile(path, "old", 0666);
    EXPECT_TRUE(writePrivately(path, QByteArray(1'000'000, 'x'))); // ends half-way
    EXPECT_EQ(modeOf(path), mode_t(0600));
    EXPECT_EQ(contentOf(path).left(3), "xxx");
}

TEST(WritePrivately, FillsAFileOfSomebodyElseWhoseModeItCannotSet) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root has files that others may fill";
    const QTemporaryDir folder;
    chmod(QFile::encodeName(folder.path()).constData(), 0755);
    const QString path = folder.filePath(u"a"_qs);
    makeFile(path, "old", 0666);
    const QString answer =
        asOrdinaryUser([&] { return QString::number(writePrivately(path, "new").value()); });
    EXPECT_EQ(answer, u"0"_qs);
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_EQ(modeOf(path), mode_t(0666));
}

TEST(WritePrivately, LeavesTheModeOfADevice) {
    const mode_t before = modeOf(u"/dev/full"_qs);
    EXPECT_EQ(writePrivately(u"/dev/full"_qs, "content").value(), ENOSPC);
    EXPECT_EQ(modeOf(u"/dev/full"_qs), before);
}

TEST(WritePrivately, DoesNotWaitForAReaderOfAPipe) {
    const testing::NoWaiting limit;
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath(u"pipe"_qs));
    ASSERT_EQ(mkfifo(path.constData(), 0600), 0);
    EXPECT_EQ(writePrivately(QFile::decodeName(path), "content").value(), ENXIO);
}

TEST(WritePrivately, FillsAPipeAsFastAsItIsRead) {
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath(u"pipe"_qs));
    ASSERT_EQ(mkfifo(path.constData(), 0600), 0);
    const int end = open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    const QByteArray much(1'000'000, 'x'); // more than a pipe holds
    std::error_code error;
    std::thread writer([&] { error = writePrivately(QFile::decodeName(path), much); });
    for (int waiting = 0; waiting < fcntl(end, F_GETPIPE_SZ); ioctl(end, FIONREAD, &waiting))
        std::this_thread::yield();
    ASSERT_EQ(fcntl(end, F_SETFL, 0), 0); // from here on, to wait for the writer
    qsizetype size = 0;
    std::array<char, 65536> part{};
    for (ssize_t read = 1; read > 0; size += read)
        read = ::read(end, part.data(), part.size());
    writer.join();
    close(end);
    EXPECT_FALSE(error);
    EXPECT_EQ(size, much.size());
}

TEST(ReplacePrivately, LeavesAPipe) {
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath(u"pipe"_qs));
    ASSERT_EQ(mkfifo(path.constData(), 0644), 0);
    EXPECT_EQ(replacePrivately(QFile::decodeName(path), "content").value(), EOPNOTSUPP);
    EXPECT_EQ(modeOf(QFile::decodeName(path)), mode_t(0644));
    EXPECT_FALSE(QFileInfo(QFile::decodeName(path)).isFile());
    EXPECT_EQ(entriesOf(folder.path()), QStringList(u"pipe"_qs));
}

TEST(ReplacePrivately, LeavesTheOldFileWhenTheDiskIsFull) {
    const QTemporaryDir folder;
    const SmallDisk disk(folder.filePath(u"disk"_qs));
    if (!disk.isThere())
        GTEST_SKIP() << "only root may mount a small disk";
    const QString path = folder.filePath(u"disk/a"_qs);
    makeFile(path, "old", 0644);
    EXPECT_TRUE(replacePrivately(path, QByteArray(1'000'000, 'x')));
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(entriesOf(folder.filePath(u"disk"_qs)), QStringList(u"a"_qs));
}

TEST(ReplacePrivately, LeavesTheOldFileToWhoHasItOpen) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a"_qs);
    makeFile(path, "old", 0644);
    QFile reader(path);
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
    EXPECT_FALSE(replacePrivately(path, "new"));
    EXPECT_EQ(reader.readAll(), "old");
    EXPECT_EQ(contentOf(path), "new");
}

// Nobody else can read at any moment: another user tries again and again while files are written.
// What somebody has open already stays readable to them, if it is written in place.
class OtherReaderTest : public ::testing::TestWithParam<Writer> {};

TEST_P(OtherReaderTest, SeesNothingAtAnyMoment) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can become another user";
    const QTemporaryDir folder;
    chmod(QFile::encodeName(folder.path()).constData(), 0755);
    std::array<int, 2> stop{};
    std::array<int, 2> seen{};
    ASSERT_EQ(pipe(stop.data()) + pipe(seen.data()), 0);
    const QByteArray path = QFile::encodeName(folder.filePath(u"a"_qs));
    const pid_t child = fork();
    if (child == 0) {
        close(stop[1]);
        const bool changed = setgid(testing::nobody) == 0 && setuid(testing::nobody) == 0;
        char byte = changed ? '-' : 'r';
        pollfd end{stop[0], POLLIN, 0};
        while (changed && poll(&end, 1, 0) == 0) {
            const int file = open(path.constData(), O_RDONLY);
            char secret = 0;
            if (file >= 0 && read(file, &secret, 1) == 1 && secret == 's')
                byte = 's';
            if (file >= 0)
                close(file);
        }
        _exit(::write(seen[1], &byte, 1) == 1 ? 0 : 1);
    }
    const UmaskScope open(0);
    for (int i = 0; i < 300; ++i) {
        QFile::remove(QFile::decodeName(path));
        if (GetParam().write == atOnce.write)
            makeFile(QFile::decodeName(path), "old", 0666);
        EXPECT_FALSE(GetParam().write(QFile::decodeName(path), QByteArray(100'000, 's')));
    }
    close(stop[1]);
    char byte = 0;
    EXPECT_EQ(read(seen[0], &byte, 1), 1);
    EXPECT_EQ(byte, '-');
    int status = 0;
    waitpid(child, &status, 0);
    close(stop[0]);
    close(seen[0]);
    close(seen[1]);
}

INSTANTIATE_TEST_SUITE_P(Each, OtherReaderTest, ::testing::Values(inPlace, atOnce),
                         [](const auto& test) { return std::string(test.param.name); });

// A file written anew from what a source gives

// Gives the parts one after the other, and then the error.
ByteSource sourceOf(QList<QByteArray> parts, std::error_code last = {}) {
    return [parts = std::move(parts), last,
            next = qsizetype(0)](std::error_code& error) mutable -> QByteArrayView {
        if (next < parts.size())
            return parts[next++];
        error = last;
        return {};
    };
}

class FileWrittenAnew : public ::testing::Test {
protected:
    QString path(const QString& name) const { return folder.filePath(name); }

    QTemporaryDir folder;
};

TEST_F(FileWrittenAnew, HoldsAllParts) {
    EXPECT_FALSE(writeAnewPrivately(path(u"a"_qs), sourceOf({"one ", "two ", "three"})));
    EXPECT_EQ(contentOf(path(u"a"_qs)), "one two three");
    EXPECT_EQ(modeOf(path(u"a"_qs)), mode_t(0600));
}

TEST_F(FileWrittenAnew, IsPrivateBeforeItsFirstByte) {
    const UmaskScope scope(0);
    mode_t atFirst = 0;
    EXPECT_FALSE(writeAnewPrivately(path(u"a"_qs), [&](std::error_code&) -> QByteArrayView {
        atFirst = modeOf(path(u"a"_qs));
        return {};
    }));
    EXPECT_EQ(atFirst, mode_t(0600));
}

TEST_F(FileWrittenAnew, IsAnotherThanTheOneThatWasThere) {
    makeFile(path(u"a"_qs), "a longer content", 0666);
    QFile reader(path(u"a"_qs));
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
    EXPECT_FALSE(writeAnewPrivately(path(u"a"_qs), sourceOf({"short"})));
    EXPECT_EQ(contentOf(path(u"a"_qs)), "short");
    EXPECT_EQ(reader.readAll(), "a longer content");
    EXPECT_EQ(modeOf(path(u"a"_qs)), mode_t(0600));
}

TEST_F(FileWrittenAnew, TakesThePlaceOfALinkAlone) {
    makeFile(path(u"target"_qs), "untouched", 0600);
    ASSERT_TRUE(QFile::link(path(u"target"_qs), path(u"link"_qs)));
    ASSERT_TRUE(QFile::link(path(u"nowhere"_qs), path(u"dangling"_qs)));
    EXPECT_FALSE(writeAnewPrivately(path(u"link"_qs), sourceOf({"x"})));
    EXPECT_FALSE(writeAnewPrivately(path(u"dangling"_qs), sourceOf({"y"})));
    EXPECT_EQ(contentOf(path(u"target"_qs)), "untouched");
    EXPECT_EQ(contentOf(path(u"link"_qs)), "x");
    EXPECT_EQ(contentOf(path(u"dangling"_qs)), "y");
    EXPECT_FALSE(QFileInfo::exists(path(u"nowhere"_qs)));
}

TEST_F(FileWrittenAnew, IsGoneAfterAFailureHalfWay) {
    makeFile(path(u"a"_qs), "old", 0600);
    const auto failure = std::make_error_code(std::errc::io_error);
    EXPECT_EQ(writeAnewPrivately(path(u"a"_qs), sourceOf({"half"}, failure)), failure);
    EXPECT_EQ(entriesOf(folder.path()), QStringList());
}

TEST_F(FileWrittenAnew, RefusesWhatIsNoFile) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"folder"_qs));
    ASSERT_EQ(mkfifo(QFile::encodeName(path(u"pipe"_qs)).constData(), 0600), 0);
    EXPECT_EQ(writeAnewPrivately(path(u"folder"_qs), sourceOf({"x"})).value(), EISDIR);
    EXPECT_EQ(writeAnewPrivately(path(u"pipe"_qs), sourceOf({"x"})).value(), EOPNOTSUPP);
    EXPECT_EQ(writeAnewPrivately(u"/dev/null"_qs, sourceOf({"x"})).value(), EOPNOTSUPP);
    EXPECT_EQ(writeAnewPrivately(path(u"no/where"_qs), sourceOf({"x"})).value(), ENOENT);
    EXPECT_EQ(entriesOf(folder.path()).size(), 2);
}

} // namespace
} // namespace tessarine
