#!/usr/bin/python3
"""Works the built program as one who sees nothing: by names, roles and what is announced.

usage: dbus-run-session -- reader.py PROGRAM

A contact is logged, a duplicate heard, the contact corrected and the score read through the
desktop's accessibility bus; every page is walked: nothing visible may be without a name, and no
two controls of a page may be called alike. Exits with 77 (skipped) where the bus or the virtual
screen cannot be had.
"""
import pathlib
import shutil
import subprocess
import sys
import tempfile

import outside
from outside import keys, type_text, wait_for

try:
    import pyatspi
    from gi.repository import GLib
except ImportError:
    pyatspi = None

CONTROLS = ("push button", "radio button", "text", "combo box", "list", "table", "progress bar")
PLACES = ("panel", "filler", "scroll bar", "notification")  # they may be without a name
BUTTON, OPTION = "push button", "radio button"
MEMBER = "K9SKC     5000S     CLUB      IL \r\n"


def visible(node):
    return node.get_state_set().contains(pyatspi.STATE_SHOWING)


def inside(node):
    """The node and what is visible in it, but for the lines of lists."""
    yield node
    for child in node if node.getRoleName() not in ("combo box", "list", "table") else ():
        if child is not None and visible(child):
            yield from inside(child)


class Reader:
    def __init__(self):
        self.heard = []
        pyatspi.Registry.registerEventListener(
            self.hear, "object:property-change:accessible-name", "object:state-changed:showing",
            "object:text-changed:insert")

    def hear(self, event):
        try:
            role, name = event.source.getRoleName(), event.source.name
            said = [node.name for node in event.source if node.getRoleName() == "label"]
        except GLib.GError:  # it is gone already
            return
        if event.type.startswith("object:text-changed"):
            self.heard.append(f"{name}: {event.any_data}")
        elif role in ("alert", "notification"):
            self.heard.append(f"{role} {' '.join(said) or name}")

    def wait(self, what, look):
        """Listens until there is something to be seen, and returns it."""
        seen = []

        def listen():
            while GLib.MainContext.default().iteration(False):
                pass
            try:
                seen[:] = [look()]
            except GLib.GError:  # it closed while it was looked at
                return False
            return seen[0]
        wait_for(what, listen)
        return seen[0]

    def hears(self, *words):
        for word in words:
            self.wait(f"{word!r} in {self.heard}", lambda w=word: any(w in s for s in self.heard))
        self.heard.clear()

    def windows(self):
        programs = [node for node in pyatspi.Registry.getDesktop(0) if node and node.name]
        return [window for program in programs if program.name == "Vantrel"
                for window in program if window is not None and visible(window)]

    def window(self, name):
        return self.wait(f"the window {name!r}", lambda: next(
            (window for window in self.windows() if name in window.name), None))

    def find(self, page, role, name):
        return self.wait(f"the {role} {name!r} of {page.name!r}", lambda: next(
            (node for node in inside(page) if (node.getRoleName(), node.name) == (role, name)),
            None))

    def press(self, page, name, role=BUTTON):
        self.find(page, role, name).queryAction().doAction(0)

    def focus(self, page, role, name):
        control = self.find(page, role, name)
        control.queryComponent().grabFocus()
        self.wait_for_focus(control)

    def wait_for_focus(self, control):
        self.wait("the focus on " + control.name,
                  lambda: control.get_state_set().contains(pyatspi.STATE_FOCUSED))

    def enter(self, page, name, text):
        self.focus(page, "text", name)
        keys("ctrl+a")
        type_text(text)

    def opened(self, act):
        def kind(window):
            return window.getRoleName(), window.name
        before = [kind(window) for window in self.windows()]
        act()
        return self.wait("a new page", lambda: next(
            (window for window in self.windows() if kind(window) not in before), None))

    def close(self, page):
        keys("Escape")
        self.wait("the page to close", lambda: not visible(page))


def check(page):
    """What is said of a page is complete, and no two things are called alike."""
    names = []
    for node in inside(page):
        role = node.getRoleName()
        if not node.name and role not in PLACES:
            raise SystemExit(f"reader: a {role} of {page.name!r} has no name")
        if role in CONTROLS:
            names.append(node.name)
    alike = {name for name in names if names.count(name) > 1}
    if alike or not names:
        raise SystemExit(f"reader: {page.name!r} has several of {alike} in {names}")


def walk(reader, page, routes):
    """Opens the page behind each control, with those that it leads to, and comes back."""
    check(page)
    for (role, name), further in routes.items():
        opened = reader.opened(lambda r=role, n=name: reader.press(page, n, r))
        walk(reader, opened, further)
        reader.close(opened)


def start(reader, event, log):
    page = reader.window("Vantrel - Start")
    check(page)
    if "K3Y" in event:
        areas = reader.opened(lambda: reader.press(page, event, OPTION))
        check(areas)
        reader.close(areas)
    for name, text in (("YOUR CALL:", "w1abc"), ("YOUR NAME:", "john"), ("YOUR STATE:", "ma"),
                       ("YOUR SKCC#:", "1234t"), ("FILE NAME:", log)):
        reader.enter(page, name, text)
    reader.focus(page, "combo box", "START A NEW")
    keys("Down")
    reader.hears("ARE YOU SURE?")
    keys("alt+y")
    reader.wait("the answer", lambda: len(reader.windows()) == 1)
    reader.press(page, "START")
    return reader.window(log.upper())


def tab(reader, page):
    """Tab goes as one reads, and a reader comes to what is only read."""
    for role, name in (("text", "QSOs"), ("text", "FREQ MHz"), (BUTTON, "Enter"), (BUTTON, "Up"),
                       (BUTTON, "Down"), (BUTTON, "FREQ"), (BUTTON, "SEARCH")):
        keys("Tab")
        reader.wait_for_focus(reader.find(page, role, name))


def sprint(reader):
    page = start(reader, "SELECT THE SKS SPRINT", "mylog.cbr")
    reader.focus(page, "text", "SKCC#")
    tab(reader, page)
    reader.enter(page, "HIS CALL", "k9skc")
    typed = reader.find(page, "text", "HIS CALL").queryText()
    if typed.getTextAtOffset(typed.characterCount, pyatspi.TEXT_BOUNDARY_WORD_START)[0] != "K9SKC":
        raise SystemExit("reader: the last word of a box is not told")
    keys("Return")
    reader.hears("NAME: CLUB", "alert ENTER LOGS", "notification CLUB, IL, 5000S. ENTER LOGS")
    keys("Return")
    reader.hears("LOGGED K9SKC 14050")
    reader.enter(page, "HIS CALL", "k9skc")
    keys("Return")
    reader.hears("alert REFUSED: K9SKC 20 METERS", "notification DUPE")
    correction = reader.opened(lambda: reader.press(page, "CORRECT"))
    reader.enter(correction, "HIS NAME", "joe")
    reader.press(correction, "SAVE CHANGES")
    reader.hears("Done")
    reader.close(correction)
    worked = [line.name[:-5] for line in reader.find(page, "list", "STATIONS WORKED")]
    score = reader.opened(lambda: reader.press(page, "SCORE"))
    total = reader.find(score, "text", "TOTAL SCORE:").queryText().getText(0, -1)
    reader.close(score)
    if (worked, total) != (["K9SKC JOE 5000S IL 14050 at"], "41"):
        raise SystemExit(f"reader: read {worked} and a score of {total!r}")
    members = (OPTION, "SHOW MEMBERS K...")
    lists = {(OPTION, "UPDATE  USING  SKCCDATA.TXT   (First Choice)"): {(BUTTON, "BROWSE"): {}},
             (OPTION, "UPDATE  USING  SKCCLIST.TXT    (Second Choice)"): {}}
    walk(reader, page, {
        (BUTTON, "CORRECT"): {}, (BUTTON, "DELETE"): {}, (BUTTON, "LIST"): {},
        (BUTTON, "FILES"): {(OPTION, "EDIT THE LOG"): {}, members: {},
                            (OPTION, "UPDATE THE DATABASE"): lists},
        (BUTTON, "BACKUP"): {(BUTTON, "BROWSE"): {}}, (BUTTON, "SCORE"): {},
        (BUTTON, "BONUS"): {}})
    keys("F1")
    sheet = reader.window("Keys")
    said = reader.find(sheet, "text", "KEYS").queryText().getText(0, -1)
    if "Alt+S Alt+L      SEARCH, LOG" not in said or not said.endswith("this sheet"):
        raise SystemExit(f"reader: the key sheet says {said!r}")
    reader.close(sheet)


def enter_station(reader, page):
    for name, text in (("HIS CALL", "k3y/1"), ("NAME", "hal"), ("STATE", "ct"), ("SKCC#", "100t")):
        reader.enter(page, name, text)


def event(reader):
    page = start(reader, "SELECT THE K3Y EVENT", "event.cbr")
    enter_station(reader, page)
    keys("Return")
    reader.hears("LOGGED K3Y/1")
    enter_station(reader, page)
    verdict = reader.opened(lambda: keys("Return"))
    check(verdict)
    reader.close(verdict)
    walk(reader, page, {(OPTION, "ADD K3Y/xx"): {}})
    areas = reader.opened(lambda: reader.press(page, "SCORE"))
    check(areas)
    reader.find(areas, "text", "K3Y/1 20M 100T")
    reader.press(areas, "Next Page")
    reader.wait("the other page", lambda: not visible(areas))
    regions = reader.window("K3Y Standings")
    check(regions)
    reader.close(regions)


def main():
    needed = (*outside.NEEDED, "dbus-send")
    if pyatspi is None or any(shutil.which(tool) is None for tool in needed):
        print("reader: skipped, python3-pyatspi or one of", *needed, "is not installed")
        return 77
    subprocess.run(["dbus-send", "--session", "--dest=org.a11y.Bus", "--print-reply",
                    "/org/a11y/bus", "org.freedesktop.DBus.Properties.Set",
                    "string:org.a11y.Status", "string:IsEnabled", "variant:boolean:true"],
                   check=True, stdout=subprocess.DEVNULL)
    with outside.Screen("1366x768"):
        reader = Reader()
        for play in (sprint, event):
            with tempfile.TemporaryDirectory(prefix="vantrel-reader-") as name:
                folder = pathlib.Path(name)
                (folder / "SKSDB2.TXT").write_text(MEMBER, newline="")
                with outside.running(sys.argv[1], folder):
                    play(reader)
    print("reader: everything is said")
    return 0


if __name__ == "__main__":
    sys.exit(main())
