#include "platform/linux/desktop/LinuxDesktop.h"

#include "platform/Desktop.h"
#include "platform/linux/HeapMemory.h"
#include "platform/linux/applications/LinuxApplicationIcons.h"
#include "platform/linux/desktop/LinuxFileViewer.h"
#include "platform/linux/desktop/LinuxSavePanel.h"
#include "platform/linux/desktop/LinuxStatusItem.h"
#include "platform/linux/desktop/LinuxSystemAppearance.h"
#include "platform/linux/desktop/X11Windows.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QWindow>

#include <utility>

namespace tessarine {

namespace {

// Qt takes the token for the next window that it activates on Wayland from the environment, and
// has no other way in.
class TokenInEnvironment {
public:
    explicit TokenInEnvironment(const QByteArray& token)
        : before_(qgetenv(variable)) {
        qputenv(variable, token);
    }
    TokenInEnvironment(const TokenInEnvironment&) = delete;
    TokenInEnvironment& operator=(const TokenInEnvironment&) = delete;
    ~TokenInEnvironment() {
        if (before_.isEmpty())
            qunsetenv(variable);
        else if (qEnvironmentVariableIsSet(variable))
            qputenv(variable, before_); // what the own start brought is for a window to come
    }

private:
    static constexpr char variable[] = "XDG_ACTIVATION_TOKEN";

    const QByteArray before_;
};

} // namespace

LinuxApplicationControl::LinuxApplicationControl() {
    setWindowClass(QGuiApplication::desktopFileName());
}

void LinuxApplicationControl::activate(QWindow& window) {
    window.raise();
    window.requestActivate();
    if (!startupId_.isEmpty())
        activateByStartup(window, startupId_);
}

void LinuxApplicationControl::answer(const QString& token, const std::function<void()>& work) {
    if (token.isEmpty()) {
        work();
        return;
    }
    if (!isX11()) {
        const TokenInEnvironment inEnvironment(token.toUtf8());
        work();
        return;
    }
    startupId_ = token.toUtf8();
    work();
    endStartup(std::exchange(startupId_, {}));
}

void LinuxApplicationControl::returnFreeMemory() {
    tessarine::returnFreeMemory();
}

std::unique_ptr<Desktop> makeDesktop() {
    auto desktop = std::make_unique<Desktop>();
    desktop->symbols = makeSymbols();
    desktop->applicationIcons = std::make_unique<LinuxApplicationIcons>();
    desktop->appearance = std::make_unique<LinuxSystemAppearance>(QDBusConnection::sessionBus());
    desktop->application = std::make_unique<LinuxApplicationControl>();
    desktop->statusItem =
        std::make_unique<LinuxStatusItem>(*desktop->symbols, *desktop->appearance);
    desktop->savePanel =
        std::make_unique<LinuxSavePanel>(*desktop->appearance, QDBusConnection::sessionBus());
    desktop->fileViewer = std::make_unique<LinuxFileViewer>(QDBusConnection::sessionBus());
    desktop->updater = std::make_unique<LinuxSoftwareUpdater>();
    return desktop;
}

} // namespace tessarine
