#include "shared/Colour.h"

#include <QString>

#include <limits>

namespace tessarine {

namespace {

int hexDigit(QChar character) {
    const char16_t c = character.unicode();
    if (c >= u'0' && c <= u'9')
        return c - u'0';
    if (c >= u'a' && c <= u'f')
        return c - u'a' + 10;
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    return -1;
}

QStringView trimmedToAlphanumerics(QStringView text) {
    while (!text.isEmpty() && !text.front().isLetterOrNumber())
        text = text.sliced(1);
    while (!text.isEmpty() && !text.back().isLetterOrNumber())
        text.chop(1);
    return text;
}

quint64 scanHex(QStringView text) {
    if (text.startsWith(u"0x", Qt::CaseInsensitive))
        text = text.sliced(2);
    quint64 value = 0;
    for (const QChar character : text) {
        const int digit = hexDigit(character);
        if (digit < 0)
            break;
        if (value > (std::numeric_limits<quint64>::max() >> 4))
            return std::numeric_limits<quint64>::max();
        value = (value << 4) | static_cast<quint64>(digit);
    }
    return value;
}

} // namespace

Colour colourFromHex(QStringView text) {
    const quint64 value = scanHex(trimmedToAlphanumerics(text));
    const auto component = [value](int shift) {
        return static_cast<double>((value >> shift) & 0xFF) / 255.0;
    };
    return {component(16), component(8), component(0)};
}

} // namespace tessarine
