#include "export/ExportManager.h"

#include "export/CsvDocument.h"
#include "export/TextDocument.h"
#include "export/UnicodeMaps.h"
#include "platform/PrivateFile.h"

#include <QBuffer>

#include <future>

namespace tessarine {

namespace {

ExportResult resultOf(const std::error_code& error, const QString& failure, const QString& path) {
    if (error)
        return ExportResult::failure(failure + QString::fromLocal8Bit(error.message()));
    return ExportResult::success(path);
}

std::vector<PDFRow> pdfRows(const NotificationList& notifications, const ExportMask& mask) {
    std::vector<PDFRow> rows;
    rows.reserve(notifications.size());
    for (const CapturedNotification& notification : notifications) {
        ExportTexts texts = mask.textsOf(notification);
        rows.push_back({notification.timestamp, notification.appName, std::move(texts.title),
                        std::move(texts.body)});
    }
    return rows;
}

} // namespace

ExportManager::ExportManager(const Services& services)
    : services_(services) {}

QString ExportManager::defaultFileName(ExportFormat format) const {
    return QStringLiteral("Tessarine_") + ExportDates().day.text(services_.clock.now()) + u'.' +
           fileExtension(format);
}

std::optional<QString> ExportManager::askSaveURL(ExportFormat format) const {
    return services_.savePanel.runModal({defaultFileName(format),
                                         QStringLiteral("Export ") + rawValue(format),
                                         QStringLiteral("Export")});
}

ExportResult ExportManager::exportTXT(const NotificationList& notifications, bool includePrivate,
                                      const QString& path) const {
    const QByteArray bytes =
        textDocument(notifications, mask(includePrivate), services_.clock.now());
    return resultOf(replacePrivately(path, bytes), QStringLiteral("Could not write TXT: "), path);
}

// In place, so that a file keeps its identity for whoever follows it: not atomic.
ExportResult ExportManager::exportCSV(const NotificationList& notifications, bool includePrivate,
                                      const QString& path) const {
    const QByteArray bytes = csvDocument(notifications, mask(includePrivate));
    return resultOf(writePrivately(path, bytes), QStringLiteral("Could not write CSV: "), path);
}

ExportResult ExportManager::exportPDF(const NotificationList& notifications, bool includePrivate,
                                      const QString& path) const {
    try {
        const QByteArray bytes = renderPDF(pdfRows(notifications, mask(includePrivate)));
        if (!replacePrivately(path, bytes))
            return ExportResult::success(path);
    } catch (ExportError) {
        // The user is told the same, whatever went wrong.
    }
    return ExportResult::failure(QStringLiteral("Unable to generate PDF."));
}

// Qt keeps the fonts that a thread has drawn with, some megabytes, until the thread ends, and
// callers work on threads that go on: so a thread of its own draws, or the caller's if the system
// grants no other.
QByteArray ExportManager::renderPDF(const std::vector<PDFRow>& rows) const {
    return std::async(std::launch::async | std::launch::deferred,
                      [&] {
                          QBuffer buffer;
                          buffer.open(QIODevice::WriteOnly);
                          writePdfReport(rows, services_.clock.now(), buffer);
                          QByteArray bytes = buffer.data();
                          nameGlyphsByTheirText(bytes);
                          return bytes;
                      })
        .get();
}

QString ExportManager::csvField(const QString& text) const {
    return tessarine::csvField(text);
}

ExportMask ExportManager::mask(bool includePrivate) const {
    return {[this](const QString& bundleId) { return services_.preferences.isPrivate(bundleId); },
            includePrivate};
}

} // namespace tessarine
