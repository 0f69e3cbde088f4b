#pragma once

#include "shared/CapturedNotification.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// A short message above the list that goes by itself.
class InlineBanner {
    Q_GADGET
    QML_VALUE_TYPE(inlineBanner)
    Q_PROPERTY(QString icon MEMBER icon CONSTANT)
    Q_PROPERTY(bool isWarning READ isWarning CONSTANT)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString subtitle MEMBER subtitle CONSTANT)

public:
    enum class Style { info, warning };

    bool isWarning() const { return style == Style::warning; }
    bool operator==(const InlineBanner&) const = default;

    QString icon; // a symbol's name
    Style style = Style::info;
    QString title;
    QString subtitle;
};

// Says that a place in this application was opened.
InlineBanner deepLinkBanner(const QString& appName);

// Says that the application behind a notification is not on this machine, or not known at all.
InlineBanner notInstalledBanner(const CapturedNotification& notification);

} // namespace tessarine
