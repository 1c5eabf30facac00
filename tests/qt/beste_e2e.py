#!/usr/bin/env python3
"""Brings a game to its end in real windows, types a name with real keys, looks at the file, and finds
the entry again after a new start. MALVONE_BUILD names the folder of the built game."""
import os
import shutil
import sys
import tempfile
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path += [HERE, os.path.join(HERE, os.pardir, "sound")]

import fenster_e2e as fenster
import spiel_e2e as spiel

NAME = "Jörg Müßig, €"
LIST = "^Beste Spieler"
OK = (137, 300)
# The digits of the first place; in the box beside them a caret blinks while a name is typed.
FIRST_ROW = (248, 46, 88, 32)


def list_window(game):
    return fenster.until(lambda: game.desktop.windows(LIST), "the window of the best players")[0]


def picture(game, window, part):
    left, top, width, height = part
    x, y, _, _ = game.desktop.place(window)
    return game.desktop.picture(x + left, y + top, width, height)


def play_to_the_end(game):
    fenster.new_game(game)
    for _ in range(4):
        fenster.next_level(game)
    spiel.play_level_to_its_end(game)
    game.key("Escape")
    # The result has reached the list.
    time.sleep(0.5)
    game.message()
    game.key("j")


def type_name(game):
    window = list_window(game)
    time.sleep(0.5)
    game.desktop.do("type", "--delay", 60, NAME)
    game.point((20, 300), window)
    time.sleep(0.5)
    seen = picture(game, window, FIRST_ROW)
    game.click(OK, window)
    game.message()
    game.key("n")
    game.end()
    return seen


def main():
    folder = tempfile.mkdtemp(prefix="malvone-")
    file = os.path.join(folder, "daten", "lindenspiele", "malvone.txt")
    os.makedirs(os.path.dirname(file))
    with open(file, "wb") as old:
        old.write(b"Niemand\r\n" * 5 + b"5\r\n4\r\n3\r\n2\r\n1\r\n")
    desktop = fenster.Desktop(folder, 1)
    game = None
    try:
        game = fenster.Game(desktop, 1)
        play_to_the_end(game)
        seen = type_name(game)
        with open(file, "rb") as new:
            lines = new.read().split(b"\r\n")
        fenster.expect(len(lines) == 11 and lines[10] == b"", f"ten lines, each ended: {lines}")
        fenster.expect(lines[0].decode("cp1252") == NAME, f"the name first: {lines[0]}")
        fenster.expect(lines[1:5] == [b"Niemand"] * 4 and lines[6:10] == [b"5", b"4", b"3", b"2"],
                       f"the others one place down: {lines}")

        game = fenster.Game(desktop, 1)
        game.key("alt+i")
        time.sleep(0.4)
        game.key("Down", "Down", "Return")
        window = list_window(game)
        game.point((20, 300), window)
        time.sleep(0.5)
        if len(sys.argv) > 1:
            desktop.run("import", "-window", window, sys.argv[1])
        fenster.expect(len(set(seen)) > 20, "digits in the first row")
        fenster.expect(picture(game, window, FIRST_ROW) == seen, "the row as it was entered")
        game.click(OK, window)
        fenster.until(lambda: not desktop.windows(LIST), "the list to close")
        fenster.leave(game)
    except fenster.Failed as failure:
        print(failure, file=sys.stderr)
        return 1
    finally:
        if game is not None and game.process.poll() is None:
            game.process.kill()
            game.process.wait()
        desktop.close()
        shutil.rmtree(folder, ignore_errors=True)
    print("entered, saved and found again: ok")
    return 0


if __name__ == "__main__":
    sys.exit(main())
