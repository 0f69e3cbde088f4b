#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <set>

namespace tessarine {

class Accessibility;
class FileSystem;
class NotificationListener;
class SystemSettings;

// The preferences' tab that tells what the system permits. What it tells is as of the last
// appearance or the last press of "Re-check", and doesn't follow the system by itself. Main thread.
class PermissionSettings : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("PreferencesView brings it")
    Q_PROPERTY(bool axEnabled READ axEnabled NOTIFY changed)
    Q_PROPERTY(bool fdaEnabled READ fdaEnabled NOTIFY changed)
    Q_PROPERTY(QString axSettingsURL READ axSettingsURL CONSTANT)
    Q_PROPERTY(QString fdaSettingsURL READ fdaSettingsURL CONSTANT)
    Q_PROPERTY(bool offersAxSettings READ offersAxSettings NOTIFY changed)
    Q_PROPERTY(bool offersFdaSettings READ offersFdaSettings NOTIFY changed)

public:
    struct Services {
        std::shared_ptr<NotificationListener> listener;
        const Accessibility& accessibility;
        const FileSystem& fileSystem;
        SystemSettings& systemSettings;
    };

    explicit PermissionSettings(Services services);

    // The window comes to be shown.
    void appear();

    bool axEnabled() const { return axEnabled_; }
    bool fdaEnabled() const { return fdaEnabled_; }
    Q_INVOKABLE void recheckAx();
    Q_INVOKABLE void recheckFda();

    static QString axSettingsURL();
    static QString fdaSettingsURL();

    // Whether the system has such a page, as far as is known: one that could not be opened is taken
    // for missing until the next appearance.
    bool offersAxSettings() const { return offers(axSettingsURL()); }
    bool offersFdaSettings() const { return offers(fdaSettingsURL()); }
    Q_INVOKABLE void openSettings(const QString& url);

Q_SIGNALS:
    void changed();

private:
    bool offers(const QString& url) const;

    Services services_;
    bool axEnabled_ = false;
    bool fdaEnabled_ = false;
    std::set<QString> missingPages_;
};

} // namespace tessarine
