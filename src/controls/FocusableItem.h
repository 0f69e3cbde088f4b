#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Something that Tab stops at and a key presses, without being one of Qt's controls: what those are
// called by a screen reader can't be changed. As with these, the ring belongs to who comes by the
// keyboard, and a click doesn't take the keyboard along. Main thread.
class FocusableItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool visualFocus READ visualFocus NOTIFY visualFocusChanged)

public:
    explicit FocusableItem(QQuickItem* parent = nullptr);

    // Whether the keyboard is here and came by itself, so that the ring shall show it.
    bool visualFocus() const { return visualFocus_; }

Q_SIGNALS:
    void visualFocusChanged();

    // Space, Return or Enter, without a modifier. A key that is held down counts once.
    void keyPressed();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setVisualFocus(bool visual);

    bool visualFocus_ = false;
};

} // namespace tessarine
