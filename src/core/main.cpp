#include "core/ApplicationSetup.h"
#include "core/CommandLine.h"
#include "core/DisplayCheck.h"
#include "core/Program.h"
#include "platform/Platform.h"
#include "platform/SingleInstance.h"

#include <QApplication>

#include <cstdlib>
#include <memory>
#include <optional>

namespace {

std::unique_ptr<QApplication> makeApplication(int& argc, char** argv) {
    const tessarine::DisplayCheck check;
    return std::make_unique<QApplication>(argc, argv);
}

} // namespace

int main(int argc, char** argv) {
    using namespace tessarine;
    if (const std::optional<int> status = answerArguments(argc, argv))
        return *status;
    const std::unique_ptr<SingleInstance> instance =
        makeSingleInstance(hoardPath(*makeFileSystem()));
    if (!instance->claim()) {
        instance->activateFirst();
        return EXIT_SUCCESS;
    }
    prepareProcess();
    [[maybe_unused]] const std::unique_ptr<QApplication> application = makeApplication(argc, argv);
    setUpApplication();
    Program program;
    instance->onRequests(program.requests());
    program.delegate().applicationDidFinishLaunching();
    const int status = QApplication::exec();
    // Workers may be in the middle of a reading or a scan; what they use must not be taken apart
    // under them. The hoard and the settings are on disk, and the system does the rest.
    std::_Exit(status);
}
