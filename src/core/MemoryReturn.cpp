#include "core/MemoryReturn.h"

#include "platform/ApplicationControl.h"
#include "platform/Scheduler.h"
#include "windows/ViewWindow.h"

#include <QPixmapCache>
#include <QQmlEngine>
#include <QWindow>

namespace tessarine {

MemoryReturn::MemoryReturn(Scheduler& scheduler, ApplicationControl& application,
                           QQmlEngine& engine)
    : scheduler_(scheduler)
    , application_(application)
    , engine_(engine) {}

void MemoryReturn::watch(const QWindow& window) {
    connect(&window, &QWindow::visibleChanged, this, &MemoryReturn::onVisibleChanged,
            Qt::UniqueConnection);
}

// Once the renderer has let go of what it had for the window, on its thread and on this one.
void MemoryReturn::onVisibleChanged(bool visible) {
    if (!visible)
        scheduler_.onMainAfter(delay, alive_.guard([this] { giveBack(); }));
}

void MemoryReturn::giveBack() const {
    if (!ViewWindow::allVisible().empty())
        return;
    engine_.collectGarbage();
    QPixmapCache::clear(); // icons of Qt's own dialogs, some 40 KB of new ones for each
    application_.returnFreeMemory();
}

} // namespace tessarine
