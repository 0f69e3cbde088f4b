// What the entry says, and what it is read as, follow freedesktop's Desktop Application Autostart
// Specification and what the settings of GNOME, MATE, Plasma and Xfce write.

#include "platform/linux/applications/LinuxLoginItem.h"

#include "platform/linux/applications/ExecLine.h"
#include "support/Printers.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

void writeLines(const QString& path, const QByteArray& lines) {
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(lines), lines.size());
}

class LinuxLoginItemTest : public ::testing::Test {
protected:
    QString userEntry() const { return home_.filePath(u"user/com.zorvek.Tessarine.desktop"_qs); }
    QString systemEntry() const { return home_.filePath(u"all/com.zorvek.Tessarine.desktop"_qs); }

    QByteArray content() const {
        QFile file(userEntry());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir home_;
    LinuxLoginItem item_{{home_.filePath(u"user"_qs),
                          {home_.filePath(u"none"_qs), home_.filePath(u"all"_qs)},
                          {u"ubuntu"_qs, u"GNOME"_qs}}};
};

TEST_F(LinuxLoginItemTest, IsNotRegisteredWithoutAnEntry) {
    EXPECT_EQ(item_.status(), LoginItemStatus::notRegistered);
    EXPECT_EQ(item_.unregisterMainApp(), std::nullopt);
    EXPECT_FALSE(QFile::exists(home_.filePath(u"user"_qs)));
}

TEST_F(LinuxLoginItemTest, RegisteringWritesAnEntryThatStartsThisProgram) {
    ASSERT_EQ(item_.registerMainApp(), std::nullopt);
    EXPECT_EQ(item_.status(), LoginItemStatus::enabled);
    EXPECT_EQ(content(), "[Desktop Entry]\n"
                         "Type=Application\n"
                         "Name=Tessarine\n"
                         "Exec=" +
                             QCoreApplication::applicationFilePath().toUtf8() +
                             "\nTryExec=" + QCoreApplication::applicationFilePath().toUtf8() +
                             "\n"
                             "Icon=com.zorvek.Tessarine\n"
                             "Terminal=false\n"
                             "X-GNOME-Autostart-enabled=true\n");
    EXPECT_EQ(QDir(home_.filePath(u"user"_qs)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList(u"com.zorvek.Tessarine.desktop"_qs));
}

TEST_F(LinuxLoginItemTest, AnEntryWhoseProgramWasRemovedIsPassedOver) {
    ASSERT_EQ(item_.registerMainApp(), std::nullopt);
    QByteArray lines = content();
    lines.replace(QCoreApplication::applicationFilePath().toUtf8(), "/usr/bin/removed-program");
    writeLines(userEntry(), lines);
    EXPECT_EQ(item_.status(), LoginItemStatus::notFound);
}

TEST_F(LinuxLoginItemTest, UnregisteringTakesTheEntryAway) {
    ASSERT_EQ(item_.registerMainApp(), std::nullopt);
    ASSERT_EQ(item_.unregisterMainApp(), std::nullopt);
    EXPECT_FALSE(QFile::exists(userEntry()));
    EXPECT_EQ(item_.status(), LoginItemStatus::notRegistered);
    ASSERT_EQ(item_.registerMainApp(), std::nullopt); // and again
    EXPECT_EQ(item_.status(), LoginItemStatus::enabled);
}

TEST_F(LinuxLoginItemTest, RegisteringTakesBackWhatTheUserSwitchedOff) {
    writeLines(userEntry(), "[Desktop Entry]\nType=Application\nExec=sh\nHidden=true\n");
    ASSERT_EQ(item_.status(), LoginItemStatus::requiresApproval);
    ASSERT_EQ(item_.registerMainApp(), std::nullopt);
    EXPECT_EQ(item_.status(), LoginItemStatus::enabled);
}

TEST_F(LinuxLoginItemTest, AnEntryForAllUsersCountsUnlessTheUserHasOne) {
    writeLines(systemEntry(), "[Desktop Entry]\nType=Application\nExec=sh\n");
    EXPECT_EQ(item_.status(), LoginItemStatus::enabled);
    writeLines(userEntry(), "[Desktop Entry]\nType=Application\nExec=sh\nHidden=true\n");
    EXPECT_EQ(item_.status(), LoginItemStatus::requiresApproval);
}

TEST_F(LinuxLoginItemTest, AnEntryForAllUsersIsHiddenByUnregistering) {
    writeLines(systemEntry(), "[Desktop Entry]\nType=Application\nExec=sh\n");
    ASSERT_EQ(item_.unregisterMainApp(), std::nullopt);
    EXPECT_EQ(content(), "[Desktop Entry]\nHidden=true\n");
    EXPECT_EQ(item_.status(), LoginItemStatus::notRegistered);
    EXPECT_TRUE(QFile::exists(systemEntry()));
}

TEST_F(LinuxLoginItemTest, AFolderThatCannotBeMadeIsAFailureInWords) {
    writeLines(home_.filePath(u"user"_qs), "a file in the folder's place");
    EXPECT_EQ(item_.registerMainApp(), std::optional(u"Not a directory"_qs));
    EXPECT_EQ(item_.status(), LoginItemStatus::notRegistered);
}

TEST_F(LinuxLoginItemTest, AnEntryThatCannotBeRemovedIsAFailure) {
    ASSERT_TRUE(QDir().mkpath(userEntry() + u"/inside"_qs));
    EXPECT_NE(item_.unregisterMainApp(), std::nullopt);
    EXPECT_NE(item_.registerMainApp(), std::nullopt);
    EXPECT_TRUE(QFile::exists(userEntry() + u"/inside"_qs));
}

struct LoginEntry {
    const char* name;
    const char* lines;
    LoginItemStatus status;
};

class LoginEntryStatusTest : public LinuxLoginItemTest,
                             public ::testing::WithParamInterface<LoginEntry> {};

TEST_P(LoginEntryStatusTest, IsReadAsTheDesktopReadsIt) {
    writeLines(userEntry(), QByteArray("[Desktop Entry]\nType=Application\n") + GetParam().lines);
    EXPECT_EQ(item_.status(), GetParam().status);
}

constexpr auto starts = LoginItemStatus::enabled;
constexpr auto switchedOff = LoginItemStatus::requiresApproval;
constexpr auto gone = LoginItemStatus::notFound;

INSTANTIATE_TEST_SUITE_P(
    Entries, LoginEntryStatusTest,
    ::testing::Values(
        LoginEntry{"ByName", "Exec=sh\n", starts}, LoginEntry{"ByPath", "Exec=/bin/sh\n", starts},
        LoginEntry{"WithArguments", "Exec=\"/bin/sh\" -c true\n", starts},
        LoginEntry{"NotHidden", "Exec=sh\nHidden=false\n", starts},
        LoginEntry{"Hidden", "Exec=sh\nHidden=true\n", switchedOff},
        LoginEntry{"HiddenAndGone", "Exec=/no/such/program\nHidden=true\n", switchedOff},
        LoginEntry{"OnInGnome", "Exec=sh\nX-GNOME-Autostart-enabled=true\n", starts},
        LoginEntry{"OffInGnome", "Exec=sh\nX-GNOME-Autostart-enabled=false\n", switchedOff},
        LoginEntry{"OffInMate", "Exec=sh\nX-MATE-Autostart-enabled=false\n", switchedOff},
        LoginEntry{"ForThisDesktop", "Exec=sh\nOnlyShowIn=XFCE;GNOME;\n", starts},
        LoginEntry{"ForOthers", "Exec=sh\nOnlyShowIn=KDE;XFCE;\n", switchedOff},
        LoginEntry{"ForNobody", "Exec=sh\nOnlyShowIn=\n", switchedOff},
        LoginEntry{"NotForThisDesktop", "Exec=sh\nNotShowIn=GNOME;\n", switchedOff},
        LoginEntry{"NotForOthers", "Exec=sh\nNotShowIn=KDE\n", starts},
        LoginEntry{"ProgramGone", "Exec=/no/such/program\n", gone},
        LoginEntry{"NameGone", "Exec=no-such-program-anywhere\n", gone},
        LoginEntry{"TryExecGone", "Exec=sh\nTryExec=/no/such/program\n", gone},
        LoginEntry{"NoCommand", "Terminal=false\n", gone},
        LoginEntry{"BrokenCommand", "Exec=\"/bin/sh\n", gone}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(LinuxLoginItemTest, WhatIsNoEntryIsNotThere) {
    for (const char* lines : {"", "garbage", "[Desktop Entry]\nType=Link\nURL=x\n",
                              "[Other]\nType=Application\nExec=sh\n"}) {
        writeLines(userEntry(), lines);
        EXPECT_EQ(item_.status(), LoginItemStatus::notRegistered) << lines;
    }
}

TEST(LastingCommand, IsTheNameWhereTheShellFindsTheSameFile) {
    EXPECT_EQ(lastingCommand(u"/bin/sh"_qs), u"sh"_qs);
    QTemporaryDir folder;
    const QString other = folder.filePath(u"sh"_qs);
    writeLines(other, "");
    EXPECT_EQ(lastingCommand(other), other);
    EXPECT_EQ(lastingCommand(folder.filePath(u"unheard-of"_qs)), folder.filePath(u"unheard-of"_qs));
}

// Written out by the rules of the Desktop Entry Specification on quoting.
TEST(ExecWord, IsQuotedWhereItMustBe) {
    EXPECT_EQ(execWord(u"/usr/bin/tessarine"_qs), u"/usr/bin/tessarine"_qs);
    EXPECT_EQ(execWord(u"/opt/my apps/t"_qs), u"\"/opt/my apps/t\""_qs);
    EXPECT_EQ(execWord(u"/a\"b`c$d\\e"_qs), uR"("/a\"b\`c\$d\\e")"_qs);
    EXPECT_EQ(execWord(u"/100%"_qs), u"/100%%"_qs);
    EXPECT_EQ(execWord(u"/it's"_qs), u"\"/it's\""_qs);
    EXPECT_EQ(execWord(QString()), u"\"\""_qs);
}

TEST(ExecWord, IsReadBackAsItWas) {
    for (const QString& word : {u"/a b"_qs, u"/a\"b`c$d\\e"_qs, u"/it's"_qs, u"/ä(1)&;"_qs})
        EXPECT_EQ(execWords(execWord(word)), std::optional(QStringList(word)));
}

} // namespace
} // namespace tessarine
