#include "platform/linux/banners/LinuxAccessibility.h"

#include "platform/linux/banners/BannerElements.h"

#include <QSet>

namespace tessarine {

namespace {

const BannerElement* known(const AXElementRef& element) {
    return dynamic_cast<const BannerElement*>(element.get());
}

// Passes on the events of one process that were asked for.
class BannerObserver : public AXObserver {
public:
    BannerObserver(std::shared_ptr<BannerProcess> process, qint32 pid, AXCallback callback)
        : process_(std::move(process))
        , pid_(pid)
        , callback_(std::move(callback)) {}

    // Banners are all there is: an element below the root sends no events of its own.
    void addNotification(const AXElementRef& element, const QString& name) override {
        if (const BannerElement* const root = known(element); root && root->pid() == pid_)
            names_.insert(name);
    }

    void attachToMainRunLoop() override {
        token_ = process_->onEvent([this](const AXElementRef& element, const QString& name) {
            if (names_.contains(name) && known(element)->pid() == pid_)
                callback_(element, name);
        });
    }

private:
    const std::shared_ptr<BannerProcess> process_;
    const qint32 pid_;
    const AXCallback callback_;
    QSet<QString> names_;
    std::shared_ptr<void> token_;
};

} // namespace

LinuxAccessibility::LinuxAccessibility(std::shared_ptr<BannerProcess> process,
                                       std::string busAddress)
    : process_(std::move(process))
    , monitor_(process_, std::move(busAddress)) {}

bool LinuxAccessibility::isProcessTrusted() const {
    return process_->isTrusted();
}

std::unique_ptr<AXObserver> LinuxAccessibility::createObserver(qint32 pid, AXCallback callback) {
    if (process_->pid() != pid)
        return nullptr;
    return std::make_unique<BannerObserver>(process_, pid, std::move(callback));
}

AXElementRef LinuxAccessibility::applicationElement(qint32 pid) {
    return process_->applicationElement(pid);
}

// Every answer is at hand.
void LinuxAccessibility::setMessagingTimeout(const AXElementRef&, double) {}

std::optional<AXValue> LinuxAccessibility::copyAttributeValue(const AXElementRef& element,
                                                              const QString& attribute) {
    const BannerElement* const banner = known(element);
    return banner ? banner->attribute(attribute) : std::nullopt;
}

std::optional<Announcement> LinuxAccessibility::takeAnnouncement(const AXElementRef& banner) {
    const BannerElement* const element = known(banner);
    return element ? element->takeAnnouncement() : std::nullopt;
}

std::optional<qint32> LinuxAccessibility::pid(const AXElementRef& element) {
    const BannerElement* const banner = known(element);
    return banner ? banner->pid() : std::nullopt;
}

} // namespace tessarine
