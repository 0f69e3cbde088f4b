#include "platform/linux/desktop/LinuxStatusPanel.h"

#include "platform/Symbols.h"
#include "platform/SystemAppearance.h"
#include "platform/linux/desktop/WidgetPalette.h"
#include "platform/linux/desktop/X11Windows.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tessarine {

namespace {

constexpr int panelHeight = 32;
constexpr int symbolSize = 18;
constexpr int sidePadding = 9;
constexpr int distanceFromEdges = 12;
constexpr int cornerRadius = 8;
constexpr int shadowReach = 10;
constexpr int shadowDrop = 2; // the light comes from above

bool isOnWayland() {
    return QGuiApplication::platformName().startsWith(u"wayland");
}

// For a screen on which nothing can be translucent.
QRegion roundedRegion(const QRect& rect) {
    QPainterPath path;
    path.addRoundedRect(rect, cornerRadius, cornerRadius);
    return QRegion(path.toFillPolygon().toPolygon());
}

// Rings of the panel's shape, one over the other, so that it grows soft to the outside.
void paintShadow(QPainter& painter, const QRect& panel) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 9));
    for (int reach = 1; reach < shadowReach - shadowDrop; ++reach) {
        const QRect ring = panel.adjusted(-reach, -reach, reach, reach).translated(0, shadowDrop);
        painter.drawRoundedRect(ring, cornerRadius + reach, cornerRadius + reach);
    }
}

} // namespace

LinuxStatusPanel::LinuxStatusPanel(const Symbols& symbols, const SystemAppearance& appearance)
    : QAbstractButton()
    , symbols_(symbols)
    , appearance_(appearance)
    , shadow_(isComposited() ? shadowReach : 0)
    , offset_(distanceFromEdges, distanceFromEdges) {
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                   Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground, shadow_ > 0);
    winId(); // makes its window
    skipTaskBarAndPager(*windowHandle());
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
    setPalette(widgetPalette(appearance_));
    stayOnScreen();
    update();
}

void LinuxStatusPanel::setTip(const QString& tip) {
    const QString name = windowTitle();
    setAccessibleName(tip.isEmpty() ? name : name + QStringLiteral(", ") + tip);
    setToolTip(tip.isEmpty() ? name : tip);
}

QSize LinuxStatusPanel::sizeHint() const {
    const int textWidth =
        title_.isEmpty() ? 0 : fontMetrics().horizontalAdvance(title_) + sidePadding * 2 / 3;
    const int width = symbolSize + textWidth + 2 * sidePadding;
    return {width + 2 * shadow_, panelHeight + 2 * shadow_};
}

QRect LinuxStatusPanel::face() const {
    return rect().adjusted(shadow_, shadow_, -shadow_, -shadow_);
}

QRect LinuxStatusPanel::body() const {
    return face().translated(geometry().topLeft());
}

void LinuxStatusPanel::setOffset(const QPoint& offset) {
    offset_ = offset;
    stayOnScreen();
}

// The lower right corner stays when the size changes, and wherever it was put the whole panel is on
// the screen.
void LinuxStatusPanel::stayOnScreen() {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize size = sizeHint();
    setFixedSize(size);
    if (shadow_ == 0)
        setMask(roundedRegion(rect()));
    const QSize panel = face().size();
    const auto kept = [](int distance, int length, int all) {
        return std::clamp(distance, 0, std::max(0, all - length));
    };
    const QPoint corner(room.right() - kept(offset_.x(), panel.width(), room.width()),
                        room.bottom() - kept(offset_.y(), panel.height(), room.height()));
    move(corner - QPoint(size.width() - 1 - shadow_, size.height() - 1 - shadow_));
}

void LinuxStatusPanel::noteOffset() {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    offset_ = room.bottomRight() - body().bottomRight();
}

void LinuxStatusPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect panel = face();
    const QColor text = palette().color(QPalette::WindowText);
    QColor edge = text;
    edge.setAlphaF(hasFocus() ? 0.6F : 0.2F);
    if (shadow_ > 0)
        paintShadow(painter, panel);
    painter.setPen(edge);
    painter.setBrush(palette().color(isDown() || underMouse() ? QPalette::Base : QPalette::Window));
    painter.drawRoundedRect(QRectF(panel).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius,
                            cornerRadius);

    const double density = devicePixelRatioF();
    QImage symbol = symbols_.image(symbolName_, qRound(symbolSize * density), text);
    symbol.setDevicePixelRatio(density);
    painter.drawImage(panel.left() + sidePadding, panel.top() + (panel.height() - symbolSize) / 2,
                      symbol);
    painter.setPen(text);
    painter.drawText(panel.adjusted(0, 0, -sidePadding, 0), Qt::AlignRight | Qt::AlignVCenter,
                     title_);
}

void LinuxStatusPanel::mousePressEvent(QMouseEvent* event) {
    constexpr Qt::MouseButtons ours = Qt::LeftButton | Qt::RightButton | Qt::MiddleButton;
    if (!ours.testFlag(event->button()) || !face().contains(event->position().toPoint()))
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
    if (isOnWayland()) {
        windowHandle()->startSystemMove(); // a client can't place its windows there
        return;
    }
    move(pointer - *grip_);
    noteOffset();
    isDragged_ = true;
}

void LinuxStatusPanel::mouseReleaseEvent(QMouseEvent* event) {
    const bool isClick = grip_ && isDown();
    grip_.reset();
    setDown(false);
    if (std::exchange(isDragged_, false))
        Q_EMIT placed();
    if (!isClick)
        return;
    if (event->button() == Qt::MiddleButton)
        Q_EMIT alternateRequested();
    else
        request(event->modifiers());
}

void LinuxStatusPanel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Menu:
        request(event->modifiers());
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

void LinuxStatusPanel::request(Qt::KeyboardModifiers modifiers) {
    if (modifiers.testFlag(Qt::AltModifier))
        Q_EMIT alternateRequested();
    else
        requestMenu();
}

void LinuxStatusPanel::requestMenu() {
    Q_EMIT menuRequested(mapToGlobal(face().bottomLeft() + QPoint(0, 1)));
}

} // namespace tessarine
