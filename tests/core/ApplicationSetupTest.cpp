#include "core/ApplicationSetup.h"

#include <QEventLoopLocker>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <functional>

namespace tessarine {
namespace {

constexpr int ranOn = 7; // an exit status like no other
// What the event loop ends with when it does this and, a few turns later, is asked to end with
// ranOn. A turn in which it was asked to end is its last.
int statusAfter(const std::function<void()>& work) {
    int turnsLeft = 5;
    QTimer turns;
    QObject::connect(&turns, &QTimer::timeout, &turns, [&] {
        if (turnsLeft == 5)
            work();
        if (--turnsLeft == 0)
            QCoreApplication::exit(ranOn);
    });
    turns.start(0);
    return QCoreApplication::exec();
}

// Each test begins as Qt leaves a new application object.
class ApplicationSetupTest : public ::testing::Test {
protected:
    ApplicationSetupTest() {
        QGuiApplication::setQuitOnLastWindowClosed(true);
        QCoreApplication::setQuitLockEnabled(true);
    }
};

TEST_F(ApplicationSetupTest, RunsOnWhenTheLastLockOnTheEventLoopGoes) {
    setUpApplication();
    EXPECT_EQ(statusAfter([] { const QEventLoopLocker lock; }), ranOn);
}

TEST_F(ApplicationSetupTest, RunsOnWhenTheLastWindowCloses) {
    setUpApplication();
    EXPECT_EQ(statusAfter([] {
                  QWindow window;
                  window.show();
                  window.close();
              }),
              ranOn);
}

TEST_F(ApplicationSetupTest, EndsWhenItIsAskedTo) {
    setUpApplication();
    EXPECT_EQ(statusAfter([] { QCoreApplication::quit(); }), 0);
}

} // namespace
} // namespace tessarine
