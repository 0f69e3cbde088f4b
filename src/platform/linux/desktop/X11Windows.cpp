#include "platform/linux/desktop/X11Windows.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QWindow>

#include <array>
#include <cstdlib>
#include <memory>

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

} // namespace

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
