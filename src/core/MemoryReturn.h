#pragma once

#include "shared/AliveGuard.h"

#include <QObject>

class QQmlEngine;
class QWindow;

namespace tessarine {

class ApplicationControl;
class Scheduler;

// Gives back what windows have used some time after the last of them was closed, be it by its frame
// or because it was answered. Main thread.
class MemoryReturn : public QObject {
    Q_OBJECT

public:
    static constexpr double delay = 2.0; // seconds from the closing of the window

    // All three outlive this object.
    MemoryReturn(Scheduler& scheduler, ApplicationControl& application, QQmlEngine& engine);

    // Needed once for a window; more than once is fine.
    void watch(const QWindow& window);

private:
    void onVisibleChanged(bool visible);
    void giveBack() const;

    Scheduler& scheduler_;
    ApplicationControl& application_;
    QQmlEngine& engine_;
    AliveGuard alive_;
};

} // namespace tessarine
