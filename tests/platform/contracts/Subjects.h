#pragma once

#include "platform/Platform.h"
#include "support/SimulatedPlatform.h"

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

// What the contracts of the ports are tried on: the implementations of the system that the tests
// were built for, and the simulated ones where they answer for themselves. tests/platform/<system>
// defines these functions.

namespace tessarine::testing {

// One implementation and whatever it lives in. Each call makes it anew over what earlier ones left
// behind.
template <typename Port>
struct Subject {
    std::string name;
    std::function<std::shared_ptr<Port>()> make;
};

template <typename Port>
void PrintTo(const Subject<Port>& subject, std::ostream* out) {
    *out << subject.name;
}

std::unique_ptr<FileWatcher> systemFileWatcher(Scheduler& scheduler);

std::vector<Subject<UserDefaults>> userDefaultsSubjects();
std::vector<Subject<FileSystem>> fileSystemSubjects();
std::vector<Subject<Workspace>> workspaceSubjects();
std::vector<Subject<Accessibility>> accessibilitySubjects();
std::vector<Subject<LoginItem>> loginItemSubjects(); // empty where a test would change the machine
std::vector<Subject<SystemSettings>> systemSettingsSubjects();
std::vector<Subject<SystemFacts>> systemFactsSubjects();

} // namespace tessarine::testing
