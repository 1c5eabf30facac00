#!/usr/bin/env python3
"""Plays under window managers of different kinds, and under none: the game is in sight at its own
size, keeps the front, and fits every screen."""
import math
import os
import sys

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "support"))
from desktop import BOARD, LIST, LIST_OK, MARGIN, MENU, NEW_GAME, Desktop, Game
from processes import expect, script, until

SCREEN = (1920, 1200)
MANAGERS = {"none": None, "openbox": ["openbox"], "fluxbox": ["fluxbox"], "i3": ["i3"]}
TILES = {"i3"}
TITLE = (200, 25)
INFORMATION = (280, -10)     # in the menu bar


def backdrop_in_sight(desktop):
    """Its picture is a bright grey with an ornament; at the bottom a panel may lie over it."""
    spots = [(4, 4), (SCREEN[0] - 4, 4), (4, SCREEN[1] - 60), (SCREEN[0] - 4, SCREEN[1] - 60)]
    corners = [desktop.picture(*spot, 1, 1) for spot in spots]
    return len(set(desktop.picture(4, 300, 200, 200))) > 4 and all(
        150 < min(pixel) and max(pixel) - min(pixel) < 8 for pixel in corners if pixel)


def play(desktop, game):
    game.click(NEW_GAME)
    until(game.snapshot, "stones on the board")
    game.point(MARGIN)


def front_is_kept(name, desktop, game):
    until(lambda: name in TILES or backdrop_in_sight(desktop), "the backdrop on the whole screen")
    board = until(lambda: len(set(game.look(*BOARD))) > 30 and game.look(*BOARD), "the board")
    desktop.do("mousemove", SCREEN[0] - 4, SCREEN[1] // 2, "click", 1)
    until(lambda: game.look(*BOARD) == board, "the game before the backdrop that was clicked")
    if name not in TILES:
        desktop.do("windowminimize", game.main)
        desktop.do("mousemove", SCREEN[0] - 4, SCREEN[1] // 2, "click", 1)
        until(lambda: game.look(*BOARD) == board, "the game that was minimised")
    with game.question():
        both = game.look(*BOARD)
        desktop.do("mousemove", SCREEN[0] - 4, SCREEN[1] // 2, "click", 1)
        until(lambda: game.look(*BOARD) == both, "game and question before the backdrop")


def message_is_torn_away(desktop, game):
    with game.question() as message:
        until(lambda: "SKIP_TASKBAR" in desktop.run("xprop", "-id", message, "_NET_WM_STATE"),
              "no task bar entry for a message")
        until(lambda: "Icon (" in desktop.run("xprop", "-id", message, "_NET_WM_ICON"), "its icon")
        until(lambda: game.centred(message), "the message over the middle of the game")
        left, top = desktop.place(message)[:2]
        x, y = game.spot(TITLE, message)
        # The first movement leaves the title line for the panel.
        desktop.do("mousemove", x, y, "mousedown", 1, "mousemove", x + 40, y + 90, "mousemove",
                   x + 60, y + 120, "mouseup", 1)
        until(lambda: desktop.place(message)[:2] == [left + 60, top + 120], "the message to follow")
    until(lambda: desktop.focused() == game.main, "the keyboard to come back")


def list_lies_where_it_lay(desktop, game):
    def opened():
        desktop.do("mousemove", *game.spot(INFORMATION), "click", 1)
        left, top, _, height = desktop.place(until(lambda: desktop.windows(MENU), "the menu")[0])
        desktop.do("mousemove", left + 50, top + height - 10, "click", 1)
        window = until(lambda: desktop.windows(LIST), "the list")[0]
        game.painted((100, 20, 200, 100), window)
        place = desktop.place(window)
        game.click(LIST_OK, window)
        until(lambda: not desktop.windows(LIST), "the list to close")
        return place
    first = opened()
    expect(opened() == first, f"the list where it lay: {first}")


def design_grows(desktop, game):
    menu = desktop.place(game.main)[3] - 463
    desktop.do("windowmove", game.main, 100, 60, "windowsize", game.main, 1510, 926 + menu)
    until(lambda: desktop.place(game.main)[2:] == [1510, 926 + menu], "the larger window")
    game.scale = 2
    with game.question() as message:
        expect(desktop.place(message)[2] == 784, "the message is as large as the window")


def main():
    for name, manager in MANAGERS.items():
        with Desktop(manager, size=SCREEN) as desktop, Game(desktop) as game:
            expect(desktop.place(game.main)[2] == 755, f"{name}: the window has its own size")
            play(desktop, game)
            front_is_kept(name, desktop, game)
            message_is_torn_away(desktop, game)
            design_grows(desktop, game)
            game.leave()
        print(name, "ok")
    for name, size, wished, scale in (("openbox", (640, 480), 1, 26 / 32), ("openbox", SCREEN, 0.5, 1),
                                      ("i3", SCREEN, 1.5, 1.5), ("fvwm3", SCREEN, 1.5, 1.5)):
        with Desktop([name], size, QT_SCALE_FACTOR=str(wished)) as desktop, \
                Game(desktop, scale) as game:
            play(desktop, game)
            left, top, width, height = desktop.place(game.main)
            expect(0 <= left and left + width <= size[0] and 0 <= top and top + height <= size[1],
                   f"all of the window on {size}")
            with game.question() as message:
                expect(desktop.place(message)[2] == math.ceil(392 * scale), "the design's own size")
            list_lies_where_it_lay(desktop, game)
            game.leave()
        print(name, size, wished, "ok")


if __name__ == "__main__":
    script(main)
