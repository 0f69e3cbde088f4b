#include "platform/Platform.h"
#include "platform/SingleInstance.h"
#include "platform/linux/Confinement.h"
#include "platform/linux/HeapMemory.h"
#include "platform/linux/InotifyWatcher.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxSingleInstance.h"
#include "platform/linux/LinuxSystemFacts.h"
#include "platform/linux/LinuxUserDefaults.h"
#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/applications/LinuxConfinedLoginItem.h"
#include "platform/linux/applications/LinuxLoginItem.h"
#include "platform/linux/applications/LinuxSystemSettings.h"
#include "platform/linux/banners/LinuxAccessibility.h"
#include "platform/linux/bus/ReturningService.h"
#include "platform/qt/QtScheduler.h"

#include <QDBusConnection>
#include <QStandardPaths>

namespace tessarine {

namespace {

QString defaultsPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/com.zorvek.Tessarine.conf");
}

std::unique_ptr<LoginItem> makeLoginItem(UserDefaults& defaults) {
    if (isConfined())
        return std::make_unique<LinuxConfinedLoginItem>(QDBusConnection::sessionBus(), defaults);
    return std::make_unique<LinuxLoginItem>();
}

} // namespace

std::unique_ptr<Platform> makePlatform() {
    auto platform = std::make_unique<Platform>();
    platform->userDefaults = std::make_unique<LinuxUserDefaults>(defaultsPath());
    platform->fileSystem = makeFileSystem();
    platform->scheduler = std::make_unique<QtScheduler>();
    platform->fileWatcher = std::make_unique<InotifyWatcher>(*platform->scheduler);
    const auto banners = std::make_shared<BannerProcess>(*platform->scheduler);
    banners->whenABurstIsOver(returnFreeMemory);
    platform->workspace = std::make_unique<LinuxWorkspace>(
        *platform->scheduler, banners,
        LinuxWorkspace::Buses{sessionBusAddress(), systemBusAddress()});
    platform->accessibility = std::make_unique<LinuxAccessibility>(banners, sessionBusAddress());
    platform->loginItem = makeLoginItem(*platform->userDefaults);
    platform->systemSettings =
        std::make_unique<LinuxSystemSettings>(LinuxSystemSettings::currentDesktops());
    platform->systemFacts = std::make_unique<LinuxSystemFacts>();
    return platform;
}

void prepareProcess() {
    limitFreeMemory();
}

std::unique_ptr<FileSystem> makeFileSystem() {
    return std::make_unique<LinuxFileSystem>();
}

std::unique_ptr<SingleInstance> makeSingleInstance(const QString& path) {
    return std::make_unique<LinuxSingleInstance>(path, &currentSessionBus);
}

} // namespace tessarine
