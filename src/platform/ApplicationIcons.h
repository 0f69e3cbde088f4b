#pragma once

#include "platform/Workspace.h"

#include <QImage>
#include <QString>

namespace tessarine {

// The icons of applications. Each is a square picture as large as the system has it; its width in
// points tells a real icon from the small substitute that a system may give in its place. A null
// image is none. Any thread.
class ApplicationIcons {
public:
    ApplicationIcons() = default;
    ApplicationIcons(const ApplicationIcons&) = delete;
    ApplicationIcons& operator=(const ApplicationIcons&) = delete;
    virtual ~ApplicationIcons() = default;

    // Of the application at a path that the workspace gave.
    virtual QImage iconForFile(const QString& path) const = 0;

    virtual QImage iconForRunningApplication(const RunningApplication& application) const = 0;

    // What stands for any application. Null on a system that leaves this to its applications.
    virtual QImage genericApplicationIcon() const = 0;
};

} // namespace tessarine
