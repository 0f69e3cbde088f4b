// The clock of ages, on a system that has slept. A time namespace shows its processes such a
// system.

#include "platform/qt/QtScheduler.h"

#include <gtest/gtest.h>

#include <array>
#include <ctime>
#include <fstream>
#include <functional>
#include <optional>

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tessarine {
namespace {

double secondsOf(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

bool makeTimeNamespaceAfterSleep(int seconds) {
    const int flags = geteuid() == 0 ? CLONE_NEWTIME : CLONE_NEWUSER | CLONE_NEWTIME;
    if (unshare(flags) != 0)
        return false;
    std::ofstream offsets("/proc/self/timens_offsets");
    offsets << "boottime " << seconds << " 0\n" << std::flush;
    return offsets.good();
}

// The namespace is that of the children of the process that makes it.
int measureAfterSleep(int seconds, int output, const std::function<double()>& measure) {
    if (!makeTimeNamespaceAfterSleep(seconds))
        return 1;
    const pid_t child = fork();
    if (child == 0) {
        const double value = measure();
        _exit(write(output, &value, sizeof value) == sizeof value ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status == 0 ? 0 : 1;
}

// What the function gives in a process before which the system has slept so long. Nothing where the
// system grants no such process.
std::optional<double> afterSleepOf(int seconds, const std::function<double()>& measure) {
    std::array<int, 2> channel{};
    if (pipe(channel.data()) != 0)
        return std::nullopt;
    const pid_t child = fork();
    if (child == 0)
        _exit(measureAfterSleep(seconds, channel[1], measure));
    close(channel[1]);
    double value = 0;
    const bool isMeasured = read(channel[0], &value, sizeof value) == sizeof value;
    close(channel[0]);
    waitpid(child, nullptr, 0);
    return isMeasured ? std::optional(value) : std::nullopt;
}

TEST(SleepClock, GoesOnWhileTheSystemSleeps) {
    const QtScheduler scheduler;
    const auto asleep = [&] { return scheduler.uptime() - secondsOf(CLOCK_MONOTONIC); };
    const double before = asleep();
    const std::optional<double> after = afterSleepOf(3600, asleep);
    if (!after)
        GTEST_SKIP() << "the system grants no time namespace";
    EXPECT_NEAR(*after - before, 3600, 60);
}

} // namespace
} // namespace tessarine
