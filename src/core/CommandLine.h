#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tessarine {

// What the program says to its arguments instead of starting, and the status that it ends with.
struct CommandLineAnswer {
    enum class Stream { output, errors };

    int status;
    Stream stream;
    std::string text; // whole lines

    bool operator==(const CommandLineAnswer&) const = default;
};

// The program takes no options, and says so to --help and to --version; whatever else is given is
// refused in one line. Nothing where it is to start: without arguments, or with the one that a
// session manager adds when it starts programs again. The arguments are those behind the program's
// name. Asks nothing of the system.
std::optional<CommandLineAnswer> answerToArguments(const std::vector<std::string>& arguments);

// The same for the arguments of main(): says the answer and gives the status to end with. For the
// first moment of the process.
std::optional<int> answerArguments(int argc, char** argv);

} // namespace tessarine
