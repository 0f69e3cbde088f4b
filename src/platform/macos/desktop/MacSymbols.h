#pragma once

#include "platform/Symbols.h"

namespace tessarine {

// The system's own symbols. It doesn't list their names.
class MacSymbols : public Symbols {
public:
    QImage image(const QString& name, int pixels, const QColor& tint) const override;
    QStringList names() const override { return {}; }
};

} // namespace tessarine
