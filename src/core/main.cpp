#include "apps/AppIconResolver.h"
#include "apps/AppIconView.h"
#include "core/AppDelegate.h"
#include "core/ApplicationSetup.h"
#include "platform/SingleInstance.h"
#include "windows/ViewEngine.h"

#include <QApplication>
#include <QQmlEngine>

#include <cstdlib>

namespace {

using namespace tessarine;

NotificationListener::Services captureServices() {
    return {HoardStore::shared(), PreferencesStore::shared(), DiagnosticsStore::shared(),
            Platform::shared()};
}

} // namespace

int main(int argc, char** argv) {
    const std::unique_ptr<SingleInstance> instance =
        makeSingleInstance(hoardPath(*makeFileSystem()));
    if (!instance->claim()) {
        instance->activateFirst();
        return EXIT_SUCCESS;
    }
    QApplication application(argc, argv);
    setUpApplication();
    Platform::install(makePlatform());

    Desktop::install(makeDesktop());
    registerUi();
    Theme theme(*Desktop::shared().appearance);
    const std::unique_ptr<QQmlEngine> views = makeViewEngine(theme, *Desktop::shared().symbols);
    installAppIcons(*views, AppIconResolver::shared().shared_from_this());
    AppDelegate delegate({captureServices(), Desktop::shared(), theme, *views});
    instance->onActivation([&delegate] { delegate.activate(); });
    delegate.applicationDidFinishLaunching();
    const int status = QApplication::exec();
    // Workers may be in the middle of a reading or a scan; what they use must not be taken apart
    // under them. The hoard and the settings are on disk, and the system does the rest.
    std::_Exit(status);
}
