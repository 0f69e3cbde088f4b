#include "support/PointerInput.h"

#include <QCoreApplication>
#include <QPointingDevice>
#include <QQuickWindow>
#include <QTest>
#include <QWheelEvent>

namespace tessarine::testing {

namespace {

constexpr int steps = 10;

QPoint between(QPoint from, QPoint to, int step) {
    return from + (to - from) * step / steps;
}

// As a screen would ask for it. A window keeps what a finger moves until it draws, and takes the
// last place only; drawing for a picture doesn't count.
void drawFrame(QQuickWindow& window) {
    QEvent due(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &due);
}

QPointingDevice& screen() {
    static QPointingDevice* const device = QTest::createTouchDevice();
    return *device;
}

} // namespace

void dragByMouse(QQuickWindow& window, QPoint from, QPoint to) {
    QTest::mouseMove(&window, from);
    QTest::mousePress(&window, Qt::LeftButton, {}, from);
    for (int step = 1; step <= steps; ++step) {
        QTest::mouseMove(&window, between(from, to, step));
        window.grabWindow();
    }
    QTest::mouseRelease(&window, Qt::LeftButton, {}, to);
    window.grabWindow();
}

void dragByFinger(QQuickWindow& window, QPoint from, QPoint to) {
    QTest::touchEvent(&window, &screen()).press(1, from);
    for (int step = 1; step <= steps; ++step) {
        QTest::touchEvent(&window, &screen()).move(1, between(from, to, step));
        drawFrame(window);
    }
    QTest::touchEvent(&window, &screen()).release(1, to);
    drawFrame(window);
}

void turnWheel(QQuickWindow& window, QPoint place, int degrees) {
    // A view computes the speed from the time between two events of one clock.
    static quint64 timestamp = 1'000'000'000;
    for (int notch = 0; notch < 2; ++notch) {
        QWheelEvent event(place, window.mapToGlobal(place), {}, {0, degrees * 4}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        event.setTimestamp(timestamp += 20);
        QCoreApplication::sendEvent(&window, &event);
    }
    window.grabWindow();
}

} // namespace tessarine::testing
