#pragma once

#include <chrono>
#include <ctime>

namespace tessarine::testing {

// The processor time that the calling thread has used. Other than the time on a clock, it doesn't
// grow with what else the machine has to do.
inline std::chrono::nanoseconds processorTime() {
    timespec used{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return std::chrono::seconds(used.tv_sec) + std::chrono::nanoseconds(used.tv_nsec);
}

} // namespace tessarine::testing
