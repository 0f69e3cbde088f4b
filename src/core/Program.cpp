#include "core/Program.h"

#include "windows/ViewEngine.h"

#include <QClipboard>
#include <QGuiApplication>

namespace tessarine {

namespace {

std::unique_ptr<Desktop> makeDesktopForViews() {
    registerUi();
    return makeDesktop();
}

void setClipboard(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
}

} // namespace

Program::Program()
    : platform_(makePlatform())
    , desktop_(makeDesktopForViews())
    , services_(*platform_)
    , views_(services_, *desktop_, setClipboard)
    , delegate_(views_) {}

SingleInstance::Requests Program::requests() {
    const auto answering = [this](auto work) {
        return [this, work](const QString& token) {
            desktop_->application->answer(token, [this, work] { (delegate_.*work)(); });
        };
    };
    return {answering(&AppDelegate::activate), answering(&AppDelegate::showMainWindow),
            [] { QCoreApplication::quit(); }};
}

} // namespace tessarine
