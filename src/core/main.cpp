#include "core/ApplicationSetup.h"
#include "core/Program.h"
#include "platform/SingleInstance.h"

#include <QApplication>

#include <cstdlib>

int main(int argc, char** argv) {
    using namespace tessarine;
    const std::unique_ptr<SingleInstance> instance =
        makeSingleInstance(hoardPath(*makeFileSystem()));
    if (!instance->claim()) {
        instance->activateFirst();
        return EXIT_SUCCESS;
    }
    QApplication application(argc, argv);
    setUpApplication();
    Program program;
    instance->onActivation([&program] { program.delegate().activate(); });
    program.delegate().applicationDidFinishLaunching();
    const int status = QApplication::exec();
    // Workers may be in the middle of a reading or a scan; what they use must not be taken apart
    // under them. The hoard and the settings are on disk, and the system does the rest.
    std::_Exit(status);
}
