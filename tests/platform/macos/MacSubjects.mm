#include "platform/contracts/Subjects.h"
#include "platform/macos/MacAccessibility.h"
#include "platform/macos/MacFileSystem.h"
#include "platform/macos/MacFileWatcher.h"
#include "platform/macos/MacSystemFacts.h"
#include "platform/macos/MacSystemSettings.h"
#include "platform/macos/MacUserDefaults.h"
#include "platform/macos/MacWorkspace.h"

namespace tessarine::testing {

std::unique_ptr<FileWatcher> systemFileWatcher(Scheduler& scheduler) {
    return std::make_unique<MacFileWatcher>(scheduler);
}

// In the domain of the test program. The keys differ from run to run and stay there.
std::vector<Subject<UserDefaults>> userDefaultsSubjects() {
    return {{"Mac", [] {
                 return std::make_shared<MacUserDefaults>(NSUserDefaults.standardUserDefaults);
             }}};
}

std::vector<Subject<FileSystem>> fileSystemSubjects() {
    return {{"Mac", [] { return std::make_shared<MacFileSystem>(); }}};
}

std::vector<Subject<Workspace>> workspaceSubjects() {
    return {{"Mac", [] { return std::make_shared<MacWorkspace>(); }}};
}

std::vector<Subject<Accessibility>> accessibilitySubjects() {
    return {{"Mac", [] { return std::make_shared<MacAccessibility>(); }}};
}

// To register the test program would ask the user.
std::vector<Subject<LoginItem>> loginItemSubjects() {
    return {};
}

std::vector<Subject<SystemSettings>> systemSettingsSubjects() {
    return {{"Mac", [] { return std::make_shared<MacSystemSettings>(); }}};
}

std::vector<Subject<SystemFacts>> systemFactsSubjects() {
    return {{"Mac", [] { return std::make_shared<MacSystemFacts>(); }}};
}

} // namespace tessarine::testing
