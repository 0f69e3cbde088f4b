#include "platform/macos/desktop/MacSavePanel.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

namespace tessarine {

// Without a folder Qt would give the panel the process's own, which is the root of the disk.
std::optional<QString> MacSavePanel::runModal(const Request& request) {
    if (folder_.isEmpty() || !QDir(folder_).exists())
        folder_ = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QFileDialog dialog(nullptr, request.title, folder_);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setLabelText(QFileDialog::Accept, request.prompt);
    dialog.setDefaultSuffix(request.extension);
    dialog.selectFile(request.name);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    QString path = dialog.selectedFiles().value(0);
    if (!isAccepted || path.isEmpty())
        return std::nullopt;
    folder_ = QFileInfo(path).absolutePath();
    return path;
}

} // namespace tessarine
