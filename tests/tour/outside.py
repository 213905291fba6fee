#!/usr/bin/env python3
"""Plays a contest on the built program itself, from outside, with real keys.

usage: outside.py PROGRAM

The program is copied alone into an empty folder and started in a window of a virtual screen
(Xvfb, openbox); xdotool presses the keys. The log and its backup are compared byte for byte with
what is expected. Exits with 77 (skipped) where the virtual screen cannot be had.
"""
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


class Screen:
    """A virtual screen with a window manager; DISPLAY names it."""

    def __init__(self, *options):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1366x768x24", "-nolisten", "tcp",
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

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()


def xdotool(*words):
    done = subprocess.run(["xdotool", *words], capture_output=True, text=True, check=False)
    return done.stdout.strip()


def wait_for(what, condition):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            raise SystemExit(f"outside: waited in vain for {what}")
        time.sleep(0.05)


def active_window():
    return xdotool("getactivewindow")


def active_title():
    return xdotool("getactivewindow", "getwindowname")


def wait_for_window(title):
    wait_for(f"the window {title!r}", lambda: active_title() == title)


def keys(*names):
    xdotool("key", "--delay", "20", *names)


def type_text(text):
    xdotool("type", "--delay", "15", text)


def read(path):
    return path.read_bytes() if path.exists() else b""


def wait_for_lines(path, count):
    wait_for(f"{count} lines in {path.name}", lambda: read(path).count(b"\r\n") == count)


def contact(khz, when, call, name, state, number):
    date, clock = when
    return (f"QSO: {khz} CW {date} {clock} W1ABC      599 JOHN       MA 1234T "
            f"{call:<10} 599 {name:<10} {state:<3} {number:<6}      ")


def text_of(lines):
    return "".join(line + "\r\n" for line in lines).encode("latin-1")


def compare(path, expected):
    got = read(path)
    if got != expected:
        raise SystemExit(f"outside: {path.name}\n  got      {got!r}\n  expected {expected!r}")


HEADER = [" Contest: SKS", " My Call: W1ABC", "My SKCC#: 1234T ", "   Count: 66 to HisCall"]

LOG = "mylog.cbr"  # named as it is typed; the program shows it in upper case

# frequency typed or "", call, and name, state, number: typed unless the roster has them
CONTEST = [
    ("", "k1abc", ("JOE", "CT", "0123T"), True, "14050"),
    ("", "w5new", ("BOB", "TX", "NONE"), False, "14050"),
    ("7040", "k1abc", ("JOE", "CT", "0123T"), True, " 7040"),
]


def fill_start_page():
    """The focus is in the call box; the tab order follows the page."""
    type_text("w1abc\tjohn\tma\t1234t\t\t" + LOG)
    keys("Tab", "Tab", "Tab", "Down")  # default name, browse, start a new: YES
    wait_for_window("WARNING")
    keys("alt+y")
    wait_for_window("Vantrel")


def log_contacts(log):
    count = len(HEADER)
    for frequency, call, (name, state, number), member, _khz in CONTEST:
        if frequency:
            keys(*["Tab"] * 6)  # reports, name, state, number, frequency
            type_text(frequency)
            keys("Return")
        type_text(call)
        keys("Return")
        if member:
            keys("Return")
        else:
            keys("Tab", "Tab", "Tab")
            type_text(f"{name.lower()}\t{state.lower()}\t{number.lower()}")
            keys("Return")
        count += 1
        wait_for_lines(log, count)


def play(program, folder):
    log = folder / LOG
    (folder / "SKSDB2.TXT").write_bytes(b"K1ABC     0123T     JOE       CT \r\n")
    backup = folder / "backup"
    backup.mkdir()
    wait_for_window("Vantrel")
    fill_start_page()
    wait_for("the log", log.exists)
    start = active_window()
    keys("alt+s")
    wait_for("the main page", lambda: active_window() not in ("", start))  # of the same title
    log_contacts(log)

    type_text("w5new")  # on 40 m: not worked here yet, so NO LOG must leave no trace
    keys("Return", "Escape")
    type_text("k1ab")  # a duplicate of K1ABC on 40 m
    keys("Return", "Return")
    time.sleep(0.3)

    lines = read(log).decode("latin-1").split("\r\n")[len(HEADER):-1]
    whens = [(line[14:24], line[25:29]) for line in lines]
    for date, clock in whens:
        if not re.fullmatch(r"20\d\d-\d\d-\d\d", date) or not re.fullmatch(r"\d{4}", clock):
            raise SystemExit(f"outside: no date and time: {date} {clock}")
    expected = [contact(khz, when, call.upper(), *exchange)
                for (_f, call, exchange, _m, khz), when in zip(CONTEST, whens)]
    compare(log, text_of(HEADER + expected))

    keys("alt+i")
    wait_for_window("Vantrel - Files")
    keys("alt+i")
    wait_for("the ADIF file", lambda: read(folder / "MYLOG.ADI").endswith(b"<EOF>\r\n"))
    keys("Escape")
    wait_for_window("Vantrel")

    keys("alt+b")
    wait_for_window("BACKUP CABRILLO FILE")
    type_text(str(backup))
    keys("Return")
    wait_for("the backup", (backup / "MYLOG.CBR").exists)
    wait_for("its end", lambda: read(backup / "MYLOG.CBR") == read(log))
    compare(log, text_of(HEADER + expected))
    keys("Escape")
    wait_for_window("Vantrel")
    keys("alt+x")
    if program.wait(PATIENCE) != 0:
        raise SystemExit(f"outside: exit code {program.returncode}")


def main():
    missing = [tool for tool in NEEDED if shutil.which(tool) is None]
    if missing:
        print("outside: skipped, not installed:", ", ".join(missing))
        return 77
    screen = Screen()
    with tempfile.TemporaryDirectory(prefix="vantrel-outside-") as name:
        folder = pathlib.Path(name)
        shutil.copy(sys.argv[1], folder / "vantrel")
        # Its libraries' own leaks on a real display are not what is tried here.
        environment = dict(os.environ, TZ="UTC", LC_ALL="C.UTF-8", QT_QPA_PLATFORM="xcb",
                           ASAN_OPTIONS="detect_leaks=0")
        program = subprocess.Popen([folder / "vantrel"], cwd=folder, env=environment)
        try:
            play(program, folder)
        finally:
            if program.poll() is None:
                program.kill()
                program.wait()
            screen.close()
    print("outside: log and backup are as expected")
    return 0


if __name__ == "__main__":
    sys.exit(main())
