#pragma once

#include <QString>

#include <vector>

class QIODevice;

namespace tessarine {

// One notification as the report shows it, its texts masked already.
struct PDFRow {
    double timestamp = 0; // seconds since the reference date
    QString appName;
    QString title;
    QString body;

    bool operator==(const PDFRow&) const = default;
};

enum class ExportError { renderFailed };

// How often an application is among the rows.
struct AppTally {
    QString appName;
    std::size_t count = 0;

    bool operator==(const AppTally&) const = default;
};

// The most frequent application first.
std::vector<AppTally> appTallies(const std::vector<PDFRow>& rows);

// The paged report: a summary, then every row in a log by days, the newest day first. Each row has
// a fixed height, and each text one line, of which what doesn't fit is cut off: paging is
// arithmetic and measures nothing. The device is open; throws ExportError when it can't be
// written to.
void writePdfReport(const std::vector<PDFRow>& rows, double now, QIODevice& device);

} // namespace tessarine
