#include "platform/linux/applications/ExecLine.h"

#include "platform/linux/applications/DesktopEntries.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

const QStringList broken{u"(broken)"_qs};

QStringList words(const QString& exec) {
    return execWords(exec).value_or(broken);
}

QStringList command(const QString& exec) {
    DesktopEntry entry;
    entry.path = u"/usr/share/applications/app.desktop"_qs;
    entry.name = u"My App"_qs;
    entry.icon = u"my-icon"_qs;
    entry.exec = exec;
    return commandOf(entry).value_or(broken);
}

TEST(ExecWordsTest, StandBetweenBlanks) {
    EXPECT_EQ(words(u"app  one\ttwo "_qs), QStringList({u"app"_qs, u"one"_qs, u"two"_qs}));
    EXPECT_EQ(words({}), QStringList());
}

TEST(ExecWordsTest, MayBeQuoted) {
    EXPECT_EQ(words(u"\"my app\" \"a b\"c"_qs), QStringList({u"my app"_qs, u"a bc"_qs}));
    EXPECT_EQ(words(u"app \"\""_qs), QStringList({u"app"_qs, u""_qs}));
}

TEST(ExecWordsTest, ResolveFourEscapesInsideQuotes) {
    EXPECT_EQ(words(uR"("\"\`\$\\\n")"_qs), QStringList({uR"("`$\\n)"_qs}));
}

TEST(ExecWordsTest, ResolveAnyEscapeOutsideQuotes) {
    EXPECT_EQ(words(uR"(a\ b \"c)"_qs), QStringList({u"a b"_qs, u"\"c"_qs}));
}

TEST(ExecWordsTest, HoldWhatStandsInSingleQuotes) {
    EXPECT_EQ(words(uR"(sh -c 'echo "$HOME" \n')"_qs),
              QStringList({u"sh"_qs, u"-c"_qs, uR"(echo "$HOME" \n)"_qs}));
}

TEST(ExecWordsTest, AreNoneWhereAQuoteIsOpen) {
    EXPECT_EQ(words(u"app \"x"_qs), broken);
    EXPECT_EQ(words(u"app 'x"_qs), broken);
}

TEST(CommandTest, HasNoFilesToOpen) {
    EXPECT_EQ(command(u"app %f %F --x %u %U"_qs), QStringList({u"app"_qs, u"--x"_qs}));
    EXPECT_EQ(command(u"app --file=%f"_qs), QStringList({u"app"_qs, u"--file="_qs}));
    EXPECT_EQ(command(u"app \"%u\""_qs), QStringList({u"app"_qs, u""_qs}));
}

TEST(CommandTest, LeavesOutCodesOfOld) {
    EXPECT_EQ(command(u"app %d %D %n %N %v %m"_qs), QStringList({u"app"_qs}));
}

TEST(CommandTest, HasTheIconAsTwoWords) {
    EXPECT_EQ(command(u"app %i x"_qs),
              QStringList({u"app"_qs, u"--icon"_qs, u"my-icon"_qs, u"x"_qs}));
}

TEST(CommandTest, HasNoIconWhereTheEntryHasNone) {
    DesktopEntry entry;
    entry.exec = u"app %i"_qs;
    EXPECT_EQ(commandOf(entry), QStringList({u"app"_qs}));
}

TEST(CommandTest, HasNameAndPathAsOneWordEach) {
    EXPECT_EQ(command(u"app -t %c %k"_qs),
              QStringList(
                  {u"app"_qs, u"-t"_qs, u"My App"_qs, u"/usr/share/applications/app.desktop"_qs}));
}

TEST(CommandTest, HasAPercentSignForTwo) {
    EXPECT_EQ(command(u"app 50%% %%f"_qs), QStringList({u"app"_qs, u"50%"_qs, u"%f"_qs}));
}

TEST(CommandTest, IsNoneWithACodeThatThereIsNot) {
    EXPECT_EQ(command(u"app %x"_qs), broken);
    EXPECT_EQ(command(u"app %"_qs), broken);
}

TEST(CommandTest, IsNoneWithoutAProgram) {
    EXPECT_EQ(command({}), broken);
    EXPECT_EQ(command(u"%f"_qs), broken);
    EXPECT_EQ(command(u"\"\" x"_qs), broken);
}

} // namespace
} // namespace tessarine
