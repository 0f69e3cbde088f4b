#pragma once

#include "browser/list/ListEntry.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace tessarine {

// Which lines of an old list stay in a new one: pairs of old and new position, ascending in both.
// Rows are found by their keys in the hoard, headers by those of their groups. A kept line may have
// changed in content. As many lines are kept as their order allows.
using KeptRows = std::vector<std::pair<std::size_t, std::size_t>>;

KeptRows keptRows(const ListEntries& before, const ListEntries& after);

} // namespace tessarine
