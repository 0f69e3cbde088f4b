#include "help/HelpWindow.h"

#include "windows/ViewWindow.h"

#include <QCoreApplication>

#include <utility>

// In the source that Qt makes for the module. Naming it keeps a static library's types from being
// left out of the program.
void qml_register_types_Tessarine_Help();

namespace tessarine {

namespace {

constexpr QSize contentSize(760, 560);

ViewWindow::Description description(HelpView& view) {
    [[maybe_unused]] const volatile auto types = &qml_register_types_Tessarine_Help;
    return {qtTrId("menu.help.title"),
            QStringLiteral("Tessarine/Help/HelpWindow"),
            {{QStringLiteral("view"), QVariant::fromValue(&view)}},
            WindowFeature::closable | WindowFeature::miniaturizable | WindowFeature::resizable};
}

} // namespace

ViewWindow* makeHelpWindow(HelpView::Services services, QQmlEngine& engine) {
    auto* const view = new HelpView(std::move(services));
    auto* const window = new ViewWindow(description(*view), engine);
    view->setParent(window); // goes after the items that show it
    window->releaseWhenClosed();
    window->centre(contentSize);
    return window;
}

} // namespace tessarine
