#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>
#include <string>

namespace tessarine {

// A way for a later copy of the program to ask the running one to come to the front: a listening
// socket under a name that exists only in the kernel and goes with the process, so that no file is
// left behind. It proves nothing: any user's process can take the name, and who asks is told
// nothing by whoever listens. Nothing here waits for the other side. Main thread.
class ActivationSocket {
public:
    explicit ActivationSocket(std::string name);
    ActivationSocket(const ActivationSocket&) = delete;
    ActivationSocket& operator=(const ActivationSocket&) = delete;
    ~ActivationSocket();

    // Takes requests of this user's processes from now on, unless somebody else has the name.
    void listen();

    // Asks whoever listens.
    void ask();

    // What to do at a request. Needs the application object; requests from before are kept.
    void onRequest(std::function<void()> handler);

private:
    void takeRequest();

    std::string name_;
    int listening_ = -1;
    std::unique_ptr<QSocketNotifier> requests_;
    std::function<void()> handler_;
};

} // namespace tessarine
