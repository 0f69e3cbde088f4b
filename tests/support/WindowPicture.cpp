#include "support/WindowPicture.h"

#include "support/EventLoop.h"

#include <QDir>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace tessarine::testing {

QImage stillPicture(QQuickWindow& window) {
    QImage before;
    QImage picture = window.grabWindow();
    EXPECT_TRUE(turnsUntil([&] {
        turnFor(250);
        before = std::exchange(picture, window.grabWindow());
        return before == picture;
    }));
    return picture;
}

bool savePicture(const QImage& picture, const QString& folder, const QString& name) {
    return QDir().mkpath(folder) && picture.save(QDir(folder).filePath(name));
}

QStringList textsOutside(const QQuickItem& item, const QRectF& room) {
    QStringList found;
    if (!item.isVisible())
        return found;
    const QString text = item.property("text").toString();
    const double width = std::max(item.width(), item.property("paintedWidth").toDouble());
    const QRectF place = item.mapRectToScene(QRectF(0, 0, width, item.height()));
    if (!text.isEmpty() && (place.left() < room.left() || place.right() > room.right()))
        found << text;
    for (const QQuickItem* child : item.childItems())
        found << textsOutside(*child, room);
    return found;
}

} // namespace tessarine::testing
