#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tessarine {

struct RunningApplication {
    qint32 pid = 0;
    QString bundleIdentifier; // may be empty
    std::optional<QString> localizedName;

    bool operator==(const RunningApplication&) const = default;
};

// The process that draws the banners of notifications, under this name on every system.
inline const QString bannerProcess = QStringLiteral("com.apple.notificationcenterui");

enum class WorkspaceEvent { willSleep, didWake, didTerminateApplication, didLaunchApplication };

// An observation of the workspace. Destroying it ends it.
class WorkspaceObservation {
public:
    WorkspaceObservation() = default;
    WorkspaceObservation(const WorkspaceObservation&) = delete;
    WorkspaceObservation& operator=(const WorkspaceObservation&) = delete;
    virtual ~WorkspaceObservation() = default;
};

// The applications of the session, and the sleep of the system. Questions about applications may be
// asked on any thread; all else is for the main thread.
class Workspace {
public:
    // The application is set for launches and terminations, where the system names one.
    using Handler = std::function<void(const std::optional<RunningApplication>&)>;

    Workspace() = default;
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;
    virtual ~Workspace() = default;

    // The running applications with this bundle identifier, compared exactly, in the order in
    // which the system lists them.
    virtual std::vector<RunningApplication>
    runningApplications(const QString& bundleIdentifier) const = 0;

    // The path of the installed application with this bundle identifier, compared exactly. Nothing
    // when there is none.
    virtual std::optional<QString> pathForApplication(const QString& bundleIdentifier) const = 0;

    // The path of the application that lies in this folder under this name, taken as it is and
    // without an ending. Nothing when there is none.
    virtual std::optional<QString> applicationInFolder(const QString& folder,
                                                       const QString& name) const = 0;

    // Starts the application at the path, or brings it to the front if it runs already. Returns
    // before that is done; what comes of it isn't told.
    virtual void openApplication(const QString& path) = 0;

    // Hands the address to the application that handles its scheme, each character as it stands.
    // Returns before that is done; what comes of it isn't told.
    virtual void openURL(const QString& url) = 0;

    // Calls the handler on the main thread at each such event. Launches and terminations are told
    // of the banner process at least.
    virtual std::unique_ptr<WorkspaceObservation> observe(WorkspaceEvent event,
                                                          Handler handler) = 0;
};

} // namespace tessarine
