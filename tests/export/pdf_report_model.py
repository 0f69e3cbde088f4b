"""What the report must draw, worked out from its design by arithmetic alone.

Coordinates are those of PDF: points, from the lower left corner of the page. A text's top is the y
of the top of its line as the design counts it.
"""

from collections import Counter
from dataclasses import dataclass
from datetime import datetime, timedelta, timezone

ACCENT = (0, 122 / 255, 1)

# Ascender and descender for each unit of the font's size, by the fonts' own tables (hhea).
INTER = (2728 / 2816, -680 / 2816)
NOTO_SANS_MONO = (1069 / 1000, -293 / 1000)


def gray(white):
    return (white, white, white)


@dataclass
class Text:
    text: str
    x: float
    baseline: float
    size: float
    colour: tuple
    font: str
    width: float
    right: bool = False


@dataclass
class Fill:
    kind: str  # "rect", "ellipse", "rect and rounded rect"
    x: float
    y: float
    width: float
    height: float
    colour: tuple
    alpha: float = 1.0


@dataclass
class Line:
    x1: float
    x2: float
    y: float
    colour: tuple
    width: float


def text(words, size, weight, colour, x, top, width, right=False, mono=False):
    ascender, descender = NOTO_SANS_MONO if mono else INTER
    # The box: from top - ascender upwards, ascender - descender + 2 high. The text stands at its
    # upper edge.
    lower = top - ascender * size
    upper = lower + (ascender - descender) * size + 2
    font = "NotoSansMono-Regular" if mono else "Inter-" + weight
    return Text(words, x, upper - ascender * size, size, colour, font, width, right)


def plural(count):
    return "%d notification%s" % (count, "" if count == 1 else "s")


def moment(record):
    return datetime(2001, 1, 1, tzinfo=timezone.utc) + timedelta(seconds=record["time"])


def end_of_page(number):
    return [text("Tessarine — Confidential", 7.5, "Regular", gray(0.55), 48, 24, 299.4),
            text("Page %d" % number, 7.5, "Regular", gray(0.55), 48, 24, 499, right=True),
            Line(48, 547, 792, ACCENT, 0.5)]


def start_of_page():
    return [Fill("rect", 0, 0, 595, 842, gray(1))]


def summary(records, generated):
    page = start_of_page()
    page += [
        text("Tessarine", 26, "Bold", gray(0.10), 48, 774, 499),
        text("Notification Archive Export", 15, "Regular", ACCENT, 48, 742, 499),
        Line(48, 547, 720, ACCENT, 1.5),
        text("Generated: " + generated, 10, "Regular", gray(0.55), 48, 710, 499),
        text("Total notifications: %d" % len(records), 10, "Regular", gray(0.55), 48, 695, 499),
        text("Summary by App", 12, "SemiBold", gray(0.10), 48, 667, 499),
        Fill("rect", 48, 629, 499, 20, gray(0.14)),
        text("App", 9, "Bold", gray(1), 54, 645, 309.38),
        text("Count", 9, "Bold", gray(1), 363.38, 645, 94.81),
        text("%", 9, "Bold", gray(1), 458.19, 645, 94.81),
    ]
    cursor = 157
    tallies = Counter(each["app"] for each in records).most_common()
    for index, (app, count) in enumerate(tallies[:30]):
        if index % 2 == 1:
            page.append(Fill("rect", 48, 786 - (cursor + 17), 499, 17, gray(0.96)))
        top = 786 - cursor - 3
        share = "%.1f%%" % (count / max(len(records), 1) * 100)
        page += [text(app, 9, "Regular", gray(0.20), 54, top, 301.38),
                 text(str(count), 9, "Regular", gray(0.20), 363.38, top, 88.81),
                 text(share, 9, "Regular", gray(0.20), 458.19, top, 88.81)]
        cursor += 17
    return page + end_of_page(1)


def log_pages(records):
    days = {}
    for each in records:
        days.setdefault(moment(each).strftime("%Y-%m-%d"), []).append(each)
    pages = []
    page = start_of_page() + [
        text("Notification Log", 14, "SemiBold", gray(0.10), 48, 786, 499),
        text("Sorted newest first, grouped by day.", 9, "Regular", gray(0.55), 48, 768, 499)]
    cursor = 36

    def turn():
        nonlocal page
        pages.append(page + end_of_page(len(pages) + 2))
        page = start_of_page()

    for key in sorted(days, reverse=True):
        if cursor + 32 > 738:
            turn()
            start = 6
        else:
            start = cursor + 6
        page.append(Line(48, 547, 786 - start, gray(0.85), 0.5))
        page.append(text(key + "  —  " + plural(len(days[key])), 11, "SemiBold", gray(0.10), 48,
                         786 - start, 499))
        cursor = start + 18
        for index, each in enumerate(days[key]):
            height = 32 if each["body"] else 21
            if cursor + height + 4 > 738:
                turn()
                cursor = 0
            page += log_row(each, index, cursor, height)
            cursor += height
    turn()
    return pages


def log_row(record, index, cursor, height):
    top = 786 - cursor - 1
    pill = min(len(record["app"]) * 6.2 + 10, 130)
    x = 108 + pill + 8
    width = 499 - (x - 48) - 4
    drawn = [
        Fill("rect", 48, 786 - (cursor + height), 499, height, gray(1 if index % 2 == 0 else 0.96)),
        text(moment(record).strftime("%H:%M:%S"), 8, "Regular", gray(0.55), 52, top, 52, mono=True),
        Fill("ellipse", 108, 786 - (cursor + 11), pill, 12, ACCENT, 0.12),
        Fill("rect and rounded rect", 108, 786 - (cursor + 11), pill, 12, ACCENT, 0.12),
        text(record["app"], 7.5, "Medium", ACCENT, 113, top, pill - 6),
        text(record["title"] or "(no title)", 9, "Medium", gray(0.20), x, top, width)]
    if record["body"]:
        drawn.append(text(record["body"], 8.5, "Regular", gray(0.55), x, 786 - (cursor + 13) - 1,
                          width))
    return drawn


def report(records, generated):
    """The pages, each a list of what is drawn, in the order of drawing."""
    return [summary(records, generated)] + log_pages(records)
