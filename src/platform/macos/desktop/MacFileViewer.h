#pragma once

#include "platform/FileViewer.h"

namespace tessarine {

// The Finder.
class MacFileViewer : public FileViewer {
public:
    void reveal(const QString& path) override;
};

} // namespace tessarine
