#pragma once

#include "shared/CapturedNotification.h"

#include <QObject>

#include <cstddef>
#include <memory>

namespace tessarine {

class HoardStore;
class NotificationListener;
class Scheduler;

// The rows that the browser has in memory, and how many the hoard holds: the listener's published
// list, which a capture brings back to its own length, and the limit up to which this view reads it
// again. Main thread, where the store's calls block.
class LoadedRows : public QObject {
    Q_OBJECT

public:
    LoadedRows(std::shared_ptr<NotificationListener> listener, HoardStore& hoard,
               Scheduler& scheduler);

    const NotificationList& notifications() const;
    bool arePublished() const { return arePublished_; } // a first list has come, empty or not
    qint64 hoardTotalCount() const { return hoardTotalCount_; }
    qint64 loadLimit() const { return loadLimit_; }
    bool canLoadOlder() const;

    // To be called each time that the view is shown, and hidden. Shown, it counts the hoard and
    // tells of each list; hidden, it tells nothing.
    void appear();
    void disappear();

    void refresh(); // from the hoard, up to the limit
    void loadOlder();
    void deleteEverything(); // and begins with the first limit again

Q_SIGNALS:
    void changed(); // another list
    void hoardCounted();

private:
    void takeList();
    void readAhead();

    std::shared_ptr<NotificationListener> listener_;
    HoardStore& hoard_;
    Scheduler& scheduler_;
    bool isShown_ = false;
    bool arePublished_;
    std::size_t countedAt_ = 0; // the length of the list when the hoard was last counted
    qint64 hoardTotalCount_ = 0;
    qint64 loadLimit_;
};

} // namespace tessarine
