#include "platform/linux/applications/DesktopEntryFile.h"

#include <QFile>

namespace tessarine {

namespace {

QString unescaped(QStringView value) {
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        switch (value[++i].unicode()) {
        case u's':
            text += u' ';
            break;
        case u'n':
            text += u'\n';
            break;
        case u't':
            text += u'\t';
            break;
        case u'r':
            text += u'\r';
            break;
        default:
            text += value[i];
        }
    }
    return text;
}

} // namespace

std::optional<DesktopEntryKeys> readDesktopEntryKeys(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    DesktopEntryKeys keys;
    bool inEntry = false; // other groups hold actions
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.startsWith(u'[')) {
            inEntry = line == QStringLiteral("[Desktop Entry]");
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (!inEntry || line.startsWith(u'#') || equals <= 0)
            continue;
        keys.insert(line.first(equals).trimmed(),
                    unescaped(QStringView(line).sliced(equals + 1).trimmed()));
    }
    return keys;
}

bool isTrue(const DesktopEntryKeys& keys, const QString& key) {
    return keys.value(key) == QStringLiteral("true");
}

QString escapedValue(const QString& text) {
    QString value = text;
    value.replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'\n', QStringLiteral("\\n"))
        .replace(u'\t', QStringLiteral("\\t"))
        .replace(u'\r', QStringLiteral("\\r"));
    if (value.startsWith(u' '))
        value.replace(0, 1, QStringLiteral("\\s"));
    return value;
}

} // namespace tessarine
