#pragma once

namespace tessarine {

// What the C library's allocator keeps of memory that was freed. Where another library than GNU's
// serves, nothing happens.

// Lets buffers from a megabyte on go back to the system as soon as they are freed. By itself the
// library learns from big messages of the bus to keep tens of megabytes. Once, at the start.
void returnBigBuffersWhenFreed();

// Gives back what is free now, of all threads. Takes some milliseconds. Any thread.
void returnFreeMemory();

} // namespace tessarine
