#!/usr/bin/env python3
"""Several games with one data folder: whatever the order in which they save, no entry is lost, and
first starts at the same moment do not get in each other's way."""
import itertools
import os
import pathlib
import subprocess
import sys
import tempfile

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, "support"))
from processes import end, expect, script, start

PROGRAM = pathlib.Path(os.environ["MALVONE_BUILD"], "drehbuch")


class Game:
    def __init__(self, folder):
        self.process = start([PROGRAM, "--daten", folder, "--programm", folder], text=True,
                             stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def waits(self):
        """All lines up to the one that says who waits."""
        lines = []
        while not lines or not lines[-1].startswith("> "):
            lines.append(self.process.stdout.readline())
            expect(lines[-1], "the program has ended")
        return "".join(lines)

    def __call__(self, *commands):
        for command in commands:
            self.process.stdin.write(command + "\n")
            self.process.stdin.flush()
            told = self.waits()
        return told

    def enter(self, name, stones):
        """Ends level 5 with the points of so many stones, up to the question after the entry."""
        board = "1" * stones + "2" + "0" * (139 - stones)
        self("do frmTessel.lblNeu Click", "key J", *["key Enter"] * 4, f"board {board}",
             "do frmTessel.imgFeld(1) MouseMove", "do frmTessel.imgFeld(1) MouseDown", "key Esc",
             "key J", f"type {name}")
        return self("do frmBeste.cmdEnde Click")


def play(order):
    """The games of an order have all read the list before the first of them saves."""
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder, "lindenspiele/malvone.txt")
        path.parent.mkdir()
        path.write_bytes(b"Niemand\r\n" * 5 + b"0\r\n" * 5)
        games = {name: Game(folder) for name in sorted(set(order))}
        wanted = [("Niemand", 0)] * 5
        try:
            for game in games.values():
                game.waits()
                game("do frmTessel.mnuInfo(4) Click", "do frmBeste.cmdEnde Click")
            for turn, name in enumerate(order):
                stones = 3 + turn * 2 % 5   # each result is another one, not in order
                games[name].enter(f"{name}{turn}", stones)
                games[name]("key J")
                wanted.append((f"{name}{turn}", stones * stones))
        finally:
            for game in games.values():
                end(game.process)
        wanted = sorted(wanted, key=lambda entry: -entry[1])[:5]
        lines = path.read_bytes().decode("cp1252").split("\r\n")
        found = [(name, int(points)) for name, points in zip(lines[:5], lines[5:10])]
        expect(found == wanted, f"{order}: {found}, wanted {wanted}")


def begin_at_once(count):
    with tempfile.TemporaryDirectory() as folder:
        games = [Game(folder) for _ in range(count)]
        try:
            told = "".join(game.waits() for game in games)
        finally:
            for game in games:
                end(game.process)
        expect("frmMsgOk" not in told, f"a first start among others: {told}")


def main():
    for games in ("AABB", "ABC"):
        for order in sorted(set(itertools.permutations(games))):
            play(order)
    for _ in range(10):
        begin_at_once(4)


if __name__ == "__main__":
    script(main)
