#include "platform/Desktop.h"

#include <QtGlobal>

namespace tessarine {

namespace {

Desktop* installed = nullptr;

} // namespace

void Desktop::install(std::unique_ptr<Desktop> desktop) {
    installed = desktop.release();
}

Desktop& Desktop::shared() {
    if (!installed)
        qFatal("No desktop is installed");
    return *installed;
}

} // namespace tessarine
