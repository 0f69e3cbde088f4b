"""How long a banner takes from the bus to the hoard, and what the program costs.

usage: measure_banners.py latency [COUNT]         single notifications, 1.5 seconds apart
       measure_banners.py sender [PAIRS [CALLS]]  2,000 calls each: with the program, with a bare
                                                  monitor that discards, and with neither
       measure_banners.py burst [COUNT [ROWS]]    processor time for each of many at once, on a
                                                  hoard that holds so many rows already

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
    wait_until(lambda: session.count() == 1, "the first row")
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


# What the program asks the bus for.
MONITOR_RULES = (
    "type='signal',sender='org.freedesktop.DBus',interface='org.freedesktop.DBus',"
    "member='NameOwnerChanged',arg0='org.freedesktop.Notifications'",
    "type='signal',sender='org.freedesktop.DBus',interface='org.freedesktop.DBus',"
    "member='NameOwnerChanged',arg0='org.gtk.Notifications'",
    "type='method_call',path='/org/freedesktop/Notifications',member='Notify'",
    "type='method_call',interface='org.freedesktop.Notifications',member='Notify'",
    "type='method_call',path='/org/gtk/Notifications'",
    "type='method_return',sender='org.freedesktop.Notifications'",
    "type='error',sender='org.freedesktop.Notifications'",
    "type='error',sender='org.freedesktop.DBus'",
    "type='signal',interface='org.freedesktop.Notifications',member='NotificationClosed'")


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
                "dbus-monitor", "--binary", "--address", self.bus.address, *MONITOR_RULES,
                stdout=subprocess.DEVNULL)
        self.application = Application(self.bus)
        self.sent = 0
        time.sleep(2)

    def run(self, calls):
        """Seconds that the calls took. What they led to is over before and after."""
        time.sleep(1.5)
        start = time.monotonic()
        for _ in range(calls):
            self.sent += 1
            self.application.announce(f"call {self.sent}", "body")
        took = time.monotonic() - start
        if self.session.hoard.exists():
            wait_until(lambda: self.session.count() == calls, "all rows", 600)
            self.empty_hoard()
        return took

    def empty_hoard(self):
        """So that the program has as much to do in the next turn as in this one."""
        connection = sqlite3.connect(self.session.hoard, timeout=60)
        connection.execute("DELETE FROM notifications")
        connection.commit()
        connection.close()


def measure_sender(pairs, calls):
    settings = {name: Setting(name) for name in ("program", "monitor", "nobody")}
    times = {name: [] for name in settings}
    for setting in settings.values():
        setting.run(calls)  # not counted
    for turn in range(pairs):
        order = list(settings) if turn % 2 == 0 else list(reversed(settings))
        for name in order:
            times[name].append(settings[name].run(calls))
    print(f"{calls} calls:")
    for name, values in times.items():
        print(f"{name:8} median {statistics.median(values):.3f} s  "
              f"from {min(values):.3f} to {max(values):.3f}")
    for baseline in ("monitor", "nobody"):
        ratios = [ours / bare for ours, bare in zip(times["program"], times[baseline])]
        print(f"program / {baseline}: median of {pairs} pairs {statistics.median(ratios):.3f}, "
              f"quartiles {quantiles(ratios)['p25']:.3f} to {quantiles(ratios)['p75']:.3f}")
    for setting in settings.values():
        setting.session.close()


def fill(hoard, rows):
    """Old rows of twenty applications, as years of capturing leave them."""
    connection = sqlite3.connect(hoard)
    connection.executemany(
        "INSERT INTO notifications (bundle_id, app_name, title, body, timestamp) VALUES (?,?,?,?,?)",
        ((f"application.{n % 20}", f"Application {n % 20}", f"Old title {n}",
          f"The body of an old notification, number {n}", 7e8 + n) for n in range(rows)))
    connection.commit()
    connection.close()


def wait_until_it_listens(session, application):
    """Announces until something is captured, and gives the rows that there are then."""
    rows, number = session.count(), 0
    while session.count() == rows:
        number += 1
        application.announce(f"Are you there? {number}")
        time.sleep(2)
    time.sleep(3)
    return session.count()


def measure_burst(count, rows):
    session = Session()
    bus = Bus(session)
    NotificationDaemon(session, bus, "plain")
    program = session.start_program()
    time.sleep(2)
    session.kill(program)
    fill(session.hoard, rows)
    program = session.start_program()
    application = Application(bus)
    rows = wait_until_it_listens(session, application)
    before, start = cpu_seconds(program.pid), time.monotonic()
    application.pour([(f"Burst {number}", f"Body of burst {number}") for number in range(count)])
    wait_until(lambda: session.count() == rows + count, "all rows", 1200)
    took = time.monotonic() - start
    time.sleep(2)
    used = cpu_seconds(program.pid) - before
    print(f"{count} at once, {rows} rows before: all stored after {took:.1f} s, "
          f"processor time for each {used / count * 1000:.2f} ms")
    session.close()


if __name__ == "__main__":
    mode, numbers = sys.argv[1:2], [int(word) for word in sys.argv[2:]]
    first, second = (numbers + [None, None])[:2]
    if mode == ["latency"]:
        measure_latency(first or 500)
    elif mode == ["sender"]:
        measure_sender(first or 20, second or 2000)
    elif mode == ["burst"]:
        measure_burst(first or 2000, second or 1000)
    else:
        sys.exit(__doc__)
    Display.end()
