#pragma once

#include <QString>

#include <optional>

namespace tessarine {

// What the hoard holds, at one moment.
struct HoardStats {
    qint64 totalCount = 0;
    qint64 pinnedCount = 0;
    qint64 distinctAppsCount = 0;
    std::optional<double> firstTimestamp; // of the oldest row, seconds since the reference date
    std::optional<double> lastTimestamp;  // of the newest row
    qint64 fileSizeBytes = 0;             // of the main file alone, without its log

    // fileSizeBytes in units of 1024: "812 B", "3.4 KB", "12.05 MB", "1.00 GB".
    QString formattedSize() const;

    bool operator==(const HoardStats&) const = default;
};

} // namespace tessarine
