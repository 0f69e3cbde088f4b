"""The short form of soak.py: everything that it does happens some times."""

import unittest

from growth import Sample, grown
from session import SessionTestCase
from soak import Soak


class BriefSoak(Soak):
    WINDOW, RESTART, SECOND_START, DELETION = 60, 90, 120, 150
    EXPORT, SLEEP, CLOCK = 250, 70, 50
    YEAR_BEFORE = 300


class Year(SessionTestCase):
    def test_all_rows_arrive_once_and_nothing_grows(self):
        soak = BriefSoak(self.session)
        samples = []
        for number in range(300):
            soak.step(number)
            if number % 10 == 9:
                samples.append(soak.sample())
        soak.wait_for_all()
        samples.append(soak.sample())
        self.session.assert_running(soak.program)
        self.assertEqual(soak.doubled(), [])
        self.assertEqual(grown(samples[14:]), [])  # the first export has come by then
        self.assertEqual(len(soak.done), 7, soak.done)  # everything has happened


class Growth(unittest.TestCase):
    """What would be found."""

    def samples(self, name, values):
        flat = Sample(0.0, 0, 100.0, 50.0, 40, 10, 1.0, 0.0)
        return [flat._replace(seconds=60.0 * minute, **{name: value})
                for minute, value in enumerate(values)]

    def test_a_leak_of_a_megabyte_a_minute_is_found(self):
        samples = self.samples("memory", [100.0 + minute for minute in range(60)])
        self.assertEqual(grown(samples), ["memory: 105.0 after the first tenth, then up to 159.0",
                                          "memory: 122.0 in the second quarter, 152.0 in the last"])

    def test_a_leak_of_a_quarter_of_a_megabyte_a_minute_is_found(self):
        samples = self.samples("heap", [30.0 + minute / 4 for minute in range(60)])
        self.assertEqual(grown(samples), ["heap: 35.5 in the second quarter, 43.0 in the last"])

    def test_a_descriptor_left_behind_now_and_then_is_found(self):
        self.assertTrue(grown(self.samples("descriptors", [40 + n // 3 for n in range(60)])))

    def test_what_goes_up_and_down_is_none(self):
        self.assertEqual(grown(self.samples("memory", [100.0 + n % 7 for n in range(60)])), [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
