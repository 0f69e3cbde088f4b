#pragma once

#include <QObject>
#include <QUuid>
#include <qqml.h>

#include <optional>

namespace tessarine {

// Names the type of a row's id for QML.
struct UuidValue {
    Q_GADGET
    QML_FOREIGN(QUuid)
    QML_VALUE_TYPE(uuid)
};

// How a row of the list reacts: whether it is masked, and what its clicks mean. Each item of a row
// has one. A reveal lasts for a look: a reload, which renews all ids, ends it, but not in the
// middle of a gesture. Main thread.
class NotificationRow : public QObject {
    Q_OBJECT

public:
    explicit NotificationRow(QObject* parent = nullptr)
        : QObject(parent) {}

    const QUuid& notificationId() const { return id_; }
    void setNotificationId(const QUuid& id);
    bool isPrivate() const { return isPrivate_; }
    void setPrivate(bool isPrivate);
    bool selectionMode() const { return selectionMode_; }
    void setSelectionMode(bool selectionMode);

    // Whether content is hidden now. Selection mode lifts the mask of every row.
    bool isMasked() const { return asksForReveal() && !selectionMode_; }

    // Whether a click would reveal, were it not for selection mode.
    bool asksForReveal() const { return isPrivate_ && !revealed_; }

    // What the pointer does, in the order in which it comes: a press, a click, and where a second
    // press follows in time that press and a double click.
    void press();
    void click();
    void doubleClick();

    // The time for a second press is over: a mask that was held back comes now. A double click ends
    // the gesture too.
    void endGesture();

    // Another row was pressed since.
    void forgetPress();

Q_SIGNALS:
    void maskedChanged();
    void revealed(); // by a click; masked has changed before
    void singleTap(const QUuid& id);
    void doubleTap(const QUuid& id);
    void toggleSelection(const QUuid& id);

private:
    struct Press {
        bool wasMasked;
    };

    void reveal();

    QUuid id_;
    bool isPrivate_ = false;
    bool selectionMode_ = false;
    bool revealed_ = false;
    bool gestureRuns_ = false;
    bool masksAfterGesture_ = false;
    std::optional<Press> lastPress_; // of this row, and of no other row after it
    std::optional<Press> pressBefore_;
};

} // namespace tessarine
