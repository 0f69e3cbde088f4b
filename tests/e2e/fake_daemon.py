"""A notification daemon that misbehaves in one way, which its argument names.

plain: answers with an id; refusing: answers every call with an error; flashing: closes each
notification at once; silent: never answers.
"""

import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

SERVICE = "org.freedesktop.Notifications"


class Daemon(dbus.service.Object):
    def __init__(self, bus, manner):
        super().__init__(bus, "/org/freedesktop/Notifications")
        self.manner = manner
        self.last = 0

    @dbus.service.method(SERVICE, "susssasa{sv}i", "u", async_callbacks=("answer", "refuse"))
    def Notify(self, _name, replaces, _icon, _summary, _body, _actions, _hints, _timeout,
               answer, refuse):
        if self.manner == "refusing":
            refuse(dbus.DBusException("no room", name=SERVICE + ".Error.ExcessNotifications"))
        elif self.manner != "silent":
            self.last = replaces or self.last + 1
            answer(dbus.UInt32(self.last))
        if self.manner == "flashing":
            self.NotificationClosed(self.last, 1)

    @dbus.service.method(SERVICE, "u", "")
    def CloseNotification(self, identifier):
        self.NotificationClosed(identifier, 3)

    @dbus.service.method(SERVICE, "", "as")
    def GetCapabilities(self):
        return ["body"]

    @dbus.service.signal(SERVICE, "uu")
    def NotificationClosed(self, identifier, reason):
        pass


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
session_bus = dbus.SessionBus()
name = dbus.service.BusName(SERVICE, session_bus, replace_existing=True, allow_replacement=True)
daemon = Daemon(session_bus, sys.argv[1])
GLib.MainLoop().run()
