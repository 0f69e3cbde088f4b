#include "platform/Platform.h"

#include <QtGlobal>

namespace tessarine {

namespace {

Platform* installed = nullptr;

} // namespace

void Platform::install(std::unique_ptr<Platform> platform) {
    installed = platform.release();
}

Platform& Platform::shared() {
    if (!installed)
        qFatal("No platform is installed");
    return *installed;
}

} // namespace tessarine
