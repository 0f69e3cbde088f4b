"""The user's clock set to another time zone while the program runs: by /etc/localtime as a link and as a
plain file, in a mount namespace where /etc is a folder of the test's own, and by the variable TZ."""

import datetime
import itertools
import os
import shutil
import subprocess
import sys
import tempfile
import time
import zoneinfo

import zone_judge
import zones

SKIPPED = 77  # as CTest is told
PATIENCE = 120
LOCAL_TIME = "/etc/localtime"


def enter_namespace():
    """Starts the script again where its mounts are its own; gives up where that is forbidden."""
    for unshare in (["unshare", "--mount"], ["unshare", "--map-root-user", "--mount"]):
        if subprocess.run([*unshare, "true"], stderr=subprocess.DEVNULL).returncode == 0:
            os.environ["TESSARINE_NAMESPACE"] = "1"
            os.execvp(unshare[0], [*unshare, sys.executable, "-B", *sys.argv])
    print("no mount namespace: skipped")
    sys.exit(SKIPPED)


def take_over_etc(folder):
    shutil.copy("/etc/ld.so.cache", folder)
    subprocess.run(["mount", "--bind", folder, "/etc"], check=True)


class FollowingJudge(zone_judge.JudgeTestCase):
    seconds = itertools.count()

    def link(self, name):
        os.symlink(zones.path_of(name), LOCAL_TIME + ".new")
        os.replace(LOCAL_TIME + ".new", LOCAL_TIME)

    def write(self, name):
        """Writes a zone into the file. Each time in a second of its own: the C library takes two
        files of the same second for the same."""
        shutil.copyfile(zones.path_of(name), LOCAL_TIME, follow_symlinks=False)
        second = 1_700_000_000 + next(self.seconds)
        os.utime(LOCAL_TIME, (second, second))

    def remove(self):
        os.unlink(LOCAL_TIME)

    def judge_following(self, zone, path=None, variable=None):
        """All moments are shown as in the zone, soon if not at once."""
        changes = zones.clock_changes(zone, path) or [0]
        patience = time.monotonic() + PATIENCE
        while True:
            try:
                self.judge_moments(variable, zone, changes)
                break
            except AssertionError:
                if time.monotonic() > patience:
                    raise
        self.judge_days(variable, zone, self.some_of(zone, changes))

    def judge_named(self, name, variable=None):
        self.judge_following(zoneinfo.ZoneInfo(name), zones.path_of(name), variable)

    def test_link_to_another_zone(self):
        for name in ("America/Mexico_City", "Africa/Cairo", "Asia/Almaty"):
            self.link(name)
            self.judge_named(name)
        self.remove()

    def test_plain_file_written_anew(self):
        self.write("America/Asuncion")
        self.judge_named("America/Asuncion")
        self.write("America/Nuuk")
        self.judge_named("America/Nuuk")
        self.remove()

    def test_plain_file_in_place_of_a_link(self):
        self.link("Asia/Tokyo")
        self.judge_named("Asia/Tokyo")
        self.remove()
        self.write("Africa/Casablanca")
        self.judge_named("Africa/Casablanca")
        self.remove()

    def test_no_file_is_utc(self):
        self.link("Asia/Tokyo")
        self.judge_named("Asia/Tokyo")
        self.remove()
        self.judge_following(datetime.timezone.utc)

    def test_variable_goes_before_the_file(self):
        self.link("Europe/Dublin")
        self.judge_named("Europe/Dublin")
        self.judge_named("Pacific/Apia", variable="Pacific/Apia")
        self.judge_following(datetime.timezone.utc, variable="")
        self.judge_named("Europe/Dublin")
        self.remove()

    def test_zones_of_the_same_hours_are_told_apart(self):
        # Both are an hour ahead in January and two hours in July; their clocks are changed at other
        # times.
        self.link("Europe/Rome")
        self.judge_named("Europe/Rome")
        rule = "CET-1CEST,M4.2.0,M9.2.0"
        self.judge_following(zones.zone_of_rule(rule), variable=rule)


if __name__ == "__main__":
    if "TESSARINE_NAMESPACE" not in os.environ:
        enter_namespace()
    with tempfile.TemporaryDirectory(prefix="following-judge-") as folder:
        take_over_etc(folder)
        zone_judge.main()
