#include "apps/AppPlaceholder.h"

#include "shared/Text.h"

#include <QStringList>

#include <array>

namespace tessarine {

namespace {

QStringList parts(const QString& name) {
    QStringList result(QString{});
    for (const QChar character : name) {
        if (!character.isSpace())
            result.last() += character;
        else if (!result.last().isEmpty())
            result.append(QString());
    }
    result.removeAll(QString());
    return result;
}

} // namespace

QColor placeholderColor(const QString& appName) {
    static const std::array<QColor, 8> colours{
        QColor(0x2f, 0x7c, 0xf6), // blue
        QColor(0x9b, 0x4d, 0xca), // purple
        QColor(0xe0, 0x45, 0x7b), // pink
        QColor(0xd9, 0x73, 0x1a), // orange
        QColor(0x35, 0x9a, 0x4c), // green
        QColor(0x1f, 0x90, 0x96), // teal
        QColor(0x5a, 0x58, 0xd6), // indigo
        QColor(0x1d, 0x8f, 0xc4), // cyan
    };
    std::size_t sum = 0;
    for (const uint scalar : appName.toUcs4())
        sum += scalar;
    return colours[sum % colours.size()];
}

QString placeholderInitials(const QString& appName) {
    const QStringList words = parts(appName);
    if (words.size() < 2)
        return firstCharacters(appName, 2).toString().toUpper();
    const QString initials =
        firstCharacters(words[0], 1).toString() + firstCharacters(words[1], 1).toString();
    return initials.toUpper();
}

} // namespace tessarine
