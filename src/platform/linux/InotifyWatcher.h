#pragma once

#include "platform/ChangeMerger.h"
#include "platform/FileWatcher.h"

#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <thread>

namespace tessarine {

// Watches by inotify, which follows the file and not its name, and needs not open it. One thread
// sleeps on the events of all watches; it starts with the first of them.
class InotifyWatcher : public FileWatcher {
public:
    explicit InotifyWatcher(Scheduler& scheduler);
    ~InotifyWatcher() override; // all watches are gone by then

    std::unique_ptr<FileWatch> watchWrites(const QString& path, Task handler) override;

private:
    class Watch;

    bool ensureRunning();
    void readEvents();
    std::set<int> takeChanged();
    void deliver(int descriptor);
    void remove(int descriptor, const ChangeMerger* merger);

    Scheduler& scheduler_;
    int events_ = -1;
    int stop_ = -1;
    std::thread reader_;
    std::mutex mutex_;
    std::multimap<int, std::shared_ptr<ChangeMerger>> mergers_; // by watch descriptor
};

} // namespace tessarine
