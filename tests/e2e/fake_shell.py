"""A part of a desktop with two notification services, which its argument names.

shell: owns org.gtk.Notifications, and answers calls of the older service as well; proxy: owns
org.freedesktop.Notifications and passes each call on to the shell, by the shell's unique name. Prints
a line when it is ready.
"""

import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

SERVICE = "org.freedesktop.Notifications"
GTK_SERVICE = "org.gtk.Notifications"
PATH = "/org/freedesktop/Notifications"


class Drawer(dbus.service.Object):
    """Draws what the proxy passes on."""

    last = 0

    @dbus.service.method(SERVICE, "susssasa{sv}i", "u")
    def Notify(self, _name, replaces, _icon, _summary, _body, _actions, _hints, _timeout):
        self.last = replaces or self.last + 1
        return dbus.UInt32(self.last)


class GtkService(dbus.service.Object):
    @dbus.service.method(GTK_SERVICE, "ssa{sv}", "")
    def AddNotification(self, _application, _identifier, _notification):
        pass

    @dbus.service.method(GTK_SERVICE, "ss", "")
    def RemoveNotification(self, _application, _identifier):
        pass


class Proxy(dbus.service.Object):
    def __init__(self, bus):
        super().__init__(bus, PATH)
        shell = bus.get_object(bus.get_name_owner(GTK_SERVICE), PATH, introspect=False)
        self.shell = dbus.Interface(shell, SERVICE)

    @dbus.service.method(SERVICE, "susssasa{sv}i", "u", async_callbacks=("answer", "refuse"))
    def Notify(self, name, replaces, icon, summary, body, actions, hints, timeout, answer, refuse):
        self.shell.Notify(name, replaces, icon, summary, body, dbus.Array(actions, "s"),
                          dbus.Dictionary(hints, "sv"), timeout,
                          reply_handler=answer, error_handler=refuse)


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
session_bus = dbus.SessionBus()
if sys.argv[1] == "shell":
    name = dbus.service.BusName(GTK_SERVICE, session_bus)
    objects = [Drawer(session_bus, PATH), GtkService(session_bus, "/org/gtk/Notifications")]
else:
    name = dbus.service.BusName(SERVICE, session_bus)
    objects = [Proxy(session_bus)]
print("ready", flush=True)
GLib.MainLoop().run()
