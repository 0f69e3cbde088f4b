#include "theme/Palette.h"

namespace tessarine {

const Palette& Palette::light() {
    static const Palette palette{.label = QColor(0x1c, 0x1c, 0x1e),
                                 .secondaryLabel = QColor(0x4c, 0x4c, 0x51),
                                 .placeholderLabel = QColor(0x66, 0x66, 0x6c),
                                 .accentLabel = QColor(0x15, 0x59, 0xc0),
                                 .red = QColor(0xb8, 0x1a, 0x24),
                                 .orange = QColor(0x9a, 0x4a, 0x00),
                                 .green = QColor(0x17, 0x69, 0x2e),
                                 .tertiaryLabel = QColor(0x84, 0x84, 0x8a),
                                 .accent = QColor(0x1f, 0x6f, 0xe5),
                                 .focusRing = QColor(0x1f, 0x6f, 0xe5),
                                 .windowBackground = QColor(0xf0, 0xf0, 0xf2),
                                 .controlBackground = QColor(0xff, 0xff, 0xff),
                                 .panelBackground = QColor(0xfa, 0xfa, 0xfb),
                                 .separator = QColor(0xd6, 0xd6, 0xda),
                                 .controlBorder = QColor(0x00, 0x00, 0x00, 0x2b),
                                 .panelBorder = QColor(0xbe, 0xbe, 0xc4),
                                 .track = QColor(0x00, 0x00, 0x00, 0x12),
                                 .raised = QColor(0xff, 0xff, 0xff),
                                 .hoverFill = QColor(0x00, 0x00, 0x00, 0x0d),
                                 .pressedFill = QColor(0x00, 0x00, 0x00, 0x1a),
                                 .tagFill = QColor(0x4c, 0x4c, 0x51, 0x26),
                                 .selection = QColor(0x1f, 0x6f, 0xe5, 0x40),
                                 .dim = QColor(0x00, 0x00, 0x00, 0x4d),
                                 .scrollThumb = QColor(0x00, 0x00, 0x00, 0x60),
                                 .accentFill = QColor(0x1f, 0x6f, 0xe5),
                                 .redFill = QColor(0xc0, 0x1c, 0x28),
                                 .onFill = QColor(0xff, 0xff, 0xff),
                                 .switchOff = QColor(0x8e, 0x8e, 0x94),
                                 .switchThumb = QColor(0xff, 0xff, 0xff)};
    return palette;
}

const Palette& Palette::dark() {
    static const Palette palette{.label = QColor(0xec, 0xec, 0xee),
                                 .secondaryLabel = QColor(0xb4, 0xb4, 0xba),
                                 .placeholderLabel = QColor(0xa3, 0xa3, 0xaa),
                                 .accentLabel = QColor(0x8c, 0xba, 0xff),
                                 .red = QColor(0xff, 0xa4, 0x9d),
                                 .orange = QColor(0xff, 0xab, 0x4a),
                                 .green = QColor(0x57, 0xd0, 0x7a),
                                 .tertiaryLabel = QColor(0x85, 0x85, 0x8c),
                                 .accent = QColor(0x4c, 0x93, 0xff),
                                 .focusRing = QColor(0x4c, 0x93, 0xff),
                                 .windowBackground = QColor(0x1d, 0x1d, 0x1f),
                                 .controlBackground = QColor(0x2e, 0x2e, 0x31),
                                 .panelBackground = QColor(0x32, 0x32, 0x36),
                                 .separator = QColor(0x4a, 0x4a, 0x50),
                                 .controlBorder = QColor(0xff, 0xff, 0xff, 0x26),
                                 .panelBorder = QColor(0x58, 0x58, 0x5e),
                                 .track = QColor(0xff, 0xff, 0xff, 0x12),
                                 .raised = QColor(0x56, 0x56, 0x5c),
                                 .hoverFill = QColor(0xff, 0xff, 0xff, 0x10),
                                 .pressedFill = QColor(0xff, 0xff, 0xff, 0x1f),
                                 .tagFill = QColor(0xb4, 0xb4, 0xba, 0x26),
                                 .selection = QColor(0x4c, 0x93, 0xff, 0x60),
                                 .dim = QColor(0x00, 0x00, 0x00, 0x80),
                                 .scrollThumb = QColor(0xff, 0xff, 0xff, 0x60),
                                 .accentFill = QColor(0x2a, 0x6a, 0xd6),
                                 .redFill = QColor(0xc8, 0x34, 0x2f),
                                 .onFill = QColor(0xff, 0xff, 0xff),
                                 .switchOff = QColor(0x73, 0x73, 0x7a),
                                 .switchThumb = QColor(0xff, 0xff, 0xff)};
    return palette;
}

} // namespace tessarine
