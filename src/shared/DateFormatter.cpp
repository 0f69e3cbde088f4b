#include "shared/DateFormatter.h"

#include "shared/LocalZone.h"
#include "shared/UserLocale.h"
#include "shared/WallCalendar.h"

#include <unicode/calendar.h>
#include <unicode/datefmt.h>
#include <unicode/smpdtfmt.h>

#include <cmath>

namespace tessarine {

namespace {

using IcuStyle = icu::DateFormat::EStyle;

IcuStyle icuStyle(DateFormatter::Style style) {
    switch (style) {
    case DateFormatter::Style::none:
        return icu::DateFormat::kNone;
    case DateFormatter::Style::brief:
        return icu::DateFormat::kShort;
    case DateFormatter::Style::medium:
        return icu::DateFormat::kMedium;
    case DateFormatter::Style::full:
        return icu::DateFormat::kFull;
    }
    return icu::DateFormat::kNone;
}

icu::UnicodeString icuText(const QString& text) {
    return {reinterpret_cast<const char16_t*>(text.utf16()), int32_t(text.size())};
}

} // namespace

// Null members when ICU lacks its data: texts are then empty. The calendar is kept because ICU
// would otherwise copy one for every text.
struct DateFormatter::Format {
    std::unique_ptr<icu::DateFormat> format;
    std::unique_ptr<icu::Calendar> calendar;

    explicit Format(std::unique_ptr<icu::DateFormat> made)
        : format(std::move(made)) {
        if (!format)
            return;
        calendar.reset(format->getCalendar()->clone());
        useWallTime(*calendar);
    }
};

DateFormatter DateFormatter::withPattern(const QString& pattern, const QByteArray& locale) {
    keepIcuFromFindingTheZone();
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::DateFormat> format = std::make_unique<icu::SimpleDateFormat>(
        icuText(pattern), icu::Locale(locale.constData()), status);
    if (U_FAILURE(status))
        format.reset();
    return DateFormatter(std::make_unique<Format>(std::move(format)));
}

DateFormatter DateFormatter::withStyles(Style date, Style time, const QByteArray& locale) {
    keepIcuFromFindingTheZone();
    std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createDateTimeInstance(
        icuStyle(date), icuStyle(time), icu::Locale(locale.constData())));
    return DateFormatter(std::make_unique<Format>(std::move(format)));
}

DateFormatter DateFormatter::withUserStyles(Style date, Style time) {
    const std::optional<QString> pattern = userDatePattern(date, time);
    const QByteArray locale = userDateLocale();
    return pattern ? withPattern(*pattern, locale) : withStyles(date, time, locale);
}

DateFormatter::DateFormatter(std::unique_ptr<Format> format)
    : format_(std::move(format)) {}

DateFormatter::DateFormatter(DateFormatter&& other) noexcept = default;
DateFormatter& DateFormatter::operator=(DateFormatter&& other) noexcept = default;
DateFormatter::~DateFormatter() = default;

QString DateFormatter::text(double timestamp) const {
    if (!format_->format || std::isnan(timestamp))
        return {};
    UErrorCode status = U_ZERO_ERROR;
    format_->calendar->setTime(icuDate(wallTime(timestamp)), status);
    if (U_FAILURE(status))
        return {};
    icu::UnicodeString text;
    icu::FieldPosition ignored(icu::FieldPosition::DONT_CARE);
    format_->format->format(*format_->calendar, text, ignored);
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

} // namespace tessarine
