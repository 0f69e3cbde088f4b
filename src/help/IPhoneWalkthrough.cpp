#include "help/IPhoneWalkthrough.h"

#include <QCoreApplication>

#include <utility>

namespace tessarine {

namespace {

using Ink = WalkthroughStep::Ink;

QList<WalkthroughStep> makeSteps() {
    return {{QStringLiteral("gearshape.fill"), Ink::secondary,
             qtTrId("help.iphone.walk.settings.screen"), qtTrId("help.iphone.walk.settings.label")},
            {QStringLiteral("bell.fill"), Ink::red, qtTrId("help.iphone.walk.notifications.screen"),
             qtTrId("help.iphone.walk.notifications.label")},
            {QStringLiteral("square.grid.2x2"), Ink::accent, qtTrId("help.iphone.walk.app.screen"),
             qtTrId("help.iphone.walk.app.label")},
            {QStringLiteral("switch.2"), Ink::green, qtTrId("help.iphone.walk.showOnMac.screen"),
             qtTrId("help.iphone.walk.showOnMac.label")},
            {QStringLiteral("tray.full"), Ink::orange, qtTrId("help.iphone.walk.hoard.screen"),
             qtTrId("help.iphone.walk.hoard.label")}};
}

} // namespace

IPhoneWalkthrough::IPhoneWalkthrough(Scheduler& scheduler)
    : scheduler_(scheduler)
    , steps_(makeSteps()) {}

// English in all languages, as the tables of the help.
QString IPhoneWalkthrough::position() const {
    return QStringLiteral("Step %1 of %2").arg(animStep_ + 1).arg(count());
}

// A stage that another has taken the place of has no say any more, also if it goes later.
void IPhoneWalkthrough::setStage(QQuickItem* stage) {
    if (stage_)
        disconnect(stage_, nullptr, this, nullptr);
    stage_ = stage;
    connect(stage, &QObject::destroyed, this, &IPhoneWalkthrough::stop);
    connect(stage, &QQuickItem::visibleChanged, this, [this] {
        if (!stage_->isVisible())
            stop();
    });
}

void IPhoneWalkthrough::restart() {
    setStep(0);
    animTimer_ = scheduler_.every(interval, [this] { moveBy(1); });
    Q_EMIT playingChanged();
}

void IPhoneWalkthrough::stop() {
    if (std::exchange(animTimer_, nullptr))
        Q_EMIT playingChanged();
}

void IPhoneWalkthrough::togglePlaying() {
    if (isPlaying())
        stop();
    else
        restart();
}

void IPhoneWalkthrough::next() {
    stop();
    moveBy(1);
}

void IPhoneWalkthrough::previous() {
    stop();
    moveBy(-1);
}

void IPhoneWalkthrough::moveBy(int steps) {
    setStep((animStep_ + steps + count()) % count());
}

void IPhoneWalkthrough::setStep(int step) {
    if (std::exchange(animStep_, step) != step)
        Q_EMIT stepChanged();
}

} // namespace tessarine
