#include "browser/RowTimeFormatter.h"

#include "shared/UserLocale.h"

namespace tessarine {

namespace {

DateFormatter formatterOf(RowTimeFormatter::Style style, const QByteArray& locale,
                          const QString& timeZone) {
    using Part = DateFormatter::Style;
    switch (style) {
    case RowTimeFormatter::Style::dateAndTime:
        return DateFormatter::withStyles(Part::medium, Part::medium, locale, timeZone);
    case RowTimeFormatter::Style::timeOnly:
        return DateFormatter::withStyles(Part::none, Part::medium, locale, timeZone);
    case RowTimeFormatter::Style::fullDate:
        break;
    }
    return DateFormatter::withStyles(Part::full, Part::none, locale, timeZone);
}

} // namespace

RowTimeFormatter::RowTimeFormatter(Style style, const QByteArray& locale, const QString& timeZone)
    : format_(formatterOf(style, locale, timeZone)) {}

const RowTimeFormatter& rowDateTimeFormatter() {
    static const RowTimeFormatter formatter(RowTimeFormatter::Style::dateAndTime, userDateLocale());
    return formatter;
}

const RowTimeFormatter& rowTimeFormatter() {
    static const RowTimeFormatter formatter(RowTimeFormatter::Style::timeOnly, userDateLocale());
    return formatter;
}

const RowTimeFormatter& dayTitleFormatter() {
    static const RowTimeFormatter formatter(RowTimeFormatter::Style::fullDate, userDateLocale());
    return formatter;
}

} // namespace tessarine
