#include "platform/linux/NotifyMessage.h"

#include "platform/linux/NotificationMarkup.h"
#include "platform/linux/NotificationsInterface.h"

#include <cstring>

namespace tessarine {

namespace {

const char* orEmpty(const char* text) {
    return text ? text : "";
}

const char* textAt(DBusMessageIter& at) {
    const char* text = "";
    dbus_message_iter_get_basic(&at, static_cast<void*>(&text));
    return text;
}

// The text of a variant. Empty when it holds something else.
QString variantText(DBusMessageIter& variant) {
    DBusMessageIter value;
    dbus_message_iter_recurse(&variant, &value);
    if (dbus_message_iter_get_arg_type(&value) != DBUS_TYPE_STRING)
        return {};
    return QString::fromUtf8(textAt(value));
}

} // namespace

std::optional<Announcement> readNotify(DBusMessage* message) {
    DBusMessageIter at;
    if (dbus_message_get_type(message) != DBUS_MESSAGE_TYPE_METHOD_CALL ||
        !dbus_message_has_member(message, notifications::notify) ||
        !dbus_message_has_signature(message, notifications::notifySignature) ||
        !dbus_message_iter_init(message, &at))
        return std::nullopt;
    Announcement announcement;
    announcement.key = {orEmpty(dbus_message_get_sender(message)),
                        dbus_message_get_serial(message)};
    announcement.destination = orEmpty(dbus_message_get_destination(message));
    announcement.texts.application = QString::fromUtf8(textAt(at));
    dbus_message_iter_next(&at);
    dbus_message_iter_get_basic(&at, &announcement.replacesId);
    dbus_message_iter_next(&at); // to the icon
    dbus_message_iter_next(&at);
    announcement.texts.summary = QString::fromUtf8(textAt(at));
    dbus_message_iter_next(&at);
    announcement.texts.body = withoutMarkup(QString::fromUtf8(textAt(at)));
    return announcement;
}

QString desktopEntryHint(DBusMessage* notify) {
    DBusMessageIter at;
    dbus_message_iter_init(notify, &at);
    for (int argument = 0; argument < 6; ++argument)
        dbus_message_iter_next(&at);
    DBusMessageIter hint;
    for (dbus_message_iter_recurse(&at, &hint);
         dbus_message_iter_get_arg_type(&hint) == DBUS_TYPE_DICT_ENTRY;
         dbus_message_iter_next(&hint)) {
        DBusMessageIter entry;
        dbus_message_iter_recurse(&hint, &entry);
        if (std::strcmp(textAt(entry), notifications::desktopEntryHint) != 0)
            continue;
        dbus_message_iter_next(&entry);
        return variantText(entry);
    }
    return {};
}

AnnouncementKey answeredCall(DBusMessage* reply) {
    return {orEmpty(dbus_message_get_destination(reply)), dbus_message_get_reply_serial(reply)};
}

} // namespace tessarine
