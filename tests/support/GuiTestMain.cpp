#include "windows/ViewEngine.h"

#include <QApplication>

#include <gtest/gtest.h>

// Qt's software renderer forgets the textures of a window's images, and what painted them, when the
// window goes: blocks that Qt's own drawing libraries allocate. What this program allocates, and
// what Qt's core does for it, is still reported. (Whole stacks would be more exact, and make
// every allocation several times as slow.)
// NOLINTBEGIN(bugprone-reserved-identifier): the sanitizer looks for these names.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    // NOLINTEND(bugprone-reserved-identifier)
    return "leak:libQt6Gui.so\nleak:libQt6Quick.so\n"
           "leak:QtSharedPointer::ExternalRefCountData::getAndRef\n";
}

// ThreadSanitizer doesn't see how the font libraries and Qt's reference counts keep threads apart.
// No code of ours runs in these functions.
// NOLINTBEGIN(bugprone-reserved-identifier): the sanitizer looks for these names.
extern "C" const char* __tsan_default_suppressions();
extern "C" const char* __tsan_default_suppressions() {
    // NOLINTEND(bugprone-reserved-identifier)
    return "called_from_lib:libfontconfig.so\n"
           "called_from_lib:libharfbuzz.so\n"
           "race:QVariant::~QVariant\n"
           "race:QtPrivate::QMetaTypeForType\n";
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
