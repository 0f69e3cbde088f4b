#pragma once

#include "browser/NotificationListModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace tessarine {

class NotificationListener;

// The state behind the root view of the main window: the listener's list, and which of its faces
// the view shows. Main thread.
class ContentView : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(ContentViewState)
    QML_UNCREATABLE("The main window brings it")
    Q_PROPERTY(Face face READ face NOTIFY faceChanged)
    Q_PROPERTY(tessarine::NotificationListModel* notifications READ notifications CONSTANT)

public:
    // Loading lasts until the listener has published its first list, empty or not.
    enum class Face { Loading, Empty, List };
    Q_ENUM(Face)

    explicit ContentView(std::shared_ptr<NotificationListener> listener);

    Face face() const { return face_; }
    NotificationListModel* notifications() { return &notifications_; }

Q_SIGNALS:
    void faceChanged();

private:
    void takeList();
    void setFace(Face face);

    std::shared_ptr<NotificationListener> listener_;
    NotificationListModel notifications_;
    Face face_ = Face::Loading;
};

} // namespace tessarine
