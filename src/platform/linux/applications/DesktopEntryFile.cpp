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

// Of what the format calls space; a value may begin or end with any other kind.
QStringView trimmed(QStringView text) {
    const auto isBlank = [](QChar character) {
        return character == u' ' || character == u'\t' || character == u'\r';
    };
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

} // namespace

DesktopEntryKeys desktopEntryKeys(const QByteArray& content) {
    DesktopEntryKeys keys;
    bool inEntry = false; // other groups hold actions
    for (const QByteArray& bytes : content.split('\n')) {
        const QString text = QString::fromUtf8(bytes);
        const QStringView line = trimmed(text);
        if (line.startsWith(u'[')) {
            inEntry = line == QStringLiteral("[Desktop Entry]");
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (!inEntry || line.startsWith(u'#') || equals <= 0)
            continue;
        keys.insert(trimmed(line.first(equals)).toString(),
                    unescaped(trimmed(line.sliced(equals + 1))));
    }
    return keys;
}

std::optional<DesktopEntryKeys> readDesktopEntryKeys(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return desktopEntryKeys(file.readAll());
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
    if (value.endsWith(u' '))
        value.replace(value.size() - 1, 1, QStringLiteral("\\s"));
    if (value.startsWith(u' '))
        value.replace(0, 1, QStringLiteral("\\s"));
    return value;
}

} // namespace tessarine
