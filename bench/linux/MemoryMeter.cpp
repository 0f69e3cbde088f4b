#include "bench/linux/MemoryMeter.h"

#include <atomic>

#include <malloc.h>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void __libc_free(void* block);
}

namespace {

std::atomic<std::size_t> allocated = 0;
std::atomic<std::size_t> peak = 0;

void* counted(void* block) {
    if (block) {
        const std::size_t now = allocated += malloc_usable_size(block);
        if (now > peak)
            peak = now;
    }
    return block;
}

void discounted(void* block) {
    if (block)
        allocated -= malloc_usable_size(block);
}

} // namespace

extern "C" void* malloc(std::size_t size) {
    return counted(__libc_malloc(size));
}

extern "C" void* calloc(std::size_t count, std::size_t size) {
    return counted(__libc_calloc(count, size));
}

// Large blocks move without a second copy, as the system does it.
extern "C" void* realloc(void* block, std::size_t size) {
    discounted(block);
    void* const moved = __libc_realloc(block, size);
    return counted(moved || size == 0 ? moved : block);
}

extern "C" void free(void* block) {
    discounted(block);
    __libc_free(block);
}

namespace tessarine::bench {

std::size_t allocatedBytes() {
    return allocated;
}

std::size_t peakAllocatedBytes() {
    return peak;
}

void resetPeak() {
    peak = allocated.load();
}

} // namespace tessarine::bench
