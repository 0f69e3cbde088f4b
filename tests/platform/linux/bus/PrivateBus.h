#pragma once

#include "platform/linux/bus/ChildProcess.h"

#include <QString>
#include <QTemporaryDir>

#include <string>

namespace tessarine::testing {

// A message bus of the test's own: the reference daemon, on a socket in a folder of its own.
class PrivateBus {
public:
    // Further elements of the daemon's configuration, inside its default policy.
    explicit PrivateBus(const QString& policy = {});
    ~PrivateBus();

    // The bus starts a program for this name, when somebody needs it. Before start().
    void addService(const QString& name, const QString& commandLine);

    void start(); // ends with the bus ready for connections; again after a crash, same address
    void crash();

    // Also while it isn't running.
    std::string address() const;

private:
    QTemporaryDir folder_;
    ChildProcess daemon_;
};

} // namespace tessarine::testing
