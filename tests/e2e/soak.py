"""Mixed traffic for a long time: memory and descriptors stay flat, and every row arrives.

usage: soak.py [MINUTES]     5 notifications a second, 30 minutes by default

Not one of the checks that run every time. Prints a line a minute, and exits with 1 when a row is
missing or doubled.
"""

import collections
import os
import sys
import time

from desktop import Application, Bus, NotificationDaemon
from session import Daemon, Display, Session

EVERY = 0.2  # seconds


def resident_megabytes(pid):
    with open(f"/proc/{pid}/statm") as status:
        return int(status.read().split()[1]) * os.sysconf("SC_PAGE_SIZE") / 1e6


def main(minutes):
    session = Session()
    bus = Bus(session)
    NotificationDaemon(session, bus, "dunst")
    system = Daemon(session)
    program = session.start_program()
    applications = [Application(bus, f"Application {number}") for number in range(5)]
    sent = set()
    start = time.monotonic()
    for number in range(int(minutes * 60 / EVERY)):
        title = f"{'row' if number % 5 == 0 else 'banner'} {number}"
        if number % 5 == 0:
            system.append(title)
        else:
            body = "long " * 2000 if number % 50 == 1 else f"<b>Body</b> {number} 🎉"
            applications[number % 5].announce(title, body)
        sent.add(title)
        if number % int(60 / EVERY) == 0:
            print(f"{(time.monotonic() - start) / 60:5.1f} min  {session.count():6} rows  "
                  f"{resident_megabytes(program.pid):6.1f} MB  "
                  f"{len(os.listdir(f'/proc/{program.pid}/fd'))} descriptors", flush=True)
        time.sleep(max(0.0, start + (number + 1) * EVERY - time.monotonic()))
    time.sleep(10)
    stored = collections.Counter(session.titles())
    missing = sent - set(stored)
    doubled = [title for title, count in stored.items() if count > 1]
    print(f"sent {len(sent)}, stored {sum(stored.values())}, missing {len(missing)}, "
          f"doubled {len(doubled)}, {resident_megabytes(program.pid):.1f} MB, "
          f"{len(os.listdir(f'/proc/{program.pid}/fd'))} descriptors", flush=True)
    session.assert_running(program)
    session.close()
    Display.end()
    return 1 if missing or doubled else 0


if __name__ == "__main__":
    sys.exit(main(float(sys.argv[1]) if len(sys.argv) > 1 else 30))
