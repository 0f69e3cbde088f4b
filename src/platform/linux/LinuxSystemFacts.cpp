#include "platform/linux/LinuxSystemFacts.h"

#include <QFile>
#include <QSysInfo>

#include <utility>

namespace tessarine {

namespace {

const QByteArray prettyNameKey = QByteArrayLiteral("PRETTY_NAME=");

bool isQuoted(const QByteArray& value) {
    return value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
           value.back() == value.front();
}

// Inside double quotes a backslash takes the next character as it is; inside single ones nothing is
// special.
QByteArray unquoted(const QByteArray& value) {
    QByteArray inner = isQuoted(value) ? value.sliced(1, value.size() - 2) : value;
    if (value.startsWith('\''))
        return inner;
    QByteArray plain;
    for (qsizetype i = 0; i < inner.size(); ++i) {
        if (inner[i] == '\\' && i + 1 < inner.size())
            ++i;
        plain.append(inner[i]);
    }
    return plain;
}

QString known(const QString& text) {
    return text.isEmpty() ? QStringLiteral("?") : text;
}

QByteArray firstReadable(const QStringList& paths) {
    for (const QString& path : paths) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            return file.readAll();
    }
    return {};
}

} // namespace

QString prettyName(const QByteArray& description) {
    QByteArray value;
    for (const QByteArray& line : description.split('\n')) {
        const QByteArray trimmed = line.trimmed();
        if (trimmed.startsWith(prettyNameKey)) // the last one counts
            value = unquoted(trimmed.sliced(prettyNameKey.size()).trimmed());
    }
    return QString::fromUtf8(value).simplified();
}

LinuxSystemFacts::LinuxSystemFacts(QStringList descriptions)
    : descriptions_(std::move(descriptions)) {}

QStringList LinuxSystemFacts::standardDescriptions() {
    return {QStringLiteral("/etc/os-release"), QStringLiteral("/usr/lib/os-release")};
}

QString LinuxSystemFacts::programVersion() const {
    return QStringLiteral(TESSARINE_VERSION);
}

QString LinuxSystemFacts::programBuild() const {
    return known(QStringLiteral(TESSARINE_BUILD));
}

QString LinuxSystemFacts::systemLabel() const {
    return QStringLiteral("System");
}

// A system without a description calls itself "Linux", as the format's own default.
QString LinuxSystemFacts::systemVersion() const {
    const QString name = prettyName(firstReadable(descriptions_));
    const QString kernel = known(QSysInfo::kernelVersion());
    return QStringLiteral("%1 (Linux %2)")
        .arg(name.isEmpty() ? QStringLiteral("Linux") : name, kernel);
}

} // namespace tessarine
