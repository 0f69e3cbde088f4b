#include "platform/linux/desktop/PortalSaveDialog.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QFile>
#include <QGuiApplication>
#include <QUrl>
#include <QUuid>
#include <QWindow>

namespace tessarine {

namespace {

const QString savingPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString savingPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

// Where the portal will answer a request of this connection.
QString requestPath(const QDBusConnection& bus, const QString& token) {
    const QString sender = bus.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    return savingPath + QStringLiteral("/request/%1/%2").arg(sender, token);
}

// A window of X11 by its number. On Wayland a window has none that others know.
QString parentName(const QWindow* window) {
    if (!window || QGuiApplication::platformName() != QStringLiteral("xcb"))
        return {};
    return QStringLiteral("x11:") + QString::number(window->winId(), 16);
}

// As bytes that end with a NUL.
QByteArray folderBytes(const QString& folder) {
    return QFile::encodeName(folder) + '\0';
}

} // namespace

PortalSaveDialog::PortalSaveDialog(const QDBusConnection& bus, const SavePanel::Request& request)
    : bus_(bus)
    , request_(request)
    , token_(QStringLiteral("tessarine_") + QUuid::createUuid().toString(QUuid::Id128)) {
    setAttribute(Qt::WA_DontShowOnScreen);
    setWindowTitle(request.title);
}

PortalSaveDialog::Outcome PortalSaveDialog::run(QWindow* window, const QString& folder) {
    if (!bus_.isConnected())
        return Outcome::Unavailable;
    const QDBusServiceWatcher watcher(savingPortal, bus_,
                                      QDBusServiceWatcher::WatchForUnregistration);
    connect(&watcher, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { end(Outcome::Unavailable); });
    // Only the portal is believed.
    bus_.connect(savingPortal, requestPath(bus_, token_), requestInterface,
                 QStringLiteral("Response"), this, SLOT(onResponse(uint, QVariantMap)));
    ask(window, folder);
    if (!outcome_)
        exec();
    return outcome_.value_or(Outcome::Cancelled);
}

void PortalSaveDialog::ask(QWindow* window, const QString& folder) {
    QDBusMessage question = QDBusMessage::createMethodCall(
        savingPortal, savingPath, QStringLiteral("org.freedesktop.portal.FileChooser"),
        QStringLiteral("SaveFile"));
    const QVariantMap options{{QStringLiteral("handle_token"), token_},
                              {QStringLiteral("accept_label"), request_.prompt},
                              {QStringLiteral("modal"), true},
                              {QStringLiteral("current_name"), request_.name},
                              {QStringLiteral("current_folder"), folderBytes(folder)}};
    question << parentName(window) << request_.title << options;
    auto* call = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] { onAnswer(*call); });
}

void PortalSaveDialog::onAnswer(const QDBusPendingCallWatcher& call) {
    if (call.isError())
        end(Outcome::Unavailable);
}

void PortalSaveDialog::onResponse(uint response, const QVariantMap& results) {
    if (outcome_) // one answer is all that counts
        return;
    if (response != 0) {
        end(Outcome::Cancelled);
        return;
    }
    const QStringList addresses = results.value(QStringLiteral("uris")).toStringList();
    path_ = QUrl(addresses.value(0)).toLocalFile();
    end(path_.isEmpty() ? Outcome::Unavailable : Outcome::Chosen);
}

void PortalSaveDialog::end(Outcome outcome) {
    if (!outcome_)
        outcome_ = outcome;
    done(QDialog::Accepted);
}

} // namespace tessarine
