#include "browser/list/CollapsedGroups.h"

#include "platform/Scheduler.h"

#include <QPointer>

namespace tessarine {

namespace {

// As long as a group takes to open or close, and a little more for the last frames.
constexpr double fadeSeconds = 0.25;

} // namespace

void CollapsedGroups::toggle(const QString& key, int fadingRows) {
    if (!keys_.remove(key))
        keys_.insert(key);
    fading_ = {{key, fadingRows}};
    const int toggle = ++toggleCount_;
    scheduler_.onMainAfter(fadeSeconds, [self = QPointer<CollapsedGroups>(this), toggle] {
        if (self)
            self->finishFade(toggle);
    });
}

// What was toggled in the meantime goes on fading.
void CollapsedGroups::finishFade(int toggle) {
    if (toggleCount_ != toggle || fading_.isEmpty())
        return;
    fading_.clear();
    Q_EMIT faded();
}

void CollapsedGroups::open(const QString& key) {
    keys_.remove(key);
}

void CollapsedGroups::openAll() {
    keys_.clear();
    fading_.clear();
}

} // namespace tessarine
