"""Desktops that Debian ships, each started without a screen in a session of its own."""

import json
import os
import pathlib
import pwd
import shutil
import subprocess
import time

import dbus

from session import Display, Session, wait_until
from windows import Windows

LIBRARIES = "/usr/lib/x86_64-linux-gnu"
TRAY = "org.kde.StatusNotifierWatcher"
NOTIFICATIONS = "org.freedesktop.Notifications"
SCREEN = (1280, 800)


class Surroundings(Session):
    """A session with a desktop in it. What a subclass says of itself: its name, what its
    environment needs, and what runs in it, in this order."""

    name = ""
    variables = {}
    programs = ()
    tray = "bus"  # where it has a place for status items, and how they come there; or none

    def __init__(self, pictures):
        self.pictures = pathlib.Path(pictures)
        self.logs = {}
        super().__init__(display=self.make_display())
        self.environment.update(
            XDG_SESSION_TYPE="x11", XDG_CONFIG_DIRS="/etc/xdg", LC_ALL="C.UTF-8",
            XDG_DATA_DIRS="/usr/local/share:/usr/share", LIBGL_ALWAYS_SOFTWARE="1",
            XDG_DATA_HOME=str(self.data), XDG_CONFIG_HOME=str(self.config),
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.environment.update(self.variables)
        self.write_defaults("")

    def make_display(self):
        return Display()

    # Starting

    def begin(self):
        self.start_buses()
        self.prepare()
        self.update_activation()
        for program in self.programs:
            self.run(*program)
        self.compose()
        self.wait_for_name(NOTIFICATIONS)
        if self.tray == "bus":
            self.wait_for_name(TRAY)

    def prepare(self):
        """Before anything of the desktop runs."""

    def compose(self):
        """What must wait for one of its programs."""

    def run(self, *command):
        log = self.root / f"{pathlib.Path(command[0]).name}.log"
        self.logs[command[0]] = log
        with open(log, "ab") as output:
            return self.spawn(*command, stdin=subprocess.DEVNULL, stdout=output, stderr=output)

    def start_buses(self):
        """A session bus that starts services, as a desktop's does, and one in place of the
        system's."""
        for name in ("session", "system"):
            address = f"unix:path={self.runtime}/{name}"
            self.environment[f"DBUS_{name.upper()}_BUS_ADDRESS"] = address
            self.run("dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address={address}")
            wait_until((self.runtime / name).exists, f"the {name} bus")

    def update_activation(self):
        subprocess.run(["dbus-update-activation-environment", "--all"], env=self.environment,
                       stdout=subprocess.DEVNULL, check=True)

    # The bus

    def bus(self):
        return dbus.bus.BusConnection(self.environment["DBUS_SESSION_BUS_ADDRESS"])

    def has_name(self, name):
        bus = self.bus()
        try:
            return bus.name_has_owner(name)
        finally:
            bus.close()

    def wait_for_name(self, name):
        wait_until(lambda: self.has_name(name), f"{name} on {self.name}")

    def server(self):
        """Who draws the banners, in its own words."""
        bus = self.bus()
        try:
            answer = bus.call_blocking(NOTIFICATIONS, "/org/freedesktop/Notifications", NOTIFICATIONS,
                                       "GetServerInformation", "", (), timeout=30)
            return f"{answer[0]} {answer[2]}"
        finally:
            bus.close()

    def drawing_process(self):
        bus = self.bus()
        try:
            return int(bus.call_blocking("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                         "org.freedesktop.DBus", "GetConnectionUnixProcessID", "s",
                                         [NOTIFICATIONS]))
        finally:
            bus.close()

    # Seeing and touching

    def call(self, *command, display=None):
        environment = {**self.environment, **({"DISPLAY": display} if display else {})}
        return subprocess.run(command, env=environment, text=True, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, timeout=60).stdout

    @property
    def outer_display(self):
        return self.environment["DISPLAY"]

    def picture(self, what):
        path = self.pictures / f"{self.name}-{what}.png"
        subprocess.run(["import", "-silent", "-window", "root", str(path)],
                       env={**self.environment, "DISPLAY": self.outer_display}, timeout=60,
                       check=False)
        return path

    def press(self, *keys):
        self.call("xdotool", "key", "--delay", "50", *keys, display=self.outer_display)

    def clipboard(self):
        return self.call("timeout", "5", "xclip", "-o", "-selection", "clipboard")

    def active_window(self):
        """The title of the window that has the keyboard, nothing where nobody tells."""
        return self.call("xdotool", "getactivewindow", "getwindowname").strip()

    def owner_of(self, title):
        """Who drew the window with this title, by the name that the desktop knows it by; nothing
        while there is none. It gets the keyboard."""
        for window in self.windows("--onlyvisible", "--name", f"^{title}"):
            self.xdotool("windowactivate", window)
            found = self.call("xprop", "-id", window, "WM_CLASS")
            return found.split('"')[-2] if '"' in found else ""
        return ""

    def front_window(self):
        """Another program's window, which takes the keyboard."""
        other = self.run("xmessage", "-geometry", "1200x650+20+20", "In front")
        window = wait_until(lambda: self.windows("--onlyvisible", "--name", "^xmessage$"),
                            "another program's window")[-1]
        self.xdotool("windowactivate", window)
        return other


class Xfce(Surroundings):
    name = "Xfce"
    variables = {"XDG_CURRENT_DESKTOP": "XFCE"}
    programs = [(f"{LIBRARIES}/xfce4/xfconf/xfconfd",), ("xfwm4",),
                (f"{LIBRARIES}/xfce4/notifyd/xfce4-notifyd",), ("xfce4-panel",)]

    def prepare(self):
        folder = self.config / "xfce4/xfconf/xfce-perchannel-xml"
        folder.mkdir(parents=True)
        # Without one, the panel asks which to take.
        shutil.copy("/etc/xdg/xfce4/panel/default.xml", folder / "xfce4-panel.xml")


class Mate(Surroundings):
    name = "MATE"
    variables = {"XDG_CURRENT_DESKTOP": "MATE"}
    programs = [("openbox",), ("/usr/lib/mate-notification-daemon/mate-notification-daemon",),
                ("mate-panel",)]


class Lxqt(Surroundings):
    name = "LXQt"
    variables = {"XDG_CURRENT_DESKTOP": "LXQt", "XDG_CONFIG_DIRS": "/etc/xdg:/usr/share"}
    programs = [("openbox",), ("lxqt-notificationd",), ("lxqt-panel",)]

    def prepare(self):
        (self.config / "lxqt").mkdir(parents=True)
        shutil.copy("/usr/share/lxqt/panel.conf", self.config / "lxqt")


class PlasmaX11(Surroundings):
    name = "Plasma on X11"
    variables = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
                 "KDE_SESSION_VERSION": "5"}
    programs = [("kwin_x11",), ("kded5",), (f"{LIBRARIES}/libexec/kactivitymanagerd",),
                ("plasmashell",)]


class Cinnamon(Surroundings):
    name = "Cinnamon"
    variables = {"XDG_CURRENT_DESKTOP": "X-Cinnamon", "GSETTINGS_BACKEND": "memory",
                 "CINNAMON_2D": "1"}
    tray = "XEmbed"  # Debian has no package of what would watch for items of the bus
    programs = [("cinnamon", "--replace")]


class Bare(Surroundings):
    """A window manager and a daemon, as those have it who put their desktop together."""

    name = "openbox with dunst"
    tray = ""
    programs = [("openbox",), ("dunst", "-config", "/dev/null")]


class Wayland(Surroundings):
    """A compositor in a window of an X server, where it has a pointer and a keyboard."""

    socket = ""
    outer = ""

    @property
    def outer_display(self):
        return self.outer

    def enter(self):
        """From now on what starts is a client of the compositor."""
        wait_until(self.find_socket, f"the compositor of {self.name}")
        self.environment["WAYLAND_DISPLAY"] = self.find_socket()
        self.environment["XDG_SESSION_TYPE"] = "wayland"
        self.outer = self.environment.pop("DISPLAY", "")
        self.update_activation()

    def find_socket(self):
        found = [path.name for path in self.runtime.glob(self.socket) if path.is_socket()]
        return found[0] if found else None

    def clipboard(self):
        return self.call("timeout", "5", "wl-paste", "--no-newline")

    def active_window(self):
        return ""

    def owner_of(self, title):
        """The compositor gives it the keyboard, and a screen reader tells whose it is."""
        return next((element.application for element in Windows(self).elements()
                     if element.name.startswith(title) and element.application != "Tessarine"), "")

    def front_window(self):
        return None


class PlasmaWayland(Wayland):
    name = "Plasma on Wayland"
    socket = "wl-kwin"
    variables = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
                 "KDE_SESSION_VERSION": "5", "KWIN_COMPOSE": "Q"}

    def compose(self):
        # A copy has no file capabilities, which not every machine grants.
        compositor = shutil.copy(shutil.which("kwin_wayland"), self.root)
        self.run(compositor, "--x11-display", self.environment["DISPLAY"], "--width",
                 str(SCREEN[0]), "--height", str(SCREEN[1]), "--socket", self.socket,
                 "--no-lockscreen")
        self.enter()
        for program in ("kded5", "plasmashell"):
            self.run("env", "QT_QPA_PLATFORM=wayland", program)


class Sway(Wayland):
    socket = "wayland-[0-9]"
    daemon = ()
    variables = {"XDG_CURRENT_DESKTOP": "sway", "WLR_LIBINPUT_NO_DEVICES": "1",
                 "WLR_RENDERER": "pixman", "WLR_BACKENDS": "x11"}

    @property
    def name(self):
        return f"sway with {self.daemon[0]}"

    def compose(self):
        settings = self.root / "sway.conf"
        settings.write_text(f"output X11-1 resolution {SCREEN[0]}x{SCREEN[1]}\nxwayland disable\n"
                            "bar {\n position top\n}\n")
        settings.chmod(0o644)
        self.run("sway", "-c", str(settings))
        self.enter()
        wait_until(lambda: list(self.runtime.glob("sway-ipc*.sock")), "sway's own socket")
        self.environment["SWAYSOCK"] = str(next(self.runtime.glob("sway-ipc*.sock")))
        self.run(*self.daemon)

    def nodes(self):
        def below(node):
            yield node
            for child in [*node.get("nodes", []), *node.get("floating_nodes", [])]:
                yield from below(child)

        return below(json.loads(self.call("swaymsg", "-t", "get_tree") or "{}"))

    def active_window(self):
        return next((node["name"] for node in self.nodes() if node.get("focused")), "")

    def owner_of(self, title):
        for node in self.nodes():
            if (node.get("name") or "").startswith(title):
                self.call("swaymsg", f"[con_id={node['id']}] focus")
                return node.get("app_id") or "nameless"
        return ""


class SwayMako(Sway):
    daemon = ("mako",)


class SwaySwaync(Sway):
    daemon = ("swaync",)


class SwayDunst(Sway):
    daemon = ("dunst", "-config", "/dev/null")


class Gnome(Wayland):
    """The shell draws on a display of its own that nobody sees, and tells what it shows."""

    name = "GNOME"
    socket = "wl-gnome"
    variables = {"XDG_CURRENT_DESKTOP": "GNOME", "GSETTINGS_BACKEND": "keyfile"}

    def prepare(self):
        folder = self.config / "glib-2.0/settings"
        folder.mkdir(parents=True)
        (folder / "keyfile").write_text(
            "[org/gnome/shell]\n"
            "enabled-extensions=['ubuntu-appindicators@ubuntu.com',"
            "'appindicatorsupport@rgcjonas.gmail.com']\n"
            "welcome-dialog-last-shown-version='99'\n")

    def compose(self):
        self.run("gnome-shell", "--headless", "--virtual-monitor", f"{SCREEN[0]}x{SCREEN[1]}",
                 "--wayland", "--unsafe-mode", f"--wayland-display={self.socket}")
        self.enter()
        # A session's manager starts this one, which passes announcements on to the shell.
        self.run("gjs", "/usr/share/gnome-shell/org.gnome.Shell.Notifications")
        # It starts with an overview of all windows, in which none has the keyboard.
        wait_until(self.is_ready, "the shell")

    def is_ready(self):
        try:
            return self.evaluate("if (!Main.layoutManager._startingUp) Main.overview.hide();"
                                 "!Main.layoutManager._startingUp && !Main.overview.visible") == \
                "true"
        except dbus.DBusException:
            return False

    def evaluate(self, script):
        bus = self.bus()
        try:
            done, answer = bus.call_blocking("org.gnome.Shell", "/org/gnome/Shell",
                                             "org.gnome.Shell", "Eval", "s", [script], timeout=30)
            return str(answer) if done else ""
        finally:
            bus.close()

    def picture(self, what):
        path = self.pictures / f"{self.name}-{what}.png"
        bus = self.bus()
        bus.call_blocking("org.gnome.Shell", "/org/gnome/Shell/Screenshot",
                          "org.gnome.Shell.Screenshot", "Screenshot", "bbs",
                          [True, False, str(path)], timeout=30)
        bus.close()
        return path

    def press(self, *keys):
        names = {"ctrl": "Control_L", "shift": "Shift_L", "alt": "Alt_L"}
        for key in keys:
            parts = [names.get(part, part) for part in key.split("+")]
            for part, state in [(part, "PRESSED") for part in parts] + \
                               [(part, "RELEASED") for part in reversed(parts)]:
                self.evaluate(
                    "const {Clutter, GLib} = imports.gi; global.keys = global.keys ||"
                    " Clutter.get_default_backend().get_default_seat().create_virtual_device("
                    "Clutter.InputDeviceType.KEYBOARD_DEVICE); global.keys.notify_keyval("
                    f"GLib.get_monotonic_time(), Clutter.KEY_{part}, Clutter.KeyState.{state});")
                time.sleep(0.05)

    def clipboard(self):
        self.evaluate("const {St} = imports.gi; global.pasted = ''; St.Clipboard.get_default()"
                      ".get_text(St.ClipboardType.CLIPBOARD, (c, text) => global.pasted = text)")
        time.sleep(0.5)
        return self.evaluate("global.pasted").strip('"').replace("\\n", "\n")

    def owner_of(self, title):
        return self.evaluate(
            "const found = global.get_window_actors().map(actor => actor.meta_window)"
            f".find(window => window.get_title()?.startsWith('{title}'));"
            " found?.activate(global.get_current_time());"
            " found ? found.get_wm_class() || 'nameless' : ''").strip('"')

    def active_window(self):
        return self.evaluate("global.display.focus_window?.get_title() ?? ''").strip('"')


DESKTOPS = [Gnome, PlasmaX11, PlasmaWayland, Xfce, Mate, Lxqt, Cinnamon, SwayMako, SwaySwaync,
            SwayDunst, Bare]


def become_user_for(kind):
    """sway refuses to run for root, and a bus of its user would refuse to let root in."""
    if issubclass(kind, Sway) and os.getuid() == 0:
        user = pwd.getpwnam("desk")
        os.setgroups([])
        os.setgid(user.pw_gid)
        os.setuid(user.pw_uid)
