"""The program's windows and a desktop's dialogs, as a screen reader finds them on any desktop."""

import json
import subprocess
import sys
import textwrap

from session import wait_until

# In a process of its own: a reader stays with the bus that it first met.
READER = textwrap.dedent("""
    import json, sys, pyatspi

    def elements(top, path=()):
        if top is None:
            return
        yield path, top
        for index in range(top.childCount):
            try:
                yield from elements(top.getChildAtIndex(index), (*path, index))
            except Exception:
                continue

    def shown():
        for number, application in enumerate(pyatspi.Registry.getDesktop(0)):
            if application is None:
                continue
            for path, element in elements(application, (number,)):
                if element.getState().contains(pyatspi.STATE_SHOWING):
                    yield application.name, path, element

    def at(path):
        element = pyatspi.Registry.getDesktop(0)
        for index in path:
            element = element.getChildAtIndex(index)
        return element

    if sys.argv[1] == "list":
        print(json.dumps([(name, path, element.getRoleName(), element.name)
                          for name, path, element in shown()]))
    else:
        actions = at(json.loads(sys.argv[2])).queryAction()
        names = [actions.getName(index).lower() for index in range(actions.nActions)]
        actions.doAction(next(i for i, name in enumerate(names) if name in ("press", "click")))
""")


class Element:
    def __init__(self, application, path, role, name):
        self.application = application
        self.path = path
        self.role = role
        self.name = name


class Windows:
    def __init__(self, session):
        self.session = session

    def read(self, *arguments):
        return subprocess.run([sys.executable, "-c", READER, *arguments], text=True, timeout=60,
                              env=self.session.environment, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL).stdout

    def elements(self):
        return [Element(*found) for found in json.loads(self.read("list") or "[]")]

    def ours(self, role):
        return [element for element in self.elements()
                if element.application == "Tessarine" and element.role == role]

    def press(self, element):
        self.read("press", json.dumps(element.path))

    def press_button(self, beginning):
        self.press(wait_until(lambda: next((button for button in self.ours("push button")
                                            if button.name.startswith(beginning)), None),
                              beginning, 20))

    def wait_for_main(self):
        wait_until(lambda: [frame for frame in self.ours("frame") if frame.name == "Tessarine"],
                   "the main window", 30)

    def first_row(self):
        return wait_until(lambda: self.ours("list item"), "a row", 20)[0]
