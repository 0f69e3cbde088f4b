#pragma once

#include <QString>

#include <string_view>

namespace tessarine {

// Texts from the bus may be of any length. These many characters of them are kept.
inline constexpr qsizetype longestName = 200;
inline constexpr qsizetype longestTitle = 2000;
inline constexpr qsizetype longestBody = 20000;

// The first characters of a text, at most so many, with "…" behind them where there were more. A
// character is what a reader sees as one, but it may be made of any number of marks: where a text
// takes more than sixteen units for each character of its limit, what is too much goes too. No more
// of the text is looked at than may be kept.
QString boundedText(std::string_view utf8, qsizetype characters);
QString boundedText(const QString& text, qsizetype characters);

// What yields a text in UTF-8 bit by bit, from its start.
class TextSource {
public:
    TextSource() = default;
    TextSource(const TextSource&) = delete;
    TextSource& operator=(const TextSource&) = delete;
    virtual ~TextSource() = default;

    // The text up to so many bytes at least, or all of it; not a part of a code point. Valid until
    // the next call.
    virtual std::string_view upTo(std::size_t bytes) = 0;

    // Whether what was yielded last is all of it.
    virtual bool isWhole() const = 0;
};

QString boundedText(TextSource& source, qsizetype characters);

// Whether a code point began before this byte.
constexpr bool isInsideCodePoint(char utf8) {
    return (static_cast<unsigned char>(utf8) & 0xC0) == 0x80;
}

} // namespace tessarine
