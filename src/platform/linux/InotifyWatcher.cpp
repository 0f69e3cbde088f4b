#include "platform/linux/InotifyWatcher.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cstring>

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace tessarine {

namespace {

// Writes only. Reading a database opens, reads and closes its log, and maps its index: a watch on
// those events would answer its own readings for ever.
constexpr std::uint32_t fileEvents = IN_MODIFY;
constexpr std::uint32_t folderEvents =
    IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_ONLYDIR;

} // namespace

class InotifyWatcher::Watch : public FileWatch {
public:
    Watch(InotifyWatcher& watcher, int descriptor, std::shared_ptr<ChangeMerger> merger)
        : watcher_(watcher)
        , descriptor_(descriptor)
        , merger_(std::move(merger)) {}
    ~Watch() override {
        watcher_.remove(descriptor_, merger_.get());
        merger_->end();
    }

private:
    InotifyWatcher& watcher_;
    int descriptor_;
    std::shared_ptr<ChangeMerger> merger_;
};

InotifyWatcher::InotifyWatcher(Scheduler& scheduler)
    : scheduler_(scheduler) {}

InotifyWatcher::~InotifyWatcher() {
    if (reader_.joinable()) {
        eventfd_write(stop_, 1);
        reader_.join();
    }
    if (events_ >= 0)
        close(events_);
    if (stop_ >= 0)
        close(stop_);
}

std::unique_ptr<FileWatch> InotifyWatcher::watchWrites(const QString& path, Task handler) {
    if (!ensureRunning())
        return nullptr;
    const std::uint32_t mask = QFileInfo(path).isDir() ? folderEvents : fileEvents;
    const std::lock_guard lock(mutex_);
    const int descriptor = inotify_add_watch(events_, QFile::encodeName(path).constData(), mask);
    if (descriptor < 0)
        return nullptr;
    std::shared_ptr<ChangeMerger> merger = ChangeMerger::make(scheduler_, std::move(handler));
    mergers_.emplace(descriptor, merger);
    return std::make_unique<Watch>(*this, descriptor, std::move(merger));
}

bool InotifyWatcher::ensureRunning() {
    if (reader_.joinable())
        return true;
    if (events_ < 0)
        events_ = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    if (stop_ < 0)
        stop_ = eventfd(0, EFD_CLOEXEC);
    if (events_ < 0 || stop_ < 0)
        return false;
    reader_ = std::thread([this] { readEvents(); });
    return true;
}

void InotifyWatcher::readEvents() {
    while (true) {
        std::array<pollfd, 2> waiting{{{events_, POLLIN, 0}, {stop_, POLLIN, 0}}};
        if (poll(waiting.data(), waiting.size(), -1) < 0)
            continue;
        if (waiting[1].revents != 0)
            return;
        for (const int descriptor : takeChanged())
            deliver(descriptor);
    }
}

std::set<int> InotifyWatcher::takeChanged() {
    alignas(inotify_event) std::array<char, 16384> buffer;
    const ssize_t length = read(events_, buffer.data(), buffer.size());
    std::set<int> changed;
    for (ssize_t at = 0; at < length;) {
        inotify_event event;
        std::memcpy(&event, buffer.data() + at, sizeof event);
        if ((event.mask & IN_IGNORED) == 0)
            changed.insert(event.wd);
        at += static_cast<ssize_t>(sizeof event + event.len);
    }
    return changed;
}

void InotifyWatcher::deliver(int descriptor) {
    const std::lock_guard lock(mutex_);
    const auto [first, last] = mergers_.equal_range(descriptor);
    for (auto entry = first; entry != last; ++entry)
        entry->second->changed();
}

void InotifyWatcher::remove(int descriptor, const ChangeMerger* merger) {
    const std::lock_guard lock(mutex_);
    const auto [first, last] = mergers_.equal_range(descriptor);
    for (auto entry = first; entry != last; ++entry) {
        if (entry->second.get() == merger) {
            mergers_.erase(entry);
            break;
        }
    }
    if (!mergers_.contains(descriptor))
        inotify_rm_watch(events_, descriptor);
}

} // namespace tessarine
