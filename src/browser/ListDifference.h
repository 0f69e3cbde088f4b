#pragma once

#include "shared/CapturedNotification.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace tessarine {

// Which rows of an old list stay in a new one: pairs of old and new position, ascending in both,
// found by the rows' keys in the hoard. A kept row may have changed in content. As many rows are
// kept as their order allows.
using KeptRows = std::vector<std::pair<std::size_t, std::size_t>>;

KeptRows keptRows(const NotificationList& before, const NotificationList& after);

} // namespace tessarine
