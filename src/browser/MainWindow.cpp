#include "browser/MainWindow.h"

#include "apps/AppIconView.h"
#include "browser/KeyMonitor.h"
#include "browser/list/GroupHeading.h"
#include "browser/rows/RowAccessible.h"

#include <QQuickItem>
#include <QQuickView>

#include <algorithm>
#include <cmath>
#include <utility>

// In the sources that Qt makes for the modules. Naming them keeps a static library's types from
// being left out of the program.
void qml_register_types_Tessarine_Apps();
void qml_register_types_Tessarine_Browser();

namespace tessarine {

namespace {

constexpr QSize minimumSize(720, 400);
constexpr int widest = 1100;
constexpr int margin = 40; // beside what the root view needs
constexpr int firstHeight = 520;
const QString frameName = QStringLiteral("MainWindow");

ViewWindow::Description description(ContentView& content) {
    [[maybe_unused]] const volatile auto icons = &qml_register_types_Tessarine_Apps;
    [[maybe_unused]] const volatile auto types = &qml_register_types_Tessarine_Browser;
    return {QStringLiteral("Tessarine"),
            QStringLiteral("Tessarine/Browser/BrowserView"),
            {{QStringLiteral("view"), QVariant::fromValue(&content)}},
            WindowFeature::closable | WindowFeature::miniaturizable | WindowFeature::resizable,
            minimumSize};
}

QSize firstSize(const QQuickItem& root) {
    const int fitting = int(std::ceil(root.implicitWidth())) + margin;
    return {std::clamp(fitting, minimumSize.width(), widest), firstHeight};
}

} // namespace

MainWindow::MainWindow(ContentView::Services services, UserDefaults& defaults, QQmlEngine& engine)
    : content_(services)
    , icons_(std::move(services.listener), *content_.list(), appIconsOf(engine))
    , window_(description(content_), engine)
    , keyMonitor_(std::make_unique<KeyMonitor>(*content_.actions(), *content_.selection(),
                                               window_.window(), window_.root())) {
    RowAccessible::install();
    GroupHeadingAccessible::install();
    QObject::connect(&window_, &ViewWindow::shown, &content_, [this] { appear(); });
    QObject::connect(&window_, &ViewWindow::hidden, &content_, &ContentView::disappear);
    QObject::connect(&window_, &ViewWindow::hidden, &content_, [this] { icons_.disappear(); });
    window_.restoreSize(frameName, defaults, firstSize(window_.root()));
}

MainWindow::~MainWindow() = default;

// Before the first frame.
void MainWindow::appear() {
    content_.appear();
    icons_.appear(window()->height());
}

QQuickWindow* MainWindow::window() const {
    return &window_.window();
}

} // namespace tessarine
