#pragma once

#include <QByteArray>
#include <QString>

namespace tessarine {

// The shortest decimal that reads back as the same double, always with a fraction: "0.0",
// "778912345.5". From 2^54 on, and below 0.0001, with an exponent; "inf", "-inf" and "nan".
QString decimalText(double value);

// A decimal with so many digits after the point, rounded as printf rounds: what lies exactly in the
// middle goes to the even digit. Up to 80 decimals.
QString fixedText(double value, int decimals);

// How many characters a reader sees: grapheme clusters by ICU's rules ("😀🇮🇹" has two).
qsizetype characterCount(QStringView text);

// Where the first so many characters end; the text's size when it has no more of them.
qsizetype endOfCharacters(QStringView text, qsizetype count);

// The first so many characters, or all of the text when it has no more of them.
inline QStringView firstCharacters(QStringView text, qsizetype count) {
    return text.first(endOfCharacters(text, count));
}

// The text without blanks and tabs of any script at its ends. Line breaks stay.
QStringView trimmedBlanks(QStringView text);

// Plain text order: by Unicode scalar value, so that "～" comes before "😀". UTF-16 units alone
// would turn these two round.
bool plainTextLess(QStringView left, QStringView right);

// A form that is equal for texts that differ in letter case alone, or in how their characters are
// composed: Unicode's full case folding, which takes "ß" for "ss" ("GRÖSSE", "größe"), in its
// normalized form C. Where the user's language has a dotless "ı", that is the small letter of "I".
QString caselessForm(const QString& text);

// UTF-8 for storage. Half a surrogate pair, which UTF-8 cannot hold, becomes U+FFFD.
QByteArray storedUtf8(const QString& text);

} // namespace tessarine
