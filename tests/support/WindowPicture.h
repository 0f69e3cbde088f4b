#pragma once

#include <QStringList>

class QImage;
class QQuickItem;
class QQuickWindow;
class QRectF;

namespace tessarine::testing {

// What the window shows once nothing in it moves any more: two pictures in a row are the same.
// Fails the test when that doesn't come.
QImage stillPicture(QQuickWindow& window);

// Under this name in the folder, which is made as needed. False when that can't be.
bool savePicture(const QImage& picture, const QString& folder, const QString& name);

// The texts below an item that reach out of the room to the left or right, by their content.
QStringList textsOutside(const QQuickItem& item, const QRectF& room);

} // namespace tessarine::testing
