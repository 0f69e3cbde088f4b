#pragma once

#include "platform/SavePanel.h"

namespace tessarine {

class SystemAppearance;

// The desktop's own dialog where its platform theme brings one, else Qt's, as light or dark as the
// program's windows. It starts in the documents folder, and later where a file was saved last.
class LinuxSavePanel : public SavePanel {
public:
    // The appearance outlives the panel.
    explicit LinuxSavePanel(const SystemAppearance& appearance);

    std::optional<QString> runModal(const Request& request) override;

private:
    const SystemAppearance& appearance_;
    QString folder_;
};

} // namespace tessarine
