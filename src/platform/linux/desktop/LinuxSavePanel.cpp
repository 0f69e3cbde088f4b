#include "platform/linux/desktop/LinuxSavePanel.h"

#include "platform/SystemAppearance.h"
#include "platform/linux/desktop/PortalSaveDialog.h"
#include "platform/linux/desktop/WidgetPalette.h"

#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QWindow>

namespace tessarine {

namespace {

QString firstFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documents).exists() ? documents : QDir::homePath();
}

// Icons and types by names alone. The dialog would otherwise look into each file of a folder for
// its kind, and wait for ever for one that has nothing to read.
class FileIcons : public QFileIconProvider {
public:
    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo& info) const override { return icon(info.isDir() ? Folder : File); }
    QString type(const QFileInfo& info) const override {
        return info.isDir() ? QString() : info.suffix();
    }
};

// In front of the window that the user is in, and not to be left before it is answered.
void standBefore(QWindow* window, QFileDialog& dialog) {
    dialog.winId(); // makes its window
    dialog.windowHandle()->setTransientParent(window);
}

} // namespace

LinuxSavePanel::LinuxSavePanel(const SystemAppearance& appearance, const QDBusConnection& bus)
    : appearance_(appearance)
    , bus_(bus) {}

std::optional<QString> LinuxSavePanel::runModal(const Request& request) {
    if (folder_.isEmpty() || !QDir(folder_).exists())
        folder_ = firstFolder();
    std::optional<QString> path = askBySystem(request);
    if (path)
        folder_ = QFileInfo(*path).absolutePath();
    return path;
}

// A name that gets its extension here may be a file's that the portal has not asked about: the user
// sees it in a further dialog.
std::optional<QString> LinuxSavePanel::askBySystem(const Request& request) {
    PortalSaveDialog dialog(bus_, request);
    switch (dialog.run(QGuiApplication::focusWindow(), folder_)) {
    case PortalSaveDialog::Outcome::Unavailable:
        return askByQt(request);
    case PortalSaveDialog::Outcome::Cancelled:
        return std::nullopt;
    case PortalSaveDialog::Outcome::Chosen:
        break;
    }
    const QFileInfo chosen(dialog.path());
    if (request.extension.isEmpty() || !chosen.suffix().isEmpty())
        return dialog.path();
    const QString extended = dialog.path() + QLatin1Char('.') + request.extension;
    if (!QFileInfo::exists(extended))
        return extended;
    folder_ = chosen.absolutePath();
    Request again = request;
    again.name = QFileInfo(extended).fileName();
    return askBySystem(again);
}

std::optional<QString> LinuxSavePanel::askByQt(const Request& request) const {
    FileIcons icons;
    QFileDialog dialog(nullptr, request.title);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setIconProvider(&icons);
    dialog.setDirectory(folder_);
    dialog.setPalette(widgetPalette(appearance_));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setLabelText(QFileDialog::Accept, request.prompt);
    dialog.setDefaultSuffix(request.extension);
    dialog.selectFile(request.name);
    if (QWindow* const window = QGuiApplication::focusWindow())
        standBefore(window, dialog);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    const QString path = dialog.selectedFiles().value(0);
    return isAccepted && !path.isEmpty() ? std::optional(path) : std::nullopt;
}

} // namespace tessarine
