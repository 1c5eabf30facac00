#!/usr/bin/env python3
"""Measures the start of the game and of bare_windows on a virtual display with openbox, without and
with a session bus: time to the first painted frame of the main window, CPU time until then, and dirty
memory a second later, both private and shared with the X server, which holds the windows' pixels.
Prints medians of interleaved runs, and their ratios to bare_windows.

    bench/startup.py build/release                      # 15 runs each
    bench/startup.py -n 25 build/release OTHER/malvone  # other builds of the game, too

Nothing else may run on the machine. Needs what ./check needs.
"""
import argparse
import ctypes
import os
import re
import statistics
import subprocess
import sys
import time

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "support"))
from desktop import Desktop
from processes import Failed, end, script, start

TITLE = re.compile(rb"Vers\.|Bare window")
CREATED, SUBSTRUCTURE, Z_PIXMAP, NON_EMPTY = 16, 1 << 19, 2, 3
FIGURES = ("first frame, ms", "CPU, ms", "private, KB", "shared, KB")

Word = ctypes.c_ulong
X = ctypes.CDLL("libX11.so.6")
DAMAGE = ctypes.CDLL("libXdamage.so.1")
for function, result, arguments in (
        (X.XOpenDisplay, ctypes.c_void_p, [ctypes.c_char_p]),
        (X.XDefaultRootWindow, Word, [ctypes.c_void_p]),
        (X.XSelectInput, None, [ctypes.c_void_p, Word, ctypes.c_long]),
        (X.XPending, ctypes.c_int, [ctypes.c_void_p]),
        (X.XNextEvent, None, [ctypes.c_void_p, ctypes.c_void_p]),
        (X.XFetchName, ctypes.c_int, [ctypes.c_void_p, Word, ctypes.c_void_p]),
        (X.XGetImage, ctypes.c_void_p, [ctypes.c_void_p, Word, *[ctypes.c_int] * 2,
                                        *[ctypes.c_uint] * 2, Word, ctypes.c_int]),
        (X.XGetPixel, Word, [ctypes.c_void_p, ctypes.c_int, ctypes.c_int]),
        (X.XDestroyImage, None, [ctypes.c_void_p]),
        (X.XFree, None, [ctypes.c_void_p]),
        (DAMAGE.XDamageQueryExtension, ctypes.c_int, [ctypes.c_void_p] * 3),
        (DAMAGE.XDamageCreate, Word, [ctypes.c_void_p, Word, ctypes.c_int])):
    function.restype, function.argtypes = result, arguments
GONE = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda *_: 0)
X.XSetErrorHandler(GONE)    # a window may go while it is looked at


class Watch:
    """Notes which windows have been drawn on."""

    def __init__(self, display):
        self.display = X.XOpenDisplay(display.encode())
        first, error = ctypes.c_int(), ctypes.c_int()
        DAMAGE.XDamageQueryExtension(self.display, ctypes.byref(first), ctypes.byref(error))
        self.damaged, self.drawn = first.value, set()
        X.XSelectInput(self.display, X.XDefaultRootWindow(self.display), SUBSTRUCTURE)

    def look(self):
        event = (Word * 24)()
        while X.XPending(self.display):
            X.XNextEvent(self.display, event)
            kind = event[0] & 0xFFFFFFFF
            if kind == CREATED:
                DAMAGE.XDamageCreate(self.display, event[5], NON_EMPTY)
            elif kind == self.damaged:
                self.drawn.add(event[4])

    def title(self, window):
        name = ctypes.c_char_p()
        X.XFetchName(self.display, window, ctypes.byref(name))
        return name.value or b""

    def is_painted(self, window):
        """Whether a line across it has more than one colour."""
        line = X.XGetImage(self.display, window, 250, 200, 200, 1, Word(-1).value, Z_PIXMAP)
        colours = {X.XGetPixel(line, x, 0) for x in range(200)} if line else ()
        if line:
            X.XDestroyImage(line)
        return len(colours) > 1

    def is_shown(self):
        self.look()
        return any(TITLE.search(self.title(w)) and self.is_painted(w) for w in self.drawn)


def measure(desktop, program):
    """The figures of one start."""
    watch = Watch(desktop.env["DISPLAY"])
    begin = time.monotonic()
    process = subprocess.Popen([program], env=desktop.env, stderr=subprocess.DEVNULL)
    try:
        while not watch.is_shown():
            if process.poll() is not None or time.monotonic() > begin + 30:
                raise Failed(f"{program} shows no window")
            time.sleep(0.0005)
        first_frame = 1000 * (time.monotonic() - begin)
        cpu = 1000 * time.clock_gettime(~process.pid << 3 | 2)  # the process's own clock
        time.sleep(1)
        with open(f"/proc/{process.pid}/smaps_rollup", encoding="ascii") as file:
            dirty = re.findall(r"(?:Private|Shared)_Dirty:\s+(\d+)", file.read())
        return first_frame, cpu, *map(int, reversed(dirty))
    finally:
        end(process)


def session_bus(desktop):
    bus = desktop.start("dbus-daemon", "--session", "--nofork", "--print-address",
                        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    desktop.env["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", help="a build folder with bare_windows and malvone")
    parser.add_argument("others", nargs="*", help="more programs to measure")
    parser.add_argument("-n", type=int, default=15, help="runs of each program")
    options = parser.parse_args()
    programs = [os.path.join(options.build, name) for name in ("bare_windows", "malvone")]
    programs += options.others
    for bus in (False, True):
        with Desktop(size=(1280, 1024)) as desktop:
            if bus:
                session_bus(desktop)
            runs = [[measure(desktop, program) for program in programs]
                    for _ in range(options.n + 1)][1:]
        medians = [[statistics.median(run[i][j] for run in runs) for j in range(len(FIGURES))]
                   for i in range(len(programs))]
        print("with a session bus" if bus else "without a session bus")
        for program, figures in zip(programs, medians):
            told = (f"{name} {figure:7.1f} ({figure / bare:.2f})"
                    for name, figure, bare in zip(FIGURES, figures, medians[0]))
            print("  " + "   ".join(told) + "   " + program, flush=True)


if __name__ == "__main__":
    script(main, 3600)
