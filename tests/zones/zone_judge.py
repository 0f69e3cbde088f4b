"""Days and times in every time zone of the system, judged by Python's zoneinfo: each clock change, past
and coming, through every function that names a day or a time."""

import datetime
import os
import random
import sys
import unittest
import zoneinfo

import zones
from zones import DAY

WEEKDAYS = "Montag Dienstag Mittwoch Donnerstag Freitag Samstag Sonntag".split()
MONTHS = ("Januar Februar März April Mai Juni Juli August September Oktober November "
          "Dezember").split()

# Rules with what those of the system's zones don't have: Julian days, negative and long hours, a
# summer that is behind winter, a year that begins in summer. Days counted from 0 are not among them:
# zoneinfo is a day off there.
RULES = ["CET-1CEST,M3.5.0,M10.5.0/3", "AAA3", "<+0545>-5:45", "AAA-13:45:30",
         "AAA5BBB,J60/2,J300/2", "AAA-9BBB,M10.1.0/-3,M2.3.0/26", "AAA3BBB4:30,M4.1.0,M9.1.3/0",
         "AAA-2BBB,J90/50,J280/-10", "AAA11BBB,M3.2.0/0,M11.1.0/0", "AAA-11:15BBB,J59/24,J200"]


def title(date):
    return f"{WEEKDAYS[date.weekday()]}, {date.day}. {MONTHS[date.month - 1]} {date.year}"


def csv_rows(shown):
    return [f"{when:%Y-%m-%d};{when:%H:%M:%S};App;com.example.app;Title;" for when in shown]


def txt_lines(shown):
    """Days and times of a text export, in their order."""
    days = sorted({when.date() for when in shown}, reverse=True)
    return [line for day in days for line in
            (f"▸ {day}", *(f"{when:%H:%M:%S}" for when in shown if when.date() == day))]


def days_and_times(txt):
    return [line.split("  ")[0] for line in txt.split("\n")
            if line.startswith("▸") or line.endswith("[App]")]


def months_before(date, months):
    index = date.year * 12 + date.month - 1 - months
    return datetime.date(index // 12, index % 12 + 1, 1)


def presets(zone, now):
    """The bounds of the named spans, in their order."""
    today = zones.local(zone, now).date()

    def start(date):
        return zones.first_moment(zone, zones.midnight(date))

    def days_ago(days):
        return start(today - datetime.timedelta(days=days))

    month = start(today.replace(day=1))
    return [[start(today), now], [days_ago(1), start(today) - 1], [days_ago(7), now],
            [days_ago(30), now], [month, now], [start(months_before(today, 1)), month - 1],
            [start(today.replace(month=1, day=1)), now]]


def on_day_of(zone, moment, time):
    return zones.last_moment(zone, datetime.datetime.combine(zones.local(zone, moment), time))


def clock_reading(zone, now, time):
    moment = on_day_of(zone, now, time)
    return moment - DAY if moment > now else moment


def bare_time(zone, now, time):
    moment = on_day_of(zone, now, time)
    return moment + DAY if moment < now else moment


def times_around(zone, change):
    """Times that the clock shows once, twice or never on the day of its change."""
    before, after = zones.local(zone, change - 1), zones.local(zone, change)
    between = before + (after.replace(tzinfo=None) - before.replace(tzinfo=None)) / 2
    whole = {when.replace(second=0, microsecond=0).time() for when in (before, between, after)}
    return sorted({*whole, datetime.time(0, 0), datetime.time(12, 0)})


def touches_midnight(zone, change):
    """Whether a day begins or ends at the change, or inside what it skips or repeats."""
    shown = [zones.local(zone, change - 1), zones.local(zone, change)]
    return shown[0].date() != shown[1].date() or any(
        when.hour == 0 and when.minute <= 1 or when.hour == 23 and when.minute >= 58
        for when in shown)


class JudgeTestCase(unittest.TestCase):
    program = None

    def agree(self, name, what, asked, got, expected):
        if got != expected:
            self.assertEqual(len(got), len(expected), f"{what} in {name}")
            wrong = [entry for entry in zip(asked, got, expected) if entry[1] != entry[2]]
            self.fail(f"{what} in {name}: {len(wrong)} of {len(asked)} wrong (asked, got, "
                      f"expected): {wrong[:3]}")

    def judge_moments(self, name, zone, changes):
        """All that is said of moments just before and at each change."""
        moments = [change + step for change in changes for step in (-0.25, 0)]
        shown = [zones.local(zone, moment) for moment in moments]
        days = sorted({when.date() + datetime.timedelta(days=step)
                       for when in shown for step in (0, 1)})
        answer = self.program.ask(zone=name, moments=moments, days=[str(day) for day in days])
        self.agree(name, "keys", moments, answer["keys"], [f"{when:%Y-%m-%d}" for when in shown])
        self.agree(name, "rows", moments, answer["rows"],
                   [f"{when:%d.%m.%Y, %H:%M:%S}" for when in shown])
        self.agree(name, "times", moments, answer["times"], [f"{when:%H:%M:%S}" for when in shown])
        self.agree(name, "csv", moments, answer["csv"].split("\n")[1:], csv_rows(shown))
        expected = txt_lines(shown)
        self.agree(name, "txt", expected, days_and_times(answer["txt"]), expected)
        if shown:
            self.assertIn(f"\nGenerated : {shown[0]:%Y-%m-%d %H:%M:%S}\n", answer["txt"], name)
        starts = [zones.start_of_day(zone, day) for day in days]
        self.agree(name, "starts", days, answer["starts"], starts)
        self.agree(name, "titles", days, answer["titles"],
                   [str(day) if start is None else title(day) for day, start in zip(days, starts)])

    def judge_days(self, name, zone, changes):
        """What computes with days, on and around those of some changes."""
        looks = [change + step for change in changes
                 for step in (-1, 0, DAY // 2, DAY, 9 * DAY, 35 * DAY)]
        readings = [(change + step, time) for change in changes
                    for step in (-DAY // 2, -1, 0, DAY // 2) for time in times_around(zone, change)]
        days = [zones.local(zone, change + step).date() for change in changes for step in (-1, 0)]
        starts = [start for day in days
                  if (start := zones.start_of_day(zone, day)) is not None]
        answer = self.program.ask(
            zone=name, looks=looks,
            clocks=[[now, f"{time:%H:%M}"] for now, time in readings],
            events=[[now, f"{words} {time:%H:%M}"] for now, time in readings
                    for words in ("today at", "tomorrow at", "lunch,")],
            deletions=[[str(zones.local(zone, start).date()), start - 1, start,
                        start + DAY - 0.25, start + DAY] for start in starts])
        self.agree(name, "presets", looks, answer["presets"],
                   [presets(zone, now) for now in looks])
        self.agree(name, "clocks", readings, answer["clocks"],
                   [clock_reading(zone, *reading) for reading in readings])
        self.agree(name, "events", [reading for reading in readings for _ in range(3)],
                   answer["events"],
                   [moment for now, time in readings for moment in (
                       on_day_of(zone, now, time), on_day_of(zone, now + DAY, time),
                       bare_time(zone, now, time))])
        self.agree(name, "kept", starts, answer["kept"],
                   [[start + DAY, start - 1] for start in starts])

    def some_of(self, zone, changes):
        """Those changes that are worth a longer look: at midnight, of today's rules, and others."""
        near_midnight = [change for change in changes if touches_midnight(zone, change)]
        chance = random.Random(len(changes))
        recent = [change for change in changes if 24 * 365 * DAY < change < 26 * 366 * DAY]
        coming = [change for change in changes if change > 38 * 366 * DAY]
        picked = {*chance.sample(near_midnight, min(4, len(near_midnight))), *recent[-2:],
                  *coming[:1], *chance.sample(changes, min(3, len(changes)))}
        return sorted(picked)

    def judge_zone(self, name, zone, path=None):
        changes = zones.clock_changes(zone, path) or [0]
        self.judge_moments(name, zone, changes)
        self.judge_days(name, zone, self.some_of(zone, changes))


class ZoneJudge(JudgeTestCase):
    def test_every_zone_of_the_system(self):
        for name, *others in zones.zones_by_content():
            with self.subTest(zone=name):
                zone = zoneinfo.ZoneInfo(name)
                self.judge_zone(name, zone, zones.path_of(name))
                for other in others:
                    self.judge_moments(other, zone, [0, *zones.changes_of_year(zone, 2026)])

    def test_rules(self):
        footers = set()
        for names in zones.zones_by_content():
            with open(zones.path_of(names[0]), "rb") as file:
                footers.add(file.read().rsplit(b"\n", 2)[1].decode())
        for rule in [*RULES, *sorted(footers)]:
            with self.subTest(rule=rule):
                self.judge_zone(rule, zones.zone_of_rule(rule))

    def test_paths(self):
        path = zones.path_of("America/Nuuk")
        for name in (path, ":" + path, ":America/Nuuk", "../zoneinfo/America/Nuuk"):
            with self.subTest(name=name):
                self.judge_zone(name, zoneinfo.ZoneInfo("America/Nuuk"), path)

    def test_names_of_no_zone_are_utc(self):
        for name in ("", ":", "Nowhere/Atlantis", "/nowhere", "@", "Europe"):
            with self.subTest(name=name):
                self.judge_moments(name, datetime.timezone.utc, [0])


def main():
    """Runs the tests of the calling script; the program's path is its first argument."""
    if len(sys.argv) < 2:
        sys.exit("usage: %s ZONE_TIMES [unittest arguments]" % sys.argv[0])
    JudgeTestCase.program = zones.Program([os.path.abspath(sys.argv.pop(1))])
    try:
        unittest.main()
    finally:
        JudgeTestCase.program.end()


if __name__ == "__main__":
    main()
