"""What the machine does to a session: it goes to sleep, and its clock is set.

The sleep is announced by a system bus of the session's own, as logind does it. The clock is that of
libfaketime, which a program takes its time of day from; what counts seconds only goes on evenly.
"""

import glob
import subprocess

import dbus
import dbus.lowlevel

from desktop import BUS_CONFIGURATION
from session import PATIENCE, wait_until

LOGIND = "org.freedesktop.login1"
LOGIND_PATH = "/org/freedesktop/login1"
FAKETIME = "/usr/lib/*/faketime/libfaketimeMT.so.1"


class Logind:
    """To be made after the session's bus and before the program."""

    def __init__(self, session):
        socket = session.runtime / "system-bus"
        configuration = session.root / "system-bus.conf"
        configuration.write_text(BUS_CONFIGURATION.format(socket=socket, rules=""))
        session.environment["DBUS_SYSTEM_BUS_ADDRESS"] = f"unix:path={socket}"
        session.spawn("dbus-daemon", f"--config-file={configuration}", "--nofork", "--nosyslog",
                      stderr=subprocess.DEVNULL)
        wait_until(socket.exists, "the system bus")
        self.connection = wait_until(lambda: self.connected(socket), "an answer of the system bus")
        self.connection.request_name(LOGIND)

    def connected(self, socket):
        try:
            return dbus.bus.BusConnection(f"unix:path={socket}")
        except dbus.DBusException:
            return None

    def sleep(self):
        self.announce(True)

    def wake(self):
        self.announce(False)

    def announce(self, is_going_to_sleep):
        signal = dbus.lowlevel.SignalMessage(LOGIND_PATH, f"{LOGIND}.Manager", "PrepareForSleep")
        signal.append(dbus.Boolean(is_going_to_sleep))
        self.connection.send_message(signal)
        # Once this is answered, the signal before it has been passed on.
        self.connection.call_blocking("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                      "org.freedesktop.DBus", "GetId", "", [], timeout=PATIENCE)


class Clock:
    """The time of day of programs that start with this environment."""

    def __init__(self, session):
        self.path = session.root / "clock"
        self.set(0)
        self.environment = {
            "LD_PRELOAD": glob.glob(FAKETIME)[0],
            "FAKETIME_TIMESTAMP_FILE": str(self.path),
            "FAKETIME_CACHE_DURATION": "1",
            "FAKETIME_DONT_FAKE_MONOTONIC": "1",
        }

    def set(self, seconds):
        """So many seconds ahead of what is true. Programs notice within a second."""
        changed = self.path.with_suffix(".new")
        changed.write_text(f"{seconds:+d}\n")
        changed.rename(self.path)
