#pragma once

#include "browser/list/BrowserList.h"

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QVariantAnimation>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Toggles the groups of a list view. While the rows of a group that closes fade, what is below them
// slides up to the place that it has when they are gone; a view that is shorter by then, and so
// scrolls back, slides there too. Only what is in sight fades and slides, however large the group
// is. The lines are moved by one translation that they share, so that their own places, and what is
// computed from them, stay those of the list. Main thread.
class GroupSlide : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* view MEMBER view_ REQUIRED) // a ListView of the list's lines
    Q_PROPERTY(tessarine::BrowserList* list READ list WRITE setList REQUIRED)
    Q_PROPERTY(QObject* translation MEMBER translation_ REQUIRED)     // a Translate
    Q_PROPERTY(int duration READ duration WRITE setDuration REQUIRED) // in milliseconds

public:
    GroupSlide();

    BrowserList* list() const { return list_; }
    void setList(BrowserList* list) { list_ = list; }
    int duration() const { return motion_.duration(); }
    void setDuration(int duration) { motion_.setDuration(duration); }

    // Opens or closes the group with this header.
    Q_INVOKABLE void toggle(const QString& key);

    // To be called when the list has changed: lays the view out, and ends the slide of a group
    // whose rows are gone.
    Q_INVOKABLE void layOut();

private:
    int lineOfHeader(const QString& key) const;
    int rowsInSightBelow(int header) const;
    void slideUp(int header, int rows);
    void slideBack(double distance);
    void start(double from, double to);
    void end();
    double top() const; // of the header of the group that closes, in the view
    double upperEdge() const;
    void moveLines();
    void releaseLines();
    QQuickItem* contentItem() const;
    QQuickItem* itemAt(int line) const;

    QPointer<QQuickItem> view_;
    QPointer<BrowserList> list_;
    QPointer<QObject> translation_;
    QString key_;                 // of the group that closes; empty when none does
    QPointer<QQuickItem> header_; // its header
    QPointer<QQuickItem> last_;   // the last of its rows in sight
    QList<QPointer<QQuickItem>> moved_;
    QVariantAnimation motion_;
};

} // namespace tessarine
