#include "apps/AppIconResolver.h"
#include "platform/qt/QtScheduler.h"
#include "support/EventLoop.h"
#include "support/Printers.h"
#include "support/SimulatedApplicationIcons.h"
#include "support/SimulatedPlatform.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::SimulatedApplicationIcons;
using testing::SimulatedPlatform;
using testing::SimulatedSymbols;
using testing::turnsUntil;

// Notes on which thread it was asked.
class WatchedIcons : public SimulatedApplicationIcons {
public:
    QImage genericApplicationIcon() const override {
        askedElsewhere = std::this_thread::get_id() != mainThread;
        return SimulatedApplicationIcons::genericApplicationIcon();
    }

    const std::thread::id mainThread = std::this_thread::get_id();
    mutable std::atomic<bool> askedElsewhere = false;
};

TEST(AppIconThreadsTest, LooksUpOnAWorkerAndAnswersOnTheMainThread) {
    SimulatedPlatform system(u"/home/anna"_qs);
    WatchedIcons icons;
    SimulatedSymbols symbols;
    QtScheduler scheduler;
    const auto resolver =
        AppIconResolver::create(scheduler, {system.workspace, system.fileSystem, icons, symbols});
    int answers = 0;
    for (int i = 0; i < 20; ++i) {
        resolver->resolve(u"com.example.%1"_qs.arg(i), u"App"_qs,
                          [&answers, &icons](const QImage&) {
                              EXPECT_EQ(std::this_thread::get_id(), icons.mainThread);
                              ++answers;
                          });
    }
    EXPECT_TRUE(turnsUntil([&answers] { return answers == 20; }, 30000));
    EXPECT_TRUE(icons.askedElsewhere);
}

} // namespace
} // namespace tessarine
