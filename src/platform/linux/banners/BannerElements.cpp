#include "platform/linux/banners/BannerElements.h"

namespace tessarine {

namespace {

const QString windowRole = QStringLiteral("AXWindow");

// The three elements of a banner in one object: there may be many thousands.
class ShownBanner : public std::enable_shared_from_this<ShownBanner> {
public:
    ShownBanner(std::shared_ptr<const BannerLook> look, std::shared_ptr<BannerState> state)
        : look_(std::move(look))
        , state_(std::move(state)) {}

    AXElementRef window() const { return {shared_from_this(), &window_}; }

private:
    class Element : public BannerElement {
    public:
        explicit Element(const ShownBanner& banner)
            : banner_(banner) {}

        std::optional<qint32> pid() const override {
            return banner_.isGone() ? std::nullopt : std::optional(banner_.look_->pid);
        }

        std::optional<AXValue> attribute(const QString& name) const override {
            return banner_.isGone() ? std::nullopt : answer(name);
        }

        std::optional<Announcement> takeAnnouncement() const override { return std::nullopt; }

    protected:
        virtual std::optional<AXValue> answer(const QString& name) const = 0;

        const ShownBanner& banner_;
    };

    class Window : public Element {
        using Element::Element;

        std::optional<AXValue> answer(const QString& name) const override {
            if (name == ax::role)
                return windowRole;
            return name == ax::children ? banner_.list(banner_.group_) : std::nullopt;
        }
    };

    class Group : public Element {
    public:
        using Element::Element;

        std::optional<Announcement> takeAnnouncement() const override { return banner_.take(); }

    private:
        std::optional<AXValue> answer(const QString& name) const override {
            if (name == ax::role)
                return ax::group;
            if (name == ax::description)
                return banner_.state_->texts.title;
            return name == ax::children ? banner_.list(banner_.text_) : std::nullopt;
        }
    };

    class StaticText : public Element {
        using Element::Element;

        std::optional<AXValue> answer(const QString& name) const override {
            if (name == ax::role)
                return ax::staticText;
            return name == ax::value ? std::optional<AXValue>(banner_.state_->texts.title)
                                     : std::nullopt;
        }
    };

    bool isGone() const { return state_->isTaken; }

    std::optional<AXValue> list(const Element& element) const {
        return std::vector<AXElementRef>{{shared_from_this(), &element}};
    }

    std::optional<Announcement> take() const {
        if (!look_->take(*state_))
            return std::nullopt;
        const AnnouncedTexts& texts = state_->texts;
        return Announcement{texts.application, texts.title, texts.body,
                            state_->announcedAt + look_->wallClockAhead};
    }

    const std::shared_ptr<const BannerLook> look_;
    const std::shared_ptr<BannerState> state_;
    const Window window_{*this};
    const Group group_{*this};
    const StaticText text_{*this};
};

} // namespace

AXElementRef bannerWindow(std::shared_ptr<const BannerLook> look,
                          std::shared_ptr<BannerState> state) {
    return std::make_shared<const ShownBanner>(std::move(look), std::move(state))->window();
}

} // namespace tessarine
