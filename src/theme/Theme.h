#pragma once

#include "platform/SystemAppearance.h"
#include "theme/Palette.h"

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace tessarine {

// The look that all windows share. In QML it is the singleton Theme of the module Tessarine.Theme;
// each engine has the one that it was made with. Main thread.
class Theme : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY changed)
    Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY changed)
    Q_PROPERTY(tessarine::Palette colours READ colours NOTIFY changed)
    Q_PROPERTY(QString tabularFamily READ tabularFamily CONSTANT)

public:
    // The appearance outlives the theme.
    explicit Theme(SystemAppearance& appearance);

    // Gives the engine this theme, which outlives it.
    void installIn(QQmlEngine& engine);

    // The theme of an engine.
    static Theme* of(const QQmlEngine& engine);

    // For QML, which asks for its singleton.
    static Theme* create(QQmlEngine* engine, QJSEngine* scripts);

    bool dark() const { return appearance_.prefersDark(); }
    bool reducesMotion() const { return appearance_.reducesMotion(); }
    const Palette& colours() const { return colours_; }

    // The face of running text at a size in points, for what doesn't take the application's by
    // itself.
    Q_INVOKABLE QFont textFont(int size, int weight = QFont::Normal) const;

    // The face whose letters are all equally wide.
    Q_INVOKABLE QFont monospacedFont(int size) const;

    // Where an Image finds the symbol in this colour. An empty name gives an empty address.
    Q_INVOKABLE QString symbolSource(const QString& name, const QColor& tint) const;

    // Whether a text begins with a letter of a script that is written from right to left.
    Q_INVOKABLE bool isRightToLeft(const QString& text) const { return text.isRightToLeft(); }

    // The face for numbers that stand in columns.
    QString tabularFamily() const;

    // "light" and "dark" fix the appearance; any other text follows the system.
    void applyAppearance(const QString& mode);

Q_SIGNALS:
    void changed();

private:
    void takeAppearance();

    SystemAppearance& appearance_;
    Palette colours_;
};

} // namespace tessarine
