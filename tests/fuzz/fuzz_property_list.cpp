// Any bytes: refused, or read in every way without a fault.

#include "capture/PropertyList.h"
#include "support/PropertyListWalk.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

// Enough for the longest honest input; a few shared values could be walked for ever.
constexpr qsizetype walkLimit = 2'000;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using tessarine::PropertyList;
    const auto list = PropertyList::parse(QByteArrayView(data, static_cast<qsizetype>(size)));
    if (list && !tessarine::testing::walk(*list, walkLimit))
        std::abort();
    return 0;
}
