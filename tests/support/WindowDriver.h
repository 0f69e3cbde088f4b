#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <QStringList>

#include <functional>

namespace tessarine::testing {

// What a user does with a window of views, and sees of it. Items are those that are in the window
// now, also in menus, popovers and sheets. Each deed waits for the window to be drawn.
class WindowDriver {
public:
    // The window outlives the driver.
    explicit WindowDriver(QQuickWindow& window)
        : window_(window) {}

    QQuickWindow& window() const { return window_; }

    // By objectName. A test ends where there is none.
    QQuickItem& item(const QString& name) const;
    QQuickItem* findItem(const QString& name) const; // null when there is none

    // The entry of an open menu, or the button, with this text; null when there is none.
    QQuickItem* entry(const QString& text) const;

    void click(QQuickItem& item);
    void clickAt(QQuickItem& item, QPointF place);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void draw() const { window_.grabWindow(); }

    // All that a reader sees, in the order of the items.
    QStringList texts() const;
    static QStringList textsIn(const QQuickItem& item);

    // Texts that reach out of the window, or are cut although they should not be.
    QStringList textsOutside() const;

    // The name for a screen reader of what has the keyboard; empty where nothing has it.
    QString focusName() const;

    // By Tab alone, until the keyboard is with what has this name; false when it never comes there.
    bool tabTo(const QString& accessibleName);

    // Every object below the window.
    qsizetype objects() const;

    // Once nothing moves any more.
    QImage stillPicture() const;

private:
    using Test = std::function<bool(const QQuickItem&)>;
    QQuickItem* find(const Test& test) const;

    QQuickWindow& window_;
};

} // namespace tessarine::testing
