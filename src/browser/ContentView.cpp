#include "browser/ContentView.h"

#include "capture/NotificationListener.h"

namespace tessarine {

ContentView::ContentView(std::shared_ptr<NotificationListener> listener)
    : listener_(std::move(listener)) {
    connect(listener_.get(), &NotificationListener::notificationsChanged, this,
            &ContentView::takeList);
    if (!listener_->notifications().empty())
        takeList();
}

void ContentView::takeList() {
    notifications_.setNotifications(listener_->notifications());
    setFace(notifications_.rowCount() > 0 ? Face::List : Face::Empty);
}

void ContentView::setFace(Face face) {
    if (face_ == face)
        return;
    face_ = face;
    Q_EMIT faceChanged();
}

} // namespace tessarine
