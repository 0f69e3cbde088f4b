#include "support/SimulatedAccessibility.h"

#include <utility>

namespace tessarine::testing {

namespace {

const SimulatedElement& simulated(const AXElementRef& element) {
    return static_cast<const SimulatedElement&>(*element);
}

} // namespace

class SimulatedAccessibility::Observer : public AXObserver {
public:
    Observer(SimulatedAccessibility& accessibility, qint32 pid, AXCallback callback)
        : accessibility_(accessibility)
        , pid_(pid)
        , callback_(std::move(callback)) {}
    ~Observer() override { accessibility_.attached_.erase(this); }

    void addNotification(const AXElementRef& element, const QString& name) override {
        names_.insert(name);
        accessibility_.registrations.push_back({pid_, element, name});
    }
    void attachToMainRunLoop() override { accessibility_.attached_.insert(this); }

    void receive(const AXElementRef& element, const QString& name) {
        if (names_.contains(name))
            callback_(element, name);
    }

private:
    SimulatedAccessibility& accessibility_;
    qint32 pid_;
    AXCallback callback_;
    std::set<QString> names_;
};

std::unique_ptr<AXObserver> SimulatedAccessibility::createObserver(qint32 pid,
                                                                   AXCallback callback) {
    if (refusesObservers)
        return nullptr;
    return std::make_unique<Observer>(*this, pid, std::move(callback));
}

AXElementRef SimulatedAccessibility::applicationElement(qint32 pid) {
    return application(pid);
}

void SimulatedAccessibility::setMessagingTimeout(const AXElementRef& element, double seconds) {
    timeouts.push_back({element, seconds});
}

std::optional<AXValue> SimulatedAccessibility::copyAttributeValue(const AXElementRef& element,
                                                                  const QString& attribute) {
    const SimulatedElement& asked = simulated(element);
    if (attribute == ax::windows)
        ++scans;
    if (asked.onRead)
        asked.onRead(attribute);
    if (const auto delay = asked.delays.find(attribute); delay != asked.delays.end())
        scheduler_.spend(delay->second);
    const auto found = asked.attributes.find(attribute);
    if (asked.gone || found == asked.attributes.end())
        return std::nullopt;
    return found->second;
}

std::optional<Announcement> SimulatedAccessibility::takeAnnouncement(const AXElementRef& banner) {
    auto& asked = const_cast<SimulatedElement&>(simulated(banner)); // the tree is the test's own
    std::optional<Announcement> taken = std::exchange(asked.announcement, std::nullopt);
    asked.gone |= taken.has_value();
    return taken;
}

std::optional<qint32> SimulatedAccessibility::pid(const AXElementRef& element) {
    return simulated(element).gone ? std::nullopt : std::optional(simulated(element).pid);
}

void SimulatedAccessibility::send(const AXElementRef& element, const QString& name) {
    for (Observer* const observer : std::set<Observer*>(attached_))
        observer->receive(element, name);
}

ElementPtr SimulatedAccessibility::application(qint32 pid) {
    ElementPtr& root = applications_[pid];
    if (!root) {
        root = std::make_shared<SimulatedElement>(pid);
        root->attributes[ax::windows] = std::vector<AXElementRef>();
    }
    return root;
}

ElementPtr SimulatedAccessibility::addBanner(qint32 pid, const QString& description,
                                             const QStringList& texts) {
    std::vector<AXElementRef> children;
    for (const QString& text : texts)
        children.push_back(makeText(pid, text));
    ElementPtr banner = makeGroup(pid, description, children);
    const ElementPtr window = makeElement(pid, QStringLiteral("AXWindow"));
    window->attributes[ax::children] = std::vector<AXElementRef>{banner};
    std::get<std::vector<AXElementRef>>(application(pid)->attributes[ax::windows])
        .push_back(window);
    return banner;
}

void SimulatedAccessibility::removeBanners(qint32 pid) {
    application(pid)->attributes[ax::windows] = std::vector<AXElementRef>();
}

ElementPtr makeElement(qint32 pid, const QString& role) {
    ElementPtr element = std::make_shared<SimulatedElement>(pid);
    element->attributes[ax::role] = role;
    return element;
}

ElementPtr makeText(qint32 pid, const QString& value) {
    ElementPtr element = makeElement(pid, ax::staticText);
    element->attributes[ax::value] = value;
    return element;
}

ElementPtr makeGroup(qint32 pid, const QString& description,
                     const std::vector<AXElementRef>& children) {
    ElementPtr element = makeElement(pid, ax::group);
    element->attributes[ax::description] = description;
    element->attributes[ax::children] = children;
    return element;
}

} // namespace tessarine::testing
