#include "platform/linux/bus/ReturningService.h"

#include <algorithm>
#include <chrono>

namespace tessarine {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds firstRetry{500};
constexpr milliseconds longestRetry{30000};

const QString ownConnections = QStringLiteral("com.zorvek.Tessarine.");

// What a connection that is lost tells its own program.
const QString localPath = QStringLiteral("/org/freedesktop/DBus/Local");
const QString localInterface = QStringLiteral("org.freedesktop.DBus.Local");
const QString disconnected = QStringLiteral("Disconnected");

} // namespace

// Qt never connects the shared one again.
QDBusConnection currentSessionBus() {
    QDBusConnection shared = QDBusConnection::sessionBus();
    if (shared.isConnected())
        return shared;
    static int number = 0;
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus,
                                         ownConnections + QString::number(++number));
}

ReturningService::ReturningService(Bus bus, SingleInstance::Requests requests)
    : bus_(std::move(bus))
    , requests_(std::move(requests)) {
    retry_.setSingleShot(true);
    retry_.setInterval(firstRetry);
    connect(&retry_, &QTimer::timeout, this, &ReturningService::serve);
    serve();
    retry_.stop(); // without a bus at the start there is none in this session
}

ReturningService::~ReturningService() = default;

void ReturningService::serve() {
    dropConnection();
    QDBusConnection bus = bus_();
    connectionName_ = bus.name();
    const bool isWatched =
        bus.isConnected() && bus.connect(QString(), localPath, localInterface, disconnected, this,
                                         SLOT(onDisconnected()));
    if (!isWatched) {
        retry_.start(std::min(2 * retry_.intervalAsDuration(), longestRetry));
        return;
    }
    retry_.setInterval(firstRetry);
    service_ = std::make_unique<ApplicationService>(bus, requests_);
}

// The lost connection is taken away later: it is the one that calls.
void ReturningService::onDisconnected() {
    service_.reset();
    retry_.start();
}

void ReturningService::dropConnection() {
    if (connectionName_.startsWith(ownConnections))
        QDBusConnection::disconnectFromBus(connectionName_);
    connectionName_.clear();
}

} // namespace tessarine
