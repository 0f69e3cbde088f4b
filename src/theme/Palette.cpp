#include "theme/Palette.h"

namespace tessarine {

const Palette& Palette::light() {
    static const Palette palette{.label = QColor(0x1c, 0x1c, 0x1e),
                                 .secondaryLabel = QColor(0x4c, 0x4c, 0x51),
                                 .tertiaryLabel = QColor(0x84, 0x84, 0x8a),
                                 .separator = QColor(0xd6, 0xd6, 0xda),
                                 .windowBackground = QColor(0xf0, 0xf0, 0xf2),
                                 .controlBackground = QColor(0xff, 0xff, 0xff),
                                 .accent = QColor(0x1f, 0x6f, 0xe5),
                                 .scrollThumb = QColor(0x00, 0x00, 0x00, 0x60)};
    return palette;
}

const Palette& Palette::dark() {
    static const Palette palette{.label = QColor(0xec, 0xec, 0xee),
                                 .secondaryLabel = QColor(0xb4, 0xb4, 0xba),
                                 .tertiaryLabel = QColor(0x85, 0x85, 0x8c),
                                 .separator = QColor(0x3c, 0x3c, 0x40),
                                 .windowBackground = QColor(0x1d, 0x1d, 0x1f),
                                 .controlBackground = QColor(0x2e, 0x2e, 0x31),
                                 .accent = QColor(0x4c, 0x93, 0xff),
                                 .scrollThumb = QColor(0xff, 0xff, 0xff, 0x60)};
    return palette;
}

} // namespace tessarine
