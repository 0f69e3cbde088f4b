#include "platform/linux/applications/ExecLine.h"

#include "platform/linux/applications/DesktopEntries.h"

namespace tessarine {

namespace {

// A word of the line before its field codes are replaced.
struct Word {
    QString text;
    bool quoted = false; // in any part: then it stays, even empty
};

bool isEscapableInQuotes(QChar character) {
    return character == u'"' || character == u'`' || character == u'$' || character == u'\\';
}

class Splitter {
public:
    explicit Splitter(const QString& line)
        : line_(line) {}

    std::optional<std::vector<Word>> words() {
        while (position_ < line_.size()) {
            const QChar character = line_[position_++];
            if (character == u' ' || character == u'\t' || character == u'\n')
                endWord();
            else if (!take(character))
                return std::nullopt;
        }
        endWord();
        return words_;
    }

private:
    bool take(QChar character) {
        inWord_ = true;
        if (character == u'"')
            return takeDoubleQuoted();
        if (character == u'\'')
            return takeSingleQuoted();
        if (character != u'\\')
            word_.text += character;
        else if (position_ < line_.size())
            word_.text += line_[position_++];
        return true;
    }

    bool takeDoubleQuoted() {
        word_.quoted = true;
        while (position_ < line_.size()) {
            const QChar character = line_[position_++];
            if (character == u'"')
                return true;
            if (character == u'\\' && position_ < line_.size() &&
                isEscapableInQuotes(line_[position_]))
                word_.text += line_[position_++];
            else
                word_.text += character;
        }
        return false;
    }

    bool takeSingleQuoted() {
        word_.quoted = true;
        const qsizetype end = line_.indexOf(u'\'', position_);
        if (end < 0)
            return false;
        word_.text += QStringView(line_).sliced(position_, end - position_);
        position_ = end + 1;
        return true;
    }

    void endWord() {
        if (inWord_)
            words_.push_back(std::exchange(word_, {}));
        inWord_ = false;
    }

    const QString& line_;
    qsizetype position_ = 0;
    Word word_;
    bool inWord_ = false;
    std::vector<Word> words_;
};

// What a field code stands for inside a word when there is no file to open. Nothing for a code that
// there isn't, which makes the line invalid.
std::optional<QString> replacement(QChar code, const DesktopEntry& entry) {
    switch (code.unicode()) {
    case u'%':
        return QStringLiteral("%");
    case u'c':
        return entry.name;
    case u'k':
        return entry.path;
    case u'f':
    case u'F':
    case u'u':
    case u'U':
    case u'd': // from here on: deprecated, to be left out
    case u'D':
    case u'n':
    case u'N':
    case u'v':
    case u'm':
        return QString();
    default:
        return std::nullopt;
    }
}

std::optional<QString> replaced(const QString& text, const DesktopEntry& entry) {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'%') {
            result += text[i];
            continue;
        }
        if (++i == text.size())
            return std::nullopt;
        const std::optional<QString> value = replacement(text[i], entry);
        if (!value)
            return std::nullopt;
        result += *value;
    }
    return result;
}

} // namespace

std::optional<QStringList> execWords(const QString& exec) {
    const std::optional<std::vector<Word>> words = Splitter(exec).words();
    if (!words)
        return std::nullopt;
    QStringList texts;
    for (const Word& word : *words)
        texts << word.text;
    return texts;
}

QString execWord(const QString& word) {
    constexpr QStringView reserved = u" \t\n\v\f\r\"'\\><~|&;$*?#()`";
    bool needsQuotes = word.isEmpty();
    QString text;
    text.reserve(word.size() + 2);
    for (const QChar character : word) {
        needsQuotes = needsQuotes || reserved.contains(character);
        if (isEscapableInQuotes(character))
            text += u'\\';
        else if (character == u'%')
            text += u'%';
        text += character;
    }
    return needsQuotes ? u'"' + text + u'"' : text;
}

QString executableOf(const DesktopEntry& entry) {
    return execWords(entry.exec).value_or(QStringList()).value(0);
}

std::optional<QStringList> commandOf(const DesktopEntry& entry) {
    const std::optional<std::vector<Word>> words = Splitter(entry.exec).words();
    if (!words)
        return std::nullopt;
    QStringList command;
    for (const Word& word : *words) {
        if (word.text == QStringLiteral("%i")) {
            if (!entry.icon.isEmpty())
                command << QStringLiteral("--icon") << entry.icon;
            continue;
        }
        const std::optional<QString> text = replaced(word.text, entry);
        if (!text)
            return std::nullopt;
        const bool vanished = text->isEmpty() && !word.quoted;
        if (!vanished)
            command << *text;
    }
    return command.isEmpty() || command.first().isEmpty() ? std::nullopt : std::optional(command);
}

} // namespace tessarine
