#pragma once

#include "browser/list/BrowserList.h"

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The header of the group at the upper edge of a list view, which stays there while the group's
// rows scroll, until the next header pushes it out. It follows the list, and its view when that
// tells of a movement by `update`. Main thread.
class PinnedHeader : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* view MEMBER view_ REQUIRED) // a ListView of the list's lines
    Q_PROPERTY(tessarine::BrowserList* list READ list WRITE setList REQUIRED)
    Q_PROPERTY(double height MEMBER height_ REQUIRED) // of a header
    Q_PROPERTY(int line READ line NOTIFY changed)     // of the header among the lines; -1 for none
    Q_PROPERTY(
        bool isPinned READ isPinned NOTIFY changed) // false where the line itself is in sight
    Q_PROPERTY(double top READ top NOTIFY changed)  // in the view
    Q_PROPERTY(tessarine::GroupHeader header READ header NOTIFY headerChanged)

public:
    BrowserList* list() const { return list_; }
    void setList(BrowserList* list);

    int line() const { return line_; }
    bool isPinned() const;
    double top() const;
    const GroupHeader& header() const { return header_; }

    // The view has moved.
    Q_INVOKABLE void update();

Q_SIGNALS:
    void changed();
    void headerChanged();

private:
    double contentY() const;
    int lineAt(double y) const;
    int topLine() const;
    QQuickItem* itemAt(int line) const;
    void follow(QPointer<QQuickItem>& followed, QQuickItem* item);
    void updateHeader();

    QPointer<QQuickItem> view_;
    QPointer<BrowserList> list_;
    double height_ = 0;
    int line_ = -1;
    QPointer<QQuickItem> item_;     // of the line itself, while the view has one
    QPointer<QQuickItem> nextItem_; // of the next header
    GroupHeader header_;
};

} // namespace tessarine
