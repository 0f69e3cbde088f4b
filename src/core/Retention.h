#pragma once

#include "diagnostics/DiagnosticsStore.h"
#include "preferences/PreferencesStore.h"
#include "store/HoardStore.h"

#include <functional>

namespace tessarine {

// The one pass of a launch in which rows go by their age, as the settings then are: a change of
// theirs waits for the next launch. The hoard is asked for only when a deletion is due. Main
// thread, which waits for the deletions.
void applyRetention(const PreferencesStore& preferences, const std::function<HoardStore&()>& hoard,
                    DiagnosticsStore& diagnostics);

} // namespace tessarine
