#!/usr/bin/env python3
"""Kills the built program at random moments while it logs and while it imports.

usage: killed.py PROGRAM

The same folder is used again and again, on a virtual screen with real keys as in outside.py. After
each kill the log holds whole contacts in the order in which they were typed, and the next start
finds the five roster files of one import. Six lives; with VANTREL_LONG in the environment two
hundred. The folder's name is no UTF-8. Exits with 77 (skipped) where the virtual screen cannot be
had.
"""
import os
import pathlib
import random
import subprocess
import sys
import tempfile
import time

import outside

ROSTER = [f"SKSDB{number}.TXT" for number in range(1, 6)]
WAY_TO_IMPORT = [(["alt+i"], "Vantrel - Files"),
                 (["alt+u"], "SELSCT FILE TO UPDATE SKSDBx FILES"),
                 (["Tab", "space"], "Read SKCCDATA.TXT")]
FOLDER = os.fsdecode(b"vantrel-killed-\xe9-")


def must(condition, what):
    if not condition:
        raise SystemExit(f"killed: {what}")


def log_until_killed(program, folder, life):
    before = outside.read(folder / outside.LOG)
    calls = [f"K{life}{chr(65 + n)}" for n in range(22)]
    exchange = ["Return", "Tab", "Tab", "Tab", "j", "o", "e", "Tab", "c", "t", "Tab", "1", "Return"]
    with subprocess.Popen(["xdotool", "key", "--delay", "5",
                           *[key for call in calls for key in [*call.lower(), *exchange]]]):
        time.sleep(random.uniform(0, 1.5))
        program.kill()
    after = outside.read(folder / outside.LOG)
    must(after.startswith(before), "a contact was lost")
    lines = after[len(before):].decode("latin-1").split("\r\n")
    must(lines.pop() == "", "half a line was logged")
    must([line[65:75].strip() for line in lines] == calls[:len(lines)], f"logged: {lines}")
    return len(lines)


def import_until_killed(program, folder, life):
    members = "".join(f"{n}|{'AKNWV'[n % 5]}{n}XY|LIFE{life}|TOWN|MA|||||||\r\n"
                      for n in range(1, 10001))
    (folder / "skccdata.txt").write_text(members, newline="")
    for way, page in WAY_TO_IMPORT:
        outside.keys(*way)
        outside.wait_for_window(page)
    outside.keys("alt+a")
    time.sleep(random.uniform(0, 1))
    program.kill()


def lists_of(folder):
    """The lists whose members stand in the roster."""
    lines = b"".join(outside.read(folder / name) for name in ROSTER).decode("latin-1").split("\r\n")
    return {line[20:30].strip() for line in lines if line} or {""}


def main():
    if not outside.can_run():
        return 77
    lives = 200 if os.environ.get("VANTREL_LONG") else 6
    contacts, lists = 0, set()
    with outside.Screen("1024x600"), tempfile.TemporaryDirectory(prefix=FOLDER) as name:
        folder = pathlib.Path(name)
        for life in range(lives + 1):
            with outside.running(sys.argv[1], folder) as program:
                outside.wait_for_window(outside.START)
                found = lists_of(folder)
                must(len(found) == 1, f"the roster is a mixture of {found}")
                lists |= found
                must(not list(folder.glob(".*vantrel-[nofu]*")), "scratch was left")
                if life == lives:
                    break
                if life == 0:
                    outside.fill_start_page()
                outside.keys("alt+s")
                outside.wait_for_window(outside.MAIN)
                if life % 2 == 0:
                    contacts += log_until_killed(program, folder, life)
                else:
                    import_until_killed(program, folder, life)
    print(f"killed: {lives} times; {contacts} contacts and {len(lists) - 1} imports came through")
    return 0


if __name__ == "__main__":
    sys.exit(main())
