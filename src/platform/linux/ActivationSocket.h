#pragma once

#include <QSocketNotifier>
#include <QString>

#include <functional>
#include <list>
#include <memory>
#include <string>

namespace tessarine {

// A way for a later copy of the program to ask the running one to come to the front: a listening
// socket under a name that exists only in the kernel and goes with the process, so that no file is
// left behind. What is asked with is the token by which a program may come to the front, or
// nothing. The socket proves nothing: any user's process can take the name, and who asks is told
// nothing by whoever listens. Nothing here waits for the other side. Main thread.
class ActivationSocket {
public:
    explicit ActivationSocket(std::string name);
    ActivationSocket(const ActivationSocket&) = delete;
    ActivationSocket& operator=(const ActivationSocket&) = delete;
    ~ActivationSocket();

    // Takes requests of this user's processes from now on, unless somebody else has the name.
    void listen();

    // Asks whoever listens. A token that is longer than any is not sent.
    void ask(const QString& token = {});

    // What to do at a request. Needs the application object; requests from before are kept.
    void onRequest(std::function<void(const QString& token)> handler);

private:
    class Request;

    void takeRequest();
    void finish(const Request* request);

    std::string name_;
    int listening_ = -1;
    std::unique_ptr<QSocketNotifier> requests_;
    std::list<std::unique_ptr<Request>> unfinished_; // whose token is still to come
    std::function<void(const QString& token)> handler_;
};

// The token that the program that started this process has put into the environment; empty where
// there is none. To be asked before there is an application object, which takes it away.
QString tokenOfOwnStart();

} // namespace tessarine
