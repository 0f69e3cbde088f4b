#pragma once

#include <QString>

#include <memory>

namespace tessarine::testing {

// The languages that the program's texts are shown in: those that it has, and two made up from the
// English texts, which are longer by two fifths. One of them is written in Hebrew letters from
// right to left.
enum class Language { english, german, italian, french, longer, mirrored };

const char* nameOf(Language language);

// While it lives, texts and dates are in the language, and layouts go in its direction. Windows are
// made after it.
class LanguageScope {
public:
    explicit LanguageScope(Language language);
    ~LanguageScope();
    LanguageScope(const LanguageScope&) = delete;
    LanguageScope& operator=(const LanguageScope&) = delete;

private:
    struct State;
    std::unique_ptr<State> state_;
};

// The text with each word longer by two fifths, what stands in for values left as it is.
QString lengthened(const QString& text);

// The same from behind and in Hebrew letters.
QString reversed(const QString& text);

} // namespace tessarine::testing
