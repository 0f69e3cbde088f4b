#pragma once

#include "platform/linux/bus/BusConnection.h"

#include <chrono>
#include <optional>
#include <string>

namespace tessarine {

// Who owns which name on a bus, as the bus itself tells it. Others may send what looks the same.

inline constexpr std::chrono::milliseconds busAnswerTime{5000}; // the bus itself answers at once

// A call of the bus driver with one text.
BusMessage busCallWithText(const char* member, const char* text);

// Whether a call was answered, and not with an error.
bool isReturn(const BusMessage& answer);

bool isFromBus(DBusMessage* message);

// The match rule for changes of this name's owner.
std::string ownerChangeRule(const char* name);

struct OwnerChange {
    std::string name;
    std::string owner; // its unique name; empty: nobody
};

// Nothing when the message isn't a change of an owner that the bus announces.
std::optional<OwnerChange> ownerChange(DBusMessage* message);

// The unique name of the name's owner; empty when nobody has it. Changes of this owner that arrived
// before the answer are dropped: it has them already. Nothing when the bus doesn't answer.
std::optional<std::string> askForOwner(BusConnection& connection, const char* name);

} // namespace tessarine
