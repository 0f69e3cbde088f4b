#pragma once

#include "platform/Symbols.h"

namespace tessarine {

// Symbols from the Adwaita icon theme, whatever theme the desktop has, so that they belong
// together; the few that it lacks are the program's own.
class LinuxSymbols : public Symbols {
public:
    QImage image(const QString& name, int pixels, const QColor& tint) const override;
    QStringList names() const override;
};

} // namespace tessarine
