#include "platform/linux/HeapMemory.h"

#include <cstdlib> // says which library it is

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace tessarine {

void limitFreeMemory() {
#ifdef __GLIBC__
    constexpr int megabyte = 1 << 20;
    mallopt(M_ARENA_MAX, 2);
    mallopt(M_MMAP_THRESHOLD, megabyte);
    mallopt(M_TRIM_THRESHOLD, 2 * megabyte);
#endif
}

void returnFreeMemory() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace tessarine
