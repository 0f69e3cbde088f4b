#include "platform/linux/desktop/LinuxStatusPanel.h"

#include "platform/Symbols.h"
#include "platform/SystemAppearance.h"
#include "platform/linux/desktop/WidgetPalette.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace tessarine {

namespace {

constexpr int panelHeight = 32;
constexpr int symbolSize = 18;
constexpr int sidePadding = 9;
constexpr int distanceFromEdges = 12;

bool isOnWayland() {
    return QGuiApplication::platformName().startsWith(u"wayland");
}

} // namespace

LinuxStatusPanel::LinuxStatusPanel(const Symbols& symbols, const SystemAppearance& appearance)
    : QAbstractButton()
    , symbols_(symbols)
    , appearance_(appearance) {
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::StrongFocus);
    QFont face = font();
    face.setWeight(QFont::DemiBold);
    setFont(face);
    connect(this, &QAbstractButton::clicked, this, &LinuxStatusPanel::requestMenu);
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, &LinuxStatusPanel::stayOnScreen);
    connect(QGuiApplication::primaryScreen(), &QScreen::availableGeometryChanged, this,
            &LinuxStatusPanel::stayOnScreen);
}

void LinuxStatusPanel::setContent(const QString& symbolName, const QString& description,
                                  const QString& title) {
    symbolName_ = symbolName;
    title_ = title.trimmed();
    setWindowTitle(description);
    setAccessibleName(description + title);
    setToolTip(description + title);
    setPalette(widgetPalette(appearance_.prefersDark()));
    stayOnScreen();
    update();
}

QSize LinuxStatusPanel::sizeHint() const {
    const int textWidth =
        title_.isEmpty() ? 0 : fontMetrics().horizontalAdvance(title_) + sidePadding * 2 / 3;
    return {symbolSize + textWidth + 2 * sidePadding, panelHeight};
}

// Keeps the right edge, which is the one at the corner of the screen, when the width changes.
void LinuxStatusPanel::stayOnScreen() {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry().marginsRemoved(
        {distanceFromEdges, distanceFromEdges, distanceFromEdges, distanceFromEdges});
    const QSize size = sizeHint();
    const QPoint corner = isDragged_ ? geometry().topRight() : room.topRight();
    setFixedSize(size);
    move(std::clamp(corner.x() - size.width() + 1, room.left(),
                    std::max(room.left(), room.right() - size.width() + 1)),
         std::clamp(corner.y(), room.top(),
                    std::max(room.top(), room.bottom() - size.height() + 1)));
}

void LinuxStatusPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor text = palette().color(QPalette::WindowText);
    QColor edge = text;
    edge.setAlphaF(hasFocus() ? 0.6F : 0.2F);
    painter.fillRect(rect(),
                     palette().color(isDown() || underMouse() ? QPalette::Base : QPalette::Window));
    painter.setPen(edge);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));

    const double density = devicePixelRatioF();
    QImage symbol = symbols_.image(symbolName_, qRound(symbolSize * density), text);
    symbol.setDevicePixelRatio(density);
    painter.drawImage(sidePadding, (height() - symbolSize) / 2, symbol);
    painter.setPen(text);
    painter.drawText(rect().adjusted(0, 0, -sidePadding, 0), Qt::AlignRight | Qt::AlignVCenter,
                     title_);
}

void LinuxStatusPanel::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton)
        return;
    pressedAt_ = event->globalPosition().toPoint();
    grip_ = pressedAt_ - pos();
    setDown(true);
}

void LinuxStatusPanel::mouseMoveEvent(QMouseEvent* event) {
    const QPoint pointer = event->globalPosition().toPoint();
    const bool isFar =
        (pointer - pressedAt_).manhattanLength() >= QApplication::startDragDistance();
    if (grip_ && (isFar || !isDown()))
        dragTo(pointer);
}

void LinuxStatusPanel::dragTo(const QPoint& pointer) {
    setDown(false);
    isDragged_ = true;
    if (isOnWayland())
        windowHandle()->startSystemMove(); // a client can't place its windows there
    else
        move(pointer - *grip_);
}

void LinuxStatusPanel::mouseReleaseEvent(QMouseEvent*) {
    const bool isClick = grip_ && isDown();
    grip_.reset();
    setDown(false);
    if (isClick)
        requestMenu();
}

void LinuxStatusPanel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Menu:
        requestMenu();
        break;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

// The other ways by which a platform asks for a menu; the right button has asked already.
void LinuxStatusPanel::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard)
        requestMenu();
}

void LinuxStatusPanel::requestMenu() {
    Q_EMIT menuRequested(mapToGlobal(rect().bottomLeft() + QPoint(0, 1)));
}

} // namespace tessarine
