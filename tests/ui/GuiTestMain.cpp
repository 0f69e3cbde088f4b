#include "theme/ViewEngine.h"

#include <QApplication>

#include <gtest/gtest.h>

// Qt's software renderer forgets the textures of a window's images when the window goes. Only whole
// stacks show that a leak is that one.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "fast_unwind_on_malloc=0";
}
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:QSGRenderContext::textureForFactory\nleak:QQuickPixmap::load\n";
}

namespace {

void setUnlessSet(const char* variable, const char* value) {
    if (!qEnvironmentVariableIsSet(variable))
        qputenv(variable, value);
}

// The same on every machine: no screen, no bus, English dates in universal time.
void prepareEnvironment() {
    setUnlessSet("QT_QPA_PLATFORM", "offscreen");
    setUnlessSet("QT_QUICK_BACKEND", "software");
    setUnlessSet("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    qputenv("LC_ALL", "en_US.UTF-8");
    qputenv("TZ", "UTC");
}

} // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    prepareEnvironment();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    tessarine::registerUi();
    return RUN_ALL_TESTS();
}
