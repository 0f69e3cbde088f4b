#pragma once

#include "shared/CapturedNotification.h"

#include <QObject>
#include <QString>
#include <QUuid>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// What the context menu of a row says, and what its entries act on.
struct RowMenuContent {
    Q_GADGET
    QML_VALUE_TYPE(rowMenuContent)
    Q_PROPERTY(bool isEmpty READ isEmpty CONSTANT)
    Q_PROPERTY(QUuid id MEMBER id CONSTANT)
    Q_PROPERTY(bool pinned MEMBER pinned CONSTANT)
    Q_PROPERTY(QString appName MEMBER appName CONSTANT)
    Q_PROPERTY(QString dayKey MEMBER dayKey CONSTANT)
    Q_PROPERTY(QString openText MEMBER openText CONSTANT)
    Q_PROPERTY(QString deleteAppText MEMBER deleteAppText CONSTANT)
    Q_PROPERTY(QString deleteDayText MEMBER deleteDayText CONSTANT)

public:
    bool isEmpty() const { return id.isNull(); }
    bool operator==(const RowMenuContent&) const = default;

    QUuid id;
    bool pinned = false;
    QString appName;
    QString dayKey;
    QString openText;
    QString deleteAppText;
    QString deleteDayText;
};

RowMenuContent menuContent(const CapturedNotification& row);

// What the preview shows of a row.
struct PreviewContent {
    Q_GADGET
    QML_VALUE_TYPE(previewContent)
    Q_PROPERTY(QString bundleId MEMBER bundleId CONSTANT)
    Q_PROPERTY(QString appName MEMBER appName CONSTANT)
    Q_PROPERTY(QString time MEMBER time CONSTANT)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString body MEMBER body CONSTANT)
    Q_PROPERTY(QString openText MEMBER openText CONSTANT)

public:
    bool operator==(const PreviewContent&) const = default;

    QString bundleId;
    QString appName;
    QString time;
    QString title;
    QString body;
    QString openText;
};

PreviewContent previewContent(const CapturedNotification& row);

} // namespace tessarine
