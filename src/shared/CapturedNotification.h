#pragma once

#include "shared/FreshId.h"

#include <QMetaType>
#include <QString>
#include <QUuid>

#include <vector>

namespace tessarine {

// One notification, as every subsystem passes it on. A plain value, copied freely.
struct CapturedNotification {
    QUuid id = freshId(); // identity in memory only: fresh for each record, never stored
    qint64 dbId = 0;      // row id in the hoard, 0 in a record that a layer has captured
    qint64 noteId = 0;    // the source's own key for it
    QString appBundleId;
    QString appName;
    QString title;
    QString body;
    double timestamp = 0; // delivery, seconds since the reference date
    bool pinned = false;  // only records read from the hoard carry true

    bool operator==(const CapturedNotification&) const = default;
};

using NotificationList = std::vector<CapturedNotification>;

// Whether two records show the same row of the hoard with the same content, whatever their ids in
// memory.
bool showsSameRow(const CapturedNotification& left, const CapturedNotification& right);

} // namespace tessarine

Q_DECLARE_METATYPE(tessarine::CapturedNotification)
