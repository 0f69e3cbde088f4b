#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The colours of one appearance, named by what they are for. Texts in the colours of the first
// group can be read on every background of the third.
struct Palette {
    Q_GADGET
    QML_VALUE_TYPE(themeColours)
    Q_PROPERTY(QColor label MEMBER label CONSTANT)
    Q_PROPERTY(QColor secondaryLabel MEMBER secondaryLabel CONSTANT)
    Q_PROPERTY(QColor placeholderLabel MEMBER placeholderLabel CONSTANT)
    Q_PROPERTY(QColor accentLabel MEMBER accentLabel CONSTANT)
    Q_PROPERTY(QColor red MEMBER red CONSTANT)
    Q_PROPERTY(QColor orange MEMBER orange CONSTANT)
    Q_PROPERTY(QColor green MEMBER green CONSTANT)
    Q_PROPERTY(QColor tertiaryLabel MEMBER tertiaryLabel CONSTANT)
    Q_PROPERTY(QColor accent MEMBER accent CONSTANT)
    Q_PROPERTY(QColor focusRing MEMBER focusRing CONSTANT)
    Q_PROPERTY(QColor blue MEMBER blue CONSTANT)
    Q_PROPERTY(QColor yellow MEMBER yellow CONSTANT)
    Q_PROPERTY(QColor windowBackground MEMBER windowBackground CONSTANT)
    Q_PROPERTY(QColor controlBackground MEMBER controlBackground CONSTANT)
    Q_PROPERTY(QColor panelBackground MEMBER panelBackground CONSTANT)
    Q_PROPERTY(QColor separator MEMBER separator CONSTANT)
    Q_PROPERTY(QColor controlBorder MEMBER controlBorder CONSTANT)
    Q_PROPERTY(QColor panelBorder MEMBER panelBorder CONSTANT)
    Q_PROPERTY(QColor track MEMBER track CONSTANT)
    Q_PROPERTY(QColor raised MEMBER raised CONSTANT)
    Q_PROPERTY(QColor hoverFill MEMBER hoverFill CONSTANT)
    Q_PROPERTY(QColor pressedFill MEMBER pressedFill CONSTANT)
    Q_PROPERTY(QColor tagFill MEMBER tagFill CONSTANT)
    Q_PROPERTY(QColor selection MEMBER selection CONSTANT)
    Q_PROPERTY(QColor dim MEMBER dim CONSTANT)
    Q_PROPERTY(QColor scrollThumb MEMBER scrollThumb CONSTANT)
    Q_PROPERTY(QColor shadow MEMBER shadow CONSTANT)
    Q_PROPERTY(QColor accentFill MEMBER accentFill CONSTANT)
    Q_PROPERTY(QColor redFill MEMBER redFill CONSTANT)
    Q_PROPERTY(QColor onFill MEMBER onFill CONSTANT)
    Q_PROPERTY(QColor switchOff MEMBER switchOff CONSTANT)
    Q_PROPERTY(QColor switchThumb MEMBER switchThumb CONSTANT)

public:
    // Text
    QColor label;
    QColor secondaryLabel;
    QColor placeholderLabel; // what a field asks for while it is empty
    QColor accentLabel;
    QColor red;
    QColor orange;
    QColor green;

    // Symbols and lines that must be seen, but hold no text
    QColor tertiaryLabel;
    QColor accent;
    QColor focusRing;
    QColor blue; // whatever the accent is
    QColor yellow;

    // Backgrounds
    QColor windowBackground;
    QColor controlBackground;
    QColor panelBackground; // menus, popovers, sheets

    // Edges and fills. The translucent ones lie over any background.
    QColor separator;
    QColor controlBorder;
    QColor panelBorder;
    QColor track;  // the groove in which something raised moves
    QColor raised; // the chosen part of a groove
    QColor hoverFill;
    QColor pressedFill;
    QColor tagFill;
    QColor selection; // behind selected text
    QColor dim;       // over a window that waits for its sheet
    QColor scrollThumb;
    QColor shadow; // below menus, popovers, sheets and tips

    // Full fills, and what is written on them
    QColor accentFill;
    QColor redFill;
    QColor onFill;
    QColor switchOff;
    QColor switchThumb;

    bool isHighContrast = false;

    static const Palette& light();
    static const Palette& dark();
    static const Palette& highContrastLight();
    static const Palette& highContrastDark();
    static const Palette& of(bool dark, bool highContrast);

    // The same with another accent: in the shades nearest to it that can be read and seen where
    // the palette uses them.
    Palette withAccent(const QColor& wanted) const;
};

} // namespace tessarine
