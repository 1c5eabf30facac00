#!/usr/bin/env python3
"""Plays the game in real windows: real pointer and keys, at two scales."""
import os
import signal
import subprocess
import sys

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, "support"))
from desktop import (ARROW, BOARD, BUILD, LEAVE, LEVEL, MAIN, MARGIN, MENU, NEW_GAME, NO, POINTS,
                     Desktop, Game, cell)
from processes import end, expect, script, sleeps, until

MENU_BAR = (30, -10)


def refuses_without_display():
    env = {key: value for key, value in os.environ.items()
           if key not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    few_colours = ["xvfb-run", "-a", "-s", "-screen 0 640x480x8"]
    for server, extra in (([], {}), ([], {"DISPLAY": ":4711"}), ([], {"QT_QPA_PLATFORM": "none"}),
                          (few_colours, {}), (few_colours, {"QT_QPA_PLATFORM": "xcb"})):
        run = subprocess.run([*server, os.path.join(BUILD, "malvone")], env={**env, **extra},
                             capture_output=True, text=True, timeout=60)
        expect(run.returncode == 1, f"exit status {run.returncode} without a display")
        expect(run.stderr.count("\n") == 1 and "Bildschirm" in run.stderr, "one line: " + run.stderr)


def new_game(game):
    empty, level, arrow = game.look(*BOARD), game.look(*LEVEL), game.look(*ARROW)
    until(lambda: game.look(*ARROW) != arrow, "the arrow to blink")
    game.click(NEW_GAME)
    until(lambda: game.look(*BOARD) != empty, "stones on the board")
    until(lambda: game.look(*LEVEL) != level, "the level to be counted")
    until(lambda: sleeps(game.process), "a game that sleeps once the arrow has gone")


def hover_and_move(game):
    """Points at a stone with a partner above it, and takes the group of both."""
    game.point(MARGIN)
    plain, points = game.look(*BOARD), game.look(*POINTS)
    stones = until(game.snapshot, "the snapshot")
    lower = next((i for i in range(2, 141) if i % 10 != 1 and stones[i - 2] == stones[i - 1]), None)
    expect(lower, "a pair in a column")
    game.point(cell(lower))
    until(lambda: game.look(*BOARD) != plain, "the stones to show their faces")
    game.click(cell(lower))
    until(lambda: game.look(*POINTS) != points, "points")
    game.point(MARGIN)
    expect(game.look(*BOARD) != plain, "the stones have gone")


def message_by_pointer_and_key(game):
    game.point(MARGIN)
    game.key("ctrl+e")
    game.message()
    game.key("Escape")
    game.no_message()
    board = game.look(*BOARD)
    game.click(LEAVE)
    window = game.message()
    expect(game.centred(window), "the question is centred over the main window")
    # Enter and Space leave the question open, and the main window is deaf: once the question has
    # answered a press of the pointer, it has been the only one.
    game.key("Return", "space")
    game.click(NEW_GAME)
    game.click(MENU_BAR)
    expect(game.open_messages() == [window] and not game.desktop.windows(MENU), "a deaf window")
    game.click(NO, window)
    game.no_message()
    game.point(MARGIN)
    until(lambda: game.look(*BOARD) == board, "the board as it was")
    game.alive()


def move_main_window(game):
    game.desktop.do("windowmove", game.main, 60, 40)
    until(lambda: game.desktop.place(game.main)[0] < 80, "the main window to move")
    # The game hears of its move a moment later: a message that opens too early lies elsewhere.
    until(lambda: opens_centred(game), "a message over the moved window")


def opens_centred(game):
    game.key("ctrl+e")
    right = game.centred(game.message())
    game.key("Escape")
    game.no_message()
    return right


def started_again(game):
    """A second start brings this game back, question and all; beside one that hangs it plays."""
    desktop, program = game.desktop, os.path.join(BUILD, "malvone")
    game.key("ctrl+e")
    question = game.message()
    desktop.do("search", "--onlyvisible", "--class", ".", "windowminimize", "%@")
    until(lambda: not desktop.windows(MAIN), "the game to be minimised")
    status = subprocess.run([program], env=desktop.env, timeout=60).returncode
    expect(status == 0, f"exit status {status} of a second start")
    until(lambda: desktop.windows(MAIN) and desktop.focused() == question, "the game to come back")
    game.key("Escape")
    game.no_message()
    game.process.send_signal(signal.SIGSTOP)
    other = desktop.start(program)
    until(lambda: len(desktop.windows(MAIN)) == 2, "a game beside one that hangs")
    end(other)
    game.process.send_signal(signal.SIGCONT)


def main():
    refuses_without_display()
    for scale, more in ((1, (started_again,)), (1.5, ())):
        with Desktop(QT_SCALE_FACTOR=str(scale)) as desktop, Game(desktop, scale) as game:
            for step in (new_game, hover_and_move, message_by_pointer_and_key, move_main_window,
                         *more):
                print(f"scale {scale}: {step.__name__}", flush=True)
                step(game)
            game.leave()


if __name__ == "__main__":
    script(main)
