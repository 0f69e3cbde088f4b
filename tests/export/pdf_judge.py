"""The PDF report judged from outside, against arithmetic of the test's own: the content streams
through qpdf, the words through pdftotext, the colours through pdftoppm."""

import random
import re
import subprocess
import xml.etree.ElementTree as xml

import judging
import pdf_reading
import pdf_report_model as model
from judging import MARCH_3, record

# The exporter's clock stands at 785000000 seconds after the reference date.
GENERATED = "16 November 2025, 15:33"

TOLERANCE = 0.5  # of texts, in points
EXACT = 0.01  # of rectangles and lines


def day(number):
    """Nine o'clock of the day so many before 3 March 2026."""
    return MARCH_3 + 9 * 3600 - 86400 * number


def rows(count, apps=1, bodies=True, start=0):
    return [record(app="App %d" % (i % apps), title="Title %d" % i,
                   body="Body %d" % i if bodies else "", time=day(start) - i) for i in range(count)]


def mixed(seed, count):
    """Records over days of random sizes, about half of them without a body."""
    chance = random.Random(seed)
    records, number = [], 0
    while len(records) < count:
        for _ in range(min(chance.choice([1, 2, 3, 9, 40]), count - len(records))):
            i = len(records)
            records.append(record(
                app="A" * chance.randrange(1, 14), title=chance.choice(["", "Title %d" % i]),
                body=chance.choice(["", "Body %d" % i]), time=day(number) - i % 3600))
        number += 1
    return records


def bounds(subpaths):
    points = [point for subpath in subpaths for point in subpath]
    xs, ys = [x for x, _ in points], [y for _, y in points]
    return min(xs), min(ys), max(xs) - min(xs), max(ys) - min(ys)


class PdfJudge(judging.JudgeTestCase):
    def judge(self, records, *private_ids, **variables):
        """Compares every page with the model; gives the file's path and the model's pages."""
        path = self.export("pdf", records, *private_ids, **variables)
        file = pdf_reading.PdfFile(path)
        shown = [dict(each, title="[hidden]", body="[hidden]") if each["id"] in private_ids
                 else each for each in records]
        pages = model.report(shown, GENERATED)
        self.assertEqual(len(file.pages), len(pages))
        for number, (page, expected) in enumerate(zip(file.pages, pages), 1):
            self.assertEqual(file.inherited(page, "/MediaBox"), [0, 0, 595, 842])
            drawn = file.drawn(page)
            self.assertEqual(len(drawn), len(expected), "page %d" % number)
            for actual, wanted in zip(drawn, expected):
                try:
                    self.compare(actual, wanted)
                except AssertionError as error:
                    self.fail("page %d, %s: %s" % (number, wanted, error))
        self.judge_words(path, pages)
        return path, pages

    def near(self, actual, wanted, tolerance):
        self.assertEqual(len(actual), len(wanted))
        for one, other in zip(actual, wanted):
            self.assertAlmostEqual(one, other, delta=tolerance)

    def compare(self, actual, wanted):
        if isinstance(wanted, model.Text):
            self.compare_text(actual, wanted)
        elif isinstance(wanted, model.Line):
            self.assertEqual(actual.kind, "stroke")
            self.near([*bounds(actual.subpaths), actual.width],
                      [wanted.x1, wanted.y, wanted.x2 - wanted.x1, 0, wanted.width], EXACT)
            self.near(actual.colour, wanted.colour, 0.001)
        else:
            self.compare_fill(actual, wanted)

    def compare_text(self, actual, wanted):
        self.assertEqual(actual.text, wanted.text)
        self.assertEqual(actual.font, wanted.font)
        self.assertAlmostEqual(actual.size, wanted.size, delta=0.001)
        self.near(actual.colour, wanted.colour, 0.001)
        self.assertAlmostEqual(actual.baseline, wanted.baseline, delta=TOLERANCE)
        if not wanted.right:
            self.assertAlmostEqual(actual.x, wanted.x, delta=TOLERANCE)
            self.assertLess(actual.end, wanted.x + wanted.width)

    def compare_fill(self, actual, wanted):
        self.assertEqual(actual.kind, "fill")
        self.near(actual.colour, wanted.colour, 0.001)
        self.assertAlmostEqual(actual.alpha, wanted.alpha, delta=1 / 255)
        self.near(bounds(actual.subpaths), (wanted.x, wanted.y, wanted.width, wanted.height), EXACT)
        curves = {"rect": [False], "ellipse": [True], "rect and rounded rect": [False, True]}
        self.assertEqual([len(subpath) > 5 for subpath in actual.subpaths], curves[wanted.kind])

    def judge_words(self, path, pages):
        """Each text starts where a reader finds its first word, and no words overlap."""
        done = subprocess.run(["pdftotext", "-bbox", path, "-"], check=True, capture_output=True)
        document = xml.fromstring(re.sub(rb"<!DOCTYPE[^>]*>|[\x00-\x08]", b"", done.stdout))
        tag = "{http://www.w3.org/1999/xhtml}"
        for page, expected in zip(document.iter(tag + "page"), pages):
            words = [(float(word.get("xMin")), 842 - float(word.get("yMax")),
                      float(word.get("xMax")), 842 - float(word.get("yMin")), word.text)
                     for word in page.iter(tag + "word")]
            for wanted in (each for each in expected if isinstance(each, model.Text)):
                first = wanted.text.split()[0]
                found = [word for word in words
                         if word[4] == first and word[1] - 1 < wanted.baseline < word[3]
                         and (wanted.right or abs(word[0] - wanted.x) < TOLERANCE)]
                self.assertEqual(len(found), 1, wanted)
            self.assert_apart(words)

    def assert_apart(self, words):
        for i, (left, low, right, high, word) in enumerate(words):
            for other_left, other_low, other_right, other_high, other in words[i + 1:]:
                apart = (right <= other_left or other_right <= left
                         # Boxes hold ascender and descender, which lines share.
                         or abs(low - other_low) > 5)
                self.assertTrue(apart, (word, other))

    # Reports as a whole

    def test_an_empty_list_gives_two_pages(self):
        _, pages = self.judge([])
        self.assertEqual(len(pages), 2)

    def test_one_application(self):
        self.judge(rows(3))

    def test_thirty_applications(self):
        self.judge(rows(90, apps=30))

    def test_thirty_one_applications_of_which_the_rarest_is_dropped(self):
        records = rows(62, apps=31)
        records += [dict(each, app="App %d" % i) for i, each in enumerate(rows(30))]
        path, pages = self.judge(records)
        self.assertNotIn("App 30", self.first_page_texts(path))
        # Shares are of all 92 rows, also of the two that aren't shown.
        self.assertEqual(sum(each.text == "3.3%" for each in pages[0]
                             if isinstance(each, model.Text)), 30)

    def first_page_texts(self, path):
        done = subprocess.run(["pdftotext", "-l", "1", "-layout", path, "-"], check=True,
                              capture_output=True, text=True)
        return done.stdout

    def test_five_hundred_rows(self):
        _, pages = self.judge(rows(500, apps=12))
        # 21 rows on page 2, as 60 + 20 * 32 + 36 <= 738 < 60 + 21 * 32 + 36; then 22 on each.
        self.assertEqual(len(pages), 24)

    def test_days_and_rows_of_random_sizes(self):
        for seed in range(6):
            self.judge(mixed(seed, 500))

    # Breaks. A page starts its first row at cursor 60; rows take 21 or 32.

    def fill_to(self, cursor):
        """Rows of one day that leave the cursor there, or None."""
        for with_body in range(21):
            rest = cursor - 60 - 32 * with_body
            if rest >= 0 and rest % 21 == 0:
                return rows(with_body) + rows(rest // 21, bodies=False)
        return None

    def test_a_row_breaks_at_every_possible_place(self):
        seen = []
        for cursor in range(690, 718):
            filled = self.fill_to(cursor)
            if filled is None:
                continue
            for body in ("Body", ""):
                height = 32 if body else 21
                last = record(title="Last", body=body, time=day(0) - 3000)
                _, pages = self.judge(filled + [last])
                self.assertEqual(len(pages), 2 if cursor + height + 4 <= 738 else 3)
                seen.append((cursor, height))
        self.assertIn((702, 32), seen)  # 702 + 32 + 4 = 738 stays
        self.assertIn((703, 32), seen)
        self.assertIn((713, 21), seen)
        self.assertIn((714, 21), seen)

    def test_a_day_breaks_at_every_possible_place(self):
        seen = []
        for cursor in range(680, 735):
            filled = self.fill_to(cursor)
            if filled is None or cursor > 734:
                continue
            _, pages = self.judge(filled + rows(1, start=1))
            heading = [each.text for each in pages[1] if isinstance(each, model.Text)
                       and each.text.startswith("2026-03-02")]
            self.assertEqual(len(heading), 1 if cursor + 32 <= 738 else 0)
            self.assertEqual(len(pages), 3 if cursor + 6 + 18 + 32 + 4 > 738 else 2)
            seen.append(cursor)
        self.assertIn(706, seen)  # 706 + 32 = 738 stays, and stands alone
        self.assertIn(707, seen)

    # Texts

    def log_texts(self, path):
        file = pdf_reading.PdfFile(path)
        return [each for each in file.drawn(file.pages[1]) if isinstance(each, pdf_reading.Text)]

    def test_days_and_times_are_those_of_the_zone(self):
        path = self.export("pdf", [record(time=moment) for moment in judging.NUUK_MOMENTS],
                           zone=judging.NUUK)
        texts = [each.text for each in self.log_texts(path)]
        days = [text.split("  ")[0] for text in texts if "  —  " in text]
        times = [text for text in texts if re.fullmatch(r"\d\d:\d\d:\d\d", text)]
        expected = sorted(judging.NUUK_MOMENTS.values(), reverse=True)
        self.assertEqual(list(zip(days, times, strict=True)), expected)
        file = pdf_reading.PdfFile(path)
        summary = [each.text for each in file.drawn(file.pages[0])
                   if isinstance(each, pdf_reading.Text)]
        self.assertIn("Generated: 16 November 2025, 13:33", summary)

    def test_masked_records_say_so_twice(self):
        records = [record(app="Bank", title="Code", body=""), record(app="Mail")]
        self.judge(records, "com.example.bank")

    def test_private_records_are_masked_and_no_others(self):
        texts = self.words_of(self.export("pdf", self.private_and_open(), "com.example.bank"))
        self.assertNotIn("Secret", texts)
        self.assertNotIn("Number", texts)
        self.assertEqual(texts.count("[hidden]"), 2)
        self.assertIn("Open", texts)

    def test_private_records_show_where_they_are_included(self):
        texts = self.words_of(self.export("pdf", self.private_and_open(), "com.example.bank",
                                          INCLUDE_PRIVATE="yes"))
        self.assertIn("Secret", texts)
        self.assertIn("Number", texts)
        self.assertNotIn("[hidden]", texts)

    def private_and_open(self):
        return [record(app="Bank", title="Secret", body="Number"),
                record(app="Mail", title="Open", body="Letter")]

    def words_of(self, path):
        done = subprocess.run(["pdftotext", path, "-"], check=True, capture_output=True, text=True)
        return done.stdout.split()

    def test_equal_title_and_body_are_both_drawn(self):
        self.judge([record(title="Same", body="Same")])

    def test_a_missing_title_is_named(self):
        self.judge([record(title="", body="Body"), record(title="", body="")])

    def test_of_a_body_of_several_lines_the_first_shows(self):
        for line_break in ("\n", "\r\n", "\r", "\u2028", "\u2029", "\u0085"):
            path = self.export("pdf", [record(body="First line" + line_break + "Second")])
            self.assertEqual(self.log_texts(path)[-3].text, "First line")

    def test_of_a_long_body_whole_words_show_without_an_ellipsis(self):
        body = " ".join("word%d" % i for i in range(200))
        path = self.export("pdf", [record(app="Mail", body=body)])
        shown = self.log_texts(path)[-3]
        self.assertTrue(body.startswith(shown.text.rstrip() + " "), shown.text)
        x = 108 + 4 * 6.2 + 10 + 8
        width = 499 - (x - 48) - 4
        self.assertLess(shown.end, x + width)
        self.assertGreater(shown.end, x + width - 60)  # a further word would have found no room

    def test_a_word_without_end_is_cut(self):
        path = self.export("pdf", [record(title="x" * 5000, body="y" * 5000)])
        texts = self.log_texts(path)
        for shown in texts[-4:-2]:
            self.assertLess(shown.end, 547 - 4)
            self.assertGreater(shown.end, 547 - 4 - 10)

    def test_a_long_name_is_cut_in_the_widest_pill(self):
        name = "Application of twenty and more"
        path = self.export("pdf", [record(app=name)])
        file = pdf_reading.PdfFile(path)
        drawn = file.drawn(file.pages[1])
        pill = [each for each in drawn if isinstance(each, pdf_reading.Path) and each.alpha < 1]
        self.near(bounds(pill[0].subpaths), (108, 786 - (60 + 11), 130, 12), EXACT)
        title = next(each for each in self.log_texts(path) if each.text == "Title")
        self.assertAlmostEqual(title.x, 108 + 130 + 8, delta=TOLERANCE)
        shown = next(each for each in self.log_texts(path) if each.text.startswith("Applic"))
        self.assertTrue(name.startswith(shown.text.rstrip()))
        self.assertLess(shown.end, 113 + 124)

    def test_a_pill_is_as_wide_as_its_characters_are_many(self):
        for name, width in (("A", 16.2), ("A" * 19, 127.8), ("A" * 20, 130), ("👨‍👩‍👧", 16.2),
                            ("🇮🇹🇯🇵", 22.4)):
            path = self.export("pdf", [record(app=name)])
            file = pdf_reading.PdfFile(path)
            pill = [each for each in file.drawn(file.pages[1])
                    if isinstance(each, pdf_reading.Path) and each.alpha < 1]
            self.assertAlmostEqual(bounds(pill[0].subpaths)[2], width, delta=EXACT)

    def test_shares_are_rounded_as_printf_does(self):
        records = rows(399) + [record(app="Rare")]
        path = self.export("pdf", records)
        self.assertRegex(self.first_page_texts(path), r"Rare +1 +0\.2%")  # of exactly 0.25

    def test_texts_of_all_scripts_can_be_found(self):
        words = ["Grüße", "Привет", "日本語", "10:20", "a-b", "(no)", "2x3", "→", "100%"]
        path = self.export("pdf", [record(title=" ".join(words))])
        done = subprocess.run(["pdftotext", path, "-"], check=True, capture_output=True, text=True)
        for word in words:
            self.assertIn(word, done.stdout)

    def test_emoji_are_drawn_as_pictures(self):
        path = self.export("pdf", [record(title="🎉🎉", body="")])
        file = pdf_reading.PdfFile(path)
        images = [each for each in file.drawn(file.pages[1])
                  if isinstance(each, pdf_reading.Image)]
        self.assertEqual(len(images), 2)
        x, baseline = 108 + 4 * 6.2 + 10 + 8, 786 - 60 - 1 - 4.5
        self.assertAlmostEqual(images[0].x, x, delta=1)
        self.assertAlmostEqual(images[1].x, x + images[0].width, delta=1)
        self.assertTrue(images[0].y < baseline < images[0].y + images[0].height)

    def test_text_from_right_to_left_ends_at_the_right(self):
        path = self.export("pdf", [record(title="שלום", body="")])
        shown = [each for each in self.log_texts(path) if "ש" in each.text][0]
        self.assertGreater(shown.end, 547 - 4 - 20)
        self.assertLess(shown.end, 547 - 4)

    def test_page_numbers_end_at_the_right_margin(self):
        path = self.export("pdf", [record()])
        done = subprocess.run(["pdftotext", "-bbox", path, "-"], check=True, capture_output=True,
                              text=True)
        found = re.findall(r'>Page</word>\s*<word [^>]*xMax="([\d.]+)"[^>]*>(\d)</word>',
                           done.stdout)
        self.assertEqual([number for _, number in found], ["1", "2"])
        for right, _ in found:
            self.assertAlmostEqual(float(right), 547, delta=TOLERANCE)

    # The file

    def test_fonts_are_embedded_and_readable(self):
        path = self.export("pdf", rows(3))
        done = subprocess.run(["pdffonts", path], check=True, capture_output=True, text=True)
        fonts = done.stdout.splitlines()[2:]
        self.assertGreater(len(fonts), 4)
        for font in fonts:
            self.assertRegex(font, r" yes +(yes|no) +yes +\d+ +0$")

    def faces(self, path):
        """The names of the embedded faces, without the tags of their subsets."""
        done = subprocess.run(["pdffonts", path], check=True, capture_output=True, text=True)
        return sorted(line.split()[0].split("+")[-1] for line in done.stdout.splitlines()[2:])

    def test_the_desktops_font_changes_nothing(self):
        path, _ = self.judge(rows(3))
        plain = self.faces(path)
        self.assertFalse([face for face in plain if re.search("italic|oblique", face.lower())])
        path, _ = self.judge(rows(3), ODD_DESKTOP_FONT="yes")
        self.assertEqual(self.faces(path), plain)

    def test_title_and_date_are_told(self):
        done = subprocess.run(["pdfinfo", self.export("pdf", [])], check=True, capture_output=True,
                              text=True)
        self.assertRegex(done.stdout, r"Title: +Tessarine — Notification Archive Export\n")
        self.assertRegex(done.stdout, r"CreationDate: +\w+")

    def test_mutool_finds_nothing_wrong(self):
        done = subprocess.run(["mutool", "info", self.export("pdf", rows(40))], check=True,
                              capture_output=True, text=True)
        self.assertEqual(done.stderr, "")
        self.assertIn("Pages: 3", done.stdout)

    # Colours, as a reader's eye meets them

    def pixels(self, path, page):
        base = path[:-4]
        subprocess.run(["pdftoppm", "-r", "288", "-f", str(page), "-l", str(page), "-singlefile",
                        path, base], check=True)
        with open(base + ".ppm", "rb") as file:
            _, size, _, data = file.read().split(b"\n", 3)
        width, height = map(int, size.split())

        def colour(x, y):
            column, line = int(x * 4), height - 1 - int(y * 4)
            return tuple(data[(line * width + column) * 3:][:3])
        return colour

    def assert_colour(self, actual, expected):
        for one, other in zip(actual, expected):
            # Two layers whose alpha is a whole number of 255ths.
            self.assertLessEqual(abs(one - other), 2, (actual, expected))

    def test_the_summary_has_its_colours(self):
        colour = self.pixels(self.export("pdf", rows(4, apps=2)), 1)
        self.assert_colour(colour(300, 720), (0, 122, 255))
        self.assert_colour(colour(300, 639), (36, 36, 36))
        self.assert_colour(colour(300, 786 - 157 - 8), (255, 255, 255))
        self.assert_colour(colour(300, 786 - 174 - 8), (245, 245, 245))
        self.assert_colour(colour(20, 20), (255, 255, 255))

    def test_a_pill_is_denser_inside_its_ellipse(self):
        colour = self.pixels(self.export("pdf", rows(2)), 2)
        self.assert_colour(colour(300, 792), (0, 122, 255))
        # 12% of the accent on white at the corners, 1 - 0.88 * 0.88 = 22.56% inside.
        ground = 786 - 60
        self.assert_colour(colour(108.3, ground + 0.7), (224, 239, 255))
        self.assert_colour(colour(108.3, ground - 10.7), (224, 239, 255))
        self.assert_colour(colour(127, ground - 9.5), (197, 225, 255))
        # The second row stands on a band.
        self.assert_colour(colour(300, ground - 32 - 16), (245, 245, 245))
        self.assert_colour(colour(108.3, ground - 32 - 10.7), (215, 230, 246))


if __name__ == "__main__":
    judging.main()
