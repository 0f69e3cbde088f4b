#pragma once

#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/banners/BannerProcess.h"
#include "platform/linux/banners/BannerReading.h"
#include "platform/linux/banners/FakeDaemon.h"
#include "platform/linux/banners/LinuxAccessibility.h"
#include "platform/linux/bus/BusClient.h"
#include "platform/linux/bus/PrivateBus.h"
#include "platform/qt/QtScheduler.h"
#include "support/EventLoop.h"
#include "support/Printers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

namespace tessarine::testing {

// A bus of its own, a monitor on it, and what a listener would read: scans go on while the test
// waits for something.
struct BusMonitorFixture : ::testing::Test {
    static constexpr int patience = 600000; // milliseconds, used up by failures only

    QtScheduler scheduler;
    std::shared_ptr<BannerProcess> process;
    std::unique_ptr<LinuxAccessibility> accessibility;
    std::unique_ptr<LinuxWorkspace> workspace;
    std::vector<std::unique_ptr<WorkspaceObservation>> observations;
    std::vector<QString> told; // "launch PID", "termination PID"
    std::vector<Announcement> captured;

    // The first question waits for the bus as long as a busy machine may need.
    void watch(const std::string& address,
               std::chrono::milliseconds firstAnswer = std::chrono::milliseconds(patience)) {
        process = std::make_shared<BannerProcess>(scheduler, firstAnswer);
        workspace = std::make_unique<LinuxWorkspace>(scheduler, process, LinuxWorkspace::Buses());
        observe(WorkspaceEvent::didLaunchApplication, QStringLiteral("launch "));
        observe(WorkspaceEvent::didTerminateApplication, QStringLiteral("termination "));
        accessibility = std::make_unique<LinuxAccessibility>(process, address);
    }

    void observe(WorkspaceEvent event, const QString& name) {
        observations.push_back(workspace->observe(event, [this, name](const auto& application) {
            told.push_back(name + QString::number(application->pid));
        }));
    }

    std::vector<qint32> runningPids() const {
        std::vector<qint32> pids;
        for (const RunningApplication& application : workspace->runningApplications(bannerProcess))
            pids.push_back(application.pid);
        return pids;
    }

    // What is there now joins the captured ones.
    void read() {
        for (const qint32 pid : runningPids()) {
            for (Announcement& announcement : takeAll(*accessibility, pid))
                captured.push_back(std::move(announcement));
        }
    }

    template <typename Condition>
    bool readsUntil(const Condition& condition) {
        return turnsUntil(
            [&] {
                read();
                return condition();
            },
            patience);
    }

    bool captures(std::size_t count) {
        return readsUntil([&] { return captured.size() >= count; });
    }

    // A call that comes after all others is there; nothing was taken meanwhile. All are captured
    // then but that one.
    bool capturesMarkerFrom(BusClient& client) {
        client.notify({.application = "marker", .summary = "the last one"});
        const bool isThere = testing::turnsUntil([this] { return isMarkerShown(); }, patience);
        read();
        if (isThere)
            captured.pop_back();
        return isThere;
    }

    bool isMarkerShown() {
        for (const qint32 pid : runningPids()) {
            const auto groups = shownGroups(*accessibility, pid);
            if (!groups.empty() && text(*accessibility, groups.back(), ax::description) ==
                                       QStringLiteral("the last one"))
                return true;
        }
        return false;
    }

    // "Application: title" of each.
    std::vector<QString> headlines() const {
        std::vector<QString> headlines;
        for (const Announcement& announcement : captured)
            headlines.push_back(announcement.application + QStringLiteral(": ") +
                                announcement.title);
        return headlines;
    }
};

inline QString launchOf(qint64 pid) {
    return QStringLiteral("launch %1").arg(pid);
}

inline QString terminationOf(qint64 pid) {
    return QStringLiteral("termination %1").arg(pid);
}

inline std::vector<QString> numbered(const QString& pattern, int count) {
    std::vector<QString> texts;
    texts.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        texts.push_back(pattern.arg(i));
    return texts;
}

// Memory that this process holds in RAM, in megabytes.
int residentMegabytes();

// Open file descriptors of this process.
int openDescriptors();

// How often a thread of this process has gone to sleep by itself.
qint64 sleepsOf(const QString& thread);

// The threads of this process, by their numbers.
QStringList threadsOfThisProcess();

} // namespace tessarine::testing
