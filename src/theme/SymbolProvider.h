#pragma once

#include <QQuickImageProvider>

namespace tessarine {

class Symbols;

// The address of a symbol in a colour, which may be translucent.
QString symbolAddress(const QString& name, const QColor& tint);

// Symbols for QML: "image://symbols/bell.slash/#84848a" is that symbol in that colour.
class SymbolProvider : public QQuickImageProvider {
public:
    // The symbols outlive the provider.
    explicit SymbolProvider(const Symbols& symbols);

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    const Symbols& symbols_;
};

} // namespace tessarine
