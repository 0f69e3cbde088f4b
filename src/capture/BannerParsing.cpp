#include "capture/BannerParsing.h"

#include "shared/BundleId.h"
#include "shared/LocalZone.h"
#include "shared/ReferenceTime.h"
#include "shared/Text.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessarine {

namespace {

constexpr QStringView justNow = u"Just now";
constexpr QStringView ago = u" ago";
constexpr QStringView ageUnits = u"smhd";

// \A and \z rather than ^ and $, which some engines let match before a last line feed.
const QRegularExpression& timeTokenExact() {
    static const QRegularExpression pattern(
        QStringLiteral(R"(\A\d+[smhd] ago\z|\AJust now\z|\A\d{1,2}:\d{2}\z)"),
        QRegularExpression::UseUnicodePropertiesOption);
    return pattern;
}

const QRegularExpression& dayPhrase() {
    static const QRegularExpression pattern(
        QStringLiteral(R"(\A(Today|Tomorrow|Yesterday) at \d{1,2}:\d{2}\z)"),
        QRegularExpression::UseUnicodePropertiesOption);
    return pattern;
}

bool isTimeToken(const QString& text) {
    return timeTokenExact().match(text).hasMatch();
}

// How many units the digit at the position takes. 0: there is none.
qsizetype digitSize(QStringView text, qsizetype at) {
    if (at + 1 < text.size() && text[at].isHighSurrogate() && text[at + 1].isLowSurrogate())
        return QChar::isDigit(QChar::surrogateToUcs4(text[at], text[at + 1])) ? 2 : 0;
    return at < text.size() && text[at].isDigit() ? 1 : 0;
}

// A run of digits.
struct Digits {
    qsizetype lastTwo; // where these begin, or its only one
    qsizetype end;
};

Digits digitsAt(QStringView text, qsizetype begin) {
    qsizetype last = begin;
    Digits digits{begin, begin};
    while (const qsizetype size = digitSize(text, digits.end)) {
        digits.lastTwo = last;
        last = digits.end;
        digits.end += size;
    }
    return digits;
}

struct Span {
    qsizetype begin;
    qsizetype end; // as begin: no time here
};

// The first time that begins in the run of digits at the position. A clock reading takes the last
// two digits before its colon.
Span timeInDigits(QStringView text, qsizetype begin) {
    const auto [lastTwo, end] = digitsAt(text, begin);
    if (end < text.size() && ageUnits.contains(text[end]) && text.sliced(end + 1).startsWith(ago))
        return {begin, end + 1 + ago.size()};
    if (end < text.size() && text[end] == u':') {
        const qsizetype tens = digitSize(text, end + 1);
        const qsizetype ones = tens > 0 ? digitSize(text, end + 1 + tens) : 0;
        if (ones > 0)
            return {lastTwo, end + 1 + tens + ones};
    }
    return {end, end};
}

// The first time that begins at the position or, where that is a digit, in its run.
Span timeAt(QStringView text, qsizetype at) {
    if (digitSize(text, at) > 0)
        return timeInDigits(text, at);
    if (text.sliced(at).startsWith(justNow))
        return {at, at + justNow.size()};
    return {at + 1, at + 1};
}

std::optional<qint64> decimal(QStringView text) {
    const bool digitsOnly = !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c >= u'0' && c <= u'9') || c == u'-' || c == u'+';
    });
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    return digitsOnly && isNumber ? std::optional(number) : std::nullopt;
}

std::optional<double> ageIn(QStringView token) {
    if (!token.endsWith(ago))
        return std::nullopt;
    token.chop(ago.size());
    if (token.isEmpty())
        return std::nullopt;
    const std::optional<qint64> number = decimal(token.chopped(1));
    if (!number)
        return std::nullopt;
    const auto amount = static_cast<double>(*number);
    switch (token.back().unicode()) {
    case u's':
        return amount;
    case u'm':
        return amount * secondsPerMinute;
    case u'h':
        return amount * secondsPerHour;
    case u'd':
        return amount * secondsPerDay;
    default:
        return std::nullopt;
    }
}

// The body: all texts after the first that are no times of their own, freed of the times in them.
QString joinedBody(const QStringList& texts) {
    QStringList pieces;
    for (const QString& text : texts.sliced(1)) {
        if (isTimeToken(text))
            continue;
        const QString piece = dayPhrase().match(text).hasMatch() ? text : withoutTimeTokens(text);
        const QStringView trimmed = trimmedBlanks(piece);
        if (!trimmed.isEmpty())
            pieces.append(trimmed.toString());
    }
    return pieces.join(u' ');
}

} // namespace

std::optional<CapturedNotification> parseBanner(const BannerTexts& banner, double now) {
    if (banner.texts.isEmpty())
        return std::nullopt;
    const auto token = std::find_if(banner.texts.begin() + 1, banner.texts.end(), isTimeToken);
    CapturedNotification record;
    record.appName = banner.description.section(QStringLiteral(", "), 0, 0);
    record.appBundleId = derivedBundleId(record.appName);
    record.title = banner.texts.first();
    record.body = joinedBody(banner.texts);
    record.timestamp = inferTimestamp(token == banner.texts.end() ? QString() : *token, now);
    record.noteId = wholeUnixSeconds(record.timestamp);
    return record;
}

double inferTimestamp(const QString& token, double now) {
    const QStringView trimmed = trimmedBlanks(token);
    if (trimmed.isEmpty() || trimmed == justNow)
        return now;
    if (const std::optional<double> age = ageIn(trimmed))
        return std::clamp(now - *age, firstSecond, lastSecond);
    const auto pieces = trimmed.split(u':', Qt::SkipEmptyParts);
    if (pieces.size() != 2)
        return now;
    const std::optional<qint64> hour = decimal(pieces[0]);
    const std::optional<qint64> minute = decimal(pieces[1]);
    const std::optional<double> date =
        hour && minute ? clockTimeOnDayOf(now, *hour, *minute) : std::nullopt;
    if (!date)
        return now;
    return *date > now ? *date - secondsPerDay : *date;
}

// Says in linear time what replacing every match of
// \s*\d{1,2}:\d{2}\s*|\s*\d+[smhd] ago\s*|\s*Just now\s* by nothing would: on a megabyte of blanks
// or digits a backtracking engine takes hours.
QString withoutTimeTokens(const QString& text) {
    QString kept;
    const QStringView view(text);
    qsizetype keptUpTo = 0;
    for (qsizetype at = 0; at < view.size();) {
        Span time = timeAt(view, at);
        at = time.end;
        if (time.begin == time.end)
            continue;
        while (time.begin > keptUpTo && view[time.begin - 1].isSpace())
            --time.begin;
        while (at < view.size() && view[at].isSpace())
            ++at;
        kept += view.sliced(keptUpTo, time.begin - keptUpTo);
        keptUpTo = at;
    }
    kept += view.sliced(keptUpTo);
    return kept;
}

} // namespace tessarine
