#include "platform/linux/desktop/LinuxFileViewer.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace tessarine {

namespace {

QDBusMessage showItems(const QString& path) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)) << QString();
    return call;
}

void openFolderOf(const QString& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
}

} // namespace

LinuxFileViewer::LinuxFileViewer(const QDBusConnection& bus)
    : bus_(bus) {}

// The answer may take as long as the file manager takes to start; nobody waits for it.
void LinuxFileViewer::reveal(const QString& path) {
    if (!bus_.isConnected()) {
        openFolderOf(path);
        return;
    }
    auto* const answer = new QDBusPendingCallWatcher(bus_.asyncCall(showItems(path)), &answers_);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, path] {
        answer->deleteLater();
        if (answer->isError())
            openFolderOf(path);
    });
}

} // namespace tessarine
