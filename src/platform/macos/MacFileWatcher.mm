#include "platform/macos/MacFileWatcher.h"

#include "platform/ChangeMerger.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

namespace tessarine {

namespace {

class MacFileWatch : public FileWatch {
public:
    MacFileWatch(dispatch_queue_t queue, dispatch_source_t source,
                 std::shared_ptr<ChangeMerger> merger)
        : queue_(queue)
        , source_(source)
        , merger_(std::move(merger)) {}

    // No event is at work any more when the watcher and its scheduler go.
    ~MacFileWatch() override {
        @autoreleasepool {
            merger_->end();
            dispatch_source_cancel(source_);
            dispatch_sync(queue_, ^{
                          });
        }
    }

private:
    const dispatch_queue_t queue_;
    const dispatch_source_t source_;
    const std::shared_ptr<ChangeMerger> merger_;
};

dispatch_queue_t makeBackgroundQueue() {
    return dispatch_queue_create(
        "com.zorvek.Tessarine.files",
        dispatch_queue_attr_make_with_qos_class(DISPATCH_QUEUE_SERIAL, QOS_CLASS_BACKGROUND, 0));
}

} // namespace

MacFileWatcher::MacFileWatcher(Scheduler& scheduler)
    : scheduler_(scheduler)
    , queue_(makeBackgroundQueue()) {}

std::unique_ptr<FileWatch> MacFileWatcher::watchWrites(const QString& path, Task handler) {
    @autoreleasepool {
        const int file = open(QFile::encodeName(path).constData(), O_EVTONLY | O_CLOEXEC);
        if (file < 0)
            return nullptr;
        const dispatch_source_t source = dispatch_source_create(
            DISPATCH_SOURCE_TYPE_VNODE, uintptr_t(file), DISPATCH_VNODE_WRITE, queue_);
        if (!source) {
            close(file);
            return nullptr;
        }
        const auto merger = ChangeMerger::make(scheduler_, std::move(handler));
        dispatch_source_set_event_handler(source, ^{
          @autoreleasepool {
              merger->changed();
          }
        });
        dispatch_source_set_cancel_handler(source, ^{
          close(file);
        });
        dispatch_resume(source);
        return std::make_unique<MacFileWatch>(queue_, source, merger);
    }
}

} // namespace tessarine
