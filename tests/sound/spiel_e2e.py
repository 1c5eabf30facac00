#!/usr/bin/env python3
"""Plays the real game with real pointer and keys beside sound servers of every condition: each sound is
heard when it should be, and a game without sound is held up nowhere."""
import hoeren
from desktop import INFO, MENU, NEW_GAME, PAIR, YES, Desktop, Game
from processes import Failed, script, until

# The menu lies above the client area and opens over it.
OPTIONS, SOUND, ON, OFF = (110, -10), (145, 10), (256, 10), (256, 32)


def sound_menu(game, entry):
    """Clicks through the menu to "an" or "aus"."""
    for spot, follows in ((OPTIONS, 1), (SOUND, 2), (entry, 0)):
        game.click(spot)
        until(lambda: len(game.desktop.windows(MENU)) == follows, "the menu")


def new_game(game):
    game.click(NEW_GAME)
    return until(game.snapshot, "the snapshot")


def move(game, stones):
    """Takes a stone with a partner above it, and who belongs to them."""
    game.take(next(i for i in range(2, 141) if i % 10 != 1 and stones[i - 2] == stones[i - 1]))


def whole_game(game, server):
    heard = []

    def hears(name):
        heard.append(name)
        server.hears(*heard)

    def close_message():
        game.key("Escape")
        game.no_message()

    hears("TADA")
    move(game, new_game(game))
    hears("WHOOSH")
    game.key("Return")
    hears("CHIMES")
    game.key("ctrl+n")
    hears("FRAGE")
    close_message()
    game.click(INFO)
    hears("DING")
    close_message()
    sound_menu(game, OFF)
    game.play_to_end()
    game.repeat(PAIR)
    game.take(10)
    game.message()
    close_message()
    sound_menu(game, ON)
    with open(game.data("tessel.ini"), "w", encoding="ascii") as file:
        file.write("keine Zahl\r\n")
    game.key("ctrl+w")
    hears("FEHLER")
    close_message()
    hears("CHIMES")
    game.key("ctrl+e")
    hears("CHIMES")
    game.click(YES, game.message())
    game.end()
    server.hears(*heard)


def short_game(game, server):
    """Nothing can be recorded here; but every step comes in time."""
    move(game, new_game(game))
    game.key("ctrl+e")
    game.click(YES, game.message())
    game.end()


def main():
    for kind, play in (("null", whole_game), ("none", short_game), ("nosink", short_game),
                       ("hung", short_game)):
        try:
            with hoeren.Server(kind) as server, Desktop(folder=server.folder) as desktop, \
                    Game(desktop) as game:
                play(game, server)
        except Failed as failure:
            raise Failed(f"{kind}: {failure}") from None
        print(f"{kind}: ok", flush=True)


if __name__ == "__main__":
    script(main)
