#pragma once

#include "platform/SavePanel.h"

namespace tessarine {

// The system's own panel, which Qt's dialog shows. It starts in the documents folder, and later
// where a file was saved last.
class MacSavePanel : public SavePanel {
public:
    std::optional<QString> runModal(const Request& request) override;

private:
    QString folder_;
};

} // namespace tessarine
