#!/usr/bin/python3
"""An application of GLib's kind that announces something in its own way: teapot.py TITLE BODY"""

import sys

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402  (its version must be chosen first)

application = Gio.Application.new("com.example.Teapot", Gio.ApplicationFlags.FLAGS_NONE)


def announce(_):
    notification = Gio.Notification.new(sys.argv[1])
    notification.set_body(sys.argv[2])
    notification.add_button("Pour", "app.pour")
    application.hold()
    application.send_notification("tea", notification)
    # Its connection must last until the bus has passed the announcement on.
    application.get_dbus_connection().flush_sync()
    GLib.timeout_add(500, application.release)


application.connect("activate", announce)
application.run([])
