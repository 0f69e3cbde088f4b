#include "platform/linux/banners/BusMonitorFixture.h"

#include <QDir>
#include <QFile>

namespace tessarine::testing {

namespace {

// A figure of a "status" file of the kernel's.
qint64 figure(const QString& path, const QByteArray& key) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith(key + ':'))
            return line.mid(key.size() + 1).simplified().split(' ').first().toLongLong();
    }
    return 0;
}

} // namespace

int residentMegabytes() {
    return static_cast<int>(figure(QStringLiteral("/proc/self/status"), "VmRSS") / 1024);
}

int openDescriptors() {
    return static_cast<int>(QDir(QStringLiteral("/proc/self/fd"))
                                .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
                                .size());
}

qint64 sleepsOf(const QString& thread) {
    return figure(QStringLiteral("/proc/self/task/%1/status").arg(thread),
                  "voluntary_ctxt_switches");
}

QStringList threadsOfThisProcess() {
    return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

} // namespace tessarine::testing
