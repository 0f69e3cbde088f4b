#pragma once

#include "export/ExportRecords.h"

#include <QByteArray>

namespace tessarine {

// A field as it stands between two separators: quoted where the text holds a separator, a quote or
// a line break. A text that a spreadsheet would take for a formula stays as it is.
QString csvField(const QString& text);

// One row for each notification, in the given order, under a line of headings; fields separated by
// semicolons. UTF-8 with a byte order mark, by which spreadsheets know it.
QByteArray csvDocument(const NotificationList& notifications, const ExportMask& mask);

} // namespace tessarine
