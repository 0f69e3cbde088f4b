"""What a screen reader sees of the program: run in a session with accessibility on.

    screen_reader.py list              every element that shows, a line each: role, TAB, name
    screen_reader.py place ROLE NAME   the middle of the element on the screen: x y
    screen_reader.py act ROLE NAME ACTION [DIALOG]
                                       does what the element offers by this name, as Press; in the
                                       dialog of a name where another element could be meant
    screen_reader.py write ROLE NAME TEXT
                                       puts a text into a field that lets itself be written
    screen_reader.py focus             role, TAB, name of the element that has the keyboard
    screen_reader.py pulse SECONDS     how long answers took: median, longest and second longest
                                       in milliseconds
"""

import statistics
import sys
import time

import pyatspi


def elements(top):
    if top is None:
        return
    yield top
    for index in range(top.childCount):
        try:
            yield from elements(top.getChildAtIndex(index))
        except Exception:  # the element went while it was looked at
            continue


def showing(dialog=None):
    for element in showing_anywhere():
        if dialog is None:
            yield element
        elif element.getRoleName() == "dialog" and element.name == dialog:
            yield from elements(element)


def showing_anywhere():
    desktop = pyatspi.Registry.getDesktop(0)
    for application in desktop:
        if application is None or application.name != "Tessarine":
            continue
        for element in elements(application):
            if element.getState().contains(pyatspi.STATE_SHOWING):
                yield element


def pulse(seconds):
    window = next(element for element in showing() if element.getRoleName() == "frame")
    component = window.queryComponent()
    print("listening", flush=True)
    waits = []
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        start = time.monotonic()
        component.getExtents(pyatspi.DESKTOP_COORDS)  # asked again each time
        waits.append((time.monotonic() - start) * 1000)
        time.sleep(0.002)
    waits.sort()
    print(statistics.median(waits), waits[-1], waits[-2])


def act(element, wanted):
    actions = element.queryAction()
    for index in range(actions.nActions):
        if actions.getName(index) == wanted:
            return actions.doAction(index)
    return False


def main():
    if sys.argv[1] == "pulse":
        pulse(float(sys.argv[2]))
        return
    if sys.argv[1] == "list":
        for element in showing():
            print(f"{element.getRoleName()}\t{element.name}".replace("\n", " "))
        return
    if sys.argv[1] == "focus":
        focused = [element for element in showing()
                   if element.getState().contains(pyatspi.STATE_FOCUSED)]
        if focused:  # what holds it has it too, and comes before it
            print(f"{focused[-1].getRoleName()}\t{focused[-1].name}")
        return
    role, name = sys.argv[2:4]
    for element in showing(*sys.argv[5:]):
        if element.getRoleName() == role and element.name == name:
            if sys.argv[1] == "act":
                print(act(element, sys.argv[4]))
                return
            if sys.argv[1] == "write":
                print(element.queryEditableText().setTextContents(sys.argv[4]))
                return
            box = element.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
            print(box.x + box.width // 2, box.y + box.height // 2)
            return


main()
