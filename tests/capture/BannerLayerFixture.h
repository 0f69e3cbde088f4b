#pragma once

#include "capture/CaptureFixture.h"
#include "support/Printers.h"

#include <optional>
#include <vector>

namespace tessarine::testing {

using namespace Qt::StringLiterals;

inline constexpr qint32 pid = 501; // of the banner process

// A line of the log as this layer writes it.
struct Line {
    Level level;
    QString message;

    bool operator==(const Line&) const = default;
};

inline void PrintTo(const Line& line, std::ostream* out) {
    *out << glyph(line.level).toStdString() << ' ' << line.message.toStdString();
}

inline Line attached(qint32 to = pid) {
    return {Level::success, u"AXObserver attached to notificationcenterui pid %1"_qs.arg(to)};
}

inline Line captured(const QString& name) {
    return {Level::success, u"Notification from [%1]"_qs.arg(name)};
}

inline const Line deferred{Level::warning,
                           u"AXObserver deferred — Accessibility not yet granted"_qs};
inline const Line skipped{Level::warning,
                          u"startAXObserver called without Accessibility — skipped"_qs};
inline const Line sleeping{Level::info, u"System sleep detected — AXObserver torn down"_qs};
inline const Line woken{Level::info, u"System wake detected — restarting AXObserver"_qs};
inline const Line terminated{Level::warning,
                             u"notificationcenterui terminated — AXObserver torn down"_qs};
inline const Line timedOut{Level::warning,
                           u"AX scan timed out (notificationcenterui unresponsive)"_qs};

inline Line launched(qint32 as) {
    return {Level::info,
            u"notificationcenterui launched (pid %1) — reattaching AXObserver"_qs.arg(as)};
}

// A listener in a session whose banner process runs, with the permission granted. Nothing is
// started.
class BannerLayerFixture : public CaptureFixture {
protected:
    BannerLayerFixture() {
        system_.accessibility.trusted = true;
        runBannerProcess(pid);
        makeServices();
    }

    void launch() {
        listener_->start();
        system_.scheduler.settle();
        published_ = 0; // the recovery's
    }

    void runBannerProcess(qint32 as) {
        system_.workspace.running = {{as, bannerProcess, u"Notification Center"_qs}};
    }

    void endBannerProcess() { system_.workspace.running.clear(); }

    static RunningApplication process(qint32 as) { return {as, bannerProcess, std::nullopt}; }

    void post(WorkspaceEvent event, const std::optional<RunningApplication>& application = {}) {
        system_.workspace.post(event, application);
        system_.scheduler.settle();
    }

    // An event from the banner process, or from another element.
    void send(const QString& name = ax::valueChanged) {
        send(system_.accessibility.application(pid), name);
    }

    void send(const ElementPtr& element, const QString& name = ax::valueChanged) {
        system_.accessibility.send(element, name);
        system_.scheduler.settle();
    }

    int scans() const { return system_.accessibility.scans; }
    void advance(double seconds) { system_.scheduler.advance(seconds); }

    ElementPtr show(const QString& description, const QStringList& texts) {
        return system_.accessibility.addBanner(pid, description, texts);
    }

    // A banner whose title takes this many seconds to be read.
    ElementPtr showSlowly(const QString& title, double seconds) {
        ElementPtr group = show(u"Mail"_qs, {});
        const ElementPtr text = makeText(pid, title);
        text->delays[ax::value] = seconds;
        group->attributes[ax::children] = std::vector<AXElementRef>{text};
        return group;
    }

    // This layer's lines, oldest first.
    std::vector<Line> logged() const {
        std::vector<Line> lines;
        for (const DiagnosticEntry& entry : diagnostics_->entries()) {
            if (entry.category == Category::ax)
                lines.insert(lines.begin(), {entry.level, entry.message});
        }
        return lines;
    }

    const QString& status() const { return diagnostics_->axStatus(); }
};

} // namespace tessarine::testing
