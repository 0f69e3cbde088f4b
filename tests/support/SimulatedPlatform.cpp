#include "support/SimulatedPlatform.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tessarine::testing {

namespace {

template <typename Port>
Port& install(std::unique_ptr<Port> made, auto& place) {
    Port& port = *made;
    place = std::move(made);
    return port;
}

} // namespace

QVariant SimulatedDefaults::value(const QString& key) const {
    const auto found = values.find(key);
    return found == values.end() ? QVariant() : found->second;
}

QStringList SimulatedFileSystem::applicationSupportDirectories() const {
    return {home_ + QStringLiteral("/Library/Application Support")};
}

QString SimulatedFileSystem::expandingTilde(const QString& path) const {
    return path.startsWith(u'~') ? home_ + path.sliced(1) : path;
}

QString SimulatedFileSystem::abbreviatingWithTilde(const QString& path) const {
    return path.startsWith(home_ + u'/') ? u'~' + path.sliced(home_.size()) : path;
}

bool SimulatedFileSystem::grantsReading(const QString& path) const {
    return QFileInfo(path).isReadable();
}

bool SimulatedFileSystem::makePrivate(const QString& path) const {
    return QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
}

class SimulatedFileWatcher::Watch : public FileWatch {
public:
    Watch(SimulatedFileWatcher& watcher, const std::shared_ptr<Task>& handler)
        : watcher_(watcher)
        , handler_(handler) {}
    ~Watch() override {
        std::erase_if(watcher_.handlers_,
                      [this](const auto& entry) { return entry.second == handler_; });
    }

private:
    SimulatedFileWatcher& watcher_;
    std::shared_ptr<Task> handler_;
};

std::unique_ptr<FileWatch> SimulatedFileWatcher::watchWrites(const QString& path, Task handler) {
    if (!QFileInfo::exists(path))
        return nullptr;
    const auto shared = std::make_shared<Task>(std::move(handler));
    handlers_.emplace(path, shared);
    return std::make_unique<Watch>(*this, shared);
}

void SimulatedFileWatcher::write(const QString& path) {
    const auto [first, last] = handlers_.equal_range(path);
    for (auto entry = first; entry != last; ++entry) {
        scheduler_.onMain([weak = std::weak_ptr<Task>(entry->second)] {
            if (const std::shared_ptr<Task> handler = weak.lock())
                (*handler)();
        });
    }
}

std::vector<RunningApplication>
SimulatedWorkspace::runningApplications(const QString& bundleIdentifier) const {
    std::vector<RunningApplication> found;
    for (const RunningApplication& application : running) {
        if (application.bundleIdentifier == bundleIdentifier)
            found.push_back(application);
    }
    return found;
}

std::optional<QString>
SimulatedWorkspace::pathForApplication(const QString& bundleIdentifier) const {
    const auto found = installed.find(bundleIdentifier);
    return found == installed.end() ? std::nullopt : std::optional(found->second);
}

std::optional<QString> SimulatedWorkspace::applicationInFolder(const QString& folder,
                                                               const QString& name) const {
    const QString path = folder + u'/' + name + QStringLiteral(".app");
    {
        const std::lock_guard lock(mutex_); // lookups come from several threads
        askedPaths << path;
    }
    return bundles.contains(path) ? std::optional(path) : std::nullopt;
}

class SimulatedWorkspace::Observation : public WorkspaceObservation {
public:
    Observation(SimulatedWorkspace& workspace, const std::shared_ptr<Handler>& handler)
        : workspace_(workspace)
        , handler_(handler) {}
    ~Observation() override {
        std::erase_if(workspace_.handlers_,
                      [this](const auto& entry) { return entry.second == handler_; });
    }

private:
    SimulatedWorkspace& workspace_;
    std::shared_ptr<Handler> handler_;
};

std::unique_ptr<WorkspaceObservation> SimulatedWorkspace::observe(WorkspaceEvent event,
                                                                  Handler handler) {
    const auto shared = std::make_shared<Handler>(std::move(handler));
    handlers_.emplace(event, shared);
    return std::make_unique<Observation>(*this, shared);
}

void SimulatedWorkspace::post(WorkspaceEvent event,
                              const std::optional<RunningApplication>& application) {
    const auto [first, last] = handlers_.equal_range(event);
    for (auto entry = first; entry != last; ++entry)
        (*entry->second)(application);
}

SimulatedPlatform::SimulatedPlatform(const QString& home)
    : defaults(install(std::make_unique<SimulatedDefaults>(), platform.userDefaults))
    , fileSystem(install(std::make_unique<SimulatedFileSystem>(home), platform.fileSystem))
    , scheduler(install(std::make_unique<ManualScheduler>(), platform.scheduler))
    , fileWatcher(install(std::make_unique<SimulatedFileWatcher>(scheduler), platform.fileWatcher))
    , workspace(install(std::make_unique<SimulatedWorkspace>(), platform.workspace))
    , accessibility(
          install(std::make_unique<SimulatedAccessibility>(scheduler), platform.accessibility))
    , loginItem(install(std::make_unique<SimulatedLoginItem>(), platform.loginItem))
    , systemSettings(install(std::make_unique<SimulatedSystemSettings>(), platform.systemSettings))
    , systemFacts(install(std::make_unique<SimulatedSystemFacts>(), platform.systemFacts)) {}

} // namespace tessarine::testing
