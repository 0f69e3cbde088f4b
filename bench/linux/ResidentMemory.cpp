#include "bench/linux/ResidentMemory.h"

#include <QFile>

#include <unistd.h>

namespace tessarine {

double residentMegabytes() {
    QFile status(QStringLiteral("/proc/self/statm")); // in pages: all, resident, ...
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    return status.readAll().split(' ').at(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / 1e6;
}

} // namespace tessarine
