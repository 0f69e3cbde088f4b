#include "shared/UserLocale.h"

#include <QLocale>
#include <QtGlobal>

#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/uscript.h>

#include <algorithm>
#include <utility>

namespace tessarine {

namespace {

// By name and not through setlocale, which knows only the locales that were generated.
QByteArray posixLocaleName() {
    for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        QByteArray value = qgetenv(variable);
        if (!value.isEmpty())
            return value;
    }
    return QLocale::system().name().toLatin1();
}

// A POSIX locale name: language[_country][.encoding][@modifier].
struct PosixName {
    QByteArray language;
    QByteArray country; // from the underscore on
    QByteArray modifier;
};

// What stands before the first such character, and from there on.
std::pair<QByteArray, QByteArray> cutAt(const QByteArray& text, char character) {
    const qsizetype at = text.indexOf(character);
    return at < 0 ? std::pair(text, QByteArray()) : std::pair(text.left(at), text.mid(at));
}

PosixName partsOf(const QByteArray& name) {
    const auto [place, modifier] = cutAt(name, '@');
    const auto [language, country] = cutAt(cutAt(place, '.').first, '_');
    return {language, country, cutAt(modifier.mid(1), '.').first};
}

// The script's four letters. Modifiers call scripts by their names; one by that of an alphabet.
QByteArray scriptOf(const QByteArray& modifier) {
    const QByteArray name = modifier == "iqtelif" ? QByteArrayLiteral("latin") : modifier;
    const auto script = UScriptCode(u_getPropertyValueEnum(UCHAR_SCRIPT, name.constData()));
    return script == USCRIPT_INVALID_CODE ? QByteArray() : QByteArray(uscript_getShortName(script));
}

bool isKnown(const QByteArray& locale) {
    int32_t count = 0;
    const icu::Locale* const locales = icu::Locale::getAvailableLocales(count);
    return std::any_of(locales, locales + count,
                       [&](const icu::Locale& known) { return locale == known.getName(); });
}

// The script that is meant where a locale's name tells none.
QByteArray usualScript(const QByteArray& locale) {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale whole(locale.constData());
    whole.addLikelySubtags(status);
    return whole.getScript();
}

// For a script without data ICU would take the language's usual one. English is Latin at least.
QByteArray inScript(const PosixName& name, const QByteArray& script) {
    QByteArray plain = name.language + name.country;
    if (usualScript(plain) == script)
        return plain;
    const QByteArray language = name.language + '_' + script;
    if (isKnown(language))
        return language + name.country;
    return script == "Latn" ? "en" + name.country : plain;
}

// Modifiers that aren't scripts change no dates.
QByteArray icuName(const QByteArray& posixName) {
    const PosixName name = partsOf(posixName);
    const QByteArray script = scriptOf(name.modifier);
    return script.isEmpty() ? name.language + name.country : inScript(name, script);
}

// Looking through ICU's locales for each row of a list would take longer than its date.
QByteArray rememberedIcuName(const QByteArray& posixName) {
    thread_local std::pair<QByteArray, QByteArray> last;
    if (last.first != posixName)
        last = {posixName, icuName(posixName)};
    return last.second;
}

} // namespace

QByteArray userDateLocale() {
    return rememberedIcuName(posixLocaleName());
}

// POSIX knows the styles of a locale alone.
std::optional<QString> userDatePattern(DateStyle, DateStyle) {
    return std::nullopt;
}

} // namespace tessarine
