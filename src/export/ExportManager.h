#pragma once

#include "export/ExportFormat.h"
#include "export/ExportRecords.h"
#include "export/ExportResult.h"
#include "export/PdfReport.h"
#include "platform/SavePanel.h"
#include "platform/Scheduler.h"
#include "preferences/PreferencesStore.h"
#include "shared/CapturedNotification.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tessarine {

// Writes notifications to files that only their owner may read, in one of three formats. Titles and
// bodies of private notifications are masked unless the user chose to include them. The writers
// hold nothing between calls, throw nothing, and run on any thread, several at a time; the panel
// belongs to the main thread.
class ExportManager {
public:
    struct Services {
        const PreferencesStore& preferences;
        const Scheduler& clock;
        SavePanel& savePanel;
    };

    explicit ExportManager(const Services& services);

    // The name that is suggested for a file made today: "Tessarine_2026-03-03.csv".
    QString defaultFileName(ExportFormat format) const;

    // Asks the user for a path. Nothing when the user cancelled.
    std::optional<QString> askSaveURL(ExportFormat format) const;

    ExportResult exportTXT(const NotificationList& notifications, bool includePrivate,
                           const QString& path) const;
    ExportResult exportCSV(const NotificationList& notifications, bool includePrivate,
                           const QString& path) const;

    ExportResult exportPDF(const NotificationList& notifications, bool includePrivate,
                           const QString& path) const;

    // The report's bytes. Waits while a thread of its own draws them, if there can be one. May
    // throw ExportError.
    QByteArray renderPDF(const std::vector<PDFRow>& rows) const;

    // A text as a field of the CSV file.
    QString csvField(const QString& text) const;

private:
    ExportMask mask(bool includePrivate) const;

    Services services_;
};

} // namespace tessarine
