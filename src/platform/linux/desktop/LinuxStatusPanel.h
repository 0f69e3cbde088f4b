#pragma once

#include <QAbstractButton>

#include <optional>

namespace tessarine {

class Symbols;
class SystemAppearance;

// The status item on a desktop without a tray: a small window in a corner of the screen, above the
// others, that comes without taking the keyboard and can be dragged away. Either mouse button asks
// for the menu, and so do Space, Return and the menu key once it has the keyboard.
class LinuxStatusPanel : public QAbstractButton {
    Q_OBJECT

public:
    // Both outlive the panel.
    LinuxStatusPanel(const Symbols& symbols, const SystemAppearance& appearance);

    void setContent(const QString& symbolName, const QString& description, const QString& title);

    QSize sizeHint() const override;

Q_SIGNALS:
    void menuRequested(const QPoint& place); // on the screen

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void requestMenu();
    void dragTo(const QPoint& pointer);
    void stayOnScreen();

    const Symbols& symbols_;
    const SystemAppearance& appearance_;
    QString symbolName_;
    QString title_;
    std::optional<QPoint> grip_; // where the pressed pointer is, from the corner of the panel
    QPoint pressedAt_;
    bool isDragged_ = false;
};

} // namespace tessarine
