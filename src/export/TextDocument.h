#pragma once

#include "export/ExportRecords.h"

#include <QByteArray>

namespace tessarine {

// A log to read: the notifications day by day, the newest day first, under a heading with the
// moment of its making. UTF-8 without a byte order mark.
QByteArray textDocument(const NotificationList& notifications, const ExportMask& mask, double now);

} // namespace tessarine
