#include "platform/qt/StoredValue.h"

#include <charconv>

namespace tessarine {

namespace {

std::optional<qint64> plainInteger(const QString& text) {
    const QByteArray bytes = text.toLatin1(); // what is not Latin-1 becomes '?' and no number
    qint64 number = 0;
    const char* const end = bytes.constData() + bytes.size();
    const auto [stop, error] = std::from_chars(bytes.constData(), end, number);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return number;
}

bool isDigitOrPoint(char character) {
    return (character >= '0' && character <= '9') || character == '.';
}

// The C++ library of older systems has no std::from_chars for this. Qt's own reading would take
// blanks, a plus sign and words for numbers too.
std::optional<double> plainReal(const QString& text) {
    const QByteArray bytes = text.toLatin1();
    const qsizetype first = bytes.startsWith('-') ? 1 : 0;
    if (bytes.size() <= first || !isDigitOrPoint(bytes.at(first)) || !isDigitOrPoint(bytes.back()))
        return std::nullopt;
    bool isNumber = false;
    const double number = bytes.toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

// A list in which a text needs a form of its own, as one with a NUL does, comes from a file so.
QStringList textsOfAll(const QVariantList& values) {
    QStringList texts;
    for (const QVariant& value : values) {
        const std::optional<QString> text = textOf(value);
        if (!text)
            return {};
        texts.append(*text);
    }
    return texts;
}

} // namespace

bool booleanOf(const QVariant& value) {
    const std::optional<QString> text = textOf(value);
    return text == QStringLiteral("true") || text == QStringLiteral("1");
}

qint64 integerOf(const QVariant& value) {
    const std::optional<QString> text = textOf(value);
    return text ? plainInteger(*text).value_or(0) : 0;
}

double numberOf(const QVariant& value) {
    const std::optional<QString> text = textOf(value);
    return text ? plainReal(*text).value_or(0) : 0;
}

QStringList textListOf(const QVariant& value) {
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList();
    if (value.typeId() == QMetaType::QVariantList)
        return textsOfAll(value.toList());
    const std::optional<QString> text = textOf(value);
    return text ? QStringList(*text) : QStringList();
}

std::optional<QString> textOf(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return value.toString();
    case QMetaType::QStringList:
        // As a file gives it back: nothing there tells a list of one from a text.
        return value.toStringList().size() == 1 ? std::optional(value.toStringList().front())
                                                : std::nullopt;
    default:
        return std::nullopt;
    }
}

std::vector<qint64> integerListOf(const QVariant& value) {
    std::vector<qint64> numbers;
    for (const QString& text : textListOf(value)) {
        const std::optional<qint64> number = plainInteger(text);
        if (!number)
            return {};
        numbers.push_back(*number);
    }
    return numbers;
}

QStringList storedForm(const std::vector<qint64>& numbers) {
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(numbers.size()));
    for (const qint64 number : numbers)
        texts.append(QString::number(number));
    return texts;
}

} // namespace tessarine
