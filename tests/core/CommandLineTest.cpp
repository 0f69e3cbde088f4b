#include "core/CommandLine.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessarine {
namespace {

using Stream = CommandLineAnswer::Stream;

TEST(CommandLine, WithoutArgumentsTheProgramStarts) {
    EXPECT_EQ(answerToArguments({}), std::nullopt);
}

TEST(CommandLine, AStartBySessionManagerIsAStart) {
    EXPECT_EQ(answerToArguments({"-session", "10b2d5_1700000000_123456"}), std::nullopt);
    EXPECT_EQ(answerToArguments({"-AppleLanguages", "(de)", "-NSQuitAlwaysKeepsWindows", "NO"}),
              std::nullopt);
    EXPECT_EQ(answerToArguments({"-psn_0_12345"}), std::nullopt);
}

TEST(CommandLine, HelpSaysThatThereAreNoOptions) {
    const auto answer = answerToArguments({"--help"});
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->status, 0);
    EXPECT_EQ(answer->stream, Stream::output);
    EXPECT_EQ(answer->text.find("Usage: tessarine\n"), 0U);
    EXPECT_NE(answer->text.find("takes no options"), std::string::npos);
}

TEST(CommandLine, VersionIsOneLineWithNumbers) {
    const auto answer = answerToArguments({"--version"});
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->status, 0);
    EXPECT_EQ(answer->stream, Stream::output);
    int numbers[3] = {};
    char end = 0;
    EXPECT_EQ(std::sscanf(answer->text.c_str(), "Tessarine %d.%d.%d%c", &numbers[0], &numbers[1],
                          &numbers[2], &end),
              4);
    EXPECT_EQ(end, '\n');
    EXPECT_EQ(std::count(answer->text.begin(), answer->text.end(), '\n'), 1);
}

TEST(CommandLine, TheFirstOfBothIsAnswered) {
    EXPECT_EQ(answerToArguments({"--version", "--help"}), answerToArguments({"--version"}));
    EXPECT_EQ(answerToArguments({"--help", "--version"}), answerToArguments({"--help"}));
}

struct Refused {
    std::vector<std::string> arguments;
    std::string named;
};

class CommandLineRefusal : public ::testing::TestWithParam<Refused> {};

TEST_P(CommandLineRefusal, IsOneLineThatNamesTheArgument) {
    const CommandLineAnswer expected{2, Stream::errors,
                                     "tessarine: it takes no argument \"" + GetParam().named +
                                         "\"; see tessarine --help\n"};
    EXPECT_EQ(answerToArguments(GetParam().arguments), expected);
}

INSTANTIATE_TEST_SUITE_P(Each, CommandLineRefusal,
                         ::testing::Values(Refused{{"-h"}, "-h"}, Refused{{"--Help"}, "--Help"},
                                           Refused{{""}, ""}, Refused{{"file.db"}, "file.db"},
                                           Refused{{"--help", "x"}, "x"},
                                           Refused{{"--version=1"}, "--version=1"},
                                           Refused{{"-session"}, "-session"},
                                           Refused{{"-session", "1", "2"}, "2"},
                                           Refused{{"a\nb\x7f\x1b[1m"}, "a?b??[1m"}),
                         [](const auto& test) { return "Number" + std::to_string(test.index); });

} // namespace
} // namespace tessarine
