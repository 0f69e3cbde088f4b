#include "platform/contracts/Subjects.h"
#include "platform/linux/InotifyWatcher.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxSystemFacts.h"
#include "platform/linux/LinuxUserDefaults.h"
#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/applications/LinuxLoginItem.h"
#include "platform/linux/applications/LinuxSystemSettings.h"
#include "platform/linux/banners/LinuxAccessibility.h"

#include <QFile>
#include <QTemporaryDir>

namespace tessarine::testing {

namespace {

// An object together with what it needs, which lives as long.
template <typename Port, typename Home>
std::shared_ptr<Port> livingIn(const std::shared_ptr<Home>& home, Port& port) {
    return {home, &port};
}

// One at a time has the file. Whoever opens it meanwhile reads a copy, as the next run of the
// program would find it: Qt keeps what a process has read of a file in its memory.
class DefaultsInAFile {
public:
    std::shared_ptr<UserDefaults> open() {
        const QString path = folder_.filePath(QString::number(++opened_));
        if (!path_.isEmpty())
            QFile::copy(path_, path);
        const auto defaults = std::make_shared<LinuxUserDefaults>(path);
        if (writer_.expired()) {
            writer_ = defaults;
            path_ = path;
        }
        return defaults;
    }

private:
    QTemporaryDir folder_;
    int opened_ = 0;
    std::weak_ptr<UserDefaults> writer_;
    QString path_; // of the writer's file
};

// A machine without buses.
struct QuietSession {
    ManualScheduler scheduler;
    std::shared_ptr<BannerProcess> banners = std::make_shared<BannerProcess>(scheduler);
    LinuxWorkspace workspace{scheduler, banners, {}};
    LinuxAccessibility accessibility{banners, {}};
};

struct LoginFolder {
    QTemporaryDir folder;
    LinuxLoginItem item{{folder.filePath(QStringLiteral("autostart")), {}, {}}};
};

struct Simulation {
    QTemporaryDir home;
    SimulatedPlatform system{home.path()};
};

template <typename Port>
Subject<Port> simulated(std::unique_ptr<Port> Platform::*member) {
    return {"Simulated", [member] {
                const auto simulation = std::make_shared<Simulation>();
                return livingIn(simulation, *(simulation->system.platform.*member));
            }};
}

} // namespace

std::unique_ptr<FileWatcher> systemFileWatcher(Scheduler& scheduler) {
    return std::make_unique<InotifyWatcher>(scheduler);
}

std::vector<Subject<UserDefaults>> userDefaultsSubjects() {
    const auto simulation = std::make_shared<Simulation>();
    return {{"Linux", [file = std::make_shared<DefaultsInAFile>()] { return file->open(); }},
            {"Simulated", [simulation] {
                 return livingIn<UserDefaults>(simulation, simulation->system.defaults);
             }}};
}

std::vector<Subject<FileSystem>> fileSystemSubjects() {
    return {{"Linux", [] { return std::make_shared<LinuxFileSystem>(); }},
            simulated(&Platform::fileSystem)};
}

std::vector<Subject<Workspace>> workspaceSubjects() {
    return {{"Linux",
             [] {
                 const auto session = std::make_shared<QuietSession>();
                 return livingIn<Workspace>(session, session->workspace);
             }},
            simulated(&Platform::workspace)};
}

std::vector<Subject<Accessibility>> accessibilitySubjects() {
    return {{"Linux", [] {
                 const auto session = std::make_shared<QuietSession>();
                 return livingIn<Accessibility>(session, session->accessibility);
             }}};
}

std::vector<Subject<LoginItem>> loginItemSubjects() {
    return {{"Linux",
             [] {
                 const auto folder = std::make_shared<LoginFolder>();
                 return livingIn<LoginItem>(folder, folder->item);
             }},
            simulated(&Platform::loginItem)};
}

std::vector<Subject<SystemSettings>> systemSettingsSubjects() {
    return {{"Linux",
             [] {
                 return std::make_shared<LinuxSystemSettings>(
                     QStringList{QStringLiteral("GNOME"), QStringLiteral("KDE")});
             }},
            simulated(&Platform::systemSettings)};
}

std::vector<Subject<SystemFacts>> systemFactsSubjects() {
    return {{"Linux", [] { return std::make_shared<LinuxSystemFacts>(); }},
            simulated(&Platform::systemFacts)};
}

} // namespace tessarine::testing
