#include "platform/linux/InotifyWatcher.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <atomic>
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

constexpr std::chrono::milliseconds settlingTime{250};

} // namespace

// What a watch delivers to. The handler runs, and the source is ended, on the main thread.
struct InotifyWatcher::Source {
    Task handler;
    std::atomic<bool> pending = false;
};

class InotifyWatcher::Watch : public FileWatch {
public:
    Watch(InotifyWatcher& watcher, int descriptor, std::shared_ptr<Source> source)
        : watcher_(watcher)
        , descriptor_(descriptor)
        , source_(std::move(source)) {}
    ~Watch() override { watcher_.remove(descriptor_, source_.get()); }

private:
    InotifyWatcher& watcher_;
    int descriptor_;
    std::shared_ptr<Source> source_;
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
    const auto source = std::make_shared<Source>();
    source->handler = std::move(handler);
    const std::uint32_t mask = QFileInfo(path).isDir() ? folderEvents : fileEvents;
    const std::lock_guard lock(mutex_);
    const int descriptor = inotify_add_watch(events_, QFile::encodeName(path).constData(), mask);
    if (descriptor < 0)
        return nullptr;
    sources_.emplace(descriptor, source);
    return std::make_unique<Watch>(*this, descriptor, source);
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
        if (poll(waiting.data(), waiting.size(), millisecondsToNextSettling()) < 0)
            continue;
        if (waiting[1].revents != 0)
            return;
        for (const int descriptor : takeChanged()) {
            settling_[descriptor] = Clock::now() + settlingTime;
            deliver(descriptor);
        }
        deliverSettled();
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

void InotifyWatcher::deliverSettled() {
    const Clock::time_point now = Clock::now();
    for (auto entry = settling_.begin(); entry != settling_.end();) {
        if (entry->second > now) {
            ++entry;
            continue;
        }
        deliver(entry->first);
        entry = settling_.erase(entry);
    }
}

// For poll(): -1, which is for ever, while all files are still.
int InotifyWatcher::millisecondsToNextSettling() const {
    if (settling_.empty())
        return -1;
    const auto next = std::min_element(
        settling_.begin(), settling_.end(),
        [](const auto& left, const auto& right) { return left.second < right.second; });
    const auto rest =
        std::chrono::ceil<std::chrono::milliseconds>(next->second - Clock::now()).count();
    return static_cast<int>(std::max<std::int64_t>(0, rest));
}

void InotifyWatcher::deliver(int descriptor) {
    const std::lock_guard lock(mutex_);
    const auto [first, last] = sources_.equal_range(descriptor);
    for (auto entry = first; entry != last; ++entry) {
        if (entry->second->pending.exchange(true))
            continue;
        scheduler_.onMain([weak = std::weak_ptr<Source>(entry->second)] {
            const std::shared_ptr<Source> source = weak.lock();
            if (!source)
                return;
            source->pending = false;
            source->handler();
        });
    }
}

void InotifyWatcher::remove(int descriptor, const Source* source) {
    const std::lock_guard lock(mutex_);
    const auto [first, last] = sources_.equal_range(descriptor);
    for (auto entry = first; entry != last; ++entry) {
        if (entry->second.get() == source) {
            sources_.erase(entry);
            break;
        }
    }
    if (!sources_.contains(descriptor))
        inotify_rm_watch(events_, descriptor);
}

} // namespace tessarine
