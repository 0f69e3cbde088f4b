#include "shell/LaunchAgentManager.h"

#include <QFile>

#include <cstdio>

namespace tessarine {

namespace {

const QString legacyPath = QStringLiteral("~/Library/LaunchAgents/org.zorvek.tessarine.plist");

QString tagged(const QString& text) {
    return QStringLiteral("[LaunchAgent] ") + text;
}

} // namespace

LaunchAgentManager::LaunchAgentManager(LoginItem& loginItem, const FileSystem& fileSystem,
                                       Print print)
    : loginItem_(loginItem)
    , print_(std::move(print)) {
    removeLegacyFile(fileSystem.expandingTilde(legacyPath));
}

void LaunchAgentManager::registerMainApp() const {
    const LoginItem::Failure failure = loginItem_.registerMainApp();
    print_(tagged(failure ? QStringLiteral("register() failed: ") + *failure
                          : QStringLiteral("Registered with SMAppService")));
}

void LaunchAgentManager::unregisterMainApp() const {
    const LoginItem::Failure failure = loginItem_.unregisterMainApp();
    print_(tagged(failure ? QStringLiteral("unregister() failed: ") + *failure
                          : QStringLiteral("Unregistered from SMAppService")));
}

void LaunchAgentManager::toggle() const {
    if (isEnabled())
        unregisterMainApp();
    else
        registerMainApp();
}

void LaunchAgentManager::printToStandardOutput(const QString& line) {
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

// The job that the file described goes on until its session ends.
void LaunchAgentManager::removeLegacyFile(const QString& path) const {
    QFile file(path);
    if (!file.exists())
        return;
    print_(tagged(file.remove()
                      ? QStringLiteral("Removed legacy plist at ") + path
                      : QStringLiteral("Could not remove legacy plist: ") + file.errorString()));
}

} // namespace tessarine
