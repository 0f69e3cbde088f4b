#include "platform/linux/desktop/LinuxTrayWatch.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QGuiApplication>

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace tessarine {

namespace {

// As the StatusNotifierItem specification names them; every host answers to this older name.
const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");
const QString hostProperty = QStringLiteral("IsStatusNotifierHostRegistered");

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

template <typename Reply>
using Owned = std::unique_ptr<Reply, Free>;

xcb_connection_t* connection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t rootWindow(xcb_connection_t* x11) {
    return xcb_setup_roots_iterator(xcb_get_setup(x11)).data->root;
}

xcb_atom_t atom(xcb_connection_t* x11, const QByteArray& name) {
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        x11, xcb_intern_atom(x11, false, uint16_t(name.size()), name.constData()), nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_NONE);
}

// Adds to the events that this client gets from a window, which Qt has chosen in part.
void selectStructureEvents(xcb_connection_t* x11, xcb_window_t window) {
    const Owned<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(x11, xcb_get_window_attributes(x11, window), nullptr));
    if (!attributes)
        return;
    const uint32_t events = attributes->your_event_mask | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(x11, window, XCB_CW_EVENT_MASK, &events);
    xcb_flush(x11);
}

} // namespace

LinuxTrayWatch::LinuxTrayWatch(const QDBusConnection& bus)
    : bus_(bus) {
    watchBus();
    watchScreen();
}

LinuxTrayWatch::~LinuxTrayWatch() = default;

void LinuxTrayWatch::watchBus() {
    if (!bus_.isConnected())
        return;
    auto* service = new QDBusServiceWatcher(watcherService, bus_,
                                            QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(service, &QDBusServiceWatcher::serviceRegistered, this, &LinuxTrayWatch::askForHost);
    connect(service, &QDBusServiceWatcher::serviceUnregistered, this, &LinuxTrayWatch::onHostGone);
    // Any sender: with a name, Qt would ask the bus for its owner and wait for the answer.
    bus_.connect(QString(), watcherPath, watcherService,
                 QStringLiteral("StatusNotifierHostRegistered"), this, SLOT(askForHost()));
    bus_.connect(QString(), watcherPath, watcherService,
                 QStringLiteral("StatusNotifierHostUnregistered"), this, SLOT(askForHost()));
    askForHost();
}

void LinuxTrayWatch::askForHost() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        watcherService, watcherPath, QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    question << watcherService << hostProperty;
    question.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        set(hasHost_, reply.isValid() && reply.value().variant().toBool());
    });
}

void LinuxTrayWatch::onHostGone() {
    set(hasHost_, false);
}

void LinuxTrayWatch::watchScreen() {
    xcb_connection_t* x11 = connection();
    if (!x11)
        return;
    traySelection_ = atom(x11, "_NET_SYSTEM_TRAY_S0");
    managerMessage_ = atom(x11, "MANAGER");
    selectStructureEvents(x11, rootWindow(x11));
    QCoreApplication::instance()->installNativeEventFilter(this);
    lookForSelectionOwner();
}

void LinuxTrayWatch::lookForSelectionOwner() {
    xcb_connection_t* x11 = connection();
    const Owned<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(x11, xcb_get_selection_owner(x11, traySelection_), nullptr));
    selectionOwner_ = reply ? reply->owner : xcb_window_t(XCB_NONE);
    if (selectionOwner_ != XCB_NONE)
        selectStructureEvents(x11, selectionOwner_);
    set(hasSelectionOwner_, selectionOwner_ != XCB_NONE);
}

// A tray announces itself by a message to the root window, and is gone with its window.
bool LinuxTrayWatch::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
    if (type != "xcb_generic_event_t")
        return false;
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    switch (event->response_type & 0x7f) {
    case XCB_CLIENT_MESSAGE: {
        const auto* note = static_cast<const xcb_client_message_event_t*>(message);
        if (note->type == managerMessage_ && note->data.data32[1] == traySelection_)
            lookForSelectionOwner();
        break;
    }
    case XCB_DESTROY_NOTIFY: {
        const auto* note = static_cast<const xcb_destroy_notify_event_t*>(message);
        if (note->window == selectionOwner_ && selectionOwner_ != XCB_NONE)
            lookForSelectionOwner();
        break;
    }
    }
    return false;
}

void LinuxTrayWatch::set(bool& field, bool value) {
    const bool before = isPresent();
    field = value;
    if (isPresent() != before)
        Q_EMIT changed();
}

} // namespace tessarine
