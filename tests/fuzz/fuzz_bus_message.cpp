// Any bytes as a message of the bus: refused by the bus's library, or read by whatever reads
// messages, with texts within their bounds.

#include "platform/linux/banners/BoundedText.h"
#include "platform/linux/banners/NotificationMessages.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

using namespace tessarine;

void check(const QString& text, qsizetype characters) {
    if (text.size() > characters * 16 + 1 || !text.isValidUtf16())
        std::abort();
}

void read(DBusMessage* message) {
    for (const auto service : {NotificationService::freedesktop, NotificationService::gtk}) {
        const auto sent = readAnnouncement(message, service);
        if (!sent)
            continue;
        check(sent->call.texts.application, longestName);
        check(sent->call.texts.title, longestTitle);
        check(sent->call.texts.body, longestBody);
        check(sent->desktopEntry, 255);
    }
    calledService(message);
    readRemoval(message);
    readClosed(message);
    firstNumber(message);
    answeredCall(message);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    DBusMessage* const message = dbus_message_demarshal(reinterpret_cast<const char*>(data),
                                                        static_cast<int>(size), nullptr);
    if (!message)
        return 0;
    read(message);
    dbus_message_unref(message);
    return 0;
}
