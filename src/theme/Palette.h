#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The colours of one appearance, named by what they are for.
struct Palette {
    Q_GADGET
    QML_VALUE_TYPE(themeColours)
    Q_PROPERTY(QColor label MEMBER label CONSTANT)
    Q_PROPERTY(QColor secondaryLabel MEMBER secondaryLabel CONSTANT)
    Q_PROPERTY(QColor tertiaryLabel MEMBER tertiaryLabel CONSTANT)
    Q_PROPERTY(QColor separator MEMBER separator CONSTANT)
    Q_PROPERTY(QColor windowBackground MEMBER windowBackground CONSTANT)
    Q_PROPERTY(QColor controlBackground MEMBER controlBackground CONSTANT)
    Q_PROPERTY(QColor accent MEMBER accent CONSTANT)
    Q_PROPERTY(QColor scrollThumb MEMBER scrollThumb CONSTANT)

public:
    QColor label;
    QColor secondaryLabel;
    QColor tertiaryLabel;
    QColor separator;
    QColor windowBackground;
    QColor controlBackground;
    QColor accent;
    QColor scrollThumb;

    static const Palette& light();
    static const Palette& dark();
};

} // namespace tessarine
