#include "platform/linux/banners/BoundedText.h"

#include "shared/Text.h"

#include <algorithm>

namespace tessarine {

namespace {

// The longest character of Unicode's recommended emoji has 15.
constexpr qsizetype unitsForACharacter = 16;

constexpr qsizetype bytesForAUnit = 3; // in UTF-8, at most

class PlainText : public TextSource {
public:
    explicit PlainText(std::string_view text)
        : text_(text) {}

    std::string_view upTo(std::size_t) override { return text_; }
    bool isWhole() const override { return true; }

private:
    const std::string_view text_;
};

// Qt takes a U+FEFF at the start for a mark of the encoding and leaves it out.
QString fromUtf8(std::string_view utf8) {
    const QString text = QString::fromUtf8(utf8);
    return utf8.starts_with("\xEF\xBB\xBF") ? QChar(QChar::ByteOrderMark) + text : text;
}

std::string_view wholeCodePoints(std::string_view utf8, std::size_t size) {
    if (utf8.size() <= size)
        return utf8;
    while (size > 0 && isInsideCodePoint(utf8[size]))
        --size;
    return utf8.substr(0, size);
}

QStringView wholeCodePoints(QStringView text, qsizetype size) {
    if (text.size() <= size)
        return text;
    return text.first(text[size].isLowSurrogate() ? size - 1 : size);
}

// The text without its last character, which may be a part of one; all of it when it has no other.
QStringView withoutLastCharacter(QStringView text) {
    const qsizetype end = endOfCharacters(text, characterCount(text) - 1);
    return end > 0 ? text.first(end) : text;
}

QString withEllipsis(QStringView text) {
    QString cut;
    cut.reserve(text.size() + 1);
    return cut.append(text).append(u'…');
}

} // namespace

// Most texts are short; of a long one, four bytes for each character are nearly always enough.
QString boundedText(TextSource& source, qsizetype characters) {
    const qsizetype mostUnits = characters * unitsForACharacter;
    const qsizetype mostBytes = (mostUnits + 2) * bytesForAUnit; // enough to see that it is more
    for (qsizetype bytes = 4 * characters;; bytes *= 4) {
        const auto size = static_cast<std::size_t>(std::min(bytes, mostBytes));
        const std::string_view yielded = source.upTo(size);
        const std::string_view start = wholeCodePoints(yielded, size);
        const bool isAll = source.isWhole() && start.size() == yielded.size();
        QString text = fromUtf8(start);
        const qsizetype end = endOfCharacters(text, characters);
        if (text.size() > mostUnits && end > mostUnits)
            return withEllipsis(withoutLastCharacter(wholeCodePoints(text, mostUnits)));
        if (end < text.size())
            return withEllipsis(QStringView(text).first(end));
        if (isAll)
            return text;
    }
}

QString boundedText(std::string_view utf8, qsizetype characters) {
    PlainText source(utf8);
    return boundedText(source, characters);
}

QString boundedText(const QString& text, qsizetype characters) {
    return text.size() <= characters ? text : boundedText(text.toUtf8().toStdString(), characters);
}

} // namespace tessarine
