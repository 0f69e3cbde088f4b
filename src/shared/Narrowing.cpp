#include "shared/Narrowing.h"

#include <limits>

namespace tessarine {

int narrowToInt32(qint64 value) {
    if (value < std::numeric_limits<qint32>::min() || value > std::numeric_limits<qint32>::max())
        qFatal("Integer %lld does not fit the 32 bits of its column",
               static_cast<long long>(value));
    return static_cast<int>(value);
}

} // namespace tessarine
