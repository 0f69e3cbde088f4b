#include "diagnosticsview/DiagnosticsWindow.h"

#include <QVariant>

// In the sources that Qt makes for the module. Naming it keeps a static library's types from being
// left out of the program.
void qml_register_types_Tessarine_Diagnostics();

namespace tessarine {

namespace {

constexpr QSize contentSize(760, 640);
constexpr QSize smallestSize(600, 480);

ViewWindow::Description descriptionOf(DiagnosticsView& view) {
    [[maybe_unused]] const volatile auto types = &qml_register_types_Tessarine_Diagnostics;
    return {diagnosticsTitle(),
            QStringLiteral("Tessarine/Diagnostics/DiagnosticsPage"),
            {{QStringLiteral("view"), QVariant::fromValue(&view)}},
            WindowFeature::closable | WindowFeature::miniaturizable | WindowFeature::resizable,
            smallestSize};
}

} // namespace

QString diagnosticsTitle() {
    return QStringLiteral("Tessarine Diagnostics");
}

// The window owns what it shows, and destroys it last.
ViewWindow& diagnosticsWindow(const DiagnosticsView::Services& services, QQmlEngine& engine) {
    if (ViewWindow* const open = ViewWindow::titled(diagnosticsTitle()))
        return *open;
    auto view = std::make_unique<DiagnosticsView>(services);
    auto* const window = new ViewWindow(descriptionOf(*view), engine);
    DatabaseSectionView* const database = view->database();
    view.release()->setParent(window);
    window->releaseWhenClosed();
    window->centre(contentSize);
    QObject::connect(window, &ViewWindow::shown, database, &DatabaseSectionView::refresh);
    return *window;
}

} // namespace tessarine
