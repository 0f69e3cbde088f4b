#include "controls/AnimatedFraction.h"

#include <algorithm>
#include <cmath>

namespace tessarine {

AnimatedFraction::AnimatedFraction() {
    connect(&motion_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& shown) { setShown(shown.toDouble()); });
    connect(&motion_, &QVariantAnimation::stateChanged, this, &AnimatedFraction::movingChanged);
}

void AnimatedFraction::setValue(double value) {
    const double bounded = std::isnan(value) ? 0 : std::clamp(value, 0.0, 1.0);
    if (value_ == bounded)
        return;
    value_ = bounded;
    Q_EMIT valueChanged();
    follow();
}

void AnimatedFraction::setSeen(bool seen) {
    if (seen_ == seen)
        return;
    seen_ = seen;
    Q_EMIT seenChanged();
    if (!seen_)
        follow();
}

void AnimatedFraction::setDuration(int duration) {
    if (motion_.duration() == duration)
        return;
    motion_.setDuration(duration);
    Q_EMIT durationChanged();
}

int AnimatedFraction::percent() const {
    return int(std::floor(value_ * 100 + 1e-9)); // 0.29 is a little less than 29 hundredths
}

void AnimatedFraction::follow() {
    motion_.stop();
    if (!seen_ || !complete_) {
        setShown(value_);
        return;
    }
    motion_.setStartValue(shown_);
    motion_.setEndValue(value_);
    motion_.start();
}

void AnimatedFraction::setShown(double shown) {
    if (shown_ == shown)
        return;
    shown_ = shown;
    Q_EMIT shownChanged();
}

} // namespace tessarine
