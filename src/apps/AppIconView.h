#pragma once

#include "shared/AliveGuard.h"

#include <QColor>
#include <QQuickItem>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

class QQmlEngine;

namespace tessarine {

class AppIconResolver;

// The state behind the icon of an application in a view, and its place. An icon that is known
// already is there from the first moment; another is asked for when the view comes to be shown.
// Main thread.
class AppIconView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString bundleId MEMBER bundleId_ WRITE setBundleId NOTIFY bundleIdChanged)
    Q_PROPERTY(QString appName MEMBER appName_ WRITE setAppName NOTIFY appNameChanged)
    Q_PROPERTY(double cornerRadius MEMBER cornerRadius_ NOTIFY cornerRadiusChanged)
    Q_PROPERTY(bool hasIcon READ hasIcon NOTIFY iconChanged)
    Q_PROPERTY(QString iconSource READ iconSource NOTIFY iconSourceChanged)
    Q_PROPERTY(QString initials READ initials NOTIFY appNameChanged)
    Q_PROPERTY(QColor placeholderColour READ placeholderColour NOTIFY appNameChanged)

public:
    explicit AppIconView(QQuickItem* parent = nullptr);

    void setBundleId(const QString& bundleId);
    void setAppName(const QString& appName);

    bool hasIcon() const { return hasIcon_; }
    QString iconSource() const; // empty while there is no icon
    QString initials() const;
    QColor placeholderColour() const;

    // Starts over, as a new view would: for one that goes on to show something else.
    Q_INVOKABLE void rebuild();

Q_SIGNALS:
    void bundleIdChanged();
    void appNameChanged();
    void cornerRadiusChanged();
    void iconChanged();
    void iconSourceChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void updatePolish() override;

private:
    AppIconResolver* resolver() const;
    QString cacheKey() const;
    QString taskId() const;
    void setHasIcon(bool hasIcon);

    QString bundleId_;
    QString appName_;
    double cornerRadius_ = 0;
    bool hasIcon_ = false;
    QString startedTask_; // the id of the task that asked for the icon last
    AliveGuard alive_;
};

// The resolver that the views of the engine ask; null for none.
std::shared_ptr<AppIconResolver> appIconsOf(const QQmlEngine& engine);

// Lets the views of the engine ask this resolver. Once for an engine; without it, views keep their
// placeholders.
void installAppIcons(QQmlEngine& engine, const std::shared_ptr<AppIconResolver>& resolver);

} // namespace tessarine
