#!/usr/bin/env python3
"""Plays the real game with real pointer and keys beside sound servers of every condition: what sounds
is heard when it should be, and a game without sound is held up nowhere."""
import listening
from desktop import INFO, MENU, YES, Desktop, Game
from processes import Failed, script, until

# The menu lies above the client area and opens over it.
OPTIONS, SOUND, ON, OFF = (110, -10), (145, 10), (256, 10), (256, 32)


def sound_menu(game, entry):
    """Clicks through the menu to "an" or "aus"."""
    for spot, follows in ((OPTIONS, 1), (SOUND, 2), (entry, 0)):
        game.click(spot)
        until(lambda: len(game.desktop.windows(MENU)) == follows, "the menu")


def play(game, server):
    def hears(*names):
        if server.kind == "null":   # elsewhere nothing sounds; but every step comes in time
            server.hears(*names)

    hears("TADA")
    if server.kind == "null":       # without a device the entry is greyed out
        sound_menu(game, OFF)
        game.key("Return")
        until(game.snapshot, "the snapshot")
        sound_menu(game, ON)
    game.click(INFO)
    hears("TADA", "DING")
    game.message()
    game.key("Escape")
    game.no_message()
    game.key("ctrl+e")
    hears("TADA", "DING", "CHIMES")
    game.click(YES, game.message())
    game.end()


def main():
    for kind in ("null", "none", "nosink", "hung"):
        try:
            with listening.Server(kind) as server, Desktop(folder=server.folder) as desktop, \
                    Game(desktop) as game:
                play(game, server)
        except Failed as failure:
            raise Failed(f"{kind}: {failure}") from None
        print(f"{kind}: ok", flush=True)


if __name__ == "__main__":
    script(main)
