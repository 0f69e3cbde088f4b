#include "platform/linux/bus/QtBus.h"
#include "platform/linux/desktop/LinuxDesktop.h"
#include "support/EventLoop.h"

#include <QDBusConnection>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::turnsUntil;

// The service with which tray hosts and items find each other.
class FakeWatcher : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER hasHost)

public:
    explicit FakeWatcher(QDBusConnection bus)
        : bus_(std::move(bus)) {
        bus_.registerObject(u"/StatusNotifierWatcher"_qs, this,
                            QDBusConnection::ExportAllProperties |
                                QDBusConnection::ExportAllSignals);
        bus_.registerService(u"org.kde.StatusNotifierWatcher"_qs);
    }
    ~FakeWatcher() override { bus_.unregisterService(u"org.kde.StatusNotifierWatcher"_qs); }

    bool hasHost = true;

Q_SIGNALS:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private:
    QDBusConnection bus_;
};

class TrayWatchTest : public ::testing::Test {
protected:
    bool becomesPresent(const LinuxTrayWatch& watch, bool present) {
        return turnsUntil([&] { return watch.isPresent() == present; });
    }

    testing::QtBus bus_;
};

TEST_F(TrayWatchTest, ATrayThatWasThereBeforeIsFound) {
    const FakeWatcher watcher(bus_.connection(u"tray"_qs));
    const LinuxTrayWatch watch(bus_.connection(u"program"_qs));
    EXPECT_FALSE(watch.isPresent()); // nobody has waited for the answer
    EXPECT_TRUE(becomesPresent(watch, true));
}

TEST_F(TrayWatchTest, ATrayMayComeAndGo) {
    const LinuxTrayWatch watch(bus_.connection(u"program"_qs));
    auto watcher = std::make_unique<FakeWatcher>(bus_.connection(u"tray"_qs));
    EXPECT_TRUE(becomesPresent(watch, true));
    watcher.reset();
    EXPECT_TRUE(becomesPresent(watch, false));
}

TEST_F(TrayWatchTest, AServiceWithoutAHostIsNoTrayUntilOneComes) {
    FakeWatcher watcher(bus_.connection(u"tray"_qs));
    watcher.hasHost = false;
    const LinuxTrayWatch watch(bus_.connection(u"program"_qs));
    EXPECT_FALSE(turnsUntil([&] { return watch.isPresent(); }, 300));
    watcher.hasHost = true;
    Q_EMIT watcher.StatusNotifierHostRegistered();
    EXPECT_TRUE(becomesPresent(watch, true));
    watcher.hasHost = false;
    Q_EMIT watcher.StatusNotifierHostUnregistered();
    EXPECT_TRUE(becomesPresent(watch, false));
}

TEST(TrayWatch, WithoutABusThereIsNone) {
    const LinuxTrayWatch watch{QDBusConnection(u"none"_qs)};
    EXPECT_FALSE(watch.isPresent());
}

} // namespace
} // namespace tessarine

#include "TrayWatchTest.moc"
