#pragma once

#include <QString>

namespace tessarine {

// What a report tells of the program and of the system below it. No text is empty: "?" stands for
// what isn't known. Any thread.
class SystemFacts {
public:
    SystemFacts() = default;
    SystemFacts(const SystemFacts&) = delete;
    SystemFacts& operator=(const SystemFacts&) = delete;
    virtual ~SystemFacts() = default;

    virtual QString programVersion() const = 0; // "1.2.3"
    virtual QString programBuild() const = 0;   // rises from build to build: "412"

    // What kind of system it is, as a word before its version: "System".
    virtual QString systemLabel() const = 0;

    // The system as its maker calls it, with its version, on one line.
    virtual QString systemVersion() const = 0;
};

} // namespace tessarine
