#include "browser/MainWindow.h"

#include "browser/KeyMonitor.h"
#include "platform/UserDefaults.h"
#include "windows/WindowFrame.h"

#include <QGuiApplication>
#include <QQmlError>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

// In the sources that Qt makes for the modules. Naming them keeps a static library's types from
// being left out of the program.
void qml_register_types_Tessarine_Apps();
void qml_register_types_Tessarine_Browser();

namespace tessarine {

namespace {

using namespace std::chrono_literals;

constexpr QSize minimumSize(720, 400);
constexpr int widest = 1100;
constexpr int margin = 40; // beside what the root view needs
constexpr int firstHeight = 520;
constexpr auto saveDelay = 500ms;

// Where a window system of another kind keeps the frame of a window with this autosave name.
const QString frameKey = QStringLiteral("NSWindow Frame MainWindow");

QSize firstSize(const QQuickItem& root) {
    const int fitting = int(std::ceil(root.implicitWidth())) + margin;
    return {std::clamp(fitting, minimumSize.width(), widest), firstHeight};
}

} // namespace

MainWindow::MainWindow(ContentView::Services services, UserDefaults& defaults, QQmlEngine& engine)
    : defaults_(defaults)
    , content_(std::make_unique<ContentView>(std::move(services)))
    , window_(std::make_unique<QQuickView>(&engine, nullptr)) {
    load();
    place();
    watchFrame();
}

MainWindow::~MainWindow() {
    window_->hide();
}

void MainWindow::load() {
    [[maybe_unused]] const volatile auto icons = &qml_register_types_Tessarine_Apps;
    [[maybe_unused]] const volatile auto types = &qml_register_types_Tessarine_Browser;
    window_->setTitle(QStringLiteral("Tessarine"));
    window_->setMinimumSize(minimumSize);
    window_->setResizeMode(QQuickView::SizeRootObjectToView);
    window_->setInitialProperties({{QStringLiteral("view"), QVariant::fromValue(content_.get())}});
    window_->setSource(QUrl(QStringLiteral("qrc:/qt/qml/Tessarine/Browser/ContentView.qml")));
    if (window_->status() != QQuickView::Ready)
        qFatal("%s", qPrintable(window_->errors().value(0).toString()));
    keyMonitor_ = std::make_unique<KeyMonitor>(*content_, *window_, *window_->rootObject());
}

void MainWindow::place() {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const auto saved = frameFromText(defaults_.text(frameKey).value_or(QString()));
    const QSize wanted = saved ? saved->size() : firstSize(*window_->rootObject());
    const QSize size = sizeWithin(wanted, minimumSize, room.size());
    window_->setGeometry(QRect(centred(size, room), size));
}

void MainWindow::watchFrame() {
    saveTimer_.setSingleShot(true);
    saveTimer_.setInterval(saveDelay);
    connect(&saveTimer_, &QTimer::timeout, this, &MainWindow::saveFrame);
    const auto saveSoon = [this] {
        if (window_->isVisible())
            saveTimer_.start();
    };
    connect(window_.get(), &QWindow::xChanged, this, saveSoon);
    connect(window_.get(), &QWindow::yChanged, this, saveSoon);
    connect(window_.get(), &QWindow::widthChanged, this, saveSoon);
    connect(window_.get(), &QWindow::heightChanged, this, saveSoon);
    connect(window_.get(), &QWindow::visibleChanged, this, &MainWindow::onVisibleChanged);
    connect(qApp, &QCoreApplication::aboutToQuit, window_.get(), &QWindow::hide);
}

void MainWindow::onVisibleChanged(bool visible) {
    if (visible) {
        content_->appear();
        return;
    }
    content_->disappear();
    saveTimer_.stop();
    saveFrame();
}

// A window that fills the screen keeps the frame that it will go back to.
void MainWindow::saveFrame() {
    const QString frame = frameToText(window_->geometry());
    if (window_->windowStates() == Qt::WindowNoState && defaults_.text(frameKey) != frame)
        defaults_.setText(frameKey, frame);
}

void MainWindow::showAndMakeKey() {
    if (window_->windowStates().testFlag(Qt::WindowMinimized))
        window_->setWindowStates(window_->windowStates() & ~Qt::WindowMinimized);
    window_->show();
    window_->raise();
    window_->requestActivate();
}

bool MainWindow::isVisible() const {
    return window_->isVisible();
}

QQuickWindow* MainWindow::window() const {
    return window_.get();
}

} // namespace tessarine
