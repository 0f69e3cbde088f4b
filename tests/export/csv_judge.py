"""The CSV writer judged by Python's csv: whatever the texts hold, the same fields come back."""

import csv
import io
import random

import judging

PIECES = [";", '"', '""', "\n", "\r", "\r\n", ",", "\t", " ", "", "a", "=1+1", "'", "\\", "\0",
          "ü", "日本語", "😀", "👩‍👧", "שלום", "\u2028", "\ufeff", "end"]


def random_text(chance):
    return "".join(chance.choice(PIECES) for _ in range(chance.randrange(12)))


def random_records(seed, count):
    chance = random.Random(seed)
    return [{"app": random_text(chance), "id": random_text(chance), "title": random_text(chance),
             "body": random_text(chance), "time": judging.MARCH_3 + 60 * i} for i in range(count)]


class CsvJudge(judging.JudgeTestCase):
    def rows(self, records):
        with open(self.export("csv", records), "rb") as file:
            content = file.read()
        self.assertTrue(content.startswith(b"\xef\xbb\xbf"))
        text = content[3:].decode("utf-8")
        return list(csv.reader(io.StringIO(text, newline=""), delimiter=";", strict=True))

    def test_headings_come_first(self):
        self.assertEqual(self.rows([]), [["Date", "Time", "App", "Bundle ID", "Title", "Body"]])

    def test_random_texts_come_back(self):
        for seed in range(5):
            with self.subTest(seed=seed):
                records = random_records(seed, 400)
                expected = [["2026-03-03", "%02d:%02d:00" % divmod(i, 60), each["app"], each["id"],
                             each["title"], each["body"]] for i, each in enumerate(records)]
                self.assertEqual(self.rows(records)[1:], expected)

    def test_days_and_times_are_those_of_the_zone(self):
        records = [judging.record(time=moment) for moment in judging.NUUK_MOMENTS]
        with open(self.export("csv", records, zone=judging.NUUK), encoding="utf-8-sig") as file:
            shown = [tuple(row[:2]) for row in csv.reader(file, delimiter=";")]
        self.assertEqual(shown[1:], list(judging.NUUK_MOMENTS.values()))

    def test_only_fields_that_need_it_are_quoted(self):
        records = [judging.record(title="a,b", body="c;d")]
        with open(self.export("csv", records), encoding="utf-8-sig", newline="") as file:
            self.assertEqual(file.read().split("\n")[1],
                             '2026-03-03;09:00:00;Mail;com.example.mail;a,b;"c;d"')


if __name__ == "__main__":
    judging.main()
