#pragma once

#include <QObject>
#include <QQmlParserStatus>
#include <QVariantAnimation>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// A fraction that a control shows. While the control can be seen, what is shown moves evenly to
// each new value; else, and at the beginning, it is there at once, so that nothing is animated for
// nobody. Main thread.
class AnimatedFraction : public QObject, public QQmlParserStatus {
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged REQUIRED)
    Q_PROPERTY(bool seen READ isSeen WRITE setSeen NOTIFY seenChanged REQUIRED)
    Q_PROPERTY(int duration READ duration WRITE setDuration NOTIFY durationChanged REQUIRED)
    Q_PROPERTY(double shown READ shown NOTIFY shownChanged)
    Q_PROPERTY(bool moving READ isMoving NOTIFY movingChanged)
    Q_PROPERTY(int percent READ percent NOTIFY valueChanged)

public:
    AnimatedFraction();

    // From 0 to 1; what is less or more is taken for these, and what is no number for 0.
    double value() const { return value_; }
    void setValue(double value);

    bool isSeen() const { return seen_; }
    void setSeen(bool seen);

    // How long a change takes, in milliseconds.
    int duration() const { return motion_.duration(); }
    void setDuration(int duration);

    double shown() const { return shown_; }
    bool isMoving() const { return motion_.state() == QVariantAnimation::Running; }

    // The value, not what is shown of it yet, in whole hundredths. 100 only when nothing is
    // missing.
    int percent() const;

    void classBegin() override {}
    void componentComplete() override { complete_ = true; }

Q_SIGNALS:
    void valueChanged();
    void seenChanged();
    void durationChanged();
    void shownChanged();
    void movingChanged();

private:
    void follow();
    void setShown(double shown);

    double value_ = 0;
    double shown_ = 0;
    bool seen_ = false;
    bool complete_ = false;
    QVariantAnimation motion_;
};

} // namespace tessarine
