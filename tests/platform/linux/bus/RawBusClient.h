#pragma once

#include <string>

namespace tessarine::testing {

// A client that speaks to the bus in bytes of its own, so that it can send what a library refuses
// to. Throws when it isn't let in.
class RawBusClient {
public:
    explicit RawBusClient(const std::string& address); // "unix:path=..."
    ~RawBusClient();
    RawBusClient(const RawBusClient&) = delete;
    RawBusClient& operator=(const RawBusClient&) = delete;

    // A call of Notify with these bytes as its summary.
    void sendNotify(const std::string& summary);

    // Waits for the bus to close the connection. False when it doesn't for long.
    bool isThrownOut();

private:
    void send(const std::string& bytes) const;
    void sayHello();

    int socket_;
    unsigned lastSerial_ = 0;
};

} // namespace tessarine::testing
