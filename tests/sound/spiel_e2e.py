#!/usr/bin/env python3
"""Plays the real game with real pointer and keys beside sound servers of every condition, and tells
whether each sound was heard when it should be. MALVONE_BUILD names the folder of the built game."""
import os
import sys
import tempfile
import time

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, "support"))
import hoeren
from desktop import INFO, NEW_GAME, YES, Desktop, Game
from processes import script, until

# The menu lies above the client area and opens over it.
OPTIONS, SOUND, AN, AUS = (110, -10), (145, 10), (256, 10), (256, 32)
# Long enough for each sound to be heard whole before the next one takes its place.
PAUSE = 1.4
GANZES_SPIEL = ["TADA", "WHOOSH", "CHIMES", "FRAGE", "ding", "FEHLER", "CHIMES", "CHIMES"]


def sound_menu(game, entry):
    """Clicks through the menu to "an" or "aus"."""
    for spot in (OPTIONS, SOUND, entry):
        game.click(spot)
        time.sleep(0.4)


def close_message(game):
    game.key("Escape")
    game.no_message()


def short_game(game):
    game.click(NEW_GAME)
    until(game.snapshot, "the snapshot")
    stones = game.snapshot()
    game.take(next(i for i in range(2, 141) if i % 10 != 1 and stones[i - 2] == stones[i - 1]))
    time.sleep(0.3)


def whole_game(game):
    short_game(game)
    time.sleep(PAUSE)
    game.key("Return")
    time.sleep(PAUSE)
    game.key("ctrl+n")
    game.message()
    time.sleep(PAUSE)
    close_message(game)
    game.click(INFO)
    game.message()
    time.sleep(PAUSE)
    close_message(game)
    sound_menu(game, AUS)
    game.play_to_end()
    sound_menu(game, AN)
    snapshot = os.path.join(os.environ["XDG_DATA_HOME"], "lindenspiele", "tessel.ini")
    with open(snapshot, "w", encoding="ascii") as file:
        file.write("keine Zahl\r\n")
    game.key("ctrl+w")
    game.message()
    time.sleep(PAUSE)
    close_message(game)
    time.sleep(PAUSE)


def play(steps):
    """The part that runs beside the server: a desktop, the game, and the way out."""
    with tempfile.TemporaryDirectory(prefix="malvone-") as folder:
        paths = ("HOME", "XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME")
        with Desktop(folder=folder, **{name: os.environ[name] for name in paths}) as desktop, \
                Game(desktop) as game:
            time.sleep(PAUSE)
            steps(game)
            game.key("alt+F4")
            game.message()
            time.sleep(PAUSE)
            game.click(YES, game.message())
            game.end()


CASES = {
    "null": ("--ganz", GANZES_SPIEL),
    "none": ("--kurz", None),
    "nosink": ("--kurz", None),
    "hung": ("--kurz", None),
}


def main():
    steps = {"--ganz": whole_game, "--kurz": short_game}
    if len(sys.argv) == 2 and sys.argv[1] in steps:
        play(steps[sys.argv[1]])
        return 0
    status = 0
    for server, (argument, wanted) in CASES.items():
        with tempfile.TemporaryDirectory(prefix="malvone-") as data:
            heard = hoeren.hoeren([sys.executable, os.path.abspath(__file__), argument],
                                  server=server, frist=90, daten=data)
            faults = hoeren.maengel(heard, wanted, stille_stderr=True)
        print(f"{server}: {'; '.join(faults) if faults else 'ok'}")
        status |= bool(faults)
    return status


if __name__ == "__main__":
    script(main)
