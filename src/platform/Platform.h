#pragma once

#include "platform/Accessibility.h"
#include "platform/FileSystem.h"
#include "platform/FileWatcher.h"
#include "platform/LoginItem.h"
#include "platform/Scheduler.h"
#include "platform/SystemFacts.h"
#include "platform/SystemSettings.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"

#include <memory>

namespace tessarine {

// Everything the services ask of the system. Members are destroyed from the last to the first, so
// that the scheduler outlives what hands it tasks.
struct Platform {
    std::unique_ptr<UserDefaults> userDefaults;
    std::unique_ptr<FileSystem> fileSystem;
    std::unique_ptr<Scheduler> scheduler;
    std::unique_ptr<FileWatcher> fileWatcher;
    std::unique_ptr<Workspace> workspace;
    std::unique_ptr<Accessibility> accessibility;
    std::unique_ptr<LoginItem> loginItem;
    std::unique_ptr<SystemSettings> systemSettings;
    std::unique_ptr<SystemFacts> systemFacts;
};

// Sets what holds for the whole process and has to be set before there is an application object.
// Once, on the main thread.
void prepareProcess();

// Makes the ports of the system that the program was built for. Needs an application object, and
// the thread it is called on is the main thread from then on.
std::unique_ptr<Platform> makePlatform();

// One of them alone, for what comes before the application object.
std::unique_ptr<FileSystem> makeFileSystem();

} // namespace tessarine
