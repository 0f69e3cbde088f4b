#pragma once

#include <QObject>
#include <QUuid>
#include <qqml.h>

namespace tessarine {

// Names the type of a row's id for QML.
struct UuidValue {
    Q_GADGET
    QML_FOREIGN(QUuid)
    QML_VALUE_TYPE(uuid)
};

// How a row of the list reacts: whether it is masked, and what its clicks mean. Each row that is
// built has one. A reveal lasts for a look: a reload, which renews all ids, ends it. Main thread.
class NotificationRow : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(NotificationRowState)
    Q_PROPERTY(QUuid notificationId MEMBER id_ WRITE setNotificationId)
    Q_PROPERTY(bool isPrivate READ isPrivate WRITE setPrivate NOTIFY maskedChanged)
    Q_PROPERTY(bool selectionMode READ selectionMode WRITE setSelectionMode NOTIFY maskedChanged)
    Q_PROPERTY(bool masked READ isMasked NOTIFY maskedChanged)
    Q_PROPERTY(bool asksForReveal READ asksForReveal NOTIFY maskedChanged)

public:
    explicit NotificationRow(QObject* parent = nullptr)
        : QObject(parent) {}

    void setNotificationId(const QUuid& id);
    bool isPrivate() const { return isPrivate_; }
    void setPrivate(bool isPrivate);
    bool selectionMode() const { return selectionMode_; }
    void setSelectionMode(bool selectionMode);

    // Whether content is hidden now. Selection mode lifts the mask of every row.
    bool isMasked() const { return asksForReveal() && !selectionMode_; }

    // Whether a click would reveal, were it not for selection mode.
    bool asksForReveal() const { return isPrivate_ && !revealed_; }

    // The pointer's doings, in the order in which they come: a press, a click, and where a second
    // press follows in time that press and a double click.
    Q_INVOKABLE void press();
    Q_INVOKABLE void click();
    Q_INVOKABLE void doubleClick();

Q_SIGNALS:
    void maskedChanged();
    void revealed(); // by a click; masked has changed before
    void singleTap(const QUuid& id);
    void doubleTap(const QUuid& id);
    void toggleSelection(const QUuid& id);

private:
    void reveal();

    QUuid id_;
    bool isPrivate_ = false;
    bool selectionMode_ = false;
    bool revealed_ = false;
    bool maskedAtPress_ = false;
    bool maskedAtPressBefore_ = false;
};

} // namespace tessarine
