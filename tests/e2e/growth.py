"""What a process takes over the time: samples, what has grown, and a drawing of it."""

import collections
import os
import pathlib
import statistics

Sample = collections.namedtuple("Sample",
                                "seconds rows memory heap descriptors threads log processor")
UNITS = {"memory": "MB", "heap": "MB", "descriptors": "", "threads": "", "log": "MB",
         "processor": "s", "rows": ""}

# What may come on top of the most that the first tenth has seen: windows, icons, the allocator's
# spare pages; a thread or file more for what is under way.
ALLOWANCE = {"memory": 20.0, "heap": 20.0, "descriptors": 12, "threads": 8, "log": 8.0}

# By how much the middle of the last quarter may lie above that of the second one. Between them
# everything has happened often.
DRIFT = {"memory": 5.0, "heap": 4.0, "descriptors": 2, "threads": 2, "log": 2.0}
FEWEST_FOR_DRIFT = 20  # samples


def take_sample(pid, hoard, rows, seconds):
    process = pathlib.Path(f"/proc/{pid}")
    fields = (process / "stat").read_text().rsplit(")", 1)[1].split()
    status = dict(line.split(":", 1) for line in (process / "status").read_text().splitlines())
    log = hoard.with_name("hoard.db-wal")
    return Sample(seconds, rows, kilobytes(status["VmRSS"]) / 1e3,
                  kilobytes(status["RssAnon"]) / 1e3, len(os.listdir(process / "fd")),
                  int(status["Threads"]), log.stat().st_size / 1e6 if log.exists() else 0.0,
                  (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK"))


def kilobytes(value):
    """1000 bytes, of a value that counts in 1024."""
    return int(value.split()[0]) * 1.024


def as_line(sample):
    return "  ".join(f"{name} {value:.1f}" for name, value in sample._asdict().items())


def grown(samples):
    """What has grown after the first tenth, in words."""
    first = samples[:max(1, len(samples) // 10)]
    rest = samples[len(first):]
    problems = []
    for name, allowance in ALLOWANCE.items():
        before = max(getattr(sample, name) for sample in first)
        most = max((getattr(sample, name) for sample in rest), default=before)
        if most > before + allowance:
            problems.append(f"{name}: {before:.1f} after the first tenth, then up to {most:.1f}")
    return problems + drifted(samples)


def drifted(samples):
    """What goes up slowly, in words."""
    quarter = len(samples) // 4
    if len(samples) < FEWEST_FOR_DRIFT:
        return []
    problems = []
    for name, allowance in DRIFT.items():
        values = [getattr(sample, name) for sample in samples]
        before = statistics.median(values[quarter:2 * quarter])
        after = statistics.median(values[-quarter:])
        if after > before + allowance:
            problems.append(f"{name}: {before:.1f} in the second quarter, {after:.1f} in the last")
    return problems


def curve(samples, name, top):
    """One figure over the time, as a part of a drawing."""
    width, height = 700, 90
    most = max(getattr(sample, name) for sample in samples) or 1
    length = samples[-1].seconds or 1
    points = " ".join(f"{60 + width * sample.seconds / length:.1f},"
                      f"{top + height * (1 - getattr(sample, name) / most):.1f}"
                      for sample in samples)
    return (f'<text x="60" y="{top - 8}">{name}, up to {most:.1f} {UNITS[name]}</text>'
            f'<path d="M60 {top}V{top + height}H{60 + width}" fill="none" stroke="#999"/>'
            f'<polyline points="{points}" fill="none" stroke="#1746a8" stroke-width="1.5"/>')


def drawing(samples):
    curves = [curve(samples, name, 60 + 130 * row) for row, name in enumerate(UNITS)]
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="800" '
            f'height="{60 + 130 * len(UNITS)}" font-family="sans-serif" font-size="13">'
            '<rect width="100%" height="100%" fill="white"/>'
            f'<text x="60" y="24" font-weight="bold">{samples[-1].seconds / 60:.0f} minutes, '
            f'{samples[-1].rows} rows</text>{"".join(curves)}</svg>')
