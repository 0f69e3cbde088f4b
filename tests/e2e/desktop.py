"""A session bus with a notification daemon, and applications that announce things on it."""

import contextlib
import os
import shutil
import signal
import socket
import struct
import subprocess
import sys

import dbus
import dbus.lowlevel

from session import PATIENCE, Session, SessionTestCase, wait_until

SERVICE = "org.freedesktop.Notifications"
PATH = "/org/freedesktop/Notifications"
GTK_SERVICE = "org.gtk.Notifications"
GTK_PATH = "/org/gtk/Notifications"

# Daemons that Debian ships, by the program that they start as.
DAEMONS = {
    "dunst": ["dunst"],
    "notification-daemon": ["/usr/lib/notification-daemon/notification-daemon"],
    "xfce4-notifyd": ["/usr/lib/x86_64-linux-gnu/xfce4/notifyd/xfce4-notifyd"],
}

BUS_CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={socket}</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
    {rules}
  </policy>
  <limit name="max_incoming_bytes">1000000000</limit>
  <limit name="max_outgoing_bytes">1000000000</limit>
  <limit name="max_message_size">1000000000</limit>
  <limit name="max_completed_connections">1000</limit>
  <limit name="max_connections_per_user">1000</limit>
  <limit name="max_replies_per_connection">50000</limit>
</busconfig>
"""


class Bus:
    """A message bus of the session's own, without services that it would start by itself."""

    def __init__(self, session, rules=""):
        self.session = session
        self.socket = session.runtime / "bus"
        self.address = f"unix:path={self.socket}"
        self.configuration = session.root / "bus.conf"
        self.configuration.write_text(BUS_CONFIGURATION.format(socket=self.socket, rules=rules))
        session.environment["DBUS_SESSION_BUS_ADDRESS"] = self.address
        session.environment["DBUS_SYSTEM_BUS_ADDRESS"] = f"unix:path={session.root}/no-system-bus"
        self.start()

    def start(self):
        self.process = self.session.spawn("dbus-daemon", f"--config-file={self.configuration}",
                                          "--nofork", "--nosyslog", stderr=subprocess.DEVNULL)
        wait_until(self.answers, "the bus")

    def answers(self):
        try:
            with socket.socket(socket.AF_UNIX) as caller:
                caller.connect(str(self.socket))
            return True
        except OSError:
            return False

    def stop(self):
        self.session.kill(self.process)
        self.socket.unlink(missing_ok=True)

    def connect(self):
        return dbus.bus.BusConnection(self.address)


class NotificationDaemon:
    """The program that draws the banners: one of Debian's, or one of our own that misbehaves."""

    def __init__(self, session, bus, name):
        self.session = session
        self.bus = bus
        fake = os.path.join(os.path.dirname(__file__), "fake_daemon.py")
        self.command = DAEMONS.get(name) or [sys.executable, fake, name]
        self.start()

    def start(self):
        self.process = self.session.spawn(*self.command, stdout=subprocess.DEVNULL,
                                          stderr=subprocess.DEVNULL)
        connection = self.bus.connect()
        wait_until(lambda: self.draws(connection), f"{self.command[0]} as the notification daemon")
        connection.close()

    def draws(self, connection):
        """Whether this very process is the one that announcements go to."""
        try:
            return connection.call_blocking("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                            "org.freedesktop.DBus", "GetConnectionUnixProcessID",
                                            "s", [SERVICE]) == self.process.pid
        except dbus.DBusException:
            return False

    def kill(self):
        self.session.kill(self.process, signal.SIGKILL)


class Shell:
    """The program that shows what GLib's applications announce, as a GNOME desktop has it: it draws
    for both services, and another process passes on to it what goes to the older one."""

    def __init__(self, session, bus):
        fake = os.path.join(os.path.dirname(__file__), "fake_shell.py")
        self.processes = []
        for part in ("shell", "proxy"):
            process = session.spawn(sys.executable, fake, part, stdout=subprocess.PIPE)
            process.stdout.readline()
            self.processes.append(process)

    def unique_name(self, bus):
        connection = bus.connect()
        name = connection.get_name_owner(GTK_SERVICE)
        connection.close()
        return name


def daemon_is_installed(name):
    return shutil.which(DAEMONS[name][0]) is not None


class Application:
    """A program that announces things. Closes its connection at the end."""

    def __init__(self, bus, name="Application"):
        self.name = name
        self.connection = bus.connect()

    def message(self, summary, body="", *, replaces=0, hints=None, timeout=-1, name=None):
        message = dbus.lowlevel.MethodCallMessage(SERVICE, PATH, SERVICE, "Notify")
        message.append(self.name if name is None else name, dbus.UInt32(replaces), "", summary,
                       body, dbus.Array([], "s"), dbus.Dictionary(hints or {}, "sv"),
                       dbus.Int32(timeout), signature="susssasa{sv}i")
        return message

    def announce(self, summary, body="", **options):
        """Waits for the daemon's answer and gives the id of the notification; None on an error."""
        message = self.message(summary, body, **options)
        try:
            reply = self.connection.send_message_with_reply_and_block(message, PATIENCE)
            return int(reply.get_args_list()[0])
        except dbus.DBusException:
            return None

    def pour(self, texts):
        """Sends without waiting for answers."""
        for summary, body in texts:
            self.connection.send_message(self.message(summary, body))
        self.connection.flush()

    def gtk_message(self, identifier, title, body="", *, application="com.example.Teapot",
                    destination=GTK_SERVICE, path=GTK_PATH, interface=GTK_SERVICE):
        """What GLib's applications announce with where a shell offers it."""
        message = dbus.lowlevel.MethodCallMessage(destination, path, interface, "AddNotification")
        texts = {"title": title, "body": body} if body else {"title": title}
        message.append(application, identifier, dbus.Dictionary(texts, "sv"), signature="ssa{sv}")
        return message

    def add(self, identifier, title, body="", **options):
        """Waits for the shell's answer; False on an error."""
        message = self.gtk_message(identifier, title, body, **options)
        try:
            self.connection.send_message_with_reply_and_block(message, PATIENCE)
            return True
        except dbus.DBusException:
            return False

    def withdraw(self, identifier):
        message = dbus.lowlevel.MethodCallMessage(SERVICE, PATH, SERVICE, "CloseNotification")
        message.append(dbus.UInt32(identifier), signature="u")
        self.connection.send_message_with_reply_and_block(message, PATIENCE)

    def close(self):
        """The bus drops what a closed connection left unread, so it is asked something first. Its
        answer comes after it has read all that was sent before."""
        with contextlib.suppress(dbus.DBusException):  # the bus may be gone
            self.connection.call_blocking("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                          "org.freedesktop.DBus", "GetId", "", [])
        self.connection.close()


class RawConnection:
    """Speaks to the bus in bytes, and so can say what no library lets through."""

    def __init__(self, bus):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.settimeout(PATIENCE)
        self.socket.connect(str(bus.socket))
        user = str(os.getuid()).encode().hex().encode()
        self.socket.sendall(b"\0AUTH EXTERNAL " + user + b"\r\n")
        self.socket.recv(4096)
        self.socket.sendall(b"BEGIN\r\n")
        self.call(1, b"org.freedesktop.DBus", b"/org/freedesktop/DBus", b"Hello")
        self.socket.recv(4096)

    def call(self, serial, interface, path, member, signature=b"", body=b""):
        fields = b""
        for code, kind, value in ((1, b"o", path), (2, b"s", interface), (3, b"s", member),
                                  (6, b"s", interface), (8, b"g", signature)):
            if kind == b"g" and not signature:
                continue
            fields += b"\0" * (-len(fields) % 8) + bytes([code, 1]) + kind + b"\0"
            size = bytes([len(value)]) if kind == b"g" else struct.pack("<I", len(value))
            fields += size + value + b"\0"
        header = b"l\x01\x00\x01" + struct.pack("<III", len(body), serial, len(fields)) + fields
        self.socket.sendall(header + b"\0" * (-len(header) % 8) + body)

    def notify(self, summary):
        """Announces a summary of any bytes, with nothing else in it."""
        def text(value):
            return struct.pack("<I", len(value)) + value + b"\0"

        def padded(value, to):
            return value + b"\0" * (-len(value) % to)

        body = padded(text(b"Raw"), 4) + struct.pack("<I", 0)
        body = padded(body + text(b""), 4)
        body = padded(body + text(summary), 4)
        body = padded(body + text(b""), 4)
        body = padded(body + struct.pack("<I", 0) + struct.pack("<I", 0), 8)
        body += struct.pack("<i", -1)
        self.call(2, SERVICE.encode(), PATH.encode(), b"Notify", b"susssasa{sv}i", body)

    def is_cut_off(self, seconds=PATIENCE):
        """Whether the bus ends the connection, as it does to one that breaks the protocol."""
        self.socket.settimeout(seconds)
        try:
            while self.socket.recv(4096):
                pass
            return True
        except ConnectionResetError:
            return True
        except TimeoutError:
            return False

    def close(self):
        self.socket.close()


class DesktopTestCase(SessionTestCase):
    daemon_name = "dunst"

    def setUp(self):
        super().setUp()
        self.bus = Bus(self.session)
        self.daemon = NotificationDaemon(self.session, self.bus, self.daemon_name)
        self.start_services()
        self.program = self.session.start_program()

    def start_services(self):
        """What else the session has before the program starts."""

    def application(self, name="Application"):
        application = Application(self.bus, name)
        self.addCleanup(application.close)
        return application

    def rows(self):
        """Application, title and body of all rows."""
        return self.session.query("SELECT app_name, title, body FROM notifications ORDER BY id")

    def assert_captured(self, *expected, seconds=PATIENCE):
        wait_until(lambda: set(expected) <= set(self.rows()), f"{expected} in the hoard", seconds)
        for row in expected:
            self.assertEqual(self.rows().count(row), 1, row)

    def memory(self, program=None):
        """Resident megabytes."""
        with open(f"/proc/{(program or self.program).pid}/statm") as status:
            return int(status.read().split()[1]) * os.sysconf("SC_PAGE_SIZE") / 1e6

    def processor_seconds(self):
        """Of all threads of the program, which a busy machine does not make more."""
        with open(f"/proc/{self.program.pid}/stat") as status:
            fields = status.read().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


__all__ = ["Application", "Bus", "DesktopTestCase", "NotificationDaemon", "RawConnection", "Session",
           "Shell", "daemon_is_installed", "wait_until"]
