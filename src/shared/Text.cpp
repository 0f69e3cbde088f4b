#include "shared/Text.h"

#include <QLocale>

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>
#include <unicode/utext.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <memory>

namespace tessarine {

namespace {

// Without combining marks below U+0300, only a carriage return before a line feed makes one
// character of two units; most texts never need the break iterator.
bool isSimple(QStringView text) {
    for (const QChar character : text) {
        if (character.unicode() >= 0x300 || character == u'\r' || character.unicode() == 0xAD)
            return false;
    }
    return true;
}

icu::BreakIterator* characterBreaks() {
    thread_local UErrorCode status = U_ZERO_ERROR;
    thread_local const std::unique_ptr<icu::BreakIterator> breaks(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDelete): it lives as long as its thread
    return U_SUCCESS(status) ? breaks.get() : nullptr;
}

// A stretch of characters from a text's start.
struct Characters {
    qsizetype count;
    qsizetype end; // the place behind the last one
};

// The first characters of a text, at most so many.
Characters walkCharacters(QStringView text, qsizetype most) {
    const qsizetype simple = std::min(text.size(), most);
    if (isSimple(text.first(simple)) && (simple == text.size() || isSimple(text.sliced(simple, 1))))
        return {simple, simple};
    icu::BreakIterator* breaks = characterBreaks();
    if (!breaks)
        return {simple, simple};
    UErrorCode status = U_ZERO_ERROR;
    UText units = UTEXT_INITIALIZER;
    utext_openUChars(&units, text.utf16(), text.size(), &status);
    breaks->setText(&units, status);
    Characters walked{0, 0};
    if (U_SUCCESS(status)) {
        breaks->first();
        while (walked.count < most && breaks->next() != icu::BreakIterator::DONE)
            walked = {walked.count + 1, breaks->current()};
    }
    utext_close(&units);
    return U_SUCCESS(status) ? walked : Characters{simple, simple};
}

bool hasDotlessI(QLocale::Language language) {
    return language == QLocale::Turkish || language == QLocale::Azerbaijani;
}

} // namespace

QString decimalText(double value) {
    if (std::isnan(value))
        return QStringLiteral("nan");
    if (std::isinf(value))
        return value < 0 ? QStringLiteral("-inf") : QStringLiteral("inf");
    const double size = std::abs(value);
    const bool fixed = size == 0 || (size >= 1e-4 && size < 0x1p54);
    char buffer[64];
    const auto end = std::to_chars(std::begin(buffer), std::end(buffer), value,
                                   fixed ? std::chars_format::fixed : std::chars_format::scientific)
                         .ptr;
    QString text = QString::fromLatin1(buffer, end - buffer);
    if (fixed && !text.contains(u'.'))
        text += QStringLiteral(".0");
    return text;
}

QString fixedText(double value, int decimals) {
    char buffer[400]; // the largest double has 309 digits before the point
    const auto end = std::to_chars(std::begin(buffer), std::end(buffer), value,
                                   std::chars_format::fixed, decimals)
                         .ptr;
    return QString::fromLatin1(buffer, end - buffer);
}

qsizetype characterCount(QStringView text) {
    return walkCharacters(text, text.size()).count;
}

qsizetype endOfCharacters(QStringView text, qsizetype count) {
    return walkCharacters(text, count).end;
}

QStringView trimmedBlanks(QStringView text) {
    const auto isBlank = [](QChar character) {
        return character == u'\t' || character.category() == QChar::Separator_Space;
    };
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

bool plainTextLess(QStringView left, QStringView right) {
    const auto [here, there] = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    if (here == left.end() || there == right.end())
        return there != right.end();
    // Surrogates stand for scalars above all others, the last units of the basic plane included.
    if (here->isSurrogate() != there->isSurrogate())
        return there->isSurrogate();
    return *here < *there;
}

QString caselessForm(const QString& text) {
    const QString composed = text.normalized(QString::NormalizationForm_C);
    // Qt folds letter by letter only.
    icu::UnicodeString folded(composed.utf16(), int32_t(composed.size()));
    folded.foldCase(hasDotlessI(QLocale().language()) ? U_FOLD_CASE_EXCLUDE_SPECIAL_I
                                                      : U_FOLD_CASE_DEFAULT);
    return QString::fromUtf16(folded.getBuffer(), folded.length())
        .normalized(QString::NormalizationForm_C);
}

QByteArray storedUtf8(const QString& text) {
    if (text.isValidUtf16())
        return text.toUtf8();
    QString repaired = text;
    for (qsizetype i = 0; i < repaired.size(); ++i) {
        const QChar unit = repaired[i];
        if (!unit.isSurrogate())
            continue;
        if (unit.isHighSurrogate() && i + 1 < repaired.size() && repaired[i + 1].isLowSurrogate())
            ++i;
        else
            repaired[i] = QChar::ReplacementCharacter;
    }
    return repaired.toUtf8();
}

} // namespace tessarine
