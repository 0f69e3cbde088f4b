"""How long a banner takes from the bus to the hoard, and what the program costs a sender.

usage: measure_banners.py latency [COUNT]    single notifications, 1.5 seconds apart
       measure_banners.py sender [PAIRS]     2,000 calls each: with the program, with a bare
                                             monitor that discards, and with neither

Not one of the checks that run every time: what it prints is for reading.
"""

import os
import sqlite3
import statistics
import subprocess
import sys
import time

from desktop import Application, Bus, NotificationDaemon
from session import Display, Session, wait_until

CALLS = 2000


def quantiles(values):
    ordered = sorted(values)
    return {name: ordered[min(len(ordered) - 1, int(len(ordered) * share))]
            for name, share in (("min", 0), ("p5", .05), ("p25", .25), ("median", .5),
                                ("p75", .75), ("p95", .95), ("p99", .99), ("max", 1))}


def cpu_seconds(pid):
    with open(f"/proc/{pid}/stat") as status:
        fields = status.read().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def measure_latency(count):
    session = Session()
    bus = Bus(session)
    NotificationDaemon(session, bus, "plain")
    program = session.start_program()
    application = Application(bus)
    application.announce("first", "")
    wait_until(lambda: session.count() == 1, 20, "the first row")
    hoard = sqlite3.connect(f"file:{session.hoard}?mode=ro", uri=True)
    before = cpu_seconds(program.pid)
    latencies = []
    for number in range(count):
        time.sleep(1.5)
        start = time.monotonic()
        application.pour([(f"single {number}", "body")])
        while hoard.execute("SELECT MAX(id) FROM notifications").fetchone()[0] < number + 2:
            time.sleep(0.001)
        latencies.append((time.monotonic() - start) * 1000)
    print(f"{count} notifications, milliseconds from the call to the row:")
    print("  ".join(f"{name} {value:.1f}" for name, value in quantiles(latencies).items()))
    print(f"processor time for each: {(cpu_seconds(program.pid) - before) / count * 1000:.1f} ms")
    session.close()


class Setting:
    """A bus with a daemon, and whoever listens."""

    def __init__(self, listener):
        self.session = Session()
        self.bus = Bus(self.session)
        NotificationDaemon(self.session, self.bus, "plain")
        self.listener = None
        if listener == "program":
            self.listener = self.session.start_program()
        elif listener == "monitor":
            self.listener = self.session.spawn(
                "dbus-monitor", "--binary", "--address", self.bus.address,
                "interface='org.freedesktop.Notifications'", stdout=subprocess.DEVNULL)
        self.application = Application(self.bus)
        self.sent = 0
        time.sleep(2)

    def run(self):
        """Seconds that the calls took; waits afterwards until all is stored."""
        start = time.monotonic()
        for _ in range(CALLS):
            self.sent += 1
            self.application.announce(f"call {self.sent}", "body")
        took = time.monotonic() - start
        if self.session.hoard.exists():
            wait_until(lambda: self.session.count() == self.sent, 300, "all rows")
        return took


def measure_sender(pairs):
    settings = {name: Setting(name) for name in ("program", "monitor", "nobody")}
    times = {name: [] for name in settings}
    for _ in range(pairs):
        for name, setting in settings.items():
            times[name].append(setting.run())
    for name, values in times.items():
        print(f"{name:8} median {statistics.median(values):.3f} s  "
              f"from {min(values):.3f} to {max(values):.3f}")
    for baseline in ("monitor", "nobody"):
        ratios = [ours / bare for ours, bare in zip(times["program"], times[baseline])]
        print(f"program / {baseline}: median of {pairs} pairs {statistics.median(ratios):.3f}, "
              f"quartiles {quantiles(ratios)['p25']:.3f} to {quantiles(ratios)['p75']:.3f}")
    for setting in settings.values():
        setting.session.close()


if __name__ == "__main__":
    number = int(sys.argv[2]) if len(sys.argv) > 2 else None
    if sys.argv[1:2] == ["latency"]:
        measure_latency(number or 500)
    elif sys.argv[1:2] == ["sender"]:
        measure_sender(number or 20)
    else:
        sys.exit(__doc__)
    Display.end()
