#include "platform/linux/applications/ApplicationNames.h"

#include <QFile>
#include <QFileInfo>

namespace tessarine {

namespace {

constexpr qsizetype longestKernelName = 15; // bytes: the kernel cuts names of processes there

QString kernelName(qint32 pid) {
    QFile file(QStringLiteral("/proc/%1/comm").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray name = file.readAll();
    if (name.endsWith('\n'))
        name.chop(1);
    return QString::fromUtf8(name);
}

QString programName(qint32 pid) {
    const QString program = QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(pid));
    return QFileInfo(program).fileName();
}

} // namespace

QString ApplicationNames::ofDesktopEntry(QString id) {
    const QString suffix = QStringLiteral(".desktop"); // some senders name the file
    std::optional<DesktopEntry> entry = entries_.find(id);
    if (!entry && id.endsWith(suffix)) {
        id.chop(suffix.size());
        entry = entries_.find(id);
    }
    return entry ? entry->name : QString();
}

// The kernel's name is that of the script where an interpreter runs one, but it may be cut.
QString processName(qint32 pid) {
    QString name = kernelName(pid);
    if (name.toUtf8().size() < longestKernelName)
        return name;
    const QString program = programName(pid);
    return program.startsWith(name) ? program : name;
}

} // namespace tessarine
