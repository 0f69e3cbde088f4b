#pragma once

#include "platform/Accessibility.h"
#include "support/ManualScheduler.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace tessarine::testing {

// An element of the simulated banner process, to be built up and broken as a test likes.
class SimulatedElement : public AXElement {
public:
    explicit SimulatedElement(qint32 pid)
        : pid(pid) {}

    qint32 pid;
    bool gone = false; // every question goes unanswered
    std::map<QString, AXValue> attributes;
    std::optional<Announcement> announcement; // until it is taken
    std::map<QString, double> delays;         // seconds that a question takes
    std::function<void(const QString&)> onRead;
};

using ElementPtr = std::shared_ptr<SimulatedElement>;

// Accessibility over trees that the test builds.
class SimulatedAccessibility : public Accessibility {
public:
    struct Registration {
        qint32 pid; // of the observer
        AXElementRef element;
        QString name;

        bool operator==(const Registration&) const = default;
    };

    struct Timeout {
        AXElementRef element;
        double seconds;

        bool operator==(const Timeout&) const = default;
    };

    explicit SimulatedAccessibility(ManualScheduler& scheduler)
        : scheduler_(scheduler) {}

    bool isProcessTrusted() const override { return trusted; }
    void promptForTrust() override { ++prompts; }
    std::unique_ptr<AXObserver> createObserver(qint32 pid, AXCallback callback) override;
    AXElementRef applicationElement(qint32 pid) override;
    void setMessagingTimeout(const AXElementRef& element, double seconds) override;
    std::optional<AXValue> copyAttributeValue(const AXElementRef& element,
                                              const QString& attribute) override;
    std::optional<Announcement> takeAnnouncement(const AXElementRef& banner) override;
    std::optional<qint32> pid(const AXElementRef& element) override;

    // Sends an event to the attached observers that asked for it.
    void send(const AXElementRef& element, const QString& name);

    // The root of a process, made at the first use.
    ElementPtr application(qint32 pid);

    // A window with one banner, added to the windows of the process. Gives the banner's group.
    ElementPtr addBanner(qint32 pid, const QString& description, const QStringList& texts);
    void removeBanners(qint32 pid);

    std::size_t attachedObservers() const { return attached_.size(); }

    bool trusted = false;
    int prompts = 0; // of the system
    bool refusesObservers = false;
    std::vector<Registration> registrations; // of all observers, in their order
    std::vector<Timeout> timeouts;           // as they were set
    int scans = 0;                           // how often the windows of a process were asked for

private:
    class Observer;

    ManualScheduler& scheduler_;
    std::map<qint32, ElementPtr> applications_;
    std::set<Observer*> attached_;
};

ElementPtr makeElement(qint32 pid, const QString& role);
ElementPtr makeText(qint32 pid, const QString& value);
ElementPtr makeGroup(qint32 pid, const QString& description,
                     const std::vector<AXElementRef>& children);

} // namespace tessarine::testing
