#include "platform/linux/banners/NotificationMessages.h"

#include "platform/linux/banners/BoundedText.h"
#include "platform/linux/banners/NotificationInterfaces.h"
#include "platform/linux/banners/NotificationMarkup.h"

#include <string_view>

namespace tessarine {

namespace {

// The bus allows no longer names; ids that applications make up are told apart by so many bytes.
constexpr std::size_t longestId = 255;

const char* orEmpty(const char* text) {
    return text ? text : "";
}

// The view lives as long as the message.
std::string_view textAt(DBusMessageIter& at) {
    const char* text = "";
    dbus_message_iter_get_basic(&at, static_cast<void*>(&text));
    return text;
}

// The arguments of a message, one after the other.
class Arguments {
public:
    explicit Arguments(DBusMessage* message) { dbus_message_iter_init(message, &at_); }

    std::string_view text() {
        const std::string_view text = textAt(at_);
        dbus_message_iter_next(&at_);
        return text;
    }

    std::uint32_t number() {
        std::uint32_t number = 0;
        dbus_message_iter_get_basic(&at_, &number);
        dbus_message_iter_next(&at_);
        return number;
    }

    void skip() { dbus_message_iter_next(&at_); }

    // The text that stands first under a key of the dictionary that follows. Empty when there is
    // none.
    std::string_view textUnder(std::string_view key) {
        DBusMessageIter pair;
        for (dbus_message_iter_recurse(&at_, &pair);
             dbus_message_iter_get_arg_type(&pair) == DBUS_TYPE_DICT_ENTRY;
             dbus_message_iter_next(&pair)) {
            DBusMessageIter entry;
            dbus_message_iter_recurse(&pair, &entry);
            if (textAt(entry) != key)
                continue;
            dbus_message_iter_next(&entry);
            DBusMessageIter value;
            dbus_message_iter_recurse(&entry, &value);
            return dbus_message_iter_get_arg_type(&value) == DBUS_TYPE_STRING ? textAt(value)
                                                                              : std::string_view();
        }
        return {};
    }

private:
    DBusMessageIter at_;
};

bool isCall(DBusMessage* message, const char* member, const char* signature) {
    return dbus_message_get_type(message) == DBUS_MESSAGE_TYPE_METHOD_CALL &&
           dbus_message_has_member(message, member) &&
           dbus_message_has_signature(message, signature);
}

AnnouncementKey keyOf(DBusMessage* call) {
    return {senderOf(call), dbus_message_get_serial(call)};
}

// No application has an id that is longer than a name may be.
QString applicationId(std::string_view id) {
    return id.size() <= longestId ? QString::fromUtf8(id) : QString();
}

std::optional<SentAnnouncement> readNotify(DBusMessage* call) {
    if (!isCall(call, notifications::notify, notifications::notifySignature))
        return std::nullopt;
    SentAnnouncement sent;
    AnnouncedTexts& texts = sent.call.texts;
    Arguments arguments(call);
    sent.call.key = keyOf(call);
    texts.application = boundedText(arguments.text(), longestName);
    sent.call.id = arguments.number();
    arguments.skip(); // the icon
    texts.title = boundedText(arguments.text(), longestTitle);
    texts.body = withoutMarkup(arguments.text(), longestBody);
    arguments.skip(); // the actions
    if (texts.application.isEmpty())
        sent.desktopEntry = applicationId(arguments.textUnder(notifications::desktopEntryHint));
    return sent;
}

BannerName readName(Arguments& arguments) {
    BannerName name;
    name.application = arguments.text().substr(0, longestId);
    name.name = arguments.text().substr(0, longestId);
    return name;
}

std::optional<SentAnnouncement> readAddNotification(DBusMessage* call) {
    if (!isCall(call, notifications::addNotification, notifications::addNotificationSignature))
        return std::nullopt;
    SentAnnouncement sent;
    Arguments arguments(call);
    sent.call.key = keyOf(call);
    sent.call.id = readName(arguments);
    sent.call.texts.title = boundedText(arguments.textUnder(notifications::titleKey), longestTitle);
    sent.call.texts.body = boundedText(arguments.textUnder(notifications::bodyKey), longestBody);
    sent.desktopEntry = applicationId(Arguments(call).text());
    return sent;
}

} // namespace

std::optional<NotificationService> calledService(DBusMessage* call) {
    const std::string_view interface = orEmpty(dbus_message_get_interface(call));
    const std::string_view path = orEmpty(dbus_message_get_path(call));
    for (const auto service : {NotificationService::freedesktop, NotificationService::gtk}) {
        const NotificationInterface names = interfaceOf(service);
        if (interface.empty() ? path == names.path : interface == names.name)
            return service;
    }
    return std::nullopt;
}

std::optional<SentAnnouncement> readAnnouncement(DBusMessage* call, NotificationService service) {
    return service == NotificationService::freedesktop ? readNotify(call)
                                                       : readAddNotification(call);
}

std::optional<BannerName> readRemoval(DBusMessage* call) {
    if (!isCall(call, notifications::removeNotification,
                notifications::removeNotificationSignature))
        return std::nullopt;
    Arguments arguments(call);
    return readName(arguments);
}

std::optional<std::uint32_t> readClosed(DBusMessage* signal) {
    const bool isClosed =
        dbus_message_is_signal(signal, interfaceOf(NotificationService::freedesktop).name,
                               notifications::notificationClosed);
    return isClosed ? firstNumber(signal) : std::nullopt;
}

std::optional<std::uint32_t> firstNumber(DBusMessage* message) {
    DBusMessageIter at;
    std::uint32_t number = 0;
    if (!dbus_message_iter_init(message, &at) ||
        dbus_message_iter_get_arg_type(&at) != DBUS_TYPE_UINT32)
        return std::nullopt;
    dbus_message_iter_get_basic(&at, &number);
    return number;
}

AnnouncementKey answeredCall(DBusMessage* reply) {
    return {destinationOf(reply), dbus_message_get_reply_serial(reply)};
}

const char* senderOf(DBusMessage* message) {
    return orEmpty(dbus_message_get_sender(message));
}

const char* destinationOf(DBusMessage* message) {
    return orEmpty(dbus_message_get_destination(message));
}

} // namespace tessarine
