#pragma once

#include <QColor>
#include <QObject>

#include <optional>

namespace tessarine {

enum class Appearance { system, light, dark };

// How the desktop wants programs to look: light or dark, in which accent colour, with how much
// contrast. Main thread.
class SystemAppearance : public QObject {
    Q_OBJECT

public:
    // The appearance asked for by setAppearance, else the desktop's own.
    virtual bool prefersDark() const = 0;

    // Whether nothing shall move: the desktop's setting.
    virtual bool reducesMotion() const = 0;

    // The colour of what is chosen, focused or to be pressed. None where the desktop has no wish.
    virtual std::optional<QColor> accentColour() const = 0;

    // Whether the user asks for more contrast than usual.
    virtual bool prefersHighContrast() const = 0;

    // Which appearance the program has from now on. At the start it follows the desktop.
    virtual void setAppearance(Appearance appearance) = 0;

Q_SIGNALS:
    void changed(); // what any of them answers, wherever the change came from
};

} // namespace tessarine
