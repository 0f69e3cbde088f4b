#include "platform/linux/applications/LinuxConfinedLoginItem.h"

#include "platform/linux/Confinement.h"
#include "platform/linux/bus/QtBus.h"
#include "support/Printers.h"
#include "support/SimulatedPlatform.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

constexpr int portalDeadline = 60000; // milliseconds, which only a failing test uses up

// Stands in for the desktop's portal: keeps what it is asked, and answers when the test says so.
class FakePortal : public QDBusVirtualObject {
public:
    explicit FakePortal(const QDBusConnection& bus)
        : bus_(bus) {
        bus_.registerVirtualObject(u"/org/freedesktop/portal/desktop"_qs, this);
        bus_.registerService(u"org.freedesktop.portal.Desktop"_qs);
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection&) override {
        EXPECT_EQ(call.interface(), u"org.freedesktop.portal.Background"_qs);
        EXPECT_EQ(call.member(), u"RequestBackground"_qs);
        EXPECT_EQ(call.signature(), u"sa{sv}"_qs);
        options << qdbus_cast<QVariantMap>(call.arguments().value(1));
        paths_ << u"/org/freedesktop/portal/desktop/request/%1/%2"_qs.arg(
            call.service().sliced(1).replace(u'.', u'_'),
            options.back().value(u"handle_token"_qs).toString());
        bus_.send(call.createReply(QVariant::fromValue(QDBusObjectPath(paths_.back()))));
        return true;
    }

    void respond(qsizetype request, uint response, bool autostart) {
        QDBusMessage signal = QDBusMessage::createSignal(
            paths_.value(request), u"org.freedesktop.portal.Request"_qs, u"Response"_qs);
        signal << response << QVariantMap{{u"autostart"_qs, autostart}, {u"background"_qs, true}};
        bus_.send(signal);
    }

    QList<QVariantMap> options;

private:
    QDBusConnection bus_;
    QStringList paths_;
};

class ConfinedLoginItem : public ::testing::Test {
protected:
    void waitForRequests(int count) {
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return portal_.options.size() == count; }, portalDeadline));
    }

    void waitForStatus(LoginItemStatus status) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return item_.status() == status; }, portalDeadline));
    }

    void answer(qsizetype request, uint response, bool autostart) {
        portal_.respond(request, response, autostart);
    }

    testing::QtBus bus_;
    FakePortal portal_{bus_.connection(u"portal"_qs)};
    testing::SimulatedDefaults defaults_;
    LinuxConfinedLoginItem item_{bus_.connection(u"program"_qs), defaults_};
};

TEST_F(ConfinedLoginItem, AsksThePortalForAStartAtLogin) {
    EXPECT_EQ(item_.registerMainApp(), std::nullopt);
    waitForRequests(1);
    EXPECT_EQ(portal_.options.front().value(u"autostart"_qs), true);
    EXPECT_EQ(portal_.options.front().value(u"commandline"_qs).toStringList(),
              QStringList(u"tessarine"_qs));
    EXPECT_EQ(item_.status(), LoginItemStatus::notRegistered); // there is no answer yet
    answer(0, 0, true);
    waitForStatus(LoginItemStatus::enabled);
}

TEST_F(ConfinedLoginItem, TakesItBack) {
    item_.registerMainApp();
    waitForRequests(1);
    answer(0, 0, true);
    waitForStatus(LoginItemStatus::enabled);
    item_.unregisterMainApp();
    waitForRequests(2);
    EXPECT_EQ(portal_.options.back().value(u"autostart"_qs), false);
    answer(1, 0, false);
    waitForStatus(LoginItemStatus::notRegistered);
}

TEST_F(ConfinedLoginItem, IsOffWhenTheUserRefuses) {
    defaults_.setBoolean(u"startsAtLoginByPortal"_qs, true);
    item_.registerMainApp();
    waitForRequests(1);
    answer(0, 1, false);
    waitForStatus(LoginItemStatus::notRegistered);
}

TEST_F(ConfinedLoginItem, GoesByTheAnswerToTheLatestRequest) {
    item_.registerMainApp();
    item_.unregisterMainApp();
    item_.registerMainApp();
    waitForRequests(3);
    answer(0, 1, false);
    answer(1, 0, false);
    answer(2, 0, true);
    waitForStatus(LoginItemStatus::enabled);
}

TEST_F(ConfinedLoginItem, RemembersTheAnswerInTheNextProcess) {
    item_.registerMainApp();
    waitForRequests(1);
    answer(0, 0, true);
    waitForStatus(LoginItemStatus::enabled);
    const LinuxConfinedLoginItem next(bus_.connection(u"next"_qs), defaults_);
    EXPECT_EQ(next.status(), LoginItemStatus::enabled);
}

TEST(ConfinedLoginItemWithoutABus, Fails) {
    testing::SimulatedDefaults defaults;
    LinuxConfinedLoginItem item(QDBusConnection(u"none"_qs), defaults);
    EXPECT_NE(item.registerMainApp(), std::nullopt);
    EXPECT_EQ(item.status(), LoginItemStatus::notRegistered);
}

TEST(Confinement, IsKnownByTheSandboxsFile) {
    const QTemporaryDir folder;
    const QString mark = folder.filePath(u"info"_qs);
    EXPECT_FALSE(isConfined(mark));
    EXPECT_TRUE(QFile(mark).open(QIODevice::WriteOnly));
    EXPECT_TRUE(isConfined(mark));
}

} // namespace
} // namespace tessarine
