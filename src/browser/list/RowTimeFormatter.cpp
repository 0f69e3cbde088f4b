#include "browser/list/RowTimeFormatter.h"

#include "shared/UserLocale.h"

#include <utility>

namespace tessarine {

namespace {

DateFormatter formatterOf(RowTimeFormatter::Style style, const QByteArray& locale) {
    using Part = DateFormatter::Style;
    switch (style) {
    case RowTimeFormatter::Style::dateAndTime:
        return DateFormatter::withStyles(Part::medium, Part::medium, locale);
    case RowTimeFormatter::Style::timeOnly:
        return DateFormatter::withStyles(Part::none, Part::medium, locale);
    case RowTimeFormatter::Style::fullDate:
        break;
    }
    return DateFormatter::withStyles(Part::full, Part::none, locale);
}

// Made again when the user's locale changes.
template <RowTimeFormatter::Style style>
const RowTimeFormatter& userFormatter() {
    static QByteArray locale = userDateLocale();
    static RowTimeFormatter formatter(style, locale);
    const QByteArray localeNow = userDateLocale();
    if (std::exchange(locale, localeNow) != localeNow)
        formatter = RowTimeFormatter(style, localeNow);
    return formatter;
}

} // namespace

RowTimeFormatter::RowTimeFormatter(Style style, const QByteArray& locale)
    : format_(formatterOf(style, locale)) {}

const RowTimeFormatter& rowDateTimeFormatter() {
    return userFormatter<RowTimeFormatter::Style::dateAndTime>();
}

const RowTimeFormatter& rowTimeFormatter() {
    return userFormatter<RowTimeFormatter::Style::timeOnly>();
}

const RowTimeFormatter& dayTitleFormatter() {
    return userFormatter<RowTimeFormatter::Style::fullDate>();
}

} // namespace tessarine
