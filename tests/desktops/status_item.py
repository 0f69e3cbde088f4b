"""The program's status item as its desktop meets it: an item of the tray with a menu on the bus, or
the small panel where there is no tray."""

import re
import time

import dbus

from session import wait_until

ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
PROPERTIES = "org.freedesktop.DBus.Properties"
WATCHER = "org.kde.StatusNotifierWatcher"


class StatusItem:
    def __init__(self, session, pid):
        self.session = session
        self.pid = pid
        self.bus = session.bus()

    def kind(self):
        """How the desktop shows it; waits for that."""
        return wait_until(lambda: self.in_tray() or self.embedded() or self.as_panel(),
                          "the status item", 30)

    def in_tray(self):
        return "tray, by the bus" if self.owner() else None

    def embedded(self):
        return "tray, by XEmbed" if self.session.tray == "XEmbed" and self.embedded_icon() else None

    def embedded_icon(self):
        return self.session.visible_window(range(8, 65))

    def as_panel(self):
        if self.session.tray or not self.session.environment.get("DISPLAY"):
            return None
        return "panel" if self.session.visible_panel() else None

    def owner(self):
        """The connection that the tray knows the item by."""
        if not self.bus.name_has_owner(WATCHER):
            return None
        items = self.bus.call_blocking(WATCHER, "/StatusNotifierWatcher", PROPERTIES, "Get", "ss",
                                       [WATCHER, "RegisteredStatusNotifierItems"])
        names = [re.split("[/@]", str(item))[0] for item in items]
        return next((name for name in names if self.process(name) == self.pid), None)

    def process(self, name):
        try:
            return int(self.bus.call_blocking(
                "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                "GetConnectionUnixProcessID", "s", [name]))
        except dbus.DBusException:  # it has left meanwhile
            return None

    # The menu, as a tray shows it

    def menu_path(self):
        return self.bus.call_blocking(self.owner(), "/StatusNotifierItem", PROPERTIES, "Get", "ss",
                                      [ITEM, "Menu"])

    def entries(self):
        """Ids and labels, as of now: the menu is filled each time that it is about to show."""
        path = self.menu_path()
        self.bus.call_blocking(self.owner(), path, MENU, "AboutToShow", "i", [dbus.Int32(0)])
        _, layout = self.bus.call_blocking(
            self.owner(), path, MENU, "GetLayout", "iias",
            [dbus.Int32(0), dbus.Int32(-1), dbus.Array([], "s")])
        return [(int(entry[0]), str(entry[1].get("label", "")).replace("_", ""))
                for entry in layout[2] if entry[1].get("type") != "separator"]

    def labels(self):
        if self.owner():
            return [label for _, label in self.entries()]
        self.open_own_menu()
        self.session.close_menu()
        time.sleep(1)  # the next click is not the second one of a double click
        return []

    def open_own_menu(self):
        """The program's own, where no tray shows a copy of it."""
        if self.session.tray != "XEmbed":
            return self.session.open_menu()
        self.session.xdotool("mousemove", "--window", self.embedded_icon(), "8", "8", "click", "3")
        return wait_until(self.session.visible_menu, "the menu", 20)

    def choose(self, label):
        if not self.owner():
            self.open_own_menu()
            self.session.xdotool("key", "--delay", "150", "Down", "Return")
            return
        number = next(number for number, text in self.entries() if text == label)
        self.bus.call_blocking(self.owner(), self.menu_path(), MENU, "Event", "isvu",
                               [dbus.Int32(number), "clicked", dbus.String("", variant_level=1),
                                dbus.UInt32(0)])
