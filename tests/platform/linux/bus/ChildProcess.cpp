#include "platform/linux/bus/ChildProcess.h"

#include <csignal>
#include <stdexcept>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tessarine::testing {

ChildProcess::~ChildProcess() {
    kill();
}

void ChildProcess::start(const std::vector<std::string>& command) {
    spawn(command, -1);
}

std::string ChildProcess::startAndAwaitLine(const std::vector<std::string>& command) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    spawn(command, ends[1]);
    close(ends[1]);
    std::string line;
    for (char character; read(ends[0], &character, 1) == 1 && character != '\n';)
        line += character;
    close(ends[0]);
    return line;
}

void ChildProcess::spawn(const std::vector<std::string>& command, int output) {
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string& word : command)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    if (output >= 0)
        posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    else
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const int error =
        posix_spawnp(&pid_, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
        throw std::runtime_error("can't start " + command.front());
}

void ChildProcess::kill() {
    if (pid_ == 0)
        return;
    ::kill(pid_, SIGKILL);
    waitpid(pid_, nullptr, 0);
    pid_ = 0;
}

} // namespace tessarine::testing
