#pragma once

#include "platform/Scheduler.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace tessarine {

// One picture of the walkthrough.
struct WalkthroughStep {
    Q_GADGET
    QML_VALUE_TYPE(walkthroughStep)
    Q_PROPERTY(QString icon MEMBER icon CONSTANT)
    Q_PROPERTY(int color READ colorIndex CONSTANT)
    Q_PROPERTY(QString screen MEMBER screen CONSTANT)
    Q_PROPERTY(QString label MEMBER label CONSTANT)

public:
    // A colour of the theme, which knows light from dark.
    enum class Ink { secondary, red, accent, green, orange };

    int colorIndex() const { return int(color); }
    bool operator==(const WalkthroughStep&) const = default;

    QString icon;
    Ink color = Ink::secondary;
    QString screen; // what the screen of the phone, or of the Mac, shows
    QString label;  // what to do there
};

// How an iPhone's notifications come to a Mac, step by step. It goes on by itself while it plays,
// round and round, and stops when the user steps by hand. Main thread.
class IPhoneWalkthrough : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("HelpView brings it")
    Q_PROPERTY(tessarine::WalkthroughStep step READ step NOTIFY stepChanged)
    Q_PROPERTY(int animStep READ animStep NOTIFY stepChanged)
    Q_PROPERTY(int count READ count CONSTANT)
    Q_PROPERTY(QString position READ position NOTIFY stepChanged)
    Q_PROPERTY(bool playing READ isPlaying NOTIFY playingChanged)

public:
    static constexpr double interval = 1.8; // seconds for a step

    // The scheduler outlives the walkthrough.
    explicit IPhoneWalkthrough(Scheduler& scheduler);

    const QList<WalkthroughStep>& steps() const { return steps_; }
    int count() const { return int(steps_.size()); }
    int animStep() const { return animStep_; } // from 0
    const WalkthroughStep& step() const { return steps_[animStep_]; }
    QString position() const; // "Step 1 of 5"
    bool isPlaying() const { return animTimer_ != nullptr; }

    // What it is seen on. It stops when that is hidden or goes.
    Q_INVOKABLE void setStage(QQuickItem* stage);

    // From the first step on.
    Q_INVOKABLE void restart();
    Q_INVOKABLE void stop();

    // Stops where it plays, else restarts.
    Q_INVOKABLE void togglePlaying();

    // By hand, and from then on by hand only. The first step follows the last.
    Q_INVOKABLE void next();
    Q_INVOKABLE void previous();

Q_SIGNALS:
    void stepChanged();
    void playingChanged();

private:
    void moveBy(int steps);
    void setStep(int step);

    Scheduler& scheduler_;
    const QList<WalkthroughStep> steps_;
    QPointer<QQuickItem> stage_;
    int animStep_ = 0;
    std::unique_ptr<RepeatingTimer> animTimer_; // null: it stands
};

} // namespace tessarine
