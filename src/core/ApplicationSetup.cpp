#include "core/ApplicationSetup.h"

#include <QGuiApplication>

namespace tessarine {

void setUpApplication() {
    QGuiApplication::setApplicationName(QStringLiteral("Tessarine"));
    QGuiApplication::setApplicationVersion(QStringLiteral(TESSARINE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.zorvek.Tessarine"));
    // Capture goes on with all windows closed.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // A desktop's file dialog may lock the event loop while it is open (QEventLoopLocker), and the
    // release of the last such lock would end a program without windows.
    QCoreApplication::setQuitLockEnabled(false);
}

} // namespace tessarine
