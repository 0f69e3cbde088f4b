#include "platform/linux/banners/NotificationMessages.h"

#include "platform/linux/bus/BusClient.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <functional>

namespace tessarine {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::BusMessage;

constexpr auto freedesktop = NotificationService::freedesktop;
constexpr auto gtk = NotificationService::gtk;

using Append = std::function<void(DBusMessageIter& at)>;

Append text(const std::string& value) {
    return [value](DBusMessageIter& at) {
        const char* const bytes = value.c_str();
        dbus_message_iter_append_basic(&at, DBUS_TYPE_STRING, &bytes);
    };
}

Append number(int value) {
    return [value](DBusMessageIter& at) {
        dbus_message_iter_append_basic(&at, DBUS_TYPE_INT32, &value);
    };
}

Append variant(const std::string& signature, const Append& value) {
    return [=](DBusMessageIter& at) {
        DBusMessageIter inside;
        dbus_message_iter_open_container(&at, DBUS_TYPE_VARIANT, signature.c_str(), &inside);
        value(inside);
        dbus_message_iter_close_container(&at, &inside);
    };
}

Append texts(const std::vector<std::string>& values) {
    return [=](DBusMessageIter& at) {
        DBusMessageIter inside;
        dbus_message_iter_open_container(&at, DBUS_TYPE_ARRAY, "s", &inside);
        for (const std::string& value : values)
            text(value)(inside);
        dbus_message_iter_close_container(&at, &inside);
    };
}

using Entry = std::pair<std::string, Append>;

Append dictionary(const std::vector<Entry>& entries) {
    return [=](DBusMessageIter& at) {
        DBusMessageIter inside;
        dbus_message_iter_open_container(&at, DBUS_TYPE_ARRAY, "{sv}", &inside);
        for (const auto& [key, value] : entries) {
            DBusMessageIter entry;
            dbus_message_iter_open_container(&inside, DBUS_TYPE_DICT_ENTRY, nullptr, &entry);
            text(key)(entry);
            value(entry);
            dbus_message_iter_close_container(&inside, &entry);
        }
        dbus_message_iter_close_container(&at, &inside);
    };
}

Entry textEntry(const std::string& key, const std::string& value) {
    return {key, variant("s", text(value))};
}

BusMessage call(const char* interface, const char* member, const std::vector<Append>& arguments) {
    BusMessage message{dbus_message_new_method_call(nullptr, "/a/path", interface, member)};
    DBusMessageIter at;
    dbus_message_iter_init_append(message.get(), &at);
    for (const Append& append : arguments)
        append(at);
    return message;
}

BusMessage add(const std::string& application, const std::string& id,
               const std::vector<Entry>& entries) {
    return call("org.gtk.Notifications", "AddNotification",
                {text(application), text(id), dictionary(entries)});
}

AnnouncedTexts textsOf(const std::vector<Entry>& entries) {
    const auto sent = readAnnouncement(add("org.example.App", "id", entries).get(), gtk);
    return sent ? sent->call.texts : AnnouncedTexts{u"nothing"_qs, {}, {}};
}

// ---- which service a call is for

std::optional<NotificationService> called(const char* path, const char* interface) {
    const BusMessage message{dbus_message_new_method_call(nullptr, path, interface, "Notify")};
    return calledService(message.get());
}

TEST(CalledService, IsTheOneOfTheInterface) {
    EXPECT_EQ(called("/", "org.freedesktop.Notifications"), freedesktop);
    EXPECT_EQ(called("/org/freedesktop/Notifications", "org.gtk.Notifications"), gtk);
    EXPECT_EQ(called("/org/gtk/Notifications", "org.example.Notifications"), std::nullopt);
    EXPECT_EQ(called("/org/gtk/Notifications", "org.freedesktop.portal.Notification"),
              std::nullopt);
}

TEST(CalledService, IsElseTheOneOfThePath) {
    EXPECT_EQ(called("/org/freedesktop/Notifications", nullptr), freedesktop);
    EXPECT_EQ(called("/org/gtk/Notifications", nullptr), gtk);
    EXPECT_EQ(called("/org/gtk/Notifications/more", nullptr), std::nullopt);
}

// ---- Notify

TEST(ReadNotify, TakesWhatABannerShows) {
    const BusMessage message = testing::notifyCall(
        {.application = "Foo, Inc.", .summary = "<b>1</b>", .body = "<b>2</b>", .replacesId = 7});
    dbus_message_set_serial(message.get(), 12);
    dbus_message_set_sender(message.get(), ":1.5");
    const auto sent = readAnnouncement(message.get(), freedesktop);
    ASSERT_TRUE(sent);
    EXPECT_EQ(sent->call.key, AnnouncementKey(":1.5", 12));
    EXPECT_EQ(sent->call.id, BannerId(7U));
    EXPECT_EQ(sent->call.texts, (AnnouncedTexts{u"Foo, Inc."_qs, u"<b>1</b>"_qs, u"2"_qs}));
    EXPECT_EQ(sent->desktopEntry, QString());
}

QString entryHint(const std::vector<Entry>& hints) {
    const BusMessage message =
        call("org.freedesktop.Notifications", "Notify",
             {text(""),
              [](auto& at) {
                  const std::uint32_t none = 0;
                  dbus_message_iter_append_basic(&at, DBUS_TYPE_UINT32, &none);
              },
              text(""), text("title"), text(""), texts({}), dictionary(hints), number(-1)});
    const auto sent = readAnnouncement(message.get(), freedesktop);
    return sent ? sent->desktopEntry : u"nothing"_qs;
}

TEST(ReadNotify, FindsTheDesktopEntryAmongTheHints) {
    EXPECT_EQ(entryHint({{"urgency", variant("i", number(1))},
                         textEntry("desktop-entry", "org.example.App"),
                         textEntry("category", "im")}),
              u"org.example.App"_qs);
}

TEST(ReadNotify, TakesADesktopEntryOfAnotherTypeForNone) {
    EXPECT_EQ(entryHint({{"desktop-entry", variant("i", number(5))}}), QString());
    EXPECT_EQ(entryHint({{"desktop-entry", variant("as", texts({"org.example.App"}))}}), QString());
    EXPECT_EQ(entryHint({{"desktop-entry", variant("v", variant("s", text("org.example.App")))}}),
              QString());
}

TEST(ReadNotify, TakesADesktopEntryThatNobodyCanHaveForNone) {
    EXPECT_EQ(entryHint({textEntry("desktop-entry", std::string(256, 'x'))}), QString());
}

TEST(ReadNotify, LooksForNoDesktopEntryWhereTheNameIsTold) {
    const BusMessage message =
        testing::notifyCall({.summary = "title", .hints = [](DBusMessageIter& hints) {
                                 testing::appendTextHint(hints, "desktop-entry", "org.example.App");
                             }});
    EXPECT_EQ(readAnnouncement(message.get(), freedesktop)->desktopEntry, QString());
}

TEST(ReadNotify, GivesNothingForOtherArguments) {
    const char* const interface = "org.freedesktop.Notifications";
    EXPECT_FALSE(readAnnouncement(call(interface, "Notify", {}).get(), freedesktop));
    EXPECT_FALSE(readAnnouncement(call(interface, "Notify", {text("Mail")}).get(), freedesktop));
    EXPECT_FALSE(readAnnouncement(call(interface, "GetCapabilities", {}).get(), freedesktop));
    const BusMessage signal{dbus_message_new_signal("/a", interface, "Notify")};
    EXPECT_FALSE(readAnnouncement(signal.get(), freedesktop));
}

// ---- AddNotification

TEST(ReadAddNotification, TakesTitleAndBody) {
    const BusMessage message = add("org.example.App", "tea",
                                   {textEntry("body", "<b>2</b> &amp;"),
                                    {"icon", variant("i", number(1))},
                                    textEntry("title", "1")});
    dbus_message_set_serial(message.get(), 12);
    dbus_message_set_sender(message.get(), ":1.5");
    const auto sent = readAnnouncement(message.get(), gtk);
    ASSERT_TRUE(sent);
    EXPECT_EQ(sent->call.key, AnnouncementKey(":1.5", 12));
    EXPECT_EQ(sent->call.id, BannerId(BannerName{"org.example.App", "tea"}));
    EXPECT_EQ(sent->call.texts, (AnnouncedTexts{{}, u"1"_qs, u"<b>2</b> &amp;"_qs}));
    EXPECT_EQ(sent->desktopEntry, u"org.example.App"_qs);
}

TEST(ReadAddNotification, TakesTextsOfOtherTypesForNone) {
    const AnnouncedTexts none;
    EXPECT_EQ(textsOf({}), none);
    EXPECT_EQ(textsOf({{"title", variant("i", number(1))}, {"body", variant("as", texts({"x"}))}}),
              none);
    EXPECT_EQ(textsOf({{"title", variant("v", variant("s", text("x")))}}), none);
    EXPECT_EQ(textsOf({{"title", variant("a{sv}", dictionary({textEntry("title", "x")}))}}), none);
    EXPECT_EQ(textsOf({textEntry("Title", "x"), textEntry("", "y"), textEntry("body ", "z")}),
              none);
}

TEST(ReadAddNotification, TakesTheFirstOfTwoTitles) {
    EXPECT_EQ(textsOf({textEntry("title", "1"), textEntry("title", "2")}),
              (AnnouncedTexts{{}, u"1"_qs, {}}));
}

TEST(ReadAddNotification, BoundsTexts) {
    const std::string megabyte(1000000, 'x');
    const auto start = [](int length) { return QString(length, u'x') + u'…'; };
    EXPECT_EQ(textsOf({textEntry("title", megabyte), textEntry("body", megabyte)}),
              (AnnouncedTexts{{}, start(2000), start(20000)}));
}

TEST(ReadAddNotification, BoundsWhatItIsKnownBy) {
    const std::string megabyte(1000000, 'x');
    const auto sent = readAnnouncement(add(megabyte, megabyte, {}).get(), gtk);
    ASSERT_TRUE(sent);
    const auto& name = std::get<BannerName>(sent->call.id);
    EXPECT_EQ(name.application.size(), 255U);
    EXPECT_EQ(name.name.size(), 255U);
    EXPECT_EQ(sent->desktopEntry, QString()) << "no application has such an id";
}

TEST(ReadAddNotification, FindsTheTitleBehindManyOthers) {
    std::vector<Entry> entries;
    entries.reserve(10001);
    for (int i = 0; i < 10000; ++i)
        entries.push_back(textEntry("key " + std::to_string(i), "value"));
    entries.push_back(textEntry("title", "last"));
    EXPECT_EQ(textsOf(entries), (AnnouncedTexts{{}, u"last"_qs, {}}));
}

TEST(ReadAddNotification, GivesNothingForOtherArguments) {
    const char* const interface = "org.gtk.Notifications";
    EXPECT_FALSE(readAnnouncement(call(interface, "AddNotification", {}).get(), gtk));
    EXPECT_FALSE(readAnnouncement(
        call(interface, "AddNotification", {text("app"), dictionary({textEntry("title", "x")})})
            .get(),
        gtk));
    EXPECT_FALSE(readAnnouncement(testing::notifyCall({.summary = "title"}).get(), gtk));
    EXPECT_FALSE(readAnnouncement(add("app", "id", {}).get(), freedesktop));
}

// ---- the others

TEST(ReadRemoval, TakesTheNameOfTheBanner) {
    EXPECT_EQ(readRemoval(call("org.gtk.Notifications", "RemoveNotification",
                               {text("org.example.App"), text("tea")})
                              .get()),
              (BannerName{"org.example.App", "tea"}));
    EXPECT_EQ(readRemoval(call("org.gtk.Notifications", "RemoveNotification", {}).get()),
              std::nullopt);
    EXPECT_EQ(readRemoval(add("org.example.App", "tea", {}).get()), std::nullopt);
}

TEST(ReadClosed, TakesTheNumberOfTheBanner) {
    const char* const interface = "org.freedesktop.Notifications";
    const BusMessage closed{dbus_message_new_signal("/a", interface, "NotificationClosed")};
    EXPECT_EQ(readClosed(closed.get()), std::nullopt);
    const dbus_uint32_t number = 5;
    dbus_message_append_args(closed.get(), DBUS_TYPE_UINT32, &number, DBUS_TYPE_INVALID);
    EXPECT_EQ(readClosed(closed.get()), 5U);
    const BusMessage other{dbus_message_new_signal("/a", interface, "ActionInvoked")};
    dbus_message_append_args(other.get(), DBUS_TYPE_UINT32, &number, DBUS_TYPE_INVALID);
    EXPECT_EQ(readClosed(other.get()), std::nullopt);
}

} // namespace
} // namespace tessarine
