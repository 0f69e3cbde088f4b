#include "platform/linux/NotificationMarkup.h"

#include <QChar>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace tessarine {

namespace {

constexpr std::array<QStringView, 5> tagNames{u"b", u"i", u"u", u"a", u"img"};

constexpr std::array<std::pair<QStringView, char16_t>, 5> entities{{
    {u"&amp;", u'&'},
    {u"&lt;", u'<'},
    {u"&gt;", u'>'},
    {u"&quot;", u'"'},
    {u"&apos;", u'\''},
}};

bool isBlank(QChar character) {
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
}

bool isNameCharacter(QChar character) {
    return character.isLetterOrNumber() || character == u'-' || character == u'_' ||
           character == u':' || character == u'.';
}

// Reads one body from its start to its end.
class MarkupReader {
public:
    explicit MarkupReader(QStringView body)
        : body_(body) {}

    QString text() const {
        QString text;
        text.reserve(body_.size());
        for (qsizetype at = 0; at < body_.size();) {
            const QChar character = body_[at];
            const qsizetype end = character == u'<'   ? tagEnd(at)
                                  : character == u'&' ? entityEnd(at, text)
                                                      : at;
            if (end == at)
                text += character;
            at = std::max(end, at + 1);
        }
        return text;
    }

private:
    QChar character(qsizetype at) const { return at < body_.size() ? body_[at] : QChar(); }

    template <typename Predicate>
    qsizetype skip(qsizetype at, Predicate predicate) const {
        while (at < body_.size() && predicate(body_[at]))
            ++at;
        return at;
    }

    // The place behind the tag that starts here; the same place when none does.
    qsizetype tagEnd(qsizetype start) const {
        const bool closing = character(start + 1) == u'/';
        const qsizetype nameStart = start + (closing ? 2 : 1);
        const qsizetype nameEnd = skip(nameStart, isNameCharacter);
        const QStringView name = body_.sliced(nameStart, nameEnd - nameStart);
        const bool known = std::any_of(tagNames.begin(), tagNames.end(), [&](QStringView tag) {
            return name.compare(tag, Qt::CaseInsensitive) == 0;
        });
        if (!known)
            return start;
        const std::optional<qsizetype> end = closing ? closingEnd(nameEnd) : attributesEnd(nameEnd);
        return end.value_or(start);
    }

    std::optional<qsizetype> closingEnd(qsizetype at) const {
        at = skip(at, isBlank);
        return character(at) == u'>' ? std::optional(at + 1) : std::nullopt;
    }

    // Two walks through the same text that started at different tags never agree on what is in
    // quotes, and one that meets a bracket outside of them ends. So at most three walks pass any
    // place, and the whole takes time in proportion to the length.
    std::optional<qsizetype> attributesEnd(qsizetype at) const {
        while (true) {
            const qsizetype next = skip(at, isBlank);
            if (const qsizetype end = bracketEnd(next); end != next)
                return end;
            const std::optional<qsizetype> attribute =
                next == at ? std::nullopt : attributeEnd(next);
            if (!attribute)
                return std::nullopt;
            at = *attribute;
        }
    }

    qsizetype bracketEnd(qsizetype at) const {
        if (character(at) == u'>')
            return at + 1;
        return character(at) == u'/' && character(at + 1) == u'>' ? at + 2 : at;
    }

    // name = value, the value in quotes or a single word.
    std::optional<qsizetype> attributeEnd(qsizetype at) const {
        const qsizetype nameEnd = skip(at, isNameCharacter);
        const qsizetype equals = skip(nameEnd, isBlank);
        if (nameEnd == at || character(equals) != u'=')
            return std::nullopt;
        const qsizetype value = skip(equals + 1, isBlank);
        const QChar quote = character(value);
        if (quote != u'"' && quote != u'\'')
            return wordEnd(value);
        const qsizetype closing = body_.indexOf(quote, value + 1);
        return closing < 0 ? std::nullopt : std::optional(closing + 1);
    }

    std::optional<qsizetype> wordEnd(qsizetype at) const {
        const qsizetype end = skip(at, [](QChar character) {
            return !isBlank(character) && character != u'<' && character != u'>' &&
                   character != u'"' && character != u'\'';
        });
        return end == at ? std::nullopt : std::optional(end);
    }

    // The place behind the entity that starts here, with its character appended to the text; the
    // same place when none does.
    qsizetype entityEnd(qsizetype start, QString& text) const {
        const QStringView rest = body_.sliced(start);
        if (rest.startsWith(u"&#"))
            return numericEnd(start, text);
        for (const auto& [entity, character] : entities) {
            if (rest.startsWith(entity)) {
                text += character;
                return start + entity.size();
            }
        }
        return start;
    }

    qsizetype numericEnd(qsizetype start, QString& text) const {
        const bool hexadecimal = character(start + 2).toLower() == u'x';
        const qsizetype firstDigit = start + (hexadecimal ? 3 : 2);
        qsizetype at = firstDigit;
        char32_t code = 0;
        for (int digit; (digit = digitAt(at, hexadecimal)) >= 0; ++at)
            code = std::min<char32_t>(code * (hexadecimal ? 16 : 10) + static_cast<char32_t>(digit),
                                      QChar::LastValidCodePoint + 1);
        const bool isCharacter =
            code != 0 && code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code);
        if (at == firstDigit || character(at) != u';' || !isCharacter)
            return start;
        text += QChar::fromUcs4(code);
        return at + 1;
    }

    // ASCII digits only. Negative when there is none.
    int digitAt(qsizetype at, bool hexadecimal) const {
        const char16_t digit = character(at).unicode();
        if (digit >= u'0' && digit <= u'9')
            return digit - u'0';
        const int letter = (digit | 0x20) - u'a';
        const bool isHexadecimal = digit < 0x80 && letter >= 0 && letter < 6;
        return hexadecimal && isHexadecimal ? letter + 10 : -1;
    }

    QStringView body_;
};

} // namespace

QString withoutMarkup(QStringView body) {
    if (!body.contains(u'<') && !body.contains(u'&'))
        return body.toString();
    return MarkupReader(body).text();
}

} // namespace tessarine
