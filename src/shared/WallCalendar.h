#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <unicode/calendar.h>

#include <memory>

// Calendars of ICU that compute in wall time, so that they know of no time zone. Any thread.

namespace tessarine {

// Wall time as ICU counts it: milliseconds since 1970.
UDate icuDate(qint64 wallTime);
qint64 wallTimeOf(UDate date);

// Makes a calendar compute in wall time. One of the Gregorian kind has no Julian dates before 1582
// then, since the keys of days have none.
void useWallTime(icu::Calendar& calendar);

// The calendar of a locale, by its ICU name. Null when ICU lacks its data.
std::unique_ptr<icu::Calendar> wallCalendar(const QByteArray& locale);

// To be called before the first of ICU's formats is made: each is made for ICU's own idea of the
// host's zone before it is told otherwise, and to find that, ICU may read hundreds of files.
void keepIcuFromFindingTheZone();

} // namespace tessarine
