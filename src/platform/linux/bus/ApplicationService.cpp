#include "platform/linux/bus/ApplicationService.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QVariantMap>

namespace tessarine {

namespace {

const QString serviceName = QStringLiteral("com.zorvek.Tessarine");
const QString servicePath = QStringLiteral("/com/zorvek/Tessarine");
const QString serviceInterface = QStringLiteral("org.freedesktop.Application");

constexpr int lastWordTime = 1000; // milliseconds for the bus to take an answer before the end

QDBusMessage callOfBus(const QString& member) {
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    return QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus,
                                          member);
}

// The name comes when the bus has it to give; whoever started the program by it waits that long.
QDBusMessage requestForName() {
    QDBusMessage request = callOfBus(QStringLiteral("RequestName"));
    request << serviceName << 0U; // wait in the queue for it
    return request;
}

// What the platform data of a call hold; newer desktops give both, with the same value.
QString tokenIn(const QVariant& argument) {
    const auto data = qdbus_cast<QVariantMap>(argument);
    const QString token = data.value(QStringLiteral("activation-token")).toString();
    return token.isEmpty() ? data.value(QStringLiteral("desktop-startup-id")).toString() : token;
}

} // namespace

ApplicationService::ApplicationService(const QDBusConnection& bus,
                                       SingleInstance::Requests requests)
    : bus_(bus)
    , requests_(std::move(requests)) {
    if (!bus_.isConnected())
        return;
    bus_.registerVirtualObject(servicePath, this);
    bus_.asyncCall(requestForName());
}

ApplicationService::~ApplicationService() {
    if (!bus_.isConnected())
        return;
    bus_.unregisterObject(servicePath);
    QDBusMessage release = callOfBus(QStringLiteral("ReleaseName"));
    release << serviceName;
    bus_.asyncCall(release);
}

QString ApplicationService::introspect(const QString&) const {
    return QStringLiteral("<interface name=\"org.freedesktop.Application\">"
                          "<method name=\"Activate\">"
                          "<arg type=\"a{sv}\" name=\"platform-data\" direction=\"in\"/>"
                          "</method>"
                          "<method name=\"Open\">"
                          "<arg type=\"as\" name=\"uris\" direction=\"in\"/>"
                          "<arg type=\"a{sv}\" name=\"platform-data\" direction=\"in\"/>"
                          "</method>"
                          "<method name=\"ActivateAction\">"
                          "<arg type=\"s\" name=\"action-name\" direction=\"in\"/>"
                          "<arg type=\"av\" name=\"parameter\" direction=\"in\"/>"
                          "<arg type=\"a{sv}\" name=\"platform-data\" direction=\"in\"/>"
                          "</method>"
                          "</interface>");
}

// Files are nothing that the program opens: being asked to is being activated.
bool ApplicationService::handleMessage(const QDBusMessage& call, const QDBusConnection&) {
    if (!call.interface().isEmpty() && call.interface() != serviceInterface)
        return false;
    const QList<QVariant> arguments = call.arguments();
    const QString member = call.member();
    if (member == QStringLiteral("ActivateAction") &&
        call.signature() == QStringLiteral("sava{sv}"))
        return activateAction(call);
    if ((member == QStringLiteral("Activate") && call.signature() == QStringLiteral("a{sv}")) ||
        (member == QStringLiteral("Open") && call.signature() == QStringLiteral("asa{sv}"))) {
        reply(call.createReply());
        requests_.activate(tokenIn(arguments.back()));
        return true;
    }
    return false;
}

bool ApplicationService::activateAction(const QDBusMessage& call) {
    const QString action = call.arguments().front().toString();
    if (action == QStringLiteral("open")) {
        reply(call.createReply());
        requests_.open(tokenIn(call.arguments().back()));
    } else if (action == QStringLiteral("quit")) {
        reply(call.createReply());
        // What was said before is on its way once this is answered.
        bus_.call(callOfBus(QStringLiteral("GetId")), QDBus::Block, lastWordTime);
        requests_.quit();
    } else {
        reply(call.createErrorReply(QDBusError::InvalidArgs,
                                    QStringLiteral("The program has no such action")));
    }
    return true;
}

void ApplicationService::reply(const QDBusMessage& answer) {
    bus_.send(answer);
}

} // namespace tessarine
