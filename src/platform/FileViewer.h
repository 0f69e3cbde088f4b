#pragma once

#include <QString>

namespace tessarine {

// The program in which the user looks at folders. Main thread.
class FileViewer {
public:
    FileViewer() = default;
    FileViewer(const FileViewer&) = delete;
    FileViewer& operator=(const FileViewer&) = delete;
    virtual ~FileViewer() = default;

    // Shows the file in its folder, selected where the system can do that. Returns at once, and
    // tells nothing of what came of it.
    virtual void reveal(const QString& path) = 0;
};

} // namespace tessarine
