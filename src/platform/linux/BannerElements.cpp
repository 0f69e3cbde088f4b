#include "platform/linux/BannerElements.h"

#include <atomic>

namespace tessarine {

namespace {

// What the elements of one window share: the texts, and which of them were asked for.
class Banner {
public:
    Banner(qint32 pid, std::shared_ptr<const BannerState> state, std::function<double()> clock,
           std::function<void(std::uint64_t)> allRead)
        : pid_(pid)
        , state_(std::move(state))
        , clock_(std::move(clock))
        , allRead_(std::move(allRead))
        , textCount_(state_->shownTexts(clock_()).size())
        , whole_(descriptionBit | ((1U << textCount_) - 1)) {}

    qint32 pid() const { return pid_; }

    QString readDescription() {
        noteRead(descriptionBit);
        return state_->description();
    }

    qsizetype textCount() const { return textCount_; }

    QString readText(qsizetype index) {
        QString text = state_->shownTexts(clock_()).at(index);
        noteRead(1U << index);
        return text;
    }

private:
    static constexpr unsigned descriptionBit = 1U << 31;

    void noteRead(unsigned bit) {
        const unsigned before = read_.fetch_or(bit);
        if (before != whole_ && (before | bit) == whole_)
            allRead_(state_->number);
    }

    const qint32 pid_;
    const std::shared_ptr<const BannerState> state_;
    const std::function<double()> clock_;
    const std::function<void(std::uint64_t)> allRead_;
    const qsizetype textCount_;
    const unsigned whole_;
    std::atomic<unsigned> read_ = 0; // one bit for each text, one for the description
};

class Part : public BannerElement {
public:
    explicit Part(std::shared_ptr<Banner> banner)
        : banner_(std::move(banner)) {}

    qint32 pid() const override { return banner_->pid(); }

protected:
    const std::shared_ptr<Banner> banner_;
};

class StaticText : public Part {
public:
    StaticText(std::shared_ptr<Banner> banner, qsizetype index)
        : Part(std::move(banner))
        , index_(index) {}

    std::optional<AXValue> attribute(const QString& name) const override {
        if (name == ax::role)
            return ax::staticText;
        if (name == ax::value)
            return banner_->readText(index_);
        return std::nullopt;
    }

private:
    const qsizetype index_;
};

class Group : public Part {
public:
    using Part::Part;

    std::optional<AXValue> attribute(const QString& name) const override {
        if (name == ax::role)
            return ax::group;
        if (name == ax::description)
            return banner_->readDescription();
        if (name != ax::children)
            return std::nullopt;
        std::vector<AXElementRef> texts;
        for (qsizetype index = 0; index < banner_->textCount(); ++index)
            texts.push_back(std::make_shared<StaticText>(banner_, index));
        return texts;
    }
};

class Window : public Part {
public:
    using Part::Part;

    std::optional<AXValue> attribute(const QString& name) const override {
        if (name == ax::role)
            return windowRole;
        if (name == ax::children)
            return std::vector<AXElementRef>{std::make_shared<Group>(banner_)};
        return std::nullopt;
    }

private:
    static inline const QString windowRole = QStringLiteral("AXWindow");
};

} // namespace

AXElementRef bannerWindow(qint32 pid, std::shared_ptr<const BannerState> state,
                          std::function<double()> clock,
                          std::function<void(std::uint64_t)> allRead) {
    return std::make_shared<Window>(
        std::make_shared<Banner>(pid, std::move(state), std::move(clock), std::move(allRead)));
}

} // namespace tessarine
