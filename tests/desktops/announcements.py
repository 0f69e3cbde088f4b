"""Every kind of announcement that applications make, and the row that the hoard should hold of it."""

import os
import pathlib
import subprocess
import sys
import time

import dbus

from session import wait_until

NOTIFICATIONS = ("org.freedesktop.Notifications", "/org/freedesktop/Notifications",
                 "org.freedesktop.Notifications")
PORTAL = ("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
          "org.freedesktop.portal.Notification")
GTK_BACK_END = ("org.freedesktop.impl.portal.desktop.gtk", "/org/freedesktop/portal/desktop",
                "org.freedesktop.impl.portal.Notification")
TEAPOT = pathlib.Path(__file__).with_name("teapot.py")

# The name and the texts of a row. A name of None: whoever passed the announcement on gave it one.
EXPECTED = {
    "plain": ("Build Bot", "Build finished", "All 312 tests pass"),
    "markup": ("Mail", "3 new", "From Ann & Bob link"),
    "actions": ("Chat", "With actions", "Answer me"),
    "before it was replaced": ("Download", "Copying", "10 %"),
    "replaced": ("Download", "Copying", "100 %"),
    "image data": ("Image App", "with image-data", "a red square"),
    "empty name, entry": ("Teapot Timer", "empty name", "desktop-entry only"),
    "transient": ("Brief", "transient", "gone soon"),
    "scripts, lines": ("Grüße Ω", "👋🏽 مرحبا", "line one\nline two\n1 < 2 & <3"),
    "twice the same": ("Twin", "same", "text"),
    "Gio": (None, "Tea is ready", "Take the bag out"),
    "Gio, the same id": (None, "Second cup", "other body"),
    "portal": (None, "Portal title", "Portal body"),
    "portal, confined": ("Teapot Timer", "Confined title", "Confined body"),
    "after the daemon died": ("Late", "after the daemon", "came back"),
}

IMAGE = dbus.Struct((dbus.Int32(16), dbus.Int32(16), dbus.Int32(48), dbus.Boolean(False),
                     dbus.Int32(8), dbus.Int32(3), dbus.ByteArray(bytes([200, 60, 60] * 256))),
                    signature="iiibiiay")


class Announcer:
    """Announces in a session. What a daemon refuses is told, and the others go on."""

    def __init__(self, session):
        self.session = session
        self.connection = dbus.bus.BusConnection(session.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.refused = {}

    def call(self, place, method, signature, arguments):
        return self.connection.call_blocking(*place, method, signature, arguments, timeout=30)

    def notify(self, kind, *, replaces=0, actions=(), hints=None, texts=None):
        name, title, body = texts or EXPECTED[kind]
        arguments = (name, dbus.UInt32(replaces), "", title, body, dbus.Array(actions, "s"),
                     dbus.Dictionary(hints or {}, "sv"), dbus.Int32(3000))
        try:
            return self.call(NOTIFICATIONS, "Notify", "susssasa{sv}i", arguments)
        except dbus.DBusException as error:
            self.refused.setdefault(kind, error.get_dbus_name())
            return dbus.UInt32(0)

    def portal(self, kind, place, signature, *arguments):
        texts = dbus.Dictionary({"title": EXPECTED[kind][1], "body": EXPECTED[kind][2]}, "sv")
        try:
            self.call(place, "AddNotification", signature, (*arguments, texts))
        except dbus.DBusException as error:
            self.refused.setdefault(kind, error.get_dbus_name())

    def teapot(self, kind):
        subprocess.run([sys.executable, TEAPOT, *EXPECTED[kind][1:]], timeout=30, check=True,
                       env=self.session.environment, stderr=subprocess.DEVNULL)

    def all(self):
        self.notify("plain")
        self.notify("markup", texts=("Mail", "3 new",
                                     'From <i>Ann</i> &amp; Bob <a href="https://x.org">link</a>'))
        self.notify("actions", actions=("reply", "Reply", "no", "No"))
        first = self.notify("before it was replaced")
        # Two announcements of one id within one scan would be one banner to a reader of the screen.
        wait_until(lambda: EXPECTED["before it was replaced"] in self.rows(), "the first of two")
        self.notify("replaced", replaces=first)
        self.notify("image data", hints={"image-data": IMAGE})
        self.notify("empty name, entry", hints={"desktop-entry": "com.example.Teapot"},
                    texts=("", *EXPECTED["empty name, entry"][1:]))
        self.notify("transient", hints={"transient": True, "urgency": dbus.Byte(0)})
        self.notify("scripts, lines")
        self.notify("twice the same")
        self.notify("twice the same")
        self.teapot("Gio")
        self.teapot("Gio, the same id")
        self.portal("portal", PORTAL, "sa{sv}", "first")
        self.portal("portal, confined", GTK_BACK_END, "ssa{sv}", "com.example.Teapot", "first")

    def rows(self):
        return self.session.query("SELECT app_name, title, body FROM notifications ORDER BY id")

    def matches(self, kind):
        name, *texts = EXPECTED[kind]
        return [row for row in self.rows() if list(row[1:]) == texts and name in (None, row[0])]

    def settle(self, kinds):
        """Until all are there, or a while has passed: a row that does not come is what we look for."""
        end = time.monotonic() + 20
        while time.monotonic() < end and not all(self.matches(kind) for kind in kinds):
            time.sleep(0.2)

    def result(self, kind):
        count = len(self.matches(kind))
        if kind in self.refused and count == 0:
            return f"refused ({self.refused[kind].rsplit('.', 1)[-1]})"
        return {0: "MISSING", 1: "yes"}.get(count, f"{count} TIMES")

    def unexpected(self):
        """Rows that nobody announced here: a desktop's own, or one stored wrongly."""
        known = [row for kind in EXPECTED for row in self.matches(kind)]
        return [row for row in self.rows() if row not in known]


def install_teapot(session):
    """An application that the desktops know, for announcements that name one."""
    folder = session.data / "applications"
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "com.example.Teapot.desktop").write_text(
        "[Desktop Entry]\nType=Application\nName=Teapot Timer\n"
        f"Exec={sys.executable} {TEAPOT} Title Body\nIcon=dialog-information\n"
        "X-GNOME-UsesNotifications=true\n")
    os.chmod(folder / "com.example.Teapot.desktop", 0o644)
