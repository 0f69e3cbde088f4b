#pragma once

#include "platform/FileViewer.h"

#include <QDBusConnection>
#include <QObject>

namespace tessarine {

// The file manager that answers on the session bus, which can select a file. Where there is none,
// the folder is opened in whatever the desktop opens folders with.
class LinuxFileViewer : public FileViewer {
public:
    explicit LinuxFileViewer(const QDBusConnection& bus);

    void reveal(const QString& path) override;

private:
    QDBusConnection bus_;
    QObject answers_; // owns those that are still to come
};

} // namespace tessarine
