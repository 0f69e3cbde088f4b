"""Makes the pictures of the documents: the program on a desktop, with what its users would see.

usage: make_pictures.py FOLDER         (scripts/pictures starts it)
"""

import pathlib
import sqlite3
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "e2e"))

from session import now, wait_until  # noqa: E402
from status_item import StatusItem  # noqa: E402
from surroundings import PlasmaX11  # noqa: E402
from windows import Windows  # noqa: E402

MINUTE = 60
HOUR = 60 * MINUTE
DAY = 24 * HOUR

ICONS = {"Mail": "internet-mail", "Calendar": "office-calendar", "Messages": "kopete",
         "Terminal": "utilities-terminal", "Updates": "system-software-update"}

# Application, title, body, seconds before now.
ROWS = [
    ("Messages", "Miriam", "Are you still coming at seven? We have kept you a seat.", 3 * MINUTE),
    ("Mail", "Anna Weber", "Minutes of Tuesday attached. Could you look at the second point before "
     "Friday?", 12 * MINUTE),
    ("Terminal", "Build finished", "All 312 tests pass", 41 * MINUTE),
    ("Calendar", "Dentist", "Today at 16:30, Ringstrasse 12", 2 * HOUR),
    ("Messages", "Paul", "Your code is 481 920", 3 * HOUR),
    ("Mail", "Library", "Three books are due on Monday. You can renew them online.", 5 * HOUR),
    ("Updates", "24 updates are ready", "Among them one for security", DAY),
    ("Calendar", "Rent", "Tomorrow", DAY + 2 * HOUR),
    ("Mail", "Train tickets", "Your journey of 4 December: seats 61 and 62, coach 9", DAY + 5 * HOUR),
    ("Messages", "Miriam", "Found your scarf!", 2 * DAY),
]


class Studio(PlasmaX11):
    """A bright desktop whose applications have icons."""

    def prepare(self):
        folder = self.data / "applications"
        folder.mkdir(parents=True, exist_ok=True)
        for name, icon in ICONS.items():
            (folder / f"studio.{name}.desktop").write_text(
                f"[Desktop Entry]\nType=Application\nName={name}\nIcon={icon}\nExec=true\n")

    def fill(self):
        """Rows of the last days, written as the program would have."""
        present = now()
        connection = sqlite3.connect(self.hoard)
        connection.executemany(
            "INSERT INTO notifications (bundle_id, app_name, title, body, timestamp)"
            " VALUES (?, ?, ?, ?, ?)",
            [(f"studio.{name}", name, title, body, present - ago)
             for name, title, body, ago in reversed(ROWS)])
        connection.commit()
        connection.close()

    def photograph(self, path):
        """The main window, once it stands still."""
        window = self.visible_main_window()
        before = b""
        while True:
            subprocess.run(["import", "-silent", "-window", window, str(path)],
                           env=self.environment, check=True, timeout=60)
            after = path.read_bytes()
            if after == before:
                return
            before = after
            time.sleep(0.5)


def run_program(studio, settings):
    studio.write_defaults(settings)
    program = studio.start_program()
    item = StatusItem(studio, program.pid)
    item.kind()
    item.choose("Open Hoard")
    windows = Windows(studio)
    windows.wait_for_main()
    studio.xdotool("mousemove", "1390", "990")
    return program, windows


def main():
    folder = pathlib.Path(sys.argv[1]).resolve()
    studio = Studio(folder)
    try:
        studio.begin()
        studio.kill(studio.start_program())  # makes the hoard
        studio.fill()
        program, windows = run_program(studio, "appearanceMode=light\n")
        studio.photograph(folder / "window-light.png")
        windows.press_button("Select and delete notifications")
        for row in wait_until(lambda: windows.ours("list item"), "rows")[:2]:
            windows.press(row)
        windows.press_button("Date")
        studio.photograph(folder / "selection-light.png")
        studio.kill(program)
        program, windows = run_program(studio, "appearanceMode=dark\n")
        windows.press(next(part for part in windows.ours("radio button") if part.name == "App"))
        studio.photograph(folder / "grouped-dark.png")
        studio.kill(program)
    finally:
        studio.close()


if __name__ == "__main__":
    main()
