#include "browser/RowTimeFormatter.h"

#include "shared/LocalZone.h"
#include "shared/UserLocale.h"

#include <utility>

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

// Made anew when the user's clock is set to another zone.
template <RowTimeFormatter::Style style>
const RowTimeFormatter& userFormatter() {
    static int zone = localZoneNumber();
    static RowTimeFormatter formatter(style, userDateLocale());
    const int zoneNow = localZoneNumber();
    if (std::exchange(zone, zoneNow) != zoneNow)
        formatter = RowTimeFormatter(style, userDateLocale());
    return formatter;
}

} // namespace

RowTimeFormatter::RowTimeFormatter(Style style, const QByteArray& locale, const QString& timeZone)
    : format_(formatterOf(style, locale, timeZone)) {}

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
