// Announcements that the bus's library has built from any arguments: what other programs can send
// and the bus lets through.

#include "platform/linux/banners/NotificationMessages.h"

#include <QString>

#include <dbus/dbus.h>

#include <array>
#include <cstdlib>
#include <string>

#include <fuzzer/FuzzedDataProvider.h>

namespace {

using namespace tessarine;

// Builds one message; the input says of what.
class MessageBuilder {
public:
    explicit MessageBuilder(FuzzedDataProvider& input)
        : input_(input) {}

    DBusMessage* build() {
        constexpr std::array members{"Notify", "AddNotification", "RemoveNotification"};
        DBusMessage* const message =
            dbus_message_new_method_call(nullptr, "/org/gtk/Notifications", "org.gtk.Notifications",
                                         input_.PickValueInArray(members));
        dbus_message_set_serial(message, 7);
        DBusMessageIter at;
        dbus_message_iter_init_append(message, &at);
        if (dbus_message_has_member(message, "Notify"))
            appendNotify(at);
        else if (dbus_message_has_member(message, "AddNotification"))
            appendAddNotification(at);
        else
            appendAny(at, 0);
        return message;
    }

private:
    // The library takes text that is no UTF-8 for a fault of the program.
    std::string text() {
        QString text = QString::fromStdString(input_.ConsumeRandomLengthString(200));
        text.remove(QChar(0));
        const int times = input_.ConsumeBool() ? input_.ConsumeIntegralInRange(0, 500) : 1;
        return text.repeated(times).toStdString();
    }

    void appendText(DBusMessageIter& at, const std::string& text) {
        const char* const bytes = text.c_str();
        dbus_message_iter_append_basic(&at, DBUS_TYPE_STRING, &bytes);
    }

    void appendNumber(DBusMessageIter& at, int type) {
        const auto number = input_.ConsumeIntegral<std::uint32_t>();
        dbus_message_iter_append_basic(&at, type, &number);
    }

    void appendNotify(DBusMessageIter& at) {
        appendText(at, text());
        appendNumber(at, DBUS_TYPE_UINT32);
        for (int i = 0; i < 3; ++i)
            appendText(at, text());
        DBusMessageIter actions;
        dbus_message_iter_open_container(&at, DBUS_TYPE_ARRAY, "s", &actions);
        dbus_message_iter_close_container(&at, &actions);
        appendDictionary(at, 0);
        appendNumber(at, DBUS_TYPE_INT32);
    }

    void appendAddNotification(DBusMessageIter& at) {
        appendText(at, text());
        appendText(at, text());
        appendDictionary(at, 0);
    }

    void appendDictionary(DBusMessageIter& at, int depth) {
        constexpr std::array keys{"title", "body", "desktop-entry", "icon", ""};
        DBusMessageIter dictionary;
        dbus_message_iter_open_container(&at, DBUS_TYPE_ARRAY, "{sv}", &dictionary);
        while (input_.ConsumeBool()) {
            DBusMessageIter entry;
            dbus_message_iter_open_container(&dictionary, DBUS_TYPE_DICT_ENTRY, nullptr, &entry);
            appendText(entry, input_.ConsumeBool() ? input_.PickValueInArray(keys) : text());
            appendVariant(entry, depth);
            dbus_message_iter_close_container(&dictionary, &entry);
        }
        dbus_message_iter_close_container(&at, &dictionary);
    }

    void appendVariant(DBusMessageIter& at, int depth) {
        constexpr std::array signatures{"s", "u", "a{sv}", "v"};
        const std::string signature = depth > 20 ? "s" : input_.PickValueInArray(signatures);
        DBusMessageIter inside;
        dbus_message_iter_open_container(&at, DBUS_TYPE_VARIANT, signature.c_str(), &inside);
        if (signature == "s")
            appendText(inside, text());
        else if (signature == "u")
            appendNumber(inside, DBUS_TYPE_UINT32);
        else if (signature == "v")
            appendVariant(inside, depth + 1);
        else
            appendDictionary(inside, depth + 1);
        dbus_message_iter_close_container(&at, &inside);
    }

    void appendAny(DBusMessageIter& at, int depth) {
        while (input_.ConsumeBool()) {
            if (input_.ConsumeBool())
                appendText(at, text());
            else
                appendVariant(at, depth);
        }
    }

    FuzzedDataProvider& input_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    DBusMessage* const message = MessageBuilder(input).build();
    const bool isNotify = dbus_message_has_member(message, "Notify");
    const bool isAdd = dbus_message_has_member(message, "AddNotification");
    if (readAnnouncement(message, NotificationService::freedesktop).has_value() != isNotify ||
        readAnnouncement(message, NotificationService::gtk).has_value() != isAdd)
        std::abort();
    readRemoval(message);
    readClosed(message);
    firstNumber(message);
    dbus_message_unref(message);
    return 0;
}
