#pragma once

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <functional>

#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tessarine::testing {

// Ends the process, and with it the test, if what is done while this lives waits for ever.
class NoWaiting {
public:
    NoWaiting() { alarm(60); }
    NoWaiting(const NoWaiting&) = delete;
    NoWaiting& operator=(const NoWaiting&) = delete;
    ~NoWaiting() { alarm(0); }
};

// What the work gives, 0 to 255, when a child process does it. The work starts no threads.
inline int inAnotherProcess(const std::function<int()>& work) {
    const pid_t child = fork();
    if (child == 0)
        _exit(work());
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status)) << "the child ended with " << status;
    return WEXITSTATUS(status);
}

// A child process that does something and then stays until it is killed. Made once it has done it.
class StayingProcess {
public:
    explicit StayingProcess(const std::function<void()>& work) {
        std::array<int, 2> done{};
        EXPECT_EQ(pipe(done.data()), 0);
        id_ = fork();
        if (id_ == 0) {
            work();
            const char byte = 'd';
            if (write(done[1], &byte, 1) == 1)
                pause();
            _exit(1);
        }
        close(done[1]);
        char byte = 0;
        EXPECT_EQ(read(done[0], &byte, 1), 1) << "the child ended early";
        close(done[0]);
    }
    StayingProcess(const StayingProcess&) = delete;
    StayingProcess& operator=(const StayingProcess&) = delete;
    ~StayingProcess() { kill(); }

    // As a user does it who loses patience. Returns when it is gone.
    void kill() {
        if (id_ <= 0)
            return;
        ::kill(id_, SIGKILL);
        waitpid(id_, nullptr, 0);
        id_ = 0;
    }

private:
    pid_t id_ = 0;
};

} // namespace tessarine::testing
