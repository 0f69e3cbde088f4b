#pragma once

#include "platform/Workspace.h"

namespace tessarine {

// The system's workspace. An application is a bundle, its path that of the bundle. Launches and
// terminations are told of every application, with or without a place in the Dock.
class MacWorkspace : public Workspace {
public:
    std::vector<RunningApplication>
    runningApplications(const QString& bundleIdentifier) const override;
    std::optional<QString> pathForApplication(const QString& bundleIdentifier) const override;
    std::optional<QString> applicationInFolder(const QString& folder,
                                               const QString& name) const override;
    void openApplication(const QString& path) override;
    void openURL(const QString& url) override;
    std::unique_ptr<WorkspaceObservation> observe(WorkspaceEvent event, Handler handler) override;
};

} // namespace tessarine
