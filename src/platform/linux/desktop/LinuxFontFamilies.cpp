#include "platform/FontFamilies.h"

namespace tessarine {

FontFamilies systemFontFamilies() {
    return {{QStringLiteral("Inter"), QStringLiteral("Noto Sans"),
             QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Noto Color Emoji")},
            QStringLiteral("Noto Sans Mono"),
            QStringLiteral("Noto Sans")};
}

} // namespace tessarine
