#include "platform/linux/LinuxWorkspace.h"

#include "platform/linux/Confinement.h"
#include "platform/linux/applications/ApplicationStart.h"
#include "platform/linux/applications/ExecLine.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace tessarine {

namespace {

// The list of processes is read again once it is this old: a burst of questions costs one reading.
constexpr double processListLife = 1.0;

// Desktop entries have no folders that a user would know. This one stands for all of theirs.
const QString applicationsFolder = QStringLiteral("/Applications");

// The program of a process, absent where the process is another user's. The system marks one whose
// file an update has replaced; it runs all the same.
QString programOf(qint32 pid) {
    QString program = QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(pid));
    const QString replaced = QStringLiteral(" (deleted)");
    if (program.endsWith(replaced) && !QFileInfo::exists(program))
        program.chop(replaced.size());
    return program;
}

QMultiHash<QString, qint32> readProcesses() {
    QMultiHash<QString, qint32> processes;
    for (const QString& name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        bool isPid = false;
        const qint32 pid = name.toInt(&isPid);
        if (!isPid)
            continue;
        const QString program = programOf(pid);
        if (!program.isEmpty())
            processes.insert(program, pid);
    }
    return processes;
}

RunningApplication bannerApplication(qint32 pid) {
    return {pid, bannerProcess, std::nullopt};
}

std::optional<QString> installedPath(const std::optional<DesktopEntry>& entry) {
    return entry && entry->isInstalled() ? std::optional(entry->path) : std::nullopt;
}

class TokenObservation : public WorkspaceObservation {
public:
    explicit TokenObservation(std::shared_ptr<void> token)
        : token_(std::move(token)) {}

private:
    std::shared_ptr<void> token_;
};

} // namespace

LinuxWorkspace::LinuxWorkspace(Scheduler& scheduler, std::shared_ptr<BannerProcess> banners,
                               Buses buses)
    : scheduler_(scheduler)
    , banners_(std::move(banners))
    , sessionBus_(std::move(buses.session))
    , sleep_(scheduler, std::move(buses.system)) {}

std::vector<RunningApplication>
LinuxWorkspace::runningApplications(const QString& bundleIdentifier) const {
    if (bundleIdentifier == bannerProcess)
        return runningBannerProcess();
    const std::lock_guard lock(mutex_);
    const std::optional<DesktopEntry> entry = entries_.find(bundleIdentifier);
    if (!entry)
        return {};
    const QString command = executableOf(*entry);
    const QString program =
        QFileInfo(QDir::isAbsolutePath(command) ? command : QStandardPaths::findExecutable(command))
            .canonicalFilePath();
    if (program.isEmpty())
        return {};
    QList<qint32> pids = processes().values(program);
    std::sort(pids.begin(), pids.end());
    std::vector<RunningApplication> applications;
    for (const qint32 pid : pids)
        applications.push_back({pid, bundleIdentifier, entry->name});
    return applications;
}

std::optional<QString> LinuxWorkspace::pathForApplication(const QString& bundleIdentifier) const {
    const std::lock_guard lock(mutex_);
    return installedPath(entries_.find(bundleIdentifier));
}

std::optional<QString> LinuxWorkspace::applicationInFolder(const QString& folder,
                                                           const QString& name) const {
    if (folder != applicationsFolder)
        return std::nullopt;
    const std::lock_guard lock(mutex_);
    return installedPath(entries_.findNamed(name));
}

void LinuxWorkspace::openApplication(const QString& path) {
    std::optional<DesktopEntry> entry;
    {
        const std::lock_guard lock(mutex_);
        entry = entries_.findAt(path);
    }
    if (!entry)
        return;
    scheduler_.onGlobalQueue(QualityOfService::userInitiated,
                             [entry = *entry, bus = sessionBus_] { startApplication(entry, bus); });
}

void LinuxWorkspace::openURL(const QString& url) {
    scheduler_.onGlobalQueue(QualityOfService::userInitiated, [url, bus = sessionBus_] {
        if (!isConfined() || !openWithPortal(url, bus))
            openWithDesktop(url);
    });
}

std::vector<RunningApplication> LinuxWorkspace::runningBannerProcess() const {
    const std::optional<qint32> pid = banners_->pid();
    if (!pid)
        return {};
    return {bannerApplication(*pid)};
}

std::unique_ptr<WorkspaceObservation> LinuxWorkspace::observe(WorkspaceEvent event,
                                                              Handler handler) {
    const auto ofSystem = [&handler] { return [handler] { handler(std::nullopt); }; };
    const auto ofProcess = [&handler] {
        return [handler](qint32 pid) { handler(bannerApplication(pid)); };
    };
    std::shared_ptr<void> token;
    switch (event) {
    case WorkspaceEvent::willSleep:
        token = sleep_.onSleep(ofSystem());
        break;
    case WorkspaceEvent::didWake:
        token = sleep_.onWake(ofSystem());
        break;
    case WorkspaceEvent::didTerminateApplication:
        token = banners_->onTermination(ofProcess());
        break;
    case WorkspaceEvent::didLaunchApplication:
        token = banners_->onLaunch(ofProcess());
        break;
    }
    return std::make_unique<TokenObservation>(std::move(token));
}

const QMultiHash<QString, qint32>& LinuxWorkspace::processes() const {
    const double now = scheduler_.uptime();
    if (processesReadAt_ < 0 || now - processesReadAt_ >= processListLife) {
        pidsByProgram_ = readProcesses();
        processesReadAt_ = now;
    }
    return pidsByProgram_;
}

} // namespace tessarine
