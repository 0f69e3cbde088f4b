#include "tools/WriterOptions.h"

#include <cmath>

namespace tessarine::tools {

namespace {

const QString dateThatIsText = QStringLiteral("yesterday");

std::optional<double> parseSeconds(QStringView text) {
    bool valid = false;
    const double seconds = text.toDouble(&valid);
    return valid && !std::isnan(seconds) ? std::optional(seconds) : std::nullopt;
}

// Goes over a command letter by letter.
class CommandSplitter {
public:
    explicit CommandSplitter(const QString& line)
        : line_(line) {}

    std::optional<QStringList> split() {
        for (; position_ < line_.size(); ++position_) {
            if (!take(line_.at(position_))) {
                return std::nullopt;
            }
        }
        endWord();
        return quote_.isNull() ? std::optional(words_) : std::nullopt;
    }

private:
    bool take(QChar character) {
        if (!quote_.isNull()) {
            return takeQuoted(character);
        }
        if (character.isSpace()) {
            endWord();
            return true;
        }
        inWord_ = true;
        if (character == u'"' || character == u'\'') {
            quote_ = character;
        } else {
            word_.append(character);
        }
        return true;
    }

    bool takeQuoted(QChar character) {
        if (character == quote_) {
            quote_ = QChar();
        } else if (character == u'\\' && quote_ == u'"') {
            return takeEscape();
        } else {
            word_.append(character);
        }
        return true;
    }

    bool takeEscape() {
        static const QString letters = QStringLiteral("nt\"\\");
        static const QString meanings = QStringLiteral("\n\t\"\\");
        ++position_;
        const qsizetype which =
            position_ < line_.size() ? letters.indexOf(line_.at(position_)) : -1;
        if (which < 0) {
            return false;
        }
        word_.append(meanings.at(which));
        return true;
    }

    void endWord() {
        if (inWord_) {
            words_.append(word_);
        }
        word_.clear();
        inWord_ = false;
    }

    const QString& line_;
    qsizetype position_ = 0;
    QChar quote_;
    QString word_;
    bool inWord_ = false;
    QStringList words_;
};

} // namespace

CommandLine parseCommandLine(QCommandLineParser& parser, const QStringList& arguments,
                             const WriterConsole& console) {
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Print this help."));
    parser.addOption(help);
    const bool parsed = parser.parse(arguments);
    if (parser.isSet(help)) {
        console.print(parser.helpText().trimmed());
        return CommandLine::Help;
    }
    if (!parsed) {
        console.complain(parser.errorText());
        return CommandLine::Bad;
    }
    if (parser.positionalArguments().size() != 1) {
        console.complain(QStringLiteral("one database file is wanted; --help tells more"));
        return CommandLine::Bad;
    }
    return CommandLine::Good;
}

double WantedDate::moment() const {
    return kind == Kind::Now ? secondsSinceReferenceDate() + seconds : seconds;
}

ColumnValue WantedDate::value() const {
    switch (kind) {
    case Kind::None:
        return {};
    case Kind::Text:
        return dateThatIsText;
    default:
        return moment();
    }
}

std::optional<WantedDate> parseMoment(const QString& text) {
    const bool now = text.startsWith(u"now");
    const QStringView number = QStringView(text).mid(now ? 3 : 0);
    if (now && number.isEmpty()) {
        return WantedDate{WantedDate::Kind::Now, 0};
    }
    const auto seconds = parseSeconds(number);
    const bool isDistance = number.startsWith(u'-') || number.startsWith(u'+');
    if (!seconds || (now && (!isDistance || std::isinf(*seconds)))) {
        return std::nullopt;
    }
    return WantedDate{now ? WantedDate::Kind::Now : WantedDate::Kind::Fixed, *seconds};
}

QString numbered(QString text, qint64 number) {
    return text.replace(QStringLiteral("{n}"), QString::number(number));
}

std::optional<QStringList> splitCommand(const QString& line) {
    return CommandSplitter(line).split();
}

} // namespace tessarine::tools
