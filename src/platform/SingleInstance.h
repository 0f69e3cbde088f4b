#pragma once

#include <functional>
#include <memory>

namespace tessarine {

// Sees to it that one copy of the program runs for a user and a data folder. Main thread.
class SingleInstance {
public:
    SingleInstance() = default;
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    virtual ~SingleInstance() = default;

    // Whether this process is the first one. The claim holds until the process ends, however it
    // ends. Writes no file.
    virtual bool claim() = 0;

    // Asks the first copy to come to the front, and returns without waiting for it to do so.
    virtual void activateFirst() = 0;

    // What the first copy does when another one asks. Needs the application object.
    virtual void onActivation(std::function<void()> handler) = 0;
};

// The one of the system that the program was built for. Works before there is an application
// object.
std::unique_ptr<SingleInstance> makeSingleInstance();

} // namespace tessarine
