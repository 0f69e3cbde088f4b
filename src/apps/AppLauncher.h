#pragma once

#include <QString>

#include <optional>

namespace tessarine {

class FileSystem;
class Scheduler;
class Workspace;
struct CapturedNotification;

// What became of the way into an application.
enum class OpenOutcome {
    deepLinkOpened, // an address was handed over; whether anybody took it isn't known
    appOpened,      // the application was started as any other
    notFound,
};

// The way from a notification into the application that it came from, and where that is known to be
// possible, to the place that it speaks of. Tells on standard output what it did. Keeps nothing.
// Main thread.
class AppLauncher {
public:
    // All outlive the launcher. Of the scheduler it asks the time alone.
    AppLauncher(Workspace& workspace, const FileSystem& fileSystem, const Scheduler& clock);

    OpenOutcome open(const CapturedNotification& notification);

    // The address that leads into the notification's application, if there is one.
    std::optional<QString> deepLinkURL(const CapturedNotification& notification) const;

    // Starts or raises the application with this id, else the one with this name in a usual folder.
    // False when there is neither.
    bool openInstalledApp(const QString& bundleId, const QString& appName);

    // The plainer way: by the id alone, without a word about it. Nothing where it isn't installed.
    void openByBundleId(const QString& bundleId);

private:
    std::optional<QString> findByName(const QString& appName) const;

    Workspace& workspace_;
    const FileSystem& fileSystem_;
    const Scheduler& clock_;
};

} // namespace tessarine
