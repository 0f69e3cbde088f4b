#include "core/CommandLine.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace tessarine {

namespace {

using Stream = CommandLineAnswer::Stream;

constexpr int wrongUsage = 2; // what shells and most programs end with for that

const std::string help =
    "Usage: tessarine\n"
    "\n"
    "Keeps every notification of the desktop and lets you search them. It starts in\n"
    "the tray, without a window, and takes no options: its settings are in its\n"
    "preferences. A second start brings the windows of the first to the front.\n"
    "\n"
    "  --help     says this and ends\n"
    "  --version  says the version and ends\n";

// An argument may be any bytes; what is said of it is one line.
std::string oneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(),
        [](char byte) { return static_cast<unsigned char>(byte) < ' ' || byte == '\x7f'; }, '?');
    return text;
}

// What systems hand to any program, for Qt or for themselves to read: session managers the
// session's identifier, macOS settings that hold for one start.
bool isOfTheSystem(const std::string& argument) {
    return argument == "-session" || argument.starts_with("-NS") || argument.starts_with("-Apple");
}

CommandLineAnswer refusal(const std::string& argument) {
    return {wrongUsage, Stream::errors,
            "tessarine: it takes no argument \"" + oneLine(argument) +
                "\"; see tessarine --help\n"};
}

} // namespace

std::optional<CommandLineAnswer> answerToArguments(const std::vector<std::string>& arguments) {
    std::optional<CommandLineAnswer> answer;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (isOfTheSystem(argument) && i + 1 < arguments.size())
            ++i; // with its value
        else if (argument.starts_with("-psn_"))
            continue;
        else if (argument != "--help" && argument != "--version")
            return refusal(argument);
        else if (!answer && argument == "--help")
            answer = {EXIT_SUCCESS, Stream::output, help};
        else if (!answer)
            answer = {EXIT_SUCCESS, Stream::output, "Tessarine " TESSARINE_VERSION "\n"};
    }
    return answer;
}

std::optional<int> answerArguments(int argc, char** argv) {
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i)
        arguments.emplace_back(argv[i]);
    const std::optional<CommandLineAnswer> answer = answerToArguments(arguments);
    if (!answer)
        return std::nullopt;
    std::fputs(answer->text.c_str(), answer->stream == Stream::output ? stdout : stderr);
    return answer->status;
}

} // namespace tessarine
