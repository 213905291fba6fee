#!/usr/bin/env python3
"""Plays a contest on the built program itself, from outside, with real keys.

usage: outside.py PROGRAM

The program is copied alone into an empty folder and started in a window of a small virtual screen
(Xvfb, openbox); xdotool presses the keys. The log is compared byte for byte with what is
expected. Exits with 77 (skipped) where the virtual screen cannot be had.
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


@contextlib.contextmanager
def running(built, folder):
    """The program alone in the folder, on the screen of DISPLAY."""
    shutil.copy(built, folder / "vantrel")
    # Its libraries' own leaks on a real display are not what is tried here.
    environment = dict(os.environ, TZ="UTC", LC_ALL="C.UTF-8", QT_QPA_PLATFORM="xcb",
                       ASAN_OPTIONS="detect_leaks=0")
    program = subprocess.Popen([folder / "vantrel"], cwd=folder, env=environment)
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


def type_text(text):
    xdotool("type", "--delay", "15", text)


def read(path):
    return path.read_bytes() if path.exists() else b""


def wait_for_lines(path, count):
    wait_for(f"{count} lines in {path.name}", lambda: read(path).count(b"\r\n") == count)


def contact(khz, when, call, name, state, number):
    return (f"QSO: {khz} CW {when[0]} {when[1]} W1ABC      599 JOHN       MA 1234T "
            f"{call:<10} 599 {name:<10} {state:<3} {number:<6}      ")


def text_of(lines):
    return "".join(line + "\r\n" for line in lines).encode("latin-1")


def compare(path, expected):
    if read(path) != expected:
        raise SystemExit(f"outside: {path.name}\n  got      {read(path)!r}\n  expected {expected!r}")


HEADER = [" Contest: SKS", " My Call: W1ABC", "My SKCC#: 1234T ", "   Count: 66 to HisCall"]
LOG = "mylog.cbr"  # named as it is typed; the program shows it in upper case


def fill_start_page():
    """The focus is in the call box; the tab order follows the page."""
    type_text("w1abc\tjohn\tma\t1234t\t\t" + LOG)
    keys("Tab", "Tab", "Tab", "Down")  # default name, browse, start a new: YES
    wait_for_window("WARNING")
    keys("alt+y")
    wait_for_window(START)


def type_blindly(folder):
    """Twenty-two contacts in a second and a half, eyes shut: none is lost, all in order."""
    calls = [f"K2A{chr(65 + n)}" for n in range(22)]
    (folder / "SKSDB2.TXT").write_text("".join(
        f"{call:<10}0123T     JOE       CT \r\n" for call in calls), newline="")
    wait_for_window(START)
    fill_start_page()
    keys("alt+s")
    wait_for_window(MAIN)
    xdotool("key", "--delay", "9", *[key for call in calls
                                     for key in [*call.lower(), "Return", "Return"]])
    wait_for_lines(folder / LOG, len(HEADER) + len(calls))
    whens = re.findall(r" CW (20\d\d-\d\d-\d\d) (\d{4}) ", read(folder / LOG).decode("latin-1"))
    compare(folder / LOG, text_of(HEADER + [contact("14050", when, call, "JOE", "CT", "0123T")
                                            for call, when in zip(calls, whens)]))


def can_run():
    missing = [tool for tool in NEEDED if shutil.which(tool) is None]
    if missing:
        print("skipped, not installed:", ", ".join(missing))
    return not missing


def main():
    if not can_run():
        return 77
    with Screen("1024x600"), tempfile.TemporaryDirectory(prefix="vantrel-outside-") as name:
        with running(sys.argv[1], pathlib.Path(name)) as program:
            type_blindly(pathlib.Path(name))
            keys("alt+x")
            if program.wait(PATIENCE) != 0:
                raise SystemExit(f"outside: exit code {program.returncode}")
    print("outside: the log is as expected")
    return 0


if __name__ == "__main__":
    sys.exit(main())
