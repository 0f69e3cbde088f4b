#include "browser/list/RowTimeFormatter.h"

#include "shared/UserLocale.h"

#include <utility>

namespace tessarine {

namespace {

struct Styles {
    DateStyle date;
    DateStyle time;
};

Styles stylesOf(RowTimeFormatter::Style style) {
    switch (style) {
    case RowTimeFormatter::Style::dateAndTime:
        return {DateStyle::medium, DateStyle::medium};
    case RowTimeFormatter::Style::timeOnly:
        return {DateStyle::none, DateStyle::medium};
    case RowTimeFormatter::Style::fullDate:
        break;
    }
    return {DateStyle::full, DateStyle::none};
}

// Made again when the user's locale changes.
template <RowTimeFormatter::Style style>
const RowTimeFormatter& userFormatter() {
    static QByteArray locale = userDateLocale();
    static RowTimeFormatter formatter = RowTimeFormatter::forUser(style);
    const QByteArray localeNow = userDateLocale();
    if (std::exchange(locale, localeNow) != localeNow)
        formatter = RowTimeFormatter::forUser(style);
    return formatter;
}

} // namespace

RowTimeFormatter::RowTimeFormatter(DateFormatter format)
    : format_(std::move(format)) {}

RowTimeFormatter::RowTimeFormatter(Style style, const QByteArray& locale)
    : RowTimeFormatter(
          DateFormatter::withStyles(stylesOf(style).date, stylesOf(style).time, locale)) {}

RowTimeFormatter RowTimeFormatter::forUser(Style style) {
    return RowTimeFormatter(
        DateFormatter::withUserStyles(stylesOf(style).date, stylesOf(style).time));
}

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
