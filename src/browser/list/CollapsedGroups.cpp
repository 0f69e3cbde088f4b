#include "browser/list/CollapsedGroups.h"

#include "platform/Scheduler.h"

#include <QPointer>

namespace tessarine {

namespace {

// As long as a group takes to open or close, and a little more for the last frame.
constexpr double fadeSeconds = 0.2;

} // namespace

QSet<QString> CollapsedGroups::fading() const {
    return {fades_.keyBegin(), fades_.keyEnd()};
}

void CollapsedGroups::toggle(const QString& key) {
    if (!keys_.remove(key))
        keys_.insert(key);
    const int toggle = ++toggleCount_;
    fades_.insert(key, toggle);
    scheduler_.onMainAfter(fadeSeconds, [self = QPointer<CollapsedGroups>(this), key, toggle] {
        if (self)
            self->finishFade(key, toggle);
    });
}

// A group that was toggled again in the meantime goes on fading.
void CollapsedGroups::finishFade(const QString& key, int toggle) {
    if (fades_.value(key) != toggle)
        return;
    fades_.remove(key);
    Q_EMIT faded();
}

void CollapsedGroups::open(const QString& key) {
    keys_.remove(key);
}

void CollapsedGroups::openAll() {
    keys_.clear();
    fades_.clear();
}

} // namespace tessarine
