#pragma once

#include <QObject>

namespace tessarine {

enum class Appearance { system, light, dark };

// Whether the program is drawn light or dark. Main thread.
class SystemAppearance : public QObject {
    Q_OBJECT

public:
    // The appearance asked for by setAppearance, else the desktop's own.
    virtual bool prefersDark() const = 0;

    // Whether nothing shall move: the desktop's setting.
    virtual bool reducesMotion() const = 0;

    // Which appearance the program has from now on. At the start it follows the desktop.
    virtual void setAppearance(Appearance appearance) = 0;

Q_SIGNALS:
    void changed(); // what any of them answers, wherever the change came from
};

} // namespace tessarine
