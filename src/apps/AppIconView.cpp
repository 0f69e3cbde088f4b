#include "apps/AppIconView.h"

#include "apps/AppIconProvider.h"
#include "apps/AppIconResolver.h"
#include "apps/AppPlaceholder.h"

#include <QQmlEngine>

#include <utility>

namespace tessarine {

namespace {

using SharedResolver = std::shared_ptr<AppIconResolver>;

constexpr char resolverProperty[] = "tessarineAppIcons";

} // namespace

void installAppIcons(QQmlEngine& engine, const std::shared_ptr<AppIconResolver>& resolver) {
    engine.addImageProvider(QStringLiteral("appicons"), new AppIconProvider(resolver));
    engine.setProperty(resolverProperty, QVariant::fromValue(resolver));
}

std::shared_ptr<AppIconResolver> appIconsOf(const QQmlEngine& engine) {
    return engine.property(resolverProperty).value<SharedResolver>();
}

AppIconView::AppIconView(QQuickItem* parent)
    : QQuickItem(parent) {
    connect(this, &AppIconView::iconChanged, this, &AppIconView::iconSourceChanged);
    connect(this, &AppIconView::cornerRadiusChanged, this, &AppIconView::iconSourceChanged);
    connect(this, &QQuickItem::widthChanged, this, &AppIconView::iconSourceChanged);
    connect(this, &AppIconView::bundleIdChanged, this, &AppIconView::rebuild);
    connect(this, &AppIconView::appNameChanged, this, &AppIconView::rebuild);
}

void AppIconView::setBundleId(const QString& bundleId) {
    if (std::exchange(bundleId_, bundleId) != bundleId)
        Q_EMIT bundleIdChanged();
}

void AppIconView::setAppName(const QString& appName) {
    if (std::exchange(appName_, appName) != appName)
        Q_EMIT appNameChanged();
}

QString AppIconView::iconSource() const {
    if (!hasIcon_ || width() <= 0)
        return {};
    return AppIconProvider::address(cacheKey(), cornerRadius_ / width());
}

QString AppIconView::initials() const {
    return placeholderInitials(appName_);
}

QColor AppIconView::placeholderColour() const {
    return placeholderColor(appName_);
}

void AppIconView::componentComplete() {
    QQuickItem::componentComplete();
    rebuild();
}

// One property may change before another that belongs to it. What is known is taken at once; what
// must be looked up waits for the next frame, when all have their values.
void AppIconView::rebuild() {
    if (!isComponentComplete())
        return;
    const AppIconResolver* const icons = resolver();
    startedTask_.clear();
    setHasIcon(icons && !icons->cache().value(cacheKey()).isNull());
    Q_EMIT iconSourceChanged();
    polish();
}

void AppIconView::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemVisibleHasChanged && data.boolValue)
        polish();
}

void AppIconView::updatePolish() {
    AppIconResolver* const icons = resolver();
    if (!isVisible() || hasIcon_ || !icons || startedTask_ == taskId())
        return;
    startedTask_ = taskId();
    icons->resolve(bundleId_, appName_, alive_.guard([this, key = cacheKey()](const QImage& icon) {
        if (cacheKey() == key)
            setHasIcon(!icon.isNull());
    }));
}

AppIconResolver* AppIconView::resolver() const {
    const QQmlEngine* const engine = qmlEngine(this);
    return engine ? appIconsOf(*engine).get() : nullptr;
}

QString AppIconView::cacheKey() const {
    return AppIconResolver::cacheKey(bundleId_, appName_);
}

QString AppIconView::taskId() const {
    return bundleId_.isEmpty() ? QStringLiteral("name:") + appName_
                               : QStringLiteral("bundle:") + bundleId_;
}

void AppIconView::setHasIcon(bool hasIcon) {
    if (std::exchange(hasIcon_, hasIcon) != hasIcon)
        Q_EMIT iconChanged();
}

} // namespace tessarine
