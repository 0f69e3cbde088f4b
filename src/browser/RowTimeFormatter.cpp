#include "browser/RowTimeFormatter.h"

#include "shared/ReferenceTime.h"

#include <QLocale>
#include <QtGlobal>

#include <unicode/udat.h>

#include <algorithm>
#include <cmath>

namespace tessarine {

namespace {

// The range in which every calendar of ICU gives a sensible date: 100 million days around 1970.
constexpr double greatestMilliseconds = 8.64e15;

// Language and country of a POSIX locale name, without encoding and modifier.
QByteArray language(const QByteArray& locale) {
    const auto end = std::find_if(locale.begin(), locale.end(), [](char character) {
        return character == '.' || character == '@';
    });
    return locale.left(end - locale.begin());
}

} // namespace

struct RowTimeFormatter::Format {
    UDateFormat* handle = nullptr; // null when ICU lacks its data: texts are then empty

    ~Format() {
        if (handle)
            udat_close(handle);
    }
};

RowTimeFormatter::RowTimeFormatter(Style style, const QByteArray& locale, const QString& timeZone)
    : format_(std::make_unique<Format>()) {
    UErrorCode status = U_ZERO_ERROR;
    format_->handle =
        udat_open(UDAT_MEDIUM, style == Style::timeOnly ? UDAT_NONE : UDAT_MEDIUM,
                  locale.constData(), timeZone.isEmpty() ? nullptr : QStringView(timeZone).utf16(),
                  int32_t(timeZone.size()), nullptr, 0, &status);
}

RowTimeFormatter::~RowTimeFormatter() = default;

QString RowTimeFormatter::text(double timestamp) const {
    if (!format_->handle || !std::isfinite(timestamp))
        return {};
    const double milliseconds = (timestamp + unixSecondsAtReferenceDate) * 1000.0;
    const double moment = std::clamp(milliseconds, -greatestMilliseconds, greatestMilliseconds);
    char16_t buffer[128];
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length =
        udat_format(format_->handle, moment, buffer, std::size(buffer), nullptr, &status);
    if (U_FAILURE(status))
        return {};
    return QString(reinterpret_cast<const QChar*>(buffer), length);
}

const RowTimeFormatter& rowDateTimeFormatter() {
    static const RowTimeFormatter formatter(RowTimeFormatter::Style::dateAndTime, userDateLocale());
    return formatter;
}

const RowTimeFormatter& rowTimeFormatter() {
    static const RowTimeFormatter formatter(RowTimeFormatter::Style::timeOnly, userDateLocale());
    return formatter;
}

QByteArray userDateLocale() {
    // By name and not through setlocale, which knows only the locales that were generated.
    for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QByteArray value = qgetenv(variable);
        if (!value.isEmpty())
            return language(value);
    }
    return QLocale::system().name().toLatin1();
}

} // namespace tessarine
