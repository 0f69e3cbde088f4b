#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace tessarine::testing {

// A program that runs beside the test and is killed with this object. Not QProcess: its child
// shares the test's memory until it becomes another program, and ThreadSanitizer loses track of
// the calling thread's locks then.
class ChildProcess {
public:
    ChildProcess() = default;
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    // The program is looked for in PATH. What it writes is thrown away, but for its first line,
    // which this waits for when asked to. Throws when it can't be started.
    void start(const std::vector<std::string>& command);
    std::string startAndAwaitLine(const std::vector<std::string>& command);

    void kill(); // and waits for the end; nothing when it doesn't run

    pid_t pid() const { return pid_; } // 0 when it doesn't run

private:
    void spawn(const std::vector<std::string>& command, int output);

    pid_t pid_ = 0;
};

} // namespace tessarine::testing
