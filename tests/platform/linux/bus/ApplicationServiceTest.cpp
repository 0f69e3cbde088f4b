#include "platform/linux/bus/ApplicationService.h"

#include "platform/linux/bus/QtBus.h"
#include "support/Printers.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

const QString serviceOfProgram = u"com.zorvek.Tessarine"_qs;
constexpr int serviceDeadline = 60000; // milliseconds, which only a failing test uses up

// Writes down what it was asked.
struct Asked {
    SingleInstance::Requests requests() {
        return {[this](const QString& token) { all << u"activate "_qs + token; },
                [this](const QString& token) { all << u"open "_qs + token; },
                [this] { all << u"quit"_qs; }};
    }

    QStringList all;
};

class ApplicationServiceTest : public ::testing::Test {
protected:
    void waitForName(const QDBusConnection& bus, const QString& owner) {
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return bus.interface()->serviceOwner(serviceOfProgram).value() == owner; },
            serviceDeadline));
    }

    // The answer, while this thread serves.
    QDBusMessage answerTo(const QString& member, const QVariantList& arguments,
                          const QString& interface = u"org.freedesktop.Application"_qs) {
        QDBusMessage call = QDBusMessage::createMethodCall(
            serviceOfProgram, u"/com/zorvek/Tessarine"_qs, interface, member);
        call.setArguments(arguments);
        const QDBusPendingCall pending = desktop_.asyncCall(call, serviceDeadline);
        EXPECT_TRUE(QTest::qWaitFor([&] { return pending.isFinished(); }, serviceDeadline));
        return pending.reply();
    }

    static QVariantMap platformData(const QString& key, const QString& value) {
        return {{key, value}, {u"something-new"_qs, 7}};
    }

    testing::QtBus bus_;
    QDBusConnection desktop_ = bus_.connection(u"desktop"_qs);
    QDBusConnection program_ = bus_.connection(u"program"_qs);
    Asked asked_;
    std::unique_ptr<ApplicationService> service_;
};

class RunningService : public ApplicationServiceTest {
protected:
    RunningService() {
        service_ = std::make_unique<ApplicationService>(program_, asked_.requests());
        waitForName(desktop_, program_.baseService());
    }
};

TEST_F(RunningService, ActivatesWithTheTokenOfTheCall) {
    const QDBusMessage answer =
        answerTo(u"Activate"_qs, {platformData(u"activation-token"_qs, u"abc"_qs)});
    EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(asked_.all, QStringList(u"activate abc"_qs));
}

TEST_F(RunningService, TakesTheOlderKeyForATokenToo) {
    answerTo(u"Activate"_qs, {platformData(u"desktop-startup-id"_qs, u"x_TIME7"_qs)});
    EXPECT_EQ(asked_.all, QStringList(u"activate x_TIME7"_qs));
}

TEST_F(RunningService, ActivatesWithoutAToken) {
    answerTo(u"Activate"_qs, {QVariantMap()});
    EXPECT_EQ(asked_.all, QStringList(u"activate "_qs));
}

TEST_F(RunningService, ActivatesWhenAskedToOpenFiles) {
    answerTo(u"Open"_qs, {QStringList(u"file:///a"_qs), QVariantMap()});
    EXPECT_EQ(asked_.all, QStringList(u"activate "_qs));
}

TEST_F(RunningService, OpensTheWindowByAnAction) {
    answerTo(u"ActivateAction"_qs,
             {u"open"_qs, QVariantList(), platformData(u"activation-token"_qs, u"abc"_qs)});
    EXPECT_EQ(asked_.all, QStringList(u"open abc"_qs));
}

TEST_F(RunningService, AnswersBeforeItQuits) {
    const QDBusMessage answer =
        answerTo(u"ActivateAction"_qs, {u"quit"_qs, QVariantList(), QVariantMap()});
    EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(asked_.all, QStringList(u"quit"_qs));
}

TEST_F(RunningService, RefusesAnotherAction) {
    const QDBusMessage answer =
        answerTo(u"ActivateAction"_qs, {u"delete-all"_qs, QVariantList(), QVariantMap()});
    EXPECT_EQ(answer.errorName(), u"org.freedesktop.DBus.Error.InvalidArgs"_qs);
    EXPECT_TRUE(asked_.all.isEmpty());
}

TEST_F(RunningService, RefusesOtherArgumentsMembersAndInterfaces) {
    const QMap<QString, QVariantList> calls{{u"Activate"_qs, {u"text"_qs}},
                                            {u"Open"_qs, {QVariantMap()}},
                                            {u"ActivateAction"_qs, {u"quit"_qs}},
                                            {u"Quit"_qs, {QVariantMap()}}};
    for (const QString& member : calls.keys())
        EXPECT_EQ(answerTo(member, calls[member]).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(answerTo(u"Activate"_qs, {QVariantMap()}, u"org.example.Other"_qs).type(),
              QDBusMessage::ErrorMessage);
    EXPECT_TRUE(asked_.all.isEmpty());
}

TEST_F(RunningService, DescribesItself) {
    const QDBusMessage answer =
        answerTo(u"Introspect"_qs, {}, u"org.freedesktop.DBus.Introspectable"_qs);
    EXPECT_TRUE(
        answer.arguments().value(0).toString().contains(u"\"org.freedesktop.Application\""_qs));
}

TEST_F(RunningService, ALaterCopyTakesTheNameOverWhenTheFirstGoes) {
    Asked later;
    const QDBusConnection other = bus_.connection(u"other"_qs);
    const ApplicationService second(other, later.requests());
    answerTo(u"Activate"_qs, {QVariantMap()});
    EXPECT_EQ(asked_.all.size(), 1);
    service_.reset();
    waitForName(desktop_, other.baseService());
    answerTo(u"Activate"_qs, {QVariantMap()});
    EXPECT_EQ(later.all.size(), 1);
}

TEST(ApplicationServiceWithoutABus, IsAskedNothing) {
    Asked asked;
    const ApplicationService service(QDBusConnection(u"none"_qs), asked.requests());
    EXPECT_TRUE(asked.all.isEmpty());
}

} // namespace
} // namespace tessarine
