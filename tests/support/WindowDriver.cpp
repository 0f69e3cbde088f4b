#include "support/WindowDriver.h"

#include "support/EventLoop.h"

#include <QAccessible>
#include <QTest>

#include <algorithm>
#include <utility>

namespace tessarine::testing {

namespace {

QQuickItem* firstVisibleBelow(QQuickItem& top, const std::function<bool(const QQuickItem&)>& test) {
    if (!top.isVisible())
        return nullptr;
    if (test(top))
        return &top;
    for (QQuickItem* child : top.childItems()) {
        if (QQuickItem* found = firstVisibleBelow(*child, test))
            return found;
    }
    return nullptr;
}

QStringList outside(const QQuickItem& item, const QRectF& room) {
    QStringList found;
    if (!item.isVisible())
        return found;
    const QString text = item.inherits("QQuickText") ? item.property("text").toString() : QString();
    const double width = std::max(item.width(), item.property("paintedWidth").toDouble());
    const QRectF place = item.mapRectToScene(QRectF(0, 0, width, item.height()));
    if (!text.isEmpty() && (place.left() < room.left() || place.right() > room.right()))
        found << text;
    for (const QQuickItem* child : item.childItems())
        found << outside(*child, room);
    return found;
}

} // namespace

QQuickItem* WindowDriver::find(const Test& test) const {
    return firstVisibleBelow(*window_.contentItem(), test);
}

QQuickItem* WindowDriver::findItem(const QString& name) const {
    return find([&](const QQuickItem& item) { return item.objectName() == name; });
}

QQuickItem& WindowDriver::item(const QString& name) const {
    QQuickItem* found = findItem(name);
    if (!found)
        qFatal("nothing named %s is in the window", qPrintable(name));
    return *found;
}

QQuickItem* WindowDriver::entry(const QString& text) const {
    return find([&](const QQuickItem& item) {
        return item.inherits("QQuickAbstractButton") && item.property("text").toString() == text;
    });
}

void WindowDriver::clickAt(QQuickItem& item, QPointF place) {
    QTest::mouseClick(&window_, Qt::LeftButton, {}, item.mapToScene(place).toPoint());
    draw();
}

void WindowDriver::click(QQuickItem& item) {
    clickAt(item, {item.width() / 2, item.height() / 2});
}

void WindowDriver::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&window_, key, modifiers);
    if (window_.isVisible())
        draw();
}

QStringList WindowDriver::textsIn(const QQuickItem& item) {
    QStringList texts;
    for (const QQuickItem* child : item.childItems()) {
        if (!child->isVisible())
            continue;
        const QString text = child->property("text").toString();
        if (child->inherits("QQuickText") && !text.isEmpty())
            texts << text;
        texts << textsIn(*child);
    }
    return texts;
}

QStringList WindowDriver::texts() const {
    return textsIn(*window_.contentItem());
}

QStringList WindowDriver::textsOutside() const {
    return outside(*window_.contentItem(), QRectF(QPointF(), window_.size()));
}

QString WindowDriver::focusName() const {
    QQuickItem* const item = window_.activeFocusItem();
    QAccessibleInterface* const spoken =
        item ? QAccessible::queryAccessibleInterface(item) : nullptr;
    return spoken ? spoken->text(QAccessible::Name) : QString();
}

bool WindowDriver::tabTo(const QString& accessibleName) {
    constexpr int most = 40;
    for (int i = 0; i < most && focusName() != accessibleName; ++i)
        press(Qt::Key_Tab);
    return focusName() == accessibleName;
}

qsizetype WindowDriver::objects() const {
    return window_.findChildren<QObject*>().size() +
           window_.contentItem()->findChildren<QObject*>().size();
}

QImage WindowDriver::stillPicture() const {
    QImage before;
    QImage picture = window_.grabWindow();
    turnsUntil([&] {
        turnFor(250);
        before = std::exchange(picture, window_.grabWindow());
        return before == picture;
    });
    return picture;
}

} // namespace tessarine::testing
