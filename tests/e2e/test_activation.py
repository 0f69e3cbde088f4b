"""How a desktop reaches the running program: by its windows' class, its name on the bus, the token of
a second start."""

import os
import pathlib
import shutil
import subprocess
import unittest

import dbus

from desktop import Bus
from session import PATIENCE, PROGRAM, SessionTestCase, wait_until
from window_manager import Desk

ID = "com.zorvek.Tessarine"
NOBODY = 65534
OBJECT = "/com/zorvek/Tessarine"
INTERFACE = "org.freedesktop.Application"


class ActivationTestCase(SessionTestCase):
    bus_rules = ""

    def setUp(self):
        super().setUp()
        self.bus = Bus(self.session, self.bus_rules)
        self.desk = Desk(self.session.environment["DISPLAY"])
        self.addCleanup(self.desk.close)

    def start(self, **options):
        program = self.session.start_program(**options)
        wait_until(self.session.visible_panel, "the panel")
        return program

    def call(self, member, signature, *arguments):
        connection = self.bus.connect()
        try:
            return connection.call_blocking(ID, OBJECT, INTERFACE, member, signature, arguments,
                                            timeout=PATIENCE)
        finally:
            connection.close()

    def activate(self, **platform_data):
        self.call("Activate", "a{sv}", dbus.Dictionary(platform_data, "sv"))

    def act(self, action):
        self.call("ActivateAction", "sava{sv}", action, dbus.Array([], "v"),
                  dbus.Dictionary({}, "sv"))

    def has_name(self):
        connection = self.bus.connect()
        try:
            return connection.name_has_owner(ID)
        finally:
            connection.close()

    def property_of(self, window, name):
        return subprocess.run(["xprop", "-id", window, name], env=self.session.environment,
                              capture_output=True, text=True).stdout.strip()

    def requests_for(self, window, time):
        return (int(window), time) in self.desk.listen().activations


class Windows(ActivationTestCase):
    def test_bear_the_id_as_their_class(self):
        self.start()
        for window in (self.session.visible_panel(), self.session.open_menu()):
            self.assertEqual(self.property_of(window, "WM_CLASS"),
                             f'WM_CLASS(STRING) = "tessarine", "{ID}"')
        self.session.close_menu()
        window = self.session.open_main_window()
        self.assertEqual(self.property_of(window, "WM_CLASS"),
                         f'WM_CLASS(STRING) = "tessarine", "{ID}"')


class Name(ActivationTestCase):
    def guide(self):
        return self.session.visible_window_of(580, 640)

    def test_is_on_the_bus_while_the_program_runs(self):
        program = self.start()
        wait_until(self.has_name, "the name")
        self.session.kill(program)
        wait_until(lambda: not self.has_name(), "no name")

    def test_opens_the_window_and_quits(self):
        program = self.start()
        wait_until(self.has_name, "the name")
        self.act("open")
        wait_until(self.session.visible_main_window, "the main window")
        self.act("quit")
        self.assertEqual(program.wait(PATIENCE), 0)

    def test_is_answered_as_a_second_start_is(self):
        self.start()
        wait_until(self.has_name, "the name")
        self.activate()
        self.session.open_menu()  # what came to the front would be on the screen before it
        self.session.close_menu()
        self.assertIsNone(self.session.visible_main_window())

    def test_leads_to_the_guide_before_the_user_has_agreed(self):
        self.session.write_defaults("", without=["hasAcceptedEULA"])
        self.session.start_program(wait=False)
        wait_until(self.guide, "the guide")
        self.act("open")
        self.act("open")  # answered once the first has had its effect
        self.assertIsNone(self.session.visible_main_window())
        self.assertIsNotNone(self.guide())
        self.assertFalse(self.session.hoard.exists())

    def test_quits_also_before_the_user_has_agreed(self):
        self.session.write_defaults("", without=["hasAcceptedEULA"])
        program = self.session.start_program(wait=False)
        wait_until(self.has_name, "the name")
        self.act("quit")
        self.assertEqual(program.wait(PATIENCE), 0)


class BusThatReturns(ActivationTestCase):
    def test_the_program_takes_its_name_again_each_time(self):
        program = self.start()
        wait_until(self.has_name, "the name")
        for _ in range(2):
            self.bus.stop()
            self.bus.start()
            wait_until(self.has_name, "the name again")
        self.act("open")
        wait_until(self.session.visible_main_window, "the main window")
        self.session.assert_running(program)


class StartedByTheBus(ActivationTestCase):
    """As a desktop does that finds DBusActivatable in the entry."""

    def setUp(self):
        super().setUp()
        services = self.session.root / "services"
        services.mkdir()
        (services / f"{ID}.service").write_text(f"[D-BUS Service]\nName={ID}\nExec={PROGRAM}\n")
        self.bus.stop()
        configuration = pathlib.Path(self.bus.configuration)
        configuration.write_text(configuration.read_text().replace(
            "</busconfig>", f"<servicedir>{services}</servicedir></busconfig>"))
        self.bus.start()

    def test_it_starts_and_stays_silent(self):
        self.activate()
        wait_until(self.session.visible_panel, "the panel")
        self.assertIsNone(self.session.visible_main_window())
        self.assertTrue(self.has_name())

    def test_it_starts_with_its_window_for_the_action(self):
        self.act("open")
        wait_until(self.session.visible_main_window, "the main window")

    @unittest.skipUnless(shutil.which("gapplication"), "needs gapplication")
    def test_what_the_entry_names_for_other_desktops_does_the_same(self):
        subprocess.run(["gapplication", "action", ID, "open"], env=self.session.environment,
                       check=True, timeout=PATIENCE)
        wait_until(self.session.visible_main_window, "the main window")
        subprocess.run(["gapplication", "action", ID, "quit"], env=self.session.environment,
                       check=True, timeout=PATIENCE)
        wait_until(lambda: not self.session.visible_main_window(), "the end of the program")


class StartupNotification(ActivationTestCase):
    """On X11: the window is activated with the time of the user's own action, and the desktop hears
    that the start is over."""

    def test_of_a_start_without_a_window_ends(self):
        self.start(environment={"DESKTOP_STARTUP_ID": "panel-1_TIME111"})
        wait_until(lambda: 'remove: ID="panel-1_TIME111"' in self.desk.ended_startups(),
                   "the end of the startup")

    def test_of_a_second_start_brings_the_window_to_the_front(self):
        self.start()
        window = self.session.open_main_window()
        second = self.session.start_program(
            wait=False, environment={"DESKTOP_STARTUP_ID": 'pa"nel-2_TIME222'})
        self.assertEqual(second.wait(PATIENCE), 0)
        wait_until(lambda: self.requests_for(window, 222), "a request for the window")
        wait_until(lambda: 'remove: ID="pa\\"nel-2_TIME222"' in self.desk.ended_startups(),
                   "the end of the startup")
        self.assertEqual(self.property_of(window, "_NET_STARTUP_ID"),
                         '_NET_STARTUP_ID(UTF8_STRING) = "pa\\"nel-2_TIME222"')

    def test_of_the_bus_brings_the_window_to_the_front(self):
        self.start()
        window = self.session.open_main_window()
        self.activate(**{"desktop-startup-id": "shell-3_TIME333"})
        wait_until(lambda: self.requests_for(window, 333), "a request for the window")

    def test_gives_no_right_for_later(self):
        self.start()
        window = self.session.open_main_window()
        self.activate(**{"desktop-startup-id": "shell-4_TIME444"})
        wait_until(lambda: self.requests_for(window, 444), "a request for the window")
        self.desk.activations.clear()
        self.activate()
        self.activate(**{"activation-token": "shell-5_TIME555"})
        wait_until(lambda: self.requests_for(window, 555), "a request for the window")
        self.assertFalse(self.requests_for(window, 444))


@unittest.skipUnless(shutil.which("sway"), "needs sway")
class ActivationOnWayland(ActivationTestCase):
    """Under a compositor without a screen, which takes any token. It refuses to run as root."""

    user = NOBODY if os.getuid() == 0 else None
    bus_rules = '<allow user="*"/>'  # this process among them

    def setUp(self):
        super().setUp()
        configuration = self.session.root / "sway.conf"
        configuration.write_text("output HEADLESS-1 resolution 1280x800\nxwayland disable\n")
        self.session.environment.update(
            WLR_BACKENDS="headless", WLR_LIBINPUT_NO_DEVICES="1", WLR_RENDERER="pixman")
        with open(self.session.root / "sway.log", "wb") as log:
            self.session.spawn("sway", "-c", str(configuration), stdout=log, stderr=log)
        display = wait_until(self.wayland_display, "the compositor")
        self.session.environment.update(WAYLAND_DISPLAY=display, WAYLAND_DEBUG="1",
                                        QT_QPA_PLATFORM="wayland")
        self.program = self.session.start_program()
        wait_until(self.has_name, "the name")

    def wayland_display(self):
        names = [path.name for path in self.session.runtime.glob("wayland-*")]
        return next((name for name in names if not name.endswith(".lock")), None)

    def said(self, text):
        """To the compositor."""
        return text in self.session.log()

    def test_the_application_id_is_that_of_the_entry(self):
        self.act("open")
        wait_until(lambda: self.said(f'set_app_id("{ID}")'), "the application id")

    def test_a_token_of_the_bus_goes_to_the_compositor_once(self):
        self.act("open")
        wait_until(lambda: self.said('set_title("Tessarine")'), "the window")
        self.activate(**{"activation-token": "token-of-the-shell"})
        wait_until(lambda: self.said('.activate("token-of-the-shell"'), "the activation")
        self.activate()
        self.activate(**{"activation-token": "another-token"})
        wait_until(lambda: self.said('.activate("another-token"'), "the activation")
        self.assertEqual(self.session.log().count('.activate("token-of-the-shell"'), 1)

    def test_a_second_start_hands_its_token_over(self):
        self.act("open")
        wait_until(lambda: self.said('set_title("Tessarine")'), "the window")
        second = self.session.start_program(
            wait=False, environment={"XDG_ACTIVATION_TOKEN": "token-of-a-launcher"})
        self.assertEqual(second.wait(PATIENCE), 0)
        wait_until(lambda: self.said('.activate("token-of-a-launcher"'), "the activation")


if __name__ == "__main__":
    unittest.main(verbosity=2)
