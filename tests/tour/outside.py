#!/usr/bin/env python3
"""Plays contests on the built program itself, from outside, with real keys.

usage: outside.py PROGRAM

The program is copied alone into an empty folder and started in a window of a small virtual screen
(Xvfb, openbox); xdotool presses the keys. The logs are compared byte for byte with what is
expected, and the keys are counted that a contact costs the operator. Exits with 77 (skipped)
where the virtual screen cannot be had.
"""
import contextlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

PATIENCE = 20.0  # seconds; a program built with sanitizers on a busy machine is slow
NEEDED = ("Xvfb", "openbox", "xdotool")
START, MAIN = "Vantrel - Start", "W1ABC SKS MYLOG.CBR - Vantrel"
CORRECTION, DELETION = "CORRECTION PAGE", "DELETE AN ENTRY FROM THE CABRILLO FILE"
MAIN_K3Y = "W1ABC K3Y MYK3Y.CBR - Vantrel"
KEYS = {"\r": "Return", " ": "space", ".": "period", "/": "slash", "^": "Up", "~": "Delete"}


class Screen:
    """A virtual screen with a window manager; DISPLAY names it."""

    def __init__(self, size, *options):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", size + "x24", "-nolisten", "tcp",
             *options],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        number = os.read(read, 16).decode().strip()
        os.environ["DISPLAY"] = ":" + number
        # A window that comes before its manager never gets the keyboard.
        with tempfile.TemporaryDirectory() as folder:
            ready = pathlib.Path(folder) / "ready"
            self.manager = subprocess.Popen(["openbox", "--startup", f"touch {ready}"],
                                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            wait_for("the window manager", ready.exists)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()


def start(program):
    """Starts it in its folder, on the screen of DISPLAY; one for Windows under Wine."""
    # Its libraries' own leaks on a real display are not what is tried here.
    environment = dict(os.environ, TZ="UTC", LC_ALL="C.UTF-8", ASAN_OPTIONS="detect_leaks=0",
                       QT_QPA_PLATFORM="windows" if program.suffix == ".exe" else "xcb")
    runner = ["wine"] if program.suffix == ".exe" else []
    return subprocess.Popen([*runner, program], cwd=program.parent, env=environment)


@contextlib.contextmanager
def running(built, folder):
    """The program alone in the folder."""
    program = start(pathlib.Path(shutil.copy(built, folder)))
    try:
        yield program
    finally:
        if program.poll() is None:
            program.kill()
            program.wait()


def xdotool(*words):
    done = subprocess.run(["xdotool", *words], capture_output=True, text=True, check=False)
    return done.stdout.strip()


def wait_for(what, condition):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            raise SystemExit(f"outside: waited in vain for {what}")
        time.sleep(0.05)


def wait_for_window(title):
    wait_for(f"the window {title!r}",
             lambda: xdotool("getactivewindow", "getwindowname") == title)


def keys(*names):
    xdotool("key", "--delay", "20", *names)


def press(text):
    """The keys of the text, "&m" being Alt+M, "^" the arrow up, "~" Del; says how many."""
    names = [("alt+" if key[0] == "&" else "") + KEYS.get(key[-1], key[-1])
             for key in re.findall("&?.", text, re.DOTALL)]
    keys(*names)
    return len(names)


def type_text(text):
    xdotool("type", "--delay", "15", text)


def read(path):
    return path.read_bytes() if path.exists() else b""


def wait_for_lines(path, count):
    wait_for(f"{count} lines in {path.name}", lambda: read(path).count(b"\r\n") == count)


def contact(khz, when, call, name, state, number, marker=""):
    return (f"QSO: {khz} CW {when[0]} {when[1]} W1ABC      599 JOHN       MA 1234T "
            f"{call:<10} 599 {name:<10} {state:<3} {number:<6}{marker:<6}")


def text_of(lines):
    return "".join(line + "\r\n" for line in lines).encode("latin-1")


def compare(path, expected):
    if read(path) != expected:
        raise SystemExit(f"outside: {path.name}\n  got      {read(path)!r}\n  expected {expected!r}")


def must_hold(path, contacts):
    """Waits until the log holds these, each (kHz, his call, name, state, number) and perhaps a
    marker, at the times that stand there."""
    def expected():
        whens = re.findall(r" CW (20\d\d-\d\d-\d\d) (\d{4}) ", read(path).decode("latin-1"))
        whens += [("not", "logged")] * len(contacts)
        return text_of(HEADER + [contact(khz, when, *his)
                                 for (khz, *his), when in zip(contacts, whens)])
    with contextlib.suppress(SystemExit):
        wait_for("the log", lambda: read(path) == expected())
    compare(path, expected())


HEADER = [" Contest: SKS", " My Call: W1ABC", "My SKCC#: 1234T ", "   Count: 66 to HisCall"]
LOG = "mylog.cbr"  # named as it is typed; the program shows it in upper case


def fill_start_page():
    """The focus is in the call box; the tab order follows the page."""
    type_text("w1abc\tjohn\tma\t1234t\t\t" + LOG)
    keys("Tab", "Tab", "Tab", "Down")  # default name, browse, start a new: YES
    wait_for_window("WARNING")
    keys("alt+y")
    wait_for_window(START)


# His call, name, state and number.
BLIND = [(f"K2A{chr(65 + n)}", "JOE", "CT", "0123T") for n in range(22)]
JOE, CLUB = ("K1ABC", "JOE", "CT", "0123T"), ("K9SKC", "CLUB", "IL", "5000S")
ANN, KLAUS = ("N4XYZ", "ANN", "NC", "8123C"), ("DL1QRS", "KLAUS", "DL", "9010")
BOB, SUE = ("W5NEW", "BOB", "TX", "NONE"), ("VE3ABC", "SUE", "ON", "4411T")
IAN = ("G4AAA/P", "IAN", "G", "77S")
CORRECTED = ("K9SKD", *CLUB[1:])
ROSTER = {"SKSDB2.TXT": [*BLIND, JOE, CLUB], "SKSDB3.TXT": [ANN], "SKSDB5.TXT": [KLAUS]}

# What costs how many keys (None: nobody counts), the keys, and what the log gains by them.
CONTEST = [
    ("a member", 7, "k1abc\r\r", [("14050", *JOE)]),
    (None, 0, "n4xyz\r\r", [("14050", *ANN)]),
    ("a non-member", 19, "w5new\r bob\rtx\rnone\r", [("14050", *BOB)]),
    ("a typed frequency", 6, "&m7045\r", []),
    (None, 0, "k1abc\r\rdl1qrs\r\r", [(" 7045", *JOE), (" 7045", *KLAUS)]),
    (None, 0, "&m3.55\rk9skc\r\rve3abc\r sue\ron\r4411t\r",
     [(" 3550", *CLUB), (" 3550", *SUE)]),
    (None, 0, "&m21050\rg4aaa/p\r ian\rg\r77s\r", [("21050", *IAN)]),
    ("a non-member on the second band", 8, "w5new\r \r", [("21050", *BOB)]),
    # A duplicate leaves nothing in the boxes and in the log.
    (None, 0, "&m1820\rk9skc\r\rk1abc&m14\r\r", [(" 1820", *CLUB)]),
    (None, 0, "&m14050\r", []),
    # His number came through, his call did not: the first Enter yields the call, the second looks
    # it up, the third logs.
    ("a number", 7, "9010\r\r\r", [("14050", *KLAUS)]),
    (None, 0, "&m14.055\rk9skc\r\r", [("14055", *CLUB)]),
]
# What costs how many keys, those on the main page, the page they open, the keys there, and what
# becomes of the last contact.
CHANGES = [
    ("the last call corrected", 8, "^\r", CORRECTION, "k9skd&s", [("14055", *CORRECTED)]),
    ("the last band corrected", 9, "^\r", CORRECTION, "&f21055&s", [("21055", *CORRECTED)]),
    ("the last contact deleted", 3, "^~", DELETION, "&d", []),
]


def takes(what, most, count):
    if what is None:
        return
    print(f"outside: {what} takes {count} keys")
    if count != most:
        raise SystemExit(f"outside: {what} may take {most} keys")


def write_roster(folder):
    for file, members in ROSTER.items():
        (folder / file).write_text("".join(
            f"{call:<10}{number:<10}{name:<10}{state:<3}\r\n"
            for call, name, state, number in members), newline="")


def type_blindly(log):
    """Twenty-two contacts in a second and a half, eyes shut: none is lost, all in order."""
    xdotool("key", "--delay", "9", *[key for call, *_ in BLIND
                                     for key in [*call.lower(), "Return", "Return"]])
    logged = [("14050", *his) for his in BLIND]
    must_hold(log, logged)
    return logged


def play_contest(log, logged):
    for what, most, text, gained in CONTEST:
        count = press(text)
        logged = logged + gained
        must_hold(log, logged)
        takes(what, most, count)
    for what, most, text, page, more, last in CHANGES:
        count = press(text)
        wait_for_window(page)
        takes(what, most, count + press(more))
        must_hold(log, logged[:-1] + last)
        keys("alt+x")
        wait_for_window(MAIN)


def play_k3y(folder):
    """The tag is chosen when the station is known to be one, just before logging."""
    log = folder / "MYK3Y.CBR"
    log.write_bytes(text_of(HEADER))
    settings = folder / "Vantrel.CFG"
    settings.write_bytes(read(settings).replace(b"SKS", b"K3Y").replace(b"MYLOG", b"MYK3Y"))
    with running(sys.argv[1], folder) as program:
        wait_for_window(START)
        keys("alt+s")
        wait_for_window(MAIN_K3Y)
        press("gb0skc\r ian\rg\r77s")
        count = press("&k")
        wait_for_window("K3Y")
        takes("a K3Y tag", 2, count + press("e"))
        wait_for_window(MAIN_K3Y)
        press("\r")
        must_hold(log, [("14050", "GB0SKC", *IAN[1:], "K3Y/EU")])
        leave(program)


def leave(program):
    keys("alt+x")
    if program.wait(PATIENCE) != 0:
        raise SystemExit(f"outside: exit code {program.returncode}")


def can_run():
    missing = [tool for tool in NEEDED if shutil.which(tool) is None]
    if missing:
        print("skipped, not installed:", ", ".join(missing))
    return not missing


def main():
    if not can_run():
        return 77
    with Screen("1024x600"), tempfile.TemporaryDirectory(prefix="vantrel-outside-") as name:
        folder = pathlib.Path(name)
        write_roster(folder)
        with running(sys.argv[1], folder) as program:
            wait_for_window(START)
            fill_start_page()
            keys("alt+s")
            wait_for_window(MAIN)
            play_contest(folder / LOG, type_blindly(folder / LOG))
            leave(program)
        play_k3y(folder)
    print("outside: the logs are as expected")
    return 0


if __name__ == "__main__":
    sys.exit(main())
