#pragma once

#include "diagnostics/DiagnosticsStore.h"
#include "preferences/PreferencesStore.h"
#include "store/HoardStore.h"

namespace tessarine {

// The one pass of a launch in which rows go by their age, as the settings then are: a change of
// theirs waits for the next launch. Main thread, which waits for the deletions.
void applyRetention(const PreferencesStore& preferences, HoardStore& hoard,
                    DiagnosticsStore& diagnostics);

} // namespace tessarine
