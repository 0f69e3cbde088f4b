#include "browser/selection/PopoverDays.h"

#include "shared/WallCalendar.h"

#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

namespace tessarine {

namespace {

icu::UnicodeString icuText(const QString& text) {
    return {QStringView(text).utf16(), int32_t(text.size())};
}

QString qtText(const icu::UnicodeString& text) {
    return QString::fromUtf16(text.getBuffer(), text.length());
}

// A fixed pattern in the popover's language, strict in reading. Days are read and written without a
// time zone: strict reading would refuse those whose midnight the clock skips.
class Format {
public:
    explicit Format(const char16_t* pattern)
        : format_(icu::UnicodeString(pattern), icu::Locale("it_CH"), status_) {
        format_.setTimeZone(*icu::TimeZone::getGMT());
        format_.setLenient(false);
    }

    std::optional<UDate> date(const QString& text) const {
        icu::ParsePosition position;
        const icu::UnicodeString whole = icuText(text);
        const UDate date = format_.parse(whole, position);
        if (U_FAILURE(status_) || position.getErrorIndex() >= 0 ||
            position.getIndex() != whole.length())
            return std::nullopt;
        return date;
    }

    QString capitalised(UDate date) const {
        icu::UnicodeString text;
        format_.format(date, text);
        bool startsWord = true;
        QString result = qtText(text);
        for (QChar& character : result) {
            if (startsWord)
                character = character.toUpper();
            startsWord = !character.isLetterOrNumber();
        }
        return result;
    }

private:
    UErrorCode status_ = U_ZERO_ERROR;
    icu::SimpleDateFormat format_;
};

} // namespace

QList<PopoverMonth> popoverMonths(const QStringList& availableDates,
                                  const QMap<QString, qsizetype>& notificationsPerDay) {
    keepIcuFromFindingTheZone();
    const Format dayFormat(u"EEEE d MMMM yyyy");
    const Format monthFormat(u"MMMM yyyy");
    const Format labelFormat(u"EEE d MMM");
    QList<PopoverMonth> months;
    for (const QString& text : availableDates) {
        const std::optional<UDate> date = dayFormat.date(text);
        if (!date)
            continue;
        const QString title = monthFormat.capitalised(*date);
        if (months.isEmpty() || months.last().title != title)
            months.append({title, {}});
        PopoverDay day{text, labelFormat.capitalised(*date), std::nullopt};
        if (const auto badge = notificationsPerDay.constFind(text);
            badge != notificationsPerDay.constEnd())
            day.badge = *badge;
        months.last().days.append(day);
    }
    return months;
}

} // namespace tessarine
