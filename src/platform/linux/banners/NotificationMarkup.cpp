#include "platform/linux/banners/NotificationMarkup.h"

#include "platform/linux/banners/BoundedText.h"

#include <QChar>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

namespace tessarine {

namespace {

constexpr std::array<std::string_view, 5> tagNames{"b", "i", "u", "a", "img"};

constexpr std::array<std::pair<std::string_view, char>, 5> entities{{
    {"&amp;", '&'},
    {"&lt;", '<'},
    {"&gt;", '>'},
    {"&quot;", '"'},
    {"&apos;", '\''},
}};

bool isBlank(char character) {
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

char lowered(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character | 0x20) : character;
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

// Letters of other scripts count as a whole: all their bytes lie above ASCII.
bool isNameCharacter(char character) {
    const char letter = lowered(character);
    return (letter >= 'a' && letter <= 'z') || isDigit(character) || character == '-' ||
           character == '_' || character == ':' || character == '.' ||
           static_cast<unsigned char>(character) >= 0x80;
}

bool isKnownTag(std::string_view name) {
    return std::any_of(tagNames.begin(), tagNames.end(), [&](std::string_view tag) {
        return std::equal(name.begin(), name.end(), tag.begin(), tag.end(),
                          [](char left, char right) { return lowered(left) == right; });
    });
}

// Reads one body from its start towards its end, as far as it is asked to.
class MarkupReader : public TextSource {
public:
    explicit MarkupReader(std::string_view body)
        : body_(body) {}

    std::string_view upTo(std::size_t bytes) override {
        while (text_.size() < bytes && !isWhole())
            readOn(bytes - text_.size());
        return text_;
    }

    bool isWhole() const override { return at_ == body_.size(); }

private:
    // What lies before the next tag or entity, or that itself.
    void readOn(std::size_t bytes) {
        const std::size_t start = at_;
        if (character(at_) == '<')
            at_ = tagEnd(at_);
        else if (character(at_) == '&')
            at_ = entityEnd(at_);
        if (at_ > start)
            return;
        const std::size_t next = body_.substr(at_, bytes).find_first_of("<&", 1);
        const std::size_t end = std::min(next, bytes) + at_;
        const std::size_t whole = skip(std::min(end, body_.size()), isInsideCodePoint);
        text_ += body_.substr(at_, whole - at_);
        at_ = whole;
    }

    char character(std::size_t at) const { return at < body_.size() ? body_[at] : '\0'; }

    template <typename Predicate>
    std::size_t skip(std::size_t at, Predicate predicate) const {
        while (at < body_.size() && predicate(body_[at]))
            ++at;
        return at;
    }

    // The place behind the tag that starts here; the same place when none does.
    std::size_t tagEnd(std::size_t start) const {
        const bool closing = character(start + 1) == '/';
        const std::size_t nameStart = start + (closing ? 2 : 1);
        const std::size_t nameEnd = skip(nameStart, isNameCharacter);
        if (nameStart >= body_.size() || !isKnownTag(body_.substr(nameStart, nameEnd - nameStart)))
            return start;
        const std::optional<std::size_t> end =
            closing ? closingEnd(nameEnd) : attributesEnd(nameEnd);
        return end.value_or(start);
    }

    std::optional<std::size_t> closingEnd(std::size_t at) const {
        at = skip(at, isBlank);
        return character(at) == '>' ? std::optional(at + 1) : std::nullopt;
    }

    // Two walks through the same text that started at different tags never agree on what is in
    // quotes, and one that meets a bracket outside of them ends. So at most three walks pass any
    // place, and the whole takes time in proportion to the length.
    std::optional<std::size_t> attributesEnd(std::size_t at) const {
        while (true) {
            const std::size_t next = skip(at, isBlank);
            if (const std::size_t end = bracketEnd(next); end != next)
                return end;
            const std::optional<std::size_t> attribute =
                next == at ? std::nullopt : attributeEnd(next);
            if (!attribute)
                return std::nullopt;
            at = *attribute;
        }
    }

    std::size_t bracketEnd(std::size_t at) const {
        if (character(at) == '>')
            return at + 1;
        return character(at) == '/' && character(at + 1) == '>' ? at + 2 : at;
    }

    // name = value, the value in quotes or a single word.
    std::optional<std::size_t> attributeEnd(std::size_t at) const {
        const std::size_t nameEnd = skip(at, isNameCharacter);
        const std::size_t equals = skip(nameEnd, isBlank);
        if (nameEnd == at || character(equals) != '=')
            return std::nullopt;
        const std::size_t value = skip(equals + 1, isBlank);
        const char quote = character(value);
        if (quote != '"' && quote != '\'')
            return wordEnd(value);
        const std::size_t closing = body_.find(quote, value + 1);
        return closing == std::string_view::npos ? std::nullopt : std::optional(closing + 1);
    }

    std::optional<std::size_t> wordEnd(std::size_t at) const {
        const std::size_t end = skip(at, [](char character) {
            return !isBlank(character) && character != '<' && character != '>' &&
                   character != '"' && character != '\'';
        });
        return end == at ? std::nullopt : std::optional(end);
    }

    // The place behind the entity that starts here, with its character appended to the text; the
    // same place when none does.
    std::size_t entityEnd(std::size_t start) {
        const std::string_view rest = body_.substr(start);
        if (rest.starts_with("&#"))
            return numericEnd(start);
        for (const auto& [entity, character] : entities) {
            if (rest.starts_with(entity)) {
                text_ += character;
                return start + entity.size();
            }
        }
        return start;
    }

    std::size_t numericEnd(std::size_t start) {
        const bool hexadecimal = lowered(character(start + 2)) == 'x';
        const std::size_t firstDigit = start + (hexadecimal ? 3 : 2);
        std::size_t at = firstDigit;
        char32_t code = 0;
        for (int digit; (digit = digitAt(at, hexadecimal)) >= 0; ++at)
            code = std::min<char32_t>(code * (hexadecimal ? 16 : 10) + static_cast<char32_t>(digit),
                                      QChar::LastValidCodePoint + 1);
        const bool isCharacter =
            code != 0 && code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code);
        if (at == firstDigit || character(at) != ';' || !isCharacter)
            return start;
        text_ += QString::fromUcs4(&code, 1).toStdString();
        return at + 1;
    }

    // ASCII digits only. Negative when there is none.
    int digitAt(std::size_t at, bool hexadecimal) const {
        const char digit = lowered(character(at));
        if (isDigit(digit))
            return digit - '0';
        return hexadecimal && digit >= 'a' && digit <= 'f' ? digit - 'a' + 10 : -1;
    }

    const std::string_view body_;
    std::size_t at_ = 0; // what lies before it is decoded
    std::string text_;
};

} // namespace

QString withoutMarkup(std::string_view utf8, qsizetype characters) {
    MarkupReader reader(utf8);
    return boundedText(reader, characters);
}

} // namespace tessarine
