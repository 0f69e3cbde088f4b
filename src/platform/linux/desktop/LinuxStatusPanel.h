#pragma once

#include <QAbstractButton>

#include <optional>

namespace tessarine {

class Symbols;
class SystemAppearance;

// The status item on a desktop without a tray: a small rounded window in the lower right corner of
// the screen, above the others and in no task bar, that comes without taking the keyboard and can
// be dragged away. Left and right mouse button ask for the menu, and so do Space, Return and the
// menu key once it has the keyboard; with Alt held they ask for what else there is, and so does the
// middle button.
class LinuxStatusPanel : public QAbstractButton {
    Q_OBJECT

public:
    // Both outlive the panel.
    LinuxStatusPanel(const Symbols& symbols, const SystemAppearance& appearance);

    void setContent(const QString& symbolName, const QString& description, const QString& title);

    // The title in words; empty leaves it at the description.
    void setTip(const QString& tip);

    // How far the panel's lower right corner is from the one of the room that the desktop leaves to
    // windows, in points. Where a compositor places windows alone, it stays where that wants it.
    void setOffset(const QPoint& offset);
    QPoint offset() const { return offset_; }

    // The panel on the screen, without its shadow.
    QRect body() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    void menuRequested(const QPoint& place); // on the screen
    void alternateRequested();
    void placed(); // by the user, who has let go of it

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void request(Qt::KeyboardModifiers modifiers);
    void requestMenu();
    void dragTo(const QPoint& pointer);
    void stayOnScreen();
    void noteOffset();
    QRect face() const;

    const Symbols& symbols_;
    const SystemAppearance& appearance_;
    QString symbolName_;
    QString title_;
    std::optional<QPoint> grip_; // where the pressed pointer is, from the corner of the panel
    QPoint pressedAt_;
    bool isDragged_ = false;
    const int shadow_; // how far it reaches beyond the panel, on each side
    QPoint offset_;
};

} // namespace tessarine
