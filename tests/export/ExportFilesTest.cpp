#include "export/ExportFixture.h"
#include "export/ExportManager.h"
#include "support/PlantedLink.h"
#include "support/SmallDisk.h"

#include <QDir>
#include <QFileInfo>

#include <array>
#include <set>
#include <string>

#include <sys/inotify.h>

// What becomes of the file that was there, and what others see of it, while each writer works: text
// and report take its place all at once, CSV is written into it.

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

struct FileWriter {
    const char* name;
    ExportResult (ExportManager::*write)(const NotificationList&, bool, const QString&) const;
    QByteArray beginning;
    QByteArray end;
    QString failure; // in a folder where a link may not be followed
};

const FileWriter textWriter{"Text", &ExportManager::exportTXT, "Tessarine ", "zorvek.com",
                            u"Could not write TXT: Permission denied"_qs};
const FileWriter csvWriter{"Csv", &ExportManager::exportCSV, "\xEF\xBB\xBF", "body", {}};
const FileWriter reportWriter{"Report", &ExportManager::exportPDF, "%PDF-", "%%EOF\n",
                              u"Unable to generate PDF."_qs};

// What happened to a name in a folder since this was made.
class NameEvents {
public:
    NameEvents(const QString& folder, const QString& name)
        : name_(QFile::encodeName(name))
        , notifier_(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
        EXPECT_GE(inotify_add_watch(notifier_, QFile::encodeName(folder).constData(),
                                    IN_CREATE | IN_MODIFY | IN_DELETE | IN_MOVE),
                  0);
    }
    NameEvents(const NameEvents&) = delete;
    NameEvents& operator=(const NameEvents&) = delete;
    ~NameEvents() { close(notifier_); }

    std::set<std::string> take() const {
        std::set<std::string> kinds;
        alignas(inotify_event) std::array<char, 4096> buffer{};
        for (ssize_t size = 0; (size = read(notifier_, buffer.data(), buffer.size())) > 0;) {
            for (const char* at = buffer.data(); at < buffer.data() + size;) {
                const auto* const event = reinterpret_cast<const inotify_event*>(at);
                if (event->len > 0 && name_ == event->name)
                    kinds.insert(kindOf(event->mask));
                at += sizeof(inotify_event) + event->len;
            }
        }
        return kinds;
    }

private:
    static std::string kindOf(uint32_t mask) {
        if (mask & IN_MODIFY)
            return "modified";
        return mask & IN_MOVED_TO ? "replaced" : "other";
    }

    QByteArray name_;
    int notifier_;
};

class ExportFilesTest : public ExportTest, public ::testing::WithParamInterface<FileWriter> {
protected:
    ExportResult write(const QString& file, const NotificationList& list) const {
        return (manager.*GetParam().write)(list, false, file);
    }

    static void makeFile(const QString& file, const QByteArray& content) {
        QFile made(file);
        ASSERT_TRUE(made.open(QIODevice::WriteOnly));
        made.write(content);
    }

    bool isWhole(const QByteArray& content) const {
        return content.startsWith(GetParam().beginning) && content.endsWith(GetParam().end);
    }

    // Far more than a small disk holds.
    static NotificationList much() {
        NotificationList list;
        for (int i = 0; i < 400; ++i)
            list.push_back(
                notification(u"App %1"_qs.arg(i), QString(200, u't'), QString(500, u'b')));
        return list;
    }

    const QByteArray old{"the old file"};
    const NotificationList little{notification(u"Mail"_qs, u"title"_qs, u"body"_qs)};
};

class AllAtOnce : public ExportFilesTest {};

TEST_P(AllAtOnce, TheFileIsReplacedAndNeverWrittenInto) {
    makeFile(path(u"out"_qs), old);
    const NameEvents events(folder.path(), u"out"_qs);
    ASSERT_TRUE(write(path(u"out"_qs), little).isSuccess());
    EXPECT_EQ(events.take(), std::set<std::string>{"replaced"});
    EXPECT_TRUE(isWhole(contentOf(path(u"out"_qs))));
}

TEST_P(AllAtOnce, ANewFileComesWithAllItsContent) {
    const NameEvents events(folder.path(), u"out"_qs);
    ASSERT_TRUE(write(path(u"out"_qs), little).isSuccess());
    EXPECT_EQ(events.take(), std::set<std::string>{"replaced"});
}

TEST_P(AllAtOnce, WhoHasTheOldFileOpenReadsItToItsEnd) {
    makeFile(path(u"out"_qs), old);
    QFile reader(path(u"out"_qs));
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    EXPECT_EQ(reader.read(4), old.left(4));
    ASSERT_TRUE(write(path(u"out"_qs), little).isSuccess());
    EXPECT_EQ(reader.readAll(), old.mid(4));
}

TEST_P(AllAtOnce, AFailureLeavesTheOldFileAndNothingElse) {
    const SmallDisk disk(path(u"disk"_qs));
    if (!disk.isThere())
        GTEST_SKIP() << "only root may mount a small disk";
    makeFile(path(u"disk/out"_qs), old);
    disk.fill();
    EXPECT_FALSE(write(path(u"disk/out"_qs), much()).isSuccess());
    EXPECT_EQ(contentOf(path(u"disk/out"_qs)), old);
    EXPECT_EQ(QDir(path(u"disk"_qs)).entryList(QDir::Files | QDir::Hidden),
              (QStringList{u"filler"_qs, u"out"_qs}));
}

TEST_P(AllAtOnce, ALinkThatAStrangerPlantedIsRefused) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give files to others";
    makeFile(path(u"target"_qs), old);
    ASSERT_TRUE(trap.make(path(u"shared/out"_qs), path(u"target"_qs)));
    EXPECT_EQ(write(path(u"shared/out"_qs), little), ExportResult::failure(GetParam().failure));
    EXPECT_EQ(contentOf(path(u"target"_qs)), old);
    EXPECT_TRUE(QFileInfo(path(u"shared/out"_qs)).isSymLink());
    EXPECT_EQ(QDir(path(u"shared"_qs)).entryList(QDir::Files | QDir::Hidden),
              QStringList(u"out"_qs));
}

TEST_P(AllAtOnce, NoFileIsMadeBehindALinkThatAStrangerPlanted) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give files to others";
    ASSERT_TRUE(trap.make(path(u"shared/out"_qs), path(u"target"_qs)));
    EXPECT_EQ(write(path(u"shared/out"_qs), little), ExportResult::failure(GetParam().failure));
    EXPECT_FALSE(QFileInfo::exists(path(u"target"_qs)));
}

INSTANTIATE_TEST_SUITE_P(Each, AllAtOnce, ::testing::Values(textWriter, reportWriter),
                         [](const auto& test) { return std::string(test.param.name); });

class InPlace : public ExportFilesTest {};

TEST_P(InPlace, TheFileIsWrittenIntoAndNeverReplaced) {
    makeFile(path(u"out"_qs), old);
    const NameEvents events(folder.path(), u"out"_qs);
    ASSERT_TRUE(write(path(u"out"_qs), little).isSuccess());
    EXPECT_EQ(events.take(), std::set<std::string>{"modified"});
    EXPECT_TRUE(isWhole(contentOf(path(u"out"_qs))));
}

TEST_P(InPlace, WhoHasTheFileOpenReadsTheNewOne) {
    makeFile(path(u"out"_qs), old);
    QFile reader(path(u"out"_qs));
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    ASSERT_TRUE(write(path(u"out"_qs), little).isSuccess());
    EXPECT_TRUE(isWhole(reader.readAll()));
}

TEST_P(InPlace, AFailureLeavesAsMuchAsWasWritten) {
    const SmallDisk disk(path(u"disk"_qs));
    if (!disk.isThere())
        GTEST_SKIP() << "only root may mount a small disk";
    makeFile(path(u"disk/out"_qs), old);
    EXPECT_FALSE(write(path(u"disk/out"_qs), much()).isSuccess());
    const QByteArray left = contentOf(path(u"disk/out"_qs));
    EXPECT_TRUE(left.startsWith(GetParam().beginning));
    EXPECT_FALSE(isWhole(left));
}

INSTANTIATE_TEST_SUITE_P(Each, InPlace, ::testing::Values(csvWriter),
                         [](const auto& test) { return std::string(test.param.name); });

} // namespace
} // namespace tessarine::testing
