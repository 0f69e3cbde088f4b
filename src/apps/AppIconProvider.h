#pragma once

#include <QQuickImageProvider>

#include <memory>

namespace tessarine {

class AppIconResolver;

// The icons that a resolver knows, for QML. Rows of one application share one picture. The engine
// asks on the main thread.
class AppIconProvider : public QQuickImageProvider {
public:
    explicit AppIconProvider(std::shared_ptr<const AppIconResolver> resolver);

    // The address of the icon under a resolver's key, its corners rounded by this share of its
    // width.
    static QString address(const QString& key, double rounding);

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    const std::shared_ptr<const AppIconResolver> resolver_;
};

} // namespace tessarine
