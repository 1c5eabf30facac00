#!/usr/bin/env python3
"""Brings a game to its end in real windows, types a name with real keys, looks at the file, and finds
the entry again after a new start."""
import os
import sys

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, "support"))
from desktop import LIST, LIST_OK, MENU, NEW_GAME, PAIR, YES, Desktop, Game
from processes import expect, script, until

NAME = "Jörg Müßig, €@"
# The name box of the first place, and its digits; while a name is typed a caret blinks in the box.
FIRST_NAME, FIRST_ROW = (44, 52, 147, 27), (248, 46, 88, 32)
BESIDE = (20, 300)


def list_window(game):
    window = until(lambda: game.desktop.windows(LIST), "the window of the best players")[0]
    game.painted(FIRST_ROW, window)
    game.point(BESIDE, window)
    return window


def play_to_the_end(game):
    """To the end of level 5, by a board of one move in each level but the first."""
    game.click(NEW_GAME)
    until(game.snapshot, "the snapshot")
    game.play_to_end()
    for level in range(2, 6):
        game.repeat(PAIR)
        game.take(10)
        over = game.message()
        game.key("Escape")
        if level < 5:
            game.no_message()
    game.message(after=over)


def main():
    with Desktop() as desktop:
        # Where the keys are on the keyboard, xdotool need not put them there, which takes time.
        desktop.run("setxkbmap", "de")
        file = os.path.join(desktop.data, "lindenspiele", "malvone.txt")
        os.makedirs(os.path.dirname(file))
        with open(file, "wb") as old:
            old.write(b"Niemand\r\n" * 5 + b"5\r\n4\r\n3\r\n2\r\n1\r\n")
        with Game(desktop) as game:
            play_to_the_end(game)
            game.key("j")
            window = list_window(game)
            before = game.look(*FIRST_NAME, window)
            desktop.do("key", "--delay", 60, "alt+a", "ctrl+alt+1")     # types nothing
            desktop.do("type", "--delay", 60, NAME)
            desktop.do("key", "--delay", 60, "alt+a", "ctrl+b")
            until(lambda: game.look(*FIRST_NAME, window) != before, "the name in its box")
            seen = game.look(*FIRST_ROW, window)
            game.click(LIST_OK, window)
            game.message()
            game.key("n")
            game.end()
        with open(file, "rb") as new:
            lines = new.read().split(b"\r\n")
        expect(len(lines) == 11 and lines[10] == b"", f"ten lines, each ended: {lines}")
        expect(lines[0].decode("cp1252") == NAME, f"the name first: {lines[0]}")
        expect(lines[1:5] == [b"Niemand"] * 4 and lines[6:10] == [b"5", b"4", b"3", b"2"],
               f"the others one place down: {lines}")

        with Game(desktop) as game:
            game.key("alt+i")
            until(lambda: desktop.windows(MENU), "the menu")
            desktop.do("key", "Down", "Down", "Return")
            window = list_window(game)
            if len(sys.argv) > 1:
                desktop.run("import", "-window", window, sys.argv[1])
            expect(game.look(*FIRST_ROW, window) == seen, "the row as it was entered")
            game.click(LIST_OK, window)
            until(lambda: not desktop.windows(LIST), "the list to close")
            game.key("alt+F4")
            game.click(YES, game.message())
            game.end()


if __name__ == "__main__":
    script(main)
