#pragma once

#include "platform/SavePanel.h"

#include <QDBusConnection>

namespace tessarine {

class SystemAppearance;

// The desktop's own dialog where its portal has one, else Qt's, as light or dark as the program's
// windows. It starts in the documents folder, and later where a file was saved last.
class LinuxSavePanel : public SavePanel {
public:
    // The appearance outlives the panel.
    LinuxSavePanel(const SystemAppearance& appearance, const QDBusConnection& bus);

    std::optional<QString> runModal(const Request& request) override;

private:
    std::optional<QString> askBySystem(const Request& request);
    std::optional<QString> askByQt(const Request& request) const;

    const SystemAppearance& appearance_;
    const QDBusConnection bus_;
    QString folder_;
};

} // namespace tessarine
