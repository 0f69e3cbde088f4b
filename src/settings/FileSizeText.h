#pragma once

#include <QString>

namespace tessarine {

// The size of a file for people, in units of a thousand: "Zero KB", "1 byte", "12 KB", "1.2 MB",
// "3.45 GB". No fraction of kilobytes, one digit of it for megabytes, two from there on, and none
// that is zero. Negative sizes are taken for 0.
QString fileSizeText(qint64 bytes);

} // namespace tessarine
