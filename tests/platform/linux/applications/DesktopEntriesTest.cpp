#include "platform/linux/applications/DesktopEntries.h"

#include "platform/linux/applications/DesktopEntryFile.h"
#include "platform/linux/applications/ExecLine.h"
#include "support/Printers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

class DesktopEntryFile : public ::testing::Test {
protected:
    std::optional<DesktopEntry> read(const QByteArray& text,
                                     const QString& locale = u"C"_qs) const {
        const QString path = folder.filePath(u"entry.desktop"_qs);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        return readDesktopEntry(path, locale);
    }

    // The name that a user of this locale sees.
    QString name(const QByteArray& names, const QString& locale) const {
        const auto entry = read("[Desktop Entry]\nType=Application\n" + names, locale);
        return entry ? entry->name : u"(none)"_qs;
    }

    QString executable(const QByteArray& exec) const {
        const auto entry = read("[Desktop Entry]\nType=Application\nName=A\nExec=" + exec + '\n');
        return entry ? executableOf(*entry) : u"(none)"_qs;
    }

    QTemporaryDir folder;
};

// A file that holds the value as it is written for others to read.
TEST(DesktopEntryValue, ComesBackWithItsBlanks) {
    for (const QString& text : {u" a "_qs, u" "_qs, u"a\t"_qs, u"\u00a0a\u2003"_qs, u"\\s"_qs,
                                u"a\n\r\nb"_qs, u"\va\f"_qs}) {
        const QByteArray content =
            "[Desktop Entry]\nName = " + escapedValue(text).toUtf8() + "\r\n";
        EXPECT_EQ(desktopEntryKeys(content).value(u"Name"_qs), text);
    }
}

TEST_F(DesktopEntryFile, GivesNameCommandAndIcon) {
    const auto entry = read("[Desktop Entry]\nType=Application\nName=Text Editor\n"
                            "Exec=gedit %U\nIcon=org.gnome.gedit\n");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->name, u"Text Editor"_qs);
    EXPECT_EQ(entry->exec, u"gedit %U"_qs);
    EXPECT_EQ(entry->icon, u"org.gnome.gedit"_qs);
    EXPECT_EQ(entry->path, folder.filePath(u"entry.desktop"_qs));
}

TEST_F(DesktopEntryFile, IsOfAnApplicationOnly) {
    EXPECT_FALSE(read("[Desktop Entry]\nType=Link\nName=A\nURL=http://a\n"));
    EXPECT_FALSE(read("[Desktop Entry]\nType=Directory\nName=A\n"));
    EXPECT_FALSE(read("[Desktop Entry]\nName=A\n"));
    EXPECT_FALSE(read(""));
}

TEST_F(DesktopEntryFile, IsNoneWhereThereIsNoFile) {
    EXPECT_FALSE(readDesktopEntry(folder.filePath(u"missing.desktop"_qs), u"C"_qs));
}

TEST_F(DesktopEntryFile, IsNoneWhereItIsMarkedAsDeleted) {
    EXPECT_FALSE(read("[Desktop Entry]\nType=Application\nName=A\nHidden=true\n"));
    EXPECT_TRUE(read("[Desktop Entry]\nType=Application\nName=A\nHidden=false\n"));
}

TEST_F(DesktopEntryFile, CountsThoughMenusDoNotShowIt) {
    EXPECT_TRUE(read("[Desktop Entry]\nType=Application\nName=A\nNoDisplay=true\n"));
}

TEST_F(DesktopEntryFile, LeavesOutOtherGroups) {
    const auto entry = read("[Desktop Entry]\nType=Application\nName=App\nExec=app\n"
                            "[Desktop Action New]\nName=New Window\nExec=app --new\n");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->name, u"App"_qs);
    EXPECT_EQ(entry->exec, u"app"_qs);
}

TEST_F(DesktopEntryFile, LeavesOutCommentsAndEmptyLines) {
    const auto entry = read("# first\n\n[Desktop Entry]\n#Name=No\nType=Application\n\nName=Yes\n");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->name, u"Yes"_qs);
}

TEST_F(DesktopEntryFile, TakesBlanksAroundTheEqualsSign) {
    EXPECT_EQ(name("Name = App \n", u"C"_qs), u"App"_qs);
}

TEST_F(DesktopEntryFile, KeepsFurtherEqualsSigns) {
    const auto entry = read("[Desktop Entry]\nType=Application\nName=A\nExec=app --x=1\n");
    EXPECT_EQ(entry->exec, u"app --x=1"_qs);
}

TEST_F(DesktopEntryFile, TakesLinesThatEndAsOnWindows) {
    const auto entry = read("[Desktop Entry]\r\nType=Application\r\nName=A\r\nExec=app\r\n");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->name, u"A"_qs);
    EXPECT_EQ(entry->exec, u"app"_qs);
}

TEST_F(DesktopEntryFile, NeedsNoLineBreakAtItsEnd) {
    EXPECT_EQ(name("Name=Last", u"C"_qs), u"Last"_qs);
}

TEST_F(DesktopEntryFile, ResolvesTheEscapesOfTexts) {
    EXPECT_EQ(name("Name=\\sa\\tb\\nc\\rd\\\\e\n", u"C"_qs), u" a\tb\nc\rd\\e"_qs);
}

TEST_F(DesktopEntryFile, IsUtf8) {
    EXPECT_EQ(name("Name=Größe 漢字\n", u"C"_qs), u"Größe 漢字"_qs);
}

// In the user's language: the order of freedesktop's Desktop Entry Specification

const QByteArray names = "Name=plain\nName[de]=de\nName[de_AT]=de_AT\nName[sr]=sr\n"
                         "Name[sr@Latn]=sr@Latn\nName[sr_YU]=sr_YU\nName[ca@valencia]=cav\n";

TEST_F(DesktopEntryFile, HasItsPlainNameForALanguageThatItLacks) {
    EXPECT_EQ(name(names, u"fr_FR.UTF-8"_qs), u"plain"_qs);
    EXPECT_EQ(name(names, u"C"_qs), u"plain"_qs);
    EXPECT_EQ(name(names, u"C.UTF-8"_qs), u"plain"_qs);
    EXPECT_EQ(name(names, QString()), u"plain"_qs);
}

TEST_F(DesktopEntryFile, HasItsNameInTheLanguage) {
    EXPECT_EQ(name(names, u"de"_qs), u"de"_qs);
    EXPECT_EQ(name(names, u"de_DE.UTF-8"_qs), u"de"_qs);
    EXPECT_EQ(name(names, u"de_DE@euro"_qs), u"de"_qs);
}

TEST_F(DesktopEntryFile, PrefersTheCountry) {
    EXPECT_EQ(name(names, u"de_AT.UTF-8"_qs), u"de_AT"_qs);
    EXPECT_EQ(name(names, u"de_AT.UTF-8@euro"_qs), u"de_AT"_qs);
}

TEST_F(DesktopEntryFile, PrefersCountryAndModifierToAll) {
    EXPECT_EQ(name(names + "Name[sr_YU@Latn]=all\n", u"sr_YU.UTF-8@Latn"_qs), u"all"_qs);
}

TEST_F(DesktopEntryFile, PrefersTheCountryToTheModifier) {
    EXPECT_EQ(name(names, u"sr_YU@Latn"_qs), u"sr_YU"_qs);
}

TEST_F(DesktopEntryFile, PrefersTheModifierToTheLanguageAlone) {
    EXPECT_EQ(name(names, u"sr_RS@Latn"_qs), u"sr@Latn"_qs);
    EXPECT_EQ(name(names, u"ca_ES.UTF-8@valencia"_qs), u"cav"_qs);
}

TEST_F(DesktopEntryFile, HasItsIconInTheLanguageToo) {
    const auto entry =
        read("[Desktop Entry]\nType=Application\nName=A\nIcon=i\nIcon[de]=j\n", u"de_DE"_qs);
    EXPECT_EQ(entry->icon, u"j"_qs);
}

// The program that it starts

TEST_F(DesktopEntryFile, StartsTheFirstWordOfItsCommand) {
    EXPECT_EQ(executable("gedit %U"), u"gedit"_qs);
    EXPECT_EQ(executable("/usr/bin/app"), u"/usr/bin/app"_qs);
    EXPECT_EQ(executable("/usr/bin/app --flag \"x y\""), u"/usr/bin/app"_qs);
    EXPECT_EQ(executable(""), QString());
}

TEST_F(DesktopEntryFile, StartsAQuotedProgramWithBlanks) {
    EXPECT_EQ(executable("\"/opt/My App/run\" %f"), u"/opt/My App/run"_qs);
}

TEST_F(DesktopEntryFile, ResolvesTheEscapesInsideQuotes) {
    // A backslash is escaped as in every text of the file, and quotes once more as in a command.
    EXPECT_EQ(executable(R"("/opt/a\\"b/\\$c/\\`d/e\\\\f" x)"), uR"(/opt/a"b/$c/`d/e\f)"_qs);
}

// The folders

class DesktopEntriesTest : public ::testing::Test {
protected:
    void write(const QString& file, const QByteArray& name, const QByteArray& more = {}) const {
        const QString path = root.filePath(file);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile entry(path);
        ASSERT_TRUE(entry.open(QIODevice::WriteOnly));
        entry.write("[Desktop Entry]\nType=Application\nExec=app\nName=" + name + '\n' + more);
    }

    // File systems tell moments apart only so finely; a date of long ago is another one for sure.
    void makeOld(const QString& folder) const {
        const std::array<timespec, 2> longAgo{{{1000000000, 0}, {1000000000, 0}}};
        ASSERT_EQ(utimensat(AT_FDCWD, QFile::encodeName(root.filePath(folder)).constData(),
                            longAgo.data(), 0),
                  0);
    }

    QString nameOf(const QString& bundleIdentifier) {
        const auto entry = entries.find(bundleIdentifier);
        return entry ? entry->name : u"(none)"_qs;
    }

    QTemporaryDir root;
    DesktopEntries entries{{root.filePath(u"user"_qs), root.filePath(u"system"_qs)}};
};

const QString none = u"(none)"_qs;

TEST_F(DesktopEntriesTest, FindsAnApplicationByItsEntryId) {
    write(u"system/org.gnome.gedit.desktop"_qs, "Text Editor");
    const auto entry = entries.find(u"org.gnome.gedit"_qs);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->id, u"org.gnome.gedit"_qs);
    EXPECT_EQ(entry->name, u"Text Editor"_qs);
    EXPECT_EQ(entry->path, root.filePath(u"system/org.gnome.gedit.desktop"_qs));
}

TEST_F(DesktopEntriesTest, FindsAnApplicationByTheIdThatItsNameStandsFor) {
    write(u"system/org.gnome.gedit.desktop"_qs, "Text Editor");
    const auto entry = entries.find(u"text.editor"_qs);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->id, u"org.gnome.gedit"_qs);
}

TEST_F(DesktopEntriesTest, PrefersAnEntryIdToADerivedOne) {
    write(u"system/aaa.desktop"_qs, "Mail");
    write(u"system/mail.desktop"_qs, "Another");
    EXPECT_EQ(nameOf(u"mail"_qs), u"Another"_qs);
}

TEST_F(DesktopEntriesTest, FindsNothingUnderAnUnknownId) {
    write(u"system/app.desktop"_qs, "App");
    EXPECT_EQ(nameOf(u"unknown"_qs), none);
    EXPECT_EQ(nameOf(QString()), none);
}

TEST_F(DesktopEntriesTest, FindsNoEntryWithoutANameUnderTheEmptyId) {
    write(u"system/app.desktop"_qs, "");
    EXPECT_EQ(nameOf(QString()), none);
}

TEST_F(DesktopEntriesTest, TellsEntryIdsApartByCase) {
    write(u"system/App.desktop"_qs, "Something");
    EXPECT_EQ(nameOf(u"app"_qs), none);
}

TEST_F(DesktopEntriesTest, FindsNothingWhereThereAreNoFolders) {
    EXPECT_EQ(nameOf(u"app"_qs), none);
}

TEST_F(DesktopEntriesTest, LetsTheFirstFolderHold) {
    write(u"system/app.desktop"_qs, "System App");
    write(u"user/app.desktop"_qs, "User App");
    EXPECT_EQ(nameOf(u"app"_qs), u"User App"_qs);
}

TEST_F(DesktopEntriesTest, DoesNotFindTheNameOfAnEntryThatIsOverridden) {
    write(u"system/app.desktop"_qs, "System App");
    write(u"user/app.desktop"_qs, "User App");
    EXPECT_EQ(nameOf(u"system.app"_qs), none);
    EXPECT_EQ(nameOf(u"user.app"_qs), u"User App"_qs);
}

TEST_F(DesktopEntriesTest, HidesAnEntryThatTheUserDeleted) {
    write(u"system/app.desktop"_qs, "App");
    write(u"user/app.desktop"_qs, "App", "Hidden=true\n");
    EXPECT_EQ(nameOf(u"app"_qs), none);
}

TEST_F(DesktopEntriesTest, PutsAHyphenBetweenFolderAndFile) {
    write(u"system/kde/mail.desktop"_qs, "KMail");
    write(u"system/a/b/c.desktop"_qs, "Deep");
    EXPECT_EQ(nameOf(u"kde-mail"_qs), u"KMail"_qs);
    EXPECT_EQ(nameOf(u"a-b-c"_qs), u"Deep"_qs);
}

TEST_F(DesktopEntriesTest, LeavesOutFilesOfAnotherKind) {
    write(u"system/app.txt"_qs, "Text");
    write(u"system/app.desktop.bak"_qs, "Backup");
    EXPECT_EQ(nameOf(u"text"_qs), none);
    EXPECT_EQ(nameOf(u"backup"_qs), none);
}

TEST_F(DesktopEntriesTest, FollowsALinkToAnEntry) {
    write(u"elsewhere/real.desktop"_qs, "Linked");
    ASSERT_TRUE(QDir().mkpath(root.filePath(u"system"_qs)));
    ASSERT_TRUE(QFile::link(root.filePath(u"elsewhere/real.desktop"_qs),
                            root.filePath(u"system/app.desktop"_qs)));
    EXPECT_EQ(nameOf(u"app"_qs), u"Linked"_qs);
}

TEST_F(DesktopEntriesTest, EndsWhereAFolderLinksToItself) {
    write(u"system/app.desktop"_qs, "App");
    ASSERT_TRUE(QFile::link(root.filePath(u"system"_qs), root.filePath(u"system/loop"_qs)));
    EXPECT_EQ(nameOf(u"app"_qs), u"App"_qs);
}

// Staying current

TEST_F(DesktopEntriesTest, NoticesANewFile) {
    write(u"system/first.desktop"_qs, "First");
    makeOld(u"system"_qs);
    ASSERT_EQ(nameOf(u"second"_qs), none);
    write(u"system/second.desktop"_qs, "Second");
    EXPECT_EQ(nameOf(u"second"_qs), u"Second"_qs);
    EXPECT_EQ(nameOf(u"first"_qs), u"First"_qs);
}

TEST_F(DesktopEntriesTest, NoticesANewFileInASubfolder) {
    write(u"system/kde/first.desktop"_qs, "First");
    makeOld(u"system/kde"_qs);
    ASSERT_EQ(nameOf(u"kde-second"_qs), none);
    write(u"system/kde/second.desktop"_qs, "Second");
    EXPECT_EQ(nameOf(u"kde-second"_qs), u"Second"_qs);
}

TEST_F(DesktopEntriesTest, NoticesAFolderThatWasNotThere) {
    write(u"system/app.desktop"_qs, "App");
    ASSERT_EQ(nameOf(u"own"_qs), none);
    write(u"user/own.desktop"_qs, "Own");
    EXPECT_EQ(nameOf(u"own"_qs), u"Own"_qs);
}

TEST_F(DesktopEntriesTest, NoticesThatAFileIsGone) {
    write(u"system/app.desktop"_qs, "App");
    makeOld(u"system"_qs);
    ASSERT_EQ(nameOf(u"app"_qs), u"App"_qs);
    ASSERT_TRUE(QFile::remove(root.filePath(u"system/app.desktop"_qs)));
    EXPECT_EQ(nameOf(u"app"_qs), none);
}

TEST_F(DesktopEntriesTest, NoticesThatTheUserDeletesAnEntry) {
    write(u"system/app.desktop"_qs, "App");
    ASSERT_TRUE(QDir().mkpath(root.filePath(u"user"_qs)));
    makeOld(u"user"_qs);
    ASSERT_EQ(nameOf(u"app"_qs), u"App"_qs);
    write(u"user/app.desktop"_qs, "App", "Hidden=true\n");
    EXPECT_EQ(nameOf(u"app"_qs), none);
}

} // namespace
} // namespace tessarine
