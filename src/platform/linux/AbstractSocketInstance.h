#pragma once

#include "platform/SingleInstance.h"

#include <QSocketNotifier>

#include <memory>
#include <string>

namespace tessarine {

// The claim is a listening socket under a name that exists only in the kernel and goes with the
// process: no file to be left behind. Another copy's request is one connection to it.
class AbstractSocketInstance : public SingleInstance {
public:
    // The name is made of the user and of the folder where the data lie, so that sessions with
    // folders of their own don't meet.
    explicit AbstractSocketInstance(const std::string& dataFolder);
    ~AbstractSocketInstance() override;

    bool claim() override;
    void activateFirst() override;
    void onActivation(std::function<void()> handler) override;

private:
    void takeRequest();

    std::string name_;
    int listening_ = -1;
    std::unique_ptr<QSocketNotifier> requests_;
    std::function<void()> handler_;
};

} // namespace tessarine
