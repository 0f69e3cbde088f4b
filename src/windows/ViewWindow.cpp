#include "windows/ViewWindow.h"

#include "platform/DefaultsKeys.h"
#include "platform/UserDefaults.h"
#include "windows/WindowFrame.h"

#include <QEasingCurve>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlError>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>

#include <chrono>

namespace tessarine {

namespace {

using namespace std::chrono_literals;

constexpr WindowFeatures allFeatures =
    WindowFeature::closable | WindowFeature::miniaturizable | WindowFeature::resizable;
constexpr auto saveDelay = 500ms;
constexpr char viewWindowProperty[] = "tessarineViewWindow";

// From standing to standing: the curve that desktops have for what moves in both directions.
QEasingCurve easeInEaseOut() {
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment({0.42, 0}, {0.58, 1}, {1, 1});
    return curve;
}

// The frame is the window system's own as long as nothing is to be missing from it.
Qt::WindowFlags flagsOf(WindowFeatures features) {
    if (features == allFeatures)
        return Qt::Window;
    Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    flags.setFlag(Qt::WindowCloseButtonHint, features.testFlag(WindowFeature::closable));
    flags.setFlag(Qt::WindowMinimizeButtonHint, features.testFlag(WindowFeature::miniaturizable));
    flags.setFlag(Qt::WindowMaximizeButtonHint, features.testFlag(WindowFeature::resizable));
    return flags | Qt::WindowSystemMenuHint;
}

// Null for the window of something else.
ViewWindow* viewWindowOf(const QWindow& window) {
    return qobject_cast<ViewWindow*>(window.property(viewWindowProperty).value<QObject*>());
}

} // namespace

ViewWindow::ViewWindow(const Description& description, QQmlEngine& engine)
    : window_(std::make_unique<QQuickView>(&engine, nullptr))
    , minimumSize_(description.minimumSize)
    , isResizable_(description.features.testFlag(WindowFeature::resizable))
    , isClosable_(description.features.testFlag(WindowFeature::closable)) {
    window_->setProperty(viewWindowProperty, QVariant::fromValue<QObject*>(this));
    window_->setFlags(flagsOf(description.features));
    window_->setTitle(description.title);
    window_->setMinimumSize(minimumSize_);
    // A hidden window keeps nothing of what drawing took: most of the time this program has none.
    window_->setPersistentSceneGraph(false);
    window_->setPersistentGraphics(false);
    window_->setResizeMode(QQuickView::SizeRootObjectToView);
    window_->setInitialProperties(description.properties);
    window_->setSource(QUrl(QStringLiteral("qrc:/qt/qml/%1.qml").arg(description.component)));
    if (window_->status() != QQuickView::Ready)
        qFatal("%s", qPrintable(window_->errors().value(0).toString()));
    connect(window_.get(), &QWindow::visibleChanged, this, &ViewWindow::onVisibleChanged);
    window_->installEventFilter(this);
    connect(qApp, &QCoreApplication::aboutToQuit, window_.get(), &QWindow::hide);
    heightChange_.setEasingCurve(easeInEaseOut());
    connect(&heightChange_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& height) { setHeight(height.toInt()); });
}

ViewWindow::~ViewWindow() {
    window_->hide();
}

void ViewWindow::centre(const QSize& size) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize fitting = sizeWithin(size, minimumSize_, room.size());
    window_->setGeometry(QRect(centred(fitting, room), fitting));
    if (!isResizable_) {
        window_->setMinimumSize(fitting);
        window_->setMaximumSize(fitting);
    }
}

void ViewWindow::changeHeight(int height, int milliseconds) {
    heightChange_.stop();
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    const int fitting = sizeWithin({window_->width(), height}, minimumSize_, room).height();
    if (milliseconds < 1 || !isVisible()) {
        setHeight(fitting);
        return;
    }
    heightChange_.setDuration(milliseconds);
    heightChange_.setStartValue(window_->height());
    heightChange_.setEndValue(fitting);
    heightChange_.start();
}

void ViewWindow::setHeight(int height) {
    const QSize size(window_->width(), height);
    if (!isResizable_) {
        window_->setMinimumSize(size);
        window_->setMaximumSize(size);
    }
    window_->resize(size);
}

void ViewWindow::restoreSize(const QString& frameName, UserDefaults& defaults,
                             const QSize& firstSize) {
    defaults_ = &defaults;
    frameKey_ = defaultsKeys::windowFrame(frameName);
    const auto saved = frameFromText(defaults.text(frameKey_).value_or(QString()));
    centre(saved ? saved->size() : firstSize);
    watchFrame();
}

void ViewWindow::watchFrame() {
    saveTimer_.setSingleShot(true);
    saveTimer_.setInterval(saveDelay);
    connect(&saveTimer_, &QTimer::timeout, this, &ViewWindow::saveFrame);
    const auto saveSoon = [this] {
        if (window_->isVisible())
            saveTimer_.start();
    };
    connect(window_.get(), &QWindow::xChanged, this, saveSoon);
    connect(window_.get(), &QWindow::yChanged, this, saveSoon);
    connect(window_.get(), &QWindow::widthChanged, this, saveSoon);
    connect(window_.get(), &QWindow::heightChanged, this, saveSoon);
}

bool ViewWindow::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Close)
        Q_EMIT closing();
    return event->type() == QEvent::KeyPress && press(static_cast<const QKeyEvent&>(*event));
}

// The shortcut that closes a window belongs to all that can be closed. A key that is held down
// closes once, and nothing that comes to the front after that.
bool ViewWindow::press(const QKeyEvent& key) {
    if (!isClosable_ || !key.matches(QKeySequence::Close))
        return false;
    if (!key.isAutoRepeat())
        window_->close();
    return true;
}

void ViewWindow::onVisibleChanged(bool visible) {
    if (visible) {
        Q_EMIT shown();
        return;
    }
    Q_EMIT hidden();
    saveTimer_.stop();
    saveFrame();
    if (isReleasedWhenClosed_)
        deleteLater();
}

// A window that fills the screen keeps the frame that it will go back to.
void ViewWindow::saveFrame() {
    if (!defaults_ || window_->windowStates() != Qt::WindowNoState)
        return;
    const QString frame = frameToText(window_->geometry());
    if (defaults_->text(frameKey_) != frame)
        defaults_->setText(frameKey_, frame);
}

void ViewWindow::releaseWhenClosed() {
    isReleasedWhenClosed_ = true;
}

void ViewWindow::dismiss(QPointer<ViewWindow>& window) {
    if (!window)
        return;
    window->disconnect();
    window->window_->hide();
    window->deleteLater();
    window.clear();
}

void ViewWindow::showAndMakeKey() {
    if (window_->windowStates().testFlag(Qt::WindowMinimized))
        window_->setWindowStates(window_->windowStates() & ~Qt::WindowMinimized);
    window_->show();
    window_->raise();
    window_->requestActivate();
}

bool ViewWindow::isVisible() const {
    return window_->isVisible();
}

QQuickItem& ViewWindow::root() const {
    return *window_->rootObject();
}

std::vector<ViewWindow*> ViewWindow::allVisible() {
    std::vector<ViewWindow*> found;
    for (const QWindow* window : QGuiApplication::allWindows()) {
        if (ViewWindow* const ours = viewWindowOf(*window); ours && window->isVisible())
            found.push_back(ours);
    }
    return found;
}

ViewWindow* ViewWindow::titled(const QString& title) {
    for (const QWindow* window : QGuiApplication::allWindows()) {
        if (ViewWindow* const ours = viewWindowOf(*window); ours && window->title() == title)
            return ours;
    }
    return nullptr;
}

} // namespace tessarine
