#pragma once

#include <QAnimationDriver>
#include <QCoreApplication>

namespace tessarine::testing {

// While it lives, animations stand still but for what the test turns their clock on: what is seen
// in the middle of a fade can be tested on any machine. To be made before the window whose
// animations it drives, and while none runs.
class AnimationClock : public QAnimationDriver {
public:
    AnimationClock() { install(); }
    ~AnimationClock() override { uninstall(); }

    // Animations that were started since begin now.
    void turnOn(int milliseconds) {
        tick(0);
        tick(milliseconds);
    }

    // Since the first of the animations that run now was started.
    qint64 elapsed() const override { return elapsed_; }

protected:
    void start() override {
        elapsed_ = 0;
        QAnimationDriver::start();
    }

private:
    void tick(int milliseconds) {
        QCoreApplication::processEvents(); // which start and stop animations
        elapsed_ += milliseconds;
        advanceAnimation();
        QCoreApplication::processEvents();
    }

    qint64 elapsed_ = 0;
};

} // namespace tessarine::testing
