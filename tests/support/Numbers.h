#pragma once

#include <limits>

// Numbers that many tests name. They are not the program's: a test that borrowed those would not
// see when one of them is wrong.

namespace tessarine::testing {

constexpr double infinity = std::numeric_limits<double>::infinity();

// In seconds.
constexpr double hour = 3600.0;
constexpr double day = 86400.0;

} // namespace tessarine::testing
