#pragma once

#include "core/AppDelegate.h"
#include "core/Services.h"
#include "core/ViewServices.h"
#include "platform/SingleInstance.h"

#include <memory>

namespace tessarine {

// The whole program over one system, built in one order: the ports, the services, what windows
// share, the delegate. Needs the QApplication. Main thread.
class Program {
public:
    Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    AppDelegate& delegate() { return delegate_; }

    // What others may ask of the program, which outlives them.
    SingleInstance::Requests requests();

private:
    std::unique_ptr<Platform> platform_;
    std::unique_ptr<Desktop> desktop_;
    Services services_;
    ViewServices views_;
    AppDelegate delegate_;
};

} // namespace tessarine
