#pragma once

#include "apps/AppLauncher.h"
#include "capture/NotificationListener.h"
#include "diagnostics/DiagnosticsStore.h"
#include "platform/Platform.h"
#include "preferences/PreferencesStore.h"
#include "store/HoardStore.h"

#include <memory>

namespace tessarine {

// What the program does without a window: the services over one platform, each built after those
// that it uses. The platform outlives them. Building them captures and opens nothing. Main thread.
struct Services {
    explicit Services(Platform& platform);
    Services(const Services&) = delete;
    Services& operator=(const Services&) = delete;

    Platform& platform;
    HoardStore hoard;
    PreferencesStore preferences;
    DiagnosticsStore diagnostics;
    std::shared_ptr<NotificationListener> listener;
    AppLauncher launcher;
};

} // namespace tessarine
