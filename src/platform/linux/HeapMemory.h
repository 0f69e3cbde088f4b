#pragma once

namespace tessarine {

// What the C library's allocator keeps of memory that was freed. Where another library than GNU's
// serves, nothing happens.

// Bounds it: buffers from a megabyte on go back to the system as soon as they are freed, and all
// threads share two heaps. By itself the library learns from big messages of the bus to keep tens
// of megabytes, and gives each thread that works beside others a heap with free pages of its own.
// Once, at the start, before there are threads.
void limitFreeMemory();

// Gives back what is free now, of all threads. Takes some milliseconds. Any thread.
void returnFreeMemory();

} // namespace tessarine
