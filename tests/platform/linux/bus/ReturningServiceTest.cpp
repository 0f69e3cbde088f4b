#include "platform/linux/bus/ReturningService.h"

#include "platform/linux/bus/QtBus.h"

#include <QDBusConnectionInterface>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

constexpr int patience = 60000; // milliseconds, which only a failing test uses up

class ReturningServiceTest : public ::testing::Test {
protected:
    ReturningServiceTest() { nextBus(); }

    // A bus of which the program knows nothing yet; what was there is gone.
    void nextBus() {
        const QString number = QString::number(++buses_);
        bus_.reset();
        bus_ = std::make_unique<testing::QtBus>();
        desktop_ = bus_->connection(u"desktop "_qs + number);
        program_ = bus_->connection(u"program "_qs + number);
    }

    bool hasName() {
        return QTest::qWaitFor(
            [&] {
                return desktop_->interface()->serviceOwner(u"com.zorvek.Tessarine"_qs).value() ==
                       program_->baseService();
            },
            patience);
    }

    int buses_ = 0;
    int asked_ = 0; // for a bus
    std::unique_ptr<testing::QtBus> bus_;
    std::optional<QDBusConnection> desktop_;
    std::optional<QDBusConnection> program_;
    const ReturningService::Bus giveBus_ = [this] {
        ++asked_;
        return asked_ == 2 ? QDBusConnection(u"nobody's"_qs) : *program_;
    };
    const SingleInstance::Requests requests_{[](const QString&) {}, [](const QString&) {}, [] {}};
};

TEST_F(ReturningServiceTest, HasTheNameOnTheBusThatIsThere) {
    const ReturningService service(giveBus_, requests_);
    EXPECT_TRUE(hasName());
    EXPECT_EQ(asked_, 1);
}

// The first attempt after it finds none.
TEST_F(ReturningServiceTest, HasTheNameOnTheNextBus) {
    const ReturningService service(giveBus_, requests_);
    EXPECT_TRUE(hasName());
    nextBus();
    EXPECT_TRUE(hasName());
    EXPECT_EQ(asked_, 3);
}

TEST_F(ReturningServiceTest, LooksForNoneWhereThereWasNone) {
    asked_ = 1;
    const ReturningService service(giveBus_, requests_);
    QTest::qWait(1);
    EXPECT_EQ(asked_, 2);
}

} // namespace
} // namespace tessarine
