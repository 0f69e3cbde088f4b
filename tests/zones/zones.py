"""What the judges of time zones share: the zones of the system, their clock changes, and the program
under test."""

import collections
import datetime
import io
import json
import os
import struct
import subprocess
import zoneinfo

UTC = datetime.timezone.utc
REFERENCE = datetime.datetime(2001, 1, 1, tzinfo=UTC)
UNIX_SECONDS = 978307200
DAY = 86400

# zoneinfo's dates end with the years 1 and 9999, some days of slack for the functions that go back.
FIRST = (datetime.datetime(2, 1, 1, tzinfo=UTC) - REFERENCE) // datetime.timedelta(seconds=1)
LAST = (datetime.datetime(9998, 1, 1, tzinfo=UTC) - REFERENCE) // datetime.timedelta(seconds=1)


class Program:
    """The program under test, answering requests."""

    def __init__(self, command, **environment):
        self.process = subprocess.Popen(
            command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, encoding="utf-8",
            env=dict(os.environ, LC_ALL="de_DE.UTF-8", **environment))

    def ask(self, **request):
        self.process.stdin.write(json.dumps(request) + "\n")
        self.process.stdin.flush()
        return json.loads(self.process.stdout.readline())

    def end(self):
        self.process.stdin.close()
        self.process.stdout.close()
        self.process.wait()


def path_of(name):
    """The file of a zone."""
    for folder in zoneinfo.TZPATH:
        path = os.path.join(folder, name)
        if os.path.isfile(path):
            return path
    raise FileNotFoundError(name)


def zones_by_content():
    """Lists of names of which each list's zones are one and the same."""
    groups = collections.defaultdict(list)
    for name in sorted(zoneinfo.available_timezones()):
        with open(path_of(name), "rb") as file:
            groups[file.read()].append(name)
    return list(groups.values())


def local(zone, moment):
    """What a clock in the zone shows, to the whole second."""
    return (REFERENCE + datetime.timedelta(seconds=moment // 1)).astimezone(zone)


def offset(zone, moment):
    return local(zone, moment).utcoffset()


def change_between(zone, earlier, later):
    """When the clock is changed, of two moments with one change between them."""
    before = offset(zone, earlier)
    while later - earlier > 1:
        middle = (earlier + later) // 2
        if offset(zone, middle) == before:
            earlier = middle
        else:
            later = middle
    return later


def written_changes(path):
    """The changes that a file of a zone lists one by one."""
    with open(path, "rb") as file:
        content = file.read()
    start, changes, sizes = 0, 0, (1, 1, 8, 5, 6, 1)
    for width in (4, 8):  # the file holds everything twice, for short and for long numbers
        counts = struct.unpack_from(">6l", content, start + 20)
        body, changes = start + 44, counts[3]
        sizes = (1, 1, width + 4, width + 1, 6, 1)
        start = body + sum(count * size for count, size in zip(counts, sizes))
    return [unix - UNIX_SECONDS for unix in struct.unpack_from(f">{changes}q", content, body)]


def changes_of_year(zone, year):
    """The changes of a year, found a week at a time."""
    moment = int((datetime.datetime(year, 1, 1, tzinfo=UTC) - REFERENCE).total_seconds())
    for start in range(moment, moment + 366 * DAY, 7 * DAY):
        if offset(zone, start) != offset(zone, start + 7 * DAY):
            yield change_between(zone, start, start + 7 * DAY)


def clock_changes(zone, path=None):
    """When the zone's clock was and will be changed; far years by a sample."""
    listed = written_changes(path) if path else []
    years = (2025, 2026, 2037, 2038, 2039, 2100, 2399, 9000)
    coming = [change for year in years for change in changes_of_year(zone, year)]
    return sorted(change for change in {*listed, *coming} if FIRST < change < LAST)


def zone_of_rule(rule):
    """A zone that has had no other rule than this, of the form that the variable TZ takes."""
    header = b"TZif2" + bytes(15) + struct.pack(">6l", 0, 0, 0, 0, 1, 4)
    nothing = struct.pack(">lBB", 0, 0, 0) + b"LMT\0"
    content = (header + nothing) * 2 + b"\n" + rule.encode() + b"\n"
    return zoneinfo.ZoneInfo.from_file(io.BytesIO(content), rule)


def both_moments(zone, naive):
    """The moments at which a clock would show this, by the offset before a change and after it."""
    def moment(fold):
        return int((naive.replace(tzinfo=zone, fold=fold) - REFERENCE).total_seconds())
    return moment(0), moment(1)


def first_moment(zone, naive):
    """When the clock first shows this, or jumps over it."""
    before, after = both_moments(zone, naive)
    return change_between(zone, after, before) if before > after else before


def last_moment(zone, naive):
    """When the clock last shows this; if it jumps over it, when it would by its former offset."""
    return max(both_moments(zone, naive))


def start_of_day(zone, date):
    """The first instant of a day. None for a day that the clock left out."""
    start = first_moment(zone, midnight(date))
    return start if local(zone, start).date() == date else None


def midnight(date):
    return datetime.datetime.combine(date, datetime.time())
