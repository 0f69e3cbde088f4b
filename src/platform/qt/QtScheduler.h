#pragma once

#include "platform/Scheduler.h"
#include "platform/qt/WorkerPool.h"

#include <QObject>

#include <chrono>
#include <deque>
#include <mutex>

namespace tessarine {

// The scheduler of a running application: Qt's event loop is the main thread, standard threads are
// the global queues. Made on the main thread, after the application object.
class QtScheduler : public Scheduler {
public:
    QtScheduler();
    ~QtScheduler() override;

    double now() const override;
    double uptime() const override;
    void onMain(Task task) override;
    void onMainAfter(double seconds, Task task) override;
    void onMainAndWait(const Task& task) override;
    std::unique_ptr<RepeatingTimer> every(double seconds, Task task) override;
    void onGlobalQueue(QualityOfService quality, Task task) override;
    bool completesWithin(double seconds, QualityOfService quality, Task task) override;

private:
    // Takes one task from the hand-over list for each event it is sent. The list has a standard
    // mutex: Qt's own queue would hide the hand-over from ThreadSanitizer. Tasks that have used up
    // their share of a turn of the event loop leave the others for a later one, and input and
    // drawing come first.
    class MainThread : public QObject {
    public:
        MainThread();

        void post(Task task);
        bool event(QEvent* event) override;

    private:
        void runOne();
        void runPostponed();
        void postponeTask();
        void continueLater();
        bool turnIsUsedUp() const;

        std::mutex mutex_;
        std::deque<Task> tasks_;

        // Of the main thread alone.
        std::chrono::steady_clock::time_point turnBegan_;
        int postponed_ = 0;
        bool continuesLater_ = false;
    };

    MainThread main_;
    WorkerPool workers_;
};

} // namespace tessarine
