#pragma once

#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/banners/BannerProcess.h"
#include "platform/linux/banners/BannerReading.h"
#include "platform/linux/banners/LinuxAccessibility.h"
#include "support/ManualScheduler.h"
#include "support/Printers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarine::testing {

inline constexpr qint32 pid = 4711;
inline constexpr qint32 otherPid = 4712;

// A banner process that the test tells what the bus would tell, with the ports above it. The bus
// thread's part is played by the test's own thread.
struct BannerProcessFixture : ::testing::Test {
    ManualScheduler scheduler;
    std::shared_ptr<BannerProcess> process = std::make_shared<BannerProcess>(scheduler);
    LinuxAccessibility accessibility{process, {}};
    LinuxWorkspace workspace{scheduler, process, {}};
    std::vector<QString> told; // "launch 4711", "termination 4711", in order
    std::unique_ptr<WorkspaceObservation> launches =
        observe(WorkspaceEvent::didLaunchApplication, QStringLiteral("launch"));
    std::unique_ptr<WorkspaceObservation> terminations =
        observe(WorkspaceEvent::didTerminateApplication, QStringLiteral("termination"));
    std::vector<double> eventTimes; // seconds from the start of the test
    std::vector<QString> eventNames;
    const double start = scheduler.uptime();
    std::uint32_t lastSerial = 0;
    std::uint64_t lastTurn = 0;

    std::unique_ptr<WorkspaceObservation> observe(WorkspaceEvent event, const QString& name) {
        return workspace.observe(event, [this, name](const auto& application) {
            EXPECT_EQ(application->bundleIdentifier, bannerProcess);
            told.push_back(name + u' ' + QString::number(application->pid));
        });
    }

    void daemonTakesTheName(qint32 owner = pid) {
        process->setService({true, BannerOwner{owner, ++lastTurn}});
        scheduler.settle();
    }

    void daemonGoes() {
        process->setService({true, std::nullopt});
        scheduler.settle();
    }

    void busGoes() {
        process->setService({false, std::nullopt});
        scheduler.settle();
    }

    void announceWithoutTurningTheLoop(const QString& title, const BannerId& id = 0U) {
        process->announce(
            {{":1.1", ++lastSerial}, id, {QStringLiteral("Mail"), title, {}}, scheduler.uptime()});
    }

    void announce(const QString& title) {
        announceWithoutTurningTheLoop(title);
        scheduler.settle();
    }

    std::unique_ptr<AXObserver> attach(qint32 observed = pid) {
        auto observer = accessibility.createObserver(
            observed, [this, observed](const AXElementRef& element, const QString& name) {
                EXPECT_EQ(accessibility.pid(element), observed);
                eventTimes.push_back(scheduler.uptime() - start);
                eventNames.push_back(name);
            });
        if (!observer)
            return nullptr;
        for (const QString& name :
             {ax::windowCreated, ax::elementDestroyed, ax::valueChanged, ax::focusedElementChanged})
            observer->addNotification(accessibility.applicationElement(observed), name);
        observer->attachToMainRunLoop();
        return observer;
    }

    std::vector<QString> takenTitles(qint32 scanned = pid) {
        std::vector<QString> titles;
        for (const Announcement& announcement : takeAll(accessibility, scanned))
            titles.push_back(announcement.title);
        return titles;
    }

    std::vector<qint32> runningPids() const {
        std::vector<qint32> pids;
        for (const RunningApplication& application : workspace.runningApplications(bannerProcess))
            pids.push_back(application.pid);
        return pids;
    }
};

} // namespace tessarine::testing
