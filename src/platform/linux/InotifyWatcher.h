#pragma once

#include "platform/FileWatcher.h"

#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <thread>

namespace tessarine {

// Watches by inotify, which follows the file and not its name, and needs not open it. One thread
// sleeps on the events of all watches; it starts with the first of them.
//
// A write is reported at once, and once more when the file has been still for a moment: SQLite
// makes a commit visible, in memory that no watch sees, only after the last write to its log.
class InotifyWatcher : public FileWatcher {
public:
    explicit InotifyWatcher(Scheduler& scheduler);
    ~InotifyWatcher() override; // all watches are gone by then

    std::unique_ptr<FileWatch> watchWrites(const QString& path, Task handler) override;

private:
    class Watch;
    struct Source;

    using Clock = std::chrono::steady_clock;

    bool ensureRunning();
    void readEvents();
    std::set<int> takeChanged();
    void deliverSettled();
    int millisecondsToNextSettling() const;
    void deliver(int descriptor);
    void remove(int descriptor, const Source* source);

    Scheduler& scheduler_;
    int events_ = -1;
    int stop_ = -1;
    std::thread reader_;
    std::map<int, Clock::time_point> settling_; // by watch descriptor; the reader's own
    std::mutex mutex_;
    std::multimap<int, std::shared_ptr<Source>> sources_; // by watch descriptor
};

} // namespace tessarine
