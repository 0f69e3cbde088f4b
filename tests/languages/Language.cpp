#include "languages/Language.h"

#include "support/DateLocaleScope.h"
#include "theme/Texts.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

#include <algorithm>
#include <functional>

namespace tessarine::testing {

namespace {

using namespace Qt::StringLiterals;

constexpr double growth = 0.4; // of each text

// Hebrew letters about as wide as the Latin ones that they stand for.
constexpr QStringView narrowLatin = u"fijlrt";
constexpr QStringView narrowHebrew = u"\u05d5\u05d9\u05df\u05d6\u05d2";
constexpr QStringView otherHebrew =
    u"\u05d1\u05d3\u05d4\u05d7\u05db\u05dc\u05e0\u05e1\u05e2\u05e4\u05e6\u05e7\u05e8";

const QRegularExpression& placeholder() {
    static const QRegularExpression pattern(u"%(?:L?[0-9]|L?n)"_qs);
    return pattern;
}

// What stands between the placeholders, changed by the function.
QString changed(const QString& text, const std::function<QString(const QString&)>& change) {
    QString result;
    qsizetype from = 0;
    for (auto each = placeholder().globalMatch(text); each.hasNext();) {
        const QRegularExpressionMatch match = each.next();
        result += change(text.mid(from, match.capturedStart() - from)) + match.captured();
        from = match.capturedEnd();
    }
    return result + change(text.mid(from));
}

// Letters are added at each fraction that has come together, so that short words count too.
QString lengthenedPart(const QString& part) {
    QString result;
    double missing = 0;
    for (const QChar character : part) {
        result += character;
        missing += growth;
        for (; character.isLetter() && missing >= 1; missing -= 1)
            result += character.toLower();
    }
    return result;
}

QChar hebrewFor(QChar latin) {
    const QStringView letters = narrowLatin.contains(latin) ? narrowHebrew : otherHebrew;
    return letters[latin.unicode() % letters.size()];
}

QString reversedPart(const QString& part) {
    QString result;
    for (const QChar character : part) {
        result.prepend(character.isLetter() ? hebrewFor(character.toLower()) : character);
    }
    return result;
}

// Takes each text from the English ones of this system.
class MadeUpTranslator : public QTranslator {
public:
    explicit MadeUpTranslator(std::function<QString(const QString&)> change)
        : change_(std::move(change)) {
        if (!system_.load(u":/texts/" TESSARINE_SYSTEM "_en.qm"_qs) ||
            !all_.load(u":/texts/tessarine_en.qm"_qs))
            qFatal("there are no texts");
    }

    QString translate(const char* context, const char* source, const char* disambiguation,
                      int n) const override {
        QString text = system_.translate(context, source, disambiguation, n);
        if (text.isEmpty())
            text = all_.translate(context, source, disambiguation, n);
        return change_(text);
    }
    bool isEmpty() const override { return false; }

private:
    std::function<QString(const QString&)> change_;
    QTranslator system_;
    QTranslator all_;
};

struct Kind {
    const char* name;
    const char* texts;
    const char* dates;
};

constexpr Kind kinds[] = {
    {"en", "en", "en_US.UTF-8"}, {"de", "de", "de_DE.UTF-8"},     {"it", "it", "it_IT.UTF-8"},
    {"fr", "fr", "fr_FR.UTF-8"}, {"longer", "en", "de_DE.UTF-8"}, {"mirrored", "en", "he_IL.UTF-8"},
};

const Kind& kindOf(Language language) {
    return kinds[int(language)];
}

} // namespace

QString lengthened(const QString& text) {
    return changed(text, lengthenedPart);
}

QString reversed(const QString& text) {
    return changed(lengthened(text), reversedPart);
}

const char* nameOf(Language language) {
    return kindOf(language).name;
}

struct LanguageScope::State {
    explicit State(Language language)
        : dates(kindOf(language).dates) {
        installTexts({QLatin1StringView(kindOf(language).texts)});
        if (language == Language::longer)
            madeUp = std::make_unique<MadeUpTranslator>(lengthened);
        if (language == Language::mirrored)
            madeUp = std::make_unique<MadeUpTranslator>(reversed);
        if (madeUp)
            QCoreApplication::installTranslator(madeUp.get());
        QLocale::setDefault(QLocale(QLatin1StringView(kindOf(language).dates)));
        if (language == Language::mirrored)
            QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    }

    ~State() {
        if (madeUp)
            QCoreApplication::removeTranslator(madeUp.get());
        QLocale::setDefault(localeBefore);
        QGuiApplication::setLayoutDirection(before);
        installTexts({u"en"_qs});
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    DateLocaleScope dates;
    std::unique_ptr<QTranslator> madeUp; // null: the language is one of the program's
    const QLocale localeBefore;
    Qt::LayoutDirection before = QGuiApplication::layoutDirection();
};

LanguageScope::LanguageScope(Language language)
    : state_(std::make_unique<State>(language)) {}

LanguageScope::~LanguageScope() = default;

} // namespace tessarine::testing
