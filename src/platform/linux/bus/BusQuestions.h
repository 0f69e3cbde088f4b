#pragma once

#include "platform/linux/bus/BusConnection.h"

#include <QtGlobal>

#include <memory>
#include <optional>
#include <string>

namespace tessarine {

// Asks a bus about others, on a connection of its own, which reads nothing but the answers. Others
// may fill the bus's queue for it until no answer has room there; then another connection takes
// over. One thread.
class BusQuestions {
public:
    // Null when there is no such bus.
    static std::unique_ptr<BusQuestions> open(const std::string& address, const StopSignal& stop);

    // The process behind a name. Nothing when it is gone, or lives where the bus can't see it.
    std::optional<qint32> processOf(const char* busName);

private:
    BusQuestions(std::string address, const StopSignal& stop);

    bool connect();
    BusMessage ask(const char* member, const char* text);

    const std::string address_;
    const StopSignal& stop_;
    std::unique_ptr<BusConnection> connection_;
};

} // namespace tessarine
