#include "platform/linux/bus/BusQuestions.h"

#include "platform/linux/bus/BusNames.h"

namespace tessarine {

std::unique_ptr<BusQuestions> BusQuestions::open(const std::string& address,
                                                 const StopSignal& stop) {
    std::unique_ptr<BusQuestions> questions(new BusQuestions(address, stop));
    return questions->connect() ? std::move(questions) : nullptr;
}

BusQuestions::BusQuestions(std::string address, const StopSignal& stop)
    : address_(std::move(address))
    , stop_(stop) {}

bool BusQuestions::connect() {
    connection_ = BusConnection::open(address_, stop_);
    if (connection_)
        connection_->keepAnswersOnly();
    return connection_ != nullptr;
}

std::optional<qint32> BusQuestions::processOf(const char* busName) {
    const BusMessage answer = ask("GetConnectionUnixProcessID", busName);
    dbus_uint32_t pid = 0;
    if (!isReturn(answer) ||
        !dbus_message_get_args(answer.get(), nullptr, DBUS_TYPE_UINT32, &pid, DBUS_TYPE_INVALID) ||
        pid == 0)
        return std::nullopt;
    return static_cast<qint32>(pid);
}

BusMessage BusQuestions::ask(const char* member, const char* text) {
    if (!connection_ && !connect())
        return nullptr;
    BusMessage answer = connection_->call(busCallWithText(member, text), busAnswerTime);
    if (!answer)
        connection_.reset();
    return answer;
}

} // namespace tessarine
