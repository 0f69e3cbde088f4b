#pragma once

#include <QColor>
#include <QImage>
#include <QString>
#include <QStringList>

#include <memory>

namespace tessarine {

// The pictures behind symbol names such as "bell.slash". Any thread.
class Symbols {
public:
    Symbols() = default;
    Symbols(const Symbols&) = delete;
    Symbols& operator=(const Symbols&) = delete;
    virtual ~Symbols() = default;

    // The symbol in one colour on a transparent square, with this many device pixels a side. A
    // null image for a name that is not known.
    virtual QImage image(const QString& name, int pixels, const QColor& tint) const = 0;

    // All names that are known; none where the system lists none of its own.
    virtual QStringList names() const = 0;
};

// The symbols of the system that the program was built for.
std::unique_ptr<Symbols> makeSymbols();

} // namespace tessarine
