#pragma once

#include <cstddef>

namespace tessarine::bench {

// Counts what the whole program has allocated. Linking it puts counting functions in the place of
// the system's own.

std::size_t allocatedBytes();

// The most that was allocated since the last reset.
std::size_t peakAllocatedBytes();
void resetPeak();

} // namespace tessarine::bench
