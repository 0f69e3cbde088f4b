#include "capture/ApplicationDisplayName.h"

#include "capture/RecordDecoding.h"
#include "platform/Workspace.h"

namespace tessarine {

QString displayName(const Workspace& workspace, const QString& bundleId) {
    const auto running = workspace.runningApplications(bundleId);
    if (!running.empty() && running.front().localizedName)
        return *running.front().localizedName;
    return lastBundleComponent(bundleId);
}

} // namespace tessarine
