#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Our figures beside those of tlf, Debian's contest logger for terminals, as rows of a table.

usage: bench/peer.py BENCHES      the folder of our built benches, build/release/bench

tlf runs in a window of tmux with logs of contacts like those of our benches; our figures are
the rows of our own benches. What tlf cannot do is told in its column and is no failure.
"""
import os
import pathlib
import re
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

PATIENCE = 30.0  # seconds
STARTS = 7
CONTACTS = 41
EXPORTS = 9
FULL = 12000  # contacts
CALLS = 900  # different ones among them, as in our benches; tlf crashes beyond 5,000
BANDS = (160, 80, 40, 20, 15, 10)
LOG = "sprint.log"
ADIF = "sprint.adi"

# CTCOMPATIBLE: Enter logs at once, without keying what it would send.
SETTINGS = "CALL=W1ABC\nRULES=sprint\nTIME_OFFSET=0\nTHISNODE=A\nSCOREWINDOW\nNOB4\nCTCOMPATIBLE\n"
RULES = f"CONTEST=sprint\nLOGFILE={LOG}\nCONTEST_MODE\nONE_POINT\n"


class PeerFailed(Exception):
    """tlf did not do what it was asked; the text says what it did instead."""


def log_of(contacts, calls):
    """A log in tlf's own columns, a contact a minute."""
    lines = []
    for i in range(contacts):
        when = f"{1 + i // 1440:02}-Jun-11 {i // 60 % 24:02}:{i % 60:02}"
        call = f"K{i % calls}AB"
        exchange = f"JOE CT {1000 + i % calls}"
        lines.append(f"{BANDS[i // calls % 6]:>3}CW  {when} {i + 1:04}".ljust(29)
                     + f"{call:<14} 599  599  {exchange:<22} 1         \n")
    return "".join(lines)


class Peer:
    """tlf in a tmux server of its own, on a folder of its own."""

    def __init__(self, folder):
        self.folder = folder
        self.pid = None  # of tlf, once it has been started
        (folder / "rules").mkdir()
        (folder / "rules" / "sprint").write_text(RULES)
        (folder / "logcfg.dat").write_text(SETTINGS)
        # One window keeps the server; tlf wants 25 lines or more.
        self.tmux("new-session", "-d", "-x", "80", "-y", "30", "cat", ";",
                  "set", "-g", "remain-on-exit", "on", ";", "set", "-g", "status", "off")

    def tmux(self, *words):
        done = subprocess.run(["tmux", "-S", self.folder / "tmux", "-f", "/dev/null", *words],
                              cwd=self.folder, env=dict(os.environ, TZ="UTC"),
                              capture_output=True, text=True, check=False)
        return done.stdout

    def wait_for(self, what, condition):
        """Until condition(text on the screen)."""
        end = time.monotonic() + PATIENCE
        while True:
            screen = self.tmux("capture-pane", "-p", "-t", ":tlf")
            if condition(screen):
                return
            if not self.runs():
                died = self.tmux("display-message", "-p", "-t", ":tlf", "#{pane_dead_signal}")
                self.pid = None
                raise PeerFailed(f"signal {died.strip()}" if died.strip() else "ended")
            if time.monotonic() > end:
                raise PeerFailed(f"no {what}")
            time.sleep(0.01)

    def open_window(self, through=()):
        self.pid = int(self.tmux("new-window", "-P", "-F", "#{pane_pid}", "-n", "tlf",
                                 *through, "tlf", "-n", "-r"))

    def read_licence(self):
        """Its first start in a folder shows the licence and waits for a key."""
        (self.folder / LOG).write_text("")
        self.open_window()
        self.wait_for("licence", lambda screen: "WARRANTY" in screen)
        self.type("", "Enter")
        self.wait_for("screen", lambda screen: "Score: " in screen)

    def start(self, log, through=()):
        """Starts it anew on that log; milliseconds until its screen shows the log's score."""
        self.stop()
        (self.folder / LOG).write_text(log)
        begin = time.monotonic()
        self.open_window(through)
        self.wait_for("screen", lambda screen: "Score: " in screen)
        return (time.monotonic() - begin) * 1000

    def runs(self):
        # A process that has ended and that tmux has not noticed yet has no program any more.
        return self.pid is not None and os.path.exists(f"/proc/{self.pid}/exe")

    def stop(self):
        if self.runs():
            os.kill(self.pid, signal.SIGKILL)
            while self.runs():
                time.sleep(0.01)
        self.tmux("kill-window", "-t", ":tlf")

    def close(self):
        self.stop()
        self.tmux("kill-server")

    def memory(self):
        """Its resident memory in MB."""
        if not self.runs():
            raise PeerFailed("ended")
        status = pathlib.Path(f"/proc/{self.pid}/status").read_text()
        return int(re.search(r"VmRSS:\s+(\d+) kB", status)[1]) / 1024

    def type(self, text, key):
        self.tmux("send-keys", "-t", ":tlf", "-l", text, ";", "send-keys", "-t", ":tlf", key)

    def log_contact(self, call):
        before = (self.folder / LOG).stat().st_size
        # The log is synced by writing back all that the machine has: nobody else's bytes first.
        os.sync()
        self.type(call, "Space")
        self.type("JOE CT 1234", "Enter")
        self.wait_for("contact", lambda _: (self.folder / LOG).stat().st_size > before)

    def export(self):
        """It empties the file, asks for the exchange sent, and writes."""
        self.type(":adif", "Enter")
        self.wait_for("question", lambda _: self.adif() == b"")
        self.type("CT", "Enter")
        self.wait_for("ADIF", lambda _: self.adif().count(b"<eor>\n") == FULL)

    def adif(self):
        path = self.folder / ADIF
        return path.read_bytes() if path.exists() else b"no file"


def from_key_to(call, trace):
    """Milliseconds from each last look at the keyboard that found a key to the end of `call`.

    Only a few of its system calls are stopped at, so that watching costs it next to nothing.
    """
    times = []
    key = None
    for line in trace.splitlines():
        if not (parts := re.match(r"([\d.]+) (.*?)(?: = (\d+).*)? <([\d.]+)>$", line)):
            continue
        begin, what, result, taken = float(parts[1]), parts[2], parts[3], float(parts[4])
        if what.startswith("poll(") and result == "1":
            key = begin + taken
        elif key and re.match(call, what):
            times.append((begin + taken - key) * 1000)
            key = None
    return times


def watched(peer):
    """Milliseconds for a contact with its sync, and for an ADIF, each from Enter."""
    trace = peer.folder / "trace"
    strace = ("strace", "-D", "-ff", "--seccomp-bpf", "-e", "trace=poll,sync,close",
              "-e", "signal=none", "-y", "-ttt", "-T", "-o", trace)
    peer.start(log_of(FULL, CALLS), strace)
    for _ in range(EXPORTS):
        peer.export()
    for i in range(CONTACTS):
        peer.log_contact(f"W{i % 10}NEW")
    peer.stop()
    threads = [path.read_text() for path in peer.folder.glob("trace.*")]
    keyboard = max(threads, key=lambda text: text.count("poll("))
    contacts = from_key_to(r"sync\(", keyboard)
    exports = from_key_to(rf"close\(\d+<[^>]*{ADIF}", keyboard)
    if not contacts or not exports:
        raise PeerFailed("not seen")
    return statistics.median(contacts), statistics.median(exports)


class Ours:
    """The rows of our benches: "name   ours ...", the time in milliseconds or the memory in MB."""

    def __init__(self, folder):
        self.folder = folder
        self.printed = {}

    def row(self, program, name, *options):
        if program not in self.printed:
            self.printed[program] = subprocess.run(
                [self.folder / program, *options], text=True, check=True,
                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
        row = re.search(rf"^{re.escape(name)}  +([\d.]+)", self.printed[program], re.M)
        if row is None:
            raise SystemExit(f"peer: {program} printed no row {name!r}")
        return float(row[1])


def amount(value, unit):
    if isinstance(value, str):
        return value
    return f"{value:.{3 if value < 1 else 2 if value < 100 else 0}f} {unit}"


def print_row(name, ours, its, unit, at_most=None):
    """`its` may be a text that says what tlf did instead."""
    ratio = "" if isinstance(its, str) else f"{ours / its:.2f}"
    most = "" if at_most is None else f"{at_most:.2f}"
    print(f"{name:<52}{amount(ours, unit):>14}{amount(its, unit):>14}{ratio:>8}{most:>10}",
          flush=True)


def attempt(measure):
    try:
        return measure()
    except PeerFailed as failed:
        return str(failed)


def median_start(peer, log):
    return statistics.median(peer.start(log) for _ in range(STARTS))


def compare(peer, ours):
    peer.read_licence()
    full = log_of(FULL, CALLS)
    start = "frmVantrelStart_bench"
    main_page = ours.row(start, "process start to painted main page, 12,000 contacts")
    # tlf sleeps a second of its start, so that its messages can be read.
    print_row("start to start page, beside tlf with an empty log",
              ours.row(start, "process start to painted start page"),
              attempt(lambda: median_start(peer, "")), "ms", 0.25)
    print_row("start to main page of 12,000, beside tlf", main_page,
              attempt(lambda: median_start(peer, full)), "ms", 0.25)
    print_row("memory with 12,000, beside tlf", ours.row(start, "memory with 12,000"),
              attempt(peer.memory), "MB")
    # The log of our bench has 12,000 different calls.
    print_row("start with 12,000 different calls, beside tlf", main_page,
              attempt(lambda: median_start(peer, log_of(FULL, FULL))), "ms", 0.25)
    if shutil.which("strace") is None:
        print("strace is not installed: no contact and no ADIF beside tlf")
        return
    its = attempt(lambda: watched(peer))
    contact, adif = (its, its) if isinstance(its, str) else its
    print_row("one contact into a full log, beside tlf",
              ours.row("contact_bench", "one contact into 11999",
                       "--benchmark_filter=one contact into 11999"), contact, "ms", 1)
    print_row("ADIF of 12,000, beside tlf",
              ours.row("output_bench", "ADIF of 12,000", "--benchmark_filter=^ADIF of 12,000/"),
              adif, "ms", 0.25)


def main():
    if len(sys.argv) != 2:
        raise SystemExit(__doc__)
    if shutil.which("tlf") is None or shutil.which("tmux") is None:
        print("tlf or tmux is not installed: no side-by-side figures")
        return 0
    with tempfile.TemporaryDirectory(prefix="vantrel-peer-") as folder:
        peer = Peer(pathlib.Path(folder))
        try:
            compare(peer, Ours(pathlib.Path(sys.argv[1])))
        except PeerFailed as failed:
            print("tlf does not start:", failed)
        finally:
            peer.close()
    return 0


if __name__ == "__main__":
    sys.exit(main())
