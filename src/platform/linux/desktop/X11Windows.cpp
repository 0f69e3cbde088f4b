#include "platform/linux/desktop/X11Windows.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPlatformSurfaceEvent>
#include <QWindow>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <utility>

#include <xcb/xcb.h>

namespace tessarine {

namespace {

struct FreeReply {
    void operator()(void* memory) const { std::free(memory); }
};

xcb_connection_t* x11Connection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_atom_t x11Atom(xcb_connection_t* x11, const QByteArray& name) {
    const std::unique_ptr<xcb_intern_atom_reply_t, FreeReply> reply(xcb_intern_atom_reply(
        x11, xcb_intern_atom(x11, false, uint16_t(name.size()), name.constData()), nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_NONE);
}

void setTextProperty(xcb_connection_t* x11, xcb_window_t window, const QByteArray& property,
                     const QByteArray& type, const QByteArray& value) {
    xcb_change_property(x11, XCB_PROP_MODE_REPLACE, window, x11Atom(x11, property),
                        x11Atom(x11, type), 8, uint32_t(value.size()), value.constData());
}

xcb_screen_t& firstScreen(xcb_connection_t* x11) {
    return *xcb_setup_roots_iterator(xcb_get_setup(x11)).data;
}

// A window has its class from its making on, before it is shown and anybody looks at it.
class WindowClass : public QObject {
public:
    WindowClass(QByteArray name, QObject* parent)
        : QObject(parent)
        , name_(std::move(name)) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::PlatformSurface || !watched->isWindowType())
            return false;
        if (static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType() ==
            QPlatformSurfaceEvent::SurfaceCreated)
            give(*static_cast<QWindow*>(watched));
        return false;
    }

private:
    // Two texts, each with its end: the instance, which is the program, and the class.
    void give(const QWindow& window) {
        xcb_connection_t* const x11 = x11Connection();
        const QByteArray program =
            QFileInfo(QCoreApplication::applicationFilePath()).fileName().toUtf8();
        setTextProperty(x11, xcb_window_t(window.winId()), "WM_CLASS", "STRING",
                        program + '\0' + name_ + '\0');
    }

    const QByteArray name_;
};

// A text in the messages of a startup notification.
QByteArray quoted(QByteArray text) {
    return '"' + text.replace('\\', "\\\\").replace('"', "\\\"") + '"';
}

// Messages of any length come in pieces of twenty bytes, the last one filled up with zeros; the
// window that they come from tells them apart from others'.
void broadcast(xcb_connection_t* x11, QByteArray text) {
    constexpr int piece = 20;
    xcb_screen_t& screen = firstScreen(x11);
    const xcb_window_t sender = xcb_generate_id(x11);
    xcb_create_window(x11, XCB_COPY_FROM_PARENT, sender, screen.root, -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    text += '\0';
    text.append((piece - text.size() % piece) % piece, '\0');
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 8;
    message.window = sender;
    message.type = x11Atom(x11, "_NET_STARTUP_INFO_BEGIN");
    for (qsizetype start = 0; start < text.size(); start += piece) {
        std::copy_n(text.constData() + start, piece, message.data.data8);
        xcb_send_event(x11, false, screen.root, XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&message));
        message.type = x11Atom(x11, "_NET_STARTUP_INFO");
    }
    xcb_destroy_window(x11, sender);
    xcb_flush(x11);
}

} // namespace

bool isX11() {
    return x11Connection() != nullptr;
}

void setWindowClass(const QString& name) {
    if (isX11())
        qGuiApp->installEventFilter(new WindowClass(name.toUtf8(), qGuiApp));
}

std::uint32_t timeOfStartup(const QByteArray& startupId) {
    const QByteArray mark = "_TIME";
    const qsizetype place = startupId.lastIndexOf(mark);
    bool isNumber = false;
    const qulonglong time =
        place < 0 ? 0 : startupId.mid(place + mark.size()).toULongLong(&isNumber);
    return isNumber && time <= UINT32_MAX ? std::uint32_t(time) : 0;
}

void activateByStartup(QWindow& window, const QByteArray& startupId) {
    xcb_connection_t* const x11 = x11Connection();
    if (!x11)
        return;
    setTextProperty(x11, xcb_window_t(window.winId()), "_NET_STARTUP_ID", "UTF8_STRING", startupId);
    xcb_client_message_event_t request{};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = xcb_window_t(window.winId());
    request.type = x11Atom(x11, "_NET_ACTIVE_WINDOW");
    request.data.data32[0] = 1; // an application asks
    request.data.data32[1] = timeOfStartup(startupId);
    xcb_send_event(x11, false, firstScreen(x11).root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&request));
    xcb_flush(x11);
}

void endStartup(const QByteArray& startupId) {
    if (xcb_connection_t* const x11 = x11Connection())
        broadcast(x11, "remove: ID=" + quoted(startupId));
}

// A compositor holds a selection of this name for the screen.
bool isComposited() {
    xcb_connection_t* const x11 = x11Connection();
    if (!x11)
        return true;
    const std::unique_ptr<xcb_get_selection_owner_reply_t, FreeReply> reply(
        xcb_get_selection_owner_reply(
            x11, xcb_get_selection_owner(x11, x11Atom(x11, "_NET_WM_CM_S0")), nullptr));
    return reply && reply->owner != XCB_NONE;
}

// Qt keeps the states that it doesn't know of when it shows the window.
void skipTaskBarAndPager(QWindow& window) {
    xcb_connection_t* const x11 = x11Connection();
    if (!x11)
        return;
    const std::array states{x11Atom(x11, "_NET_WM_STATE_SKIP_TASKBAR"),
                            x11Atom(x11, "_NET_WM_STATE_SKIP_PAGER")};
    xcb_change_property(x11, XCB_PROP_MODE_APPEND, xcb_window_t(window.winId()),
                        x11Atom(x11, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32, uint32_t(states.size()),
                        states.data());
    xcb_flush(x11);
}

} // namespace tessarine
