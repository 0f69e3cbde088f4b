"""How soon after its start the program has its item in the tray.

usage: measure_start.py [TIMES [PROGRAM...]]   20 times the built program; of several, in turns

The tray is one of our own, without pictures: the time ends when the program registers its item.
Not one of the checks that run every time: what it prints is for reading.
"""

import statistics
import sys
import time

import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

import session as sessions
from desktop import Bus, NotificationDaemon
from session import lone_session, wait_until

WATCHER = "org.kde.StatusNotifierWatcher"


class Tray(dbus.service.Object):
    """The service with which items and trays find each other, with a tray."""

    def __init__(self, bus):
        self.name = dbus.service.BusName(WATCHER, bus)
        super().__init__(bus, "/StatusNotifierWatcher")
        self.registered = None

    @dbus.service.method(WATCHER, in_signature="s")
    def RegisterStatusNotifierItem(self, _item):  # pylint: disable=invalid-name
        self.registered = self.registered or time.monotonic()

    @dbus.service.method(dbus.INTROSPECTABLE_IFACE, out_signature="s")
    def Introspect(self):  # pylint: disable=invalid-name
        return (f'<node><interface name="{WATCHER}">'
                '<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>'
                '<method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>'
                "</interface></node>")  # Qt reads no property that isn't told of

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, _interface, _name):  # pylint: disable=invalid-name
        return dbus.Boolean(True)  # all that is asked for is whether there is a tray

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="s", out_signature="a{sv}")
    def GetAll(self, _interface):  # pylint: disable=invalid-name
        return {"IsStatusNotifierHostRegistered": dbus.Boolean(True)}


def turn_events(tray):
    GLib.MainContext.default().iteration(False)
    return tray.registered


def measure(times, programs):
    seconds = {program: [] for program in programs}
    with lone_session() as session:
        bus = Bus(session)
        NotificationDaemon(session, bus, "plain")
        tray = Tray(dbus.bus.BusConnection(session.environment["DBUS_SESSION_BUS_ADDRESS"],
                                           mainloop=DBusGMainLoop()))
        for _ in range(times):
            for program in programs:
                tray.registered = None
                sessions.PROGRAM = program
                start = time.monotonic()
                running = session.start_program(wait=False)
                wait_until(lambda: turn_events(tray), "the item in the tray", interval=0.0005)
                seconds[program].append(tray.registered - start)
                session.wait_until_started(running)
                running.terminate()
                running.wait()
    for program, measured in seconds.items():
        milliseconds = sorted(value * 1000 for value in measured)
        print(f"{program}: median {statistics.median(milliseconds):.1f} ms, "
              f"from {milliseconds[0]:.1f} to {milliseconds[-1]:.1f} ms, {len(milliseconds)} starts")


if __name__ == "__main__":
    measure(int(sys.argv[1]) if len(sys.argv) > 1 else 20, sys.argv[2:] or [sessions.PROGRAM])
