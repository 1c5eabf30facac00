#!/usr/bin/env python3
"""Plays the game in real windows: real pointer and keys, under an X server and a window manager that
belong to this script alone. MALVONE_BUILD names the folder of the built game."""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

BUILD = os.environ.get("MALVONE_BUILD", "build/release")
TITLE = "Malvone  Vers.: 3.1.0"
MESSAGE = "^Malvone$"

# Places in pixels of the client area below the menu bar.
NEW_GAME, LEAVE = (100, 362), (60, 412)
YES, NO = (285, 206), (105, 206)
MARGIN = (252, 12)


class Failed(Exception):
    pass


def expect(condition, what):
    if not condition:
        raise Failed(what)


def until(condition, what, seconds=10.0):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.03)
    raise Failed("waited in vain: " + what)


class Desktop:
    """An X server with openbox, and everything that is done on it."""

    def __init__(self, folder, scale):
        self.folder = folder
        read, write = os.pipe()
        self.server = subprocess.Popen(
            # Without -noreset the server starts anew, and drops who is just coming, whenever its
            # last client leaves.
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1920x1200x24", "-nolisten", "tcp",
             "-noreset"],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as numbers:
            number = numbers.readline().strip()
        expect(number, "Xvfb does not start")
        self.env = {key: value for key, value in os.environ.items()
                    if not key.startswith(("QT_", "XDG_", "WAYLAND", "DBUS"))}
        self.env.update(DISPLAY=":" + number, HOME=folder, XDG_RUNTIME_DIR=folder,
                        XDG_DATA_HOME=os.path.join(folder, "daten"),
                        QT_SCALE_FACTOR=str(scale))
        os.chmod(folder, 0o700)
        self.manager = subprocess.Popen(["openbox"], env=self.env, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        until(lambda: "window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
              "the window manager")

    def run(self, *command):
        return subprocess.run(command, env=self.env, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True).stdout

    def do(self, *arguments):
        self.run("xdotool", *map(str, arguments))

    def windows(self, name):
        found = self.run("xdotool", "search", "--onlyvisible", "--name", name).split()
        return [window for window in found if self.size(window)[0] > 100]

    def place(self, window):
        """Left, top, width and height of the client area on the screen."""
        info = self.run("xwininfo", "-id", window)
        numbers = [re.search(label + r":\s+(-?\d+)", info) for label in
                   ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]
        return [int(number.group(1)) if number else 0 for number in numbers]

    def size(self, window):
        return self.place(window)[2:]

    def picture(self, left, top, width, height):
        return subprocess.run(
            ["import", "-window", "root", "-crop", f"{width}x{height}+{left}+{top}", "+repage",
             "-depth", "8", "rgb:-"],
            env=self.env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()


class Game:
    def __init__(self, desktop, scale):
        self.desktop, self.scale = desktop, scale
        self.errors = open(os.path.join(desktop.folder, "stderr"), "w+")
        self.process = subprocess.Popen([os.path.join(BUILD, "malvone")], env=desktop.env,
                                        stderr=self.errors)
        self.main = until(lambda: desktop.windows(TITLE), "the main window")[0]
        time.sleep(0.5)
        self.menu = desktop.size(self.main)[1] - round(463 * scale)

    def point(self, spot, window=None):
        window = window or self.main
        left, top, _, _ = self.desktop.place(window)
        down = self.menu if window == self.main else 0
        self.desktop.do("mousemove", round(left + spot[0] * self.scale),
                        round(top + down + spot[1] * self.scale))

    def click(self, spot, window=None):
        self.point(spot, window)
        self.desktop.do("click", 1)

    def key(self, *keys):
        self.desktop.do("key", *keys)

    def message(self):
        return until(self.open_messages, "a message window")[0]

    def open_messages(self):
        # The backdrop bears the same name, but covers the screen.
        screen = [1920, 1200]
        return [window for window in self.desktop.windows(MESSAGE)
                if self.desktop.size(window) != screen]

    def no_message(self):
        until(lambda: not self.open_messages(), "the message window to close")

    def look(self, left, top, width, height):
        """The pixels of a part of the client area."""
        x, y, _, _ = self.desktop.place(self.main)
        scale = self.scale
        return self.desktop.picture(round(x + left * scale), round(y + self.menu + top * scale),
                                    round(width * scale), round(height * scale))

    def board(self):
        return self.look(257, 17, 448, 320)

    def cell(self, column, row):
        return 250 + 7 + 32 * column + 16, 10 + 7 + 32 * row + 16

    def level(self):
        return self.look(154, 300, 28, 28)

    def points(self):
        return self.look(118, 202, 70, 28)

    def centred(self):
        box = self.desktop.place(self.message())
        main = self.desktop.place(self.main)
        frame = 24  # the title bar counts as a part of the main window
        across = abs(2 * box[0] + box[2] - 2 * main[0] - main[2])
        down = abs(2 * box[1] + box[3] - 2 * main[1] - main[3])
        return across <= 6 and down <= 2 * frame

    def end(self):
        status = self.process.wait(10)
        expect(status == 0, f"exit status {status}")
        self.errors.seek(0)
        text = self.errors.read()
        expect(text == "", "on standard error: " + text)


def new_game(game):
    empty, level = game.board(), game.level()
    arrow = (210, 350, 33, 28)
    seen = {game.look(*arrow)}
    end = time.monotonic() + 3
    while len(seen) < 2 and time.monotonic() < end:
        seen.add(game.look(*arrow))
    expect(len(seen) > 1, "the arrow blinks")
    game.click(NEW_GAME)
    until(lambda: game.board() != empty, "stones on the board")
    until(lambda: game.level() != level, "the level to be counted")


def hover_and_move(game):
    """Points at stones until one has a partner, and takes its group."""
    game.point(MARGIN)
    plain, points = game.board(), game.points()
    for column in range(14):
        game.point(game.cell(column, 9))
        until(lambda: game.board() != plain, "a stone to show its face")
        game.desktop.do("click", 1)
        time.sleep(0.25)
        if game.points() != points:
            break
    expect(game.points() != points, "a group in the lowest row")
    game.point(MARGIN)
    until(lambda: game.board() != plain, "the stones to have gone")


def next_level(game):
    board = game.board()
    game.key("alt+n")
    until(lambda: game.board() != board, "the next board")


def message_by_pointer_and_key(game):
    game.point(MARGIN)
    time.sleep(0.2)
    board = game.board()
    game.click(LEAVE)
    expect(game.centred(), "the question is centred over the main window")
    game.key("Return", "space")
    game.click(NEW_GAME)  # the main window is deaf
    time.sleep(0.3)
    expect(game.open_messages(), "Enter and Space leave the question open")
    game.click(NO, game.message())
    game.no_message()
    game.point(MARGIN)
    until(lambda: game.board() == board, "the board as it was")
    game.key("ctrl+e")
    game.message()
    game.key("Escape")
    game.no_message()
    expect(game.process.poll() is None, "No leaves the game open")


def drag_message(game):
    game.key("ctrl+e")
    window = game.message()
    before = game.desktop.place(window)
    game.point((200, 25), window)
    game.desktop.do("mousedown", 1)
    for _ in range(10):
        game.desktop.do("mousemove_relative", "--", 9, -6)
    game.desktop.do("mouseup", 1)
    moved = [before[0] + 90, before[1] - 60]
    until(lambda: [abs(a - b) <= 2 for a, b in zip(game.desktop.place(window), moved)]
          == [True, True], "the message to follow the pointer")
    game.click(NO, window)
    game.no_message()


def move_main_window(game):
    game.desktop.do("windowmove", game.main, 60, 40)
    until(lambda: game.desktop.place(game.main)[0] < 80, "the main window to move")
    time.sleep(0.2)
    game.key("ctrl+e")
    expect(game.centred(), "the next message opens over the moved window")
    game.key("Escape")
    game.no_message()


def front_comes_back(game):
    look = game.board()
    game.desktop.do("mousemove", 1900, 1180, "click", 1)
    until(lambda: game.board() == look, "the game before its backdrop")
    game.key("ctrl+e")
    game.message()
    game.desktop.do("mousemove", 1900, 1180, "click", 1)
    strip = (257, 17, 30, 60)
    expected = game.look(*strip)
    time.sleep(0.4)
    expect(game.look(*strip) == expected and len(set(expected)) > 20,
           "game and question before the backdrop")
    game.key("n")
    game.no_message()


def leave(game):
    game.key("alt+F4")
    window = game.message()
    game.click(YES, window)
    game.end()


def play(scale):
    folder = tempfile.mkdtemp(prefix="malvone-")
    desktop = Desktop(folder, scale)
    game = None
    try:
        game = Game(desktop, scale)
        for step in (new_game, hover_and_move, next_level, message_by_pointer_and_key,
                     drag_message, move_main_window, front_comes_back, leave):
            try:
                step(game)
            except Failed as failure:
                keep = os.path.join(tempfile.gettempdir(), f"malvone-{step.__name__}.png")
                desktop.run("import", "-window", "root", keep)
                raise Failed(f"scale {scale}, {step.__name__}: {failure} (picture: {keep})")
            print(f"scale {scale}: {step.__name__}: ok")
        expect(os.path.exists(os.path.join(folder, "daten", "lindenspiele", "tessel.ini")),
               "the snapshot of the level")
    finally:
        if game is not None and game.process.poll() is None:
            game.process.kill()
            game.process.wait()
        desktop.close()
        shutil.rmtree(folder, ignore_errors=True)


def refuses_without_display():
    env = {key: value for key, value in os.environ.items()
           if key not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    for extra in ({}, {"DISPLAY": ":4711"}):
        run = subprocess.run([os.path.join(BUILD, "malvone")], env={**env, **extra},
                             capture_output=True, text=True, timeout=20)
        expect(run.returncode == 1, f"exit status {run.returncode} without a display")
        expect(run.stderr.count("\n") == 1 and "DISPLAY" in run.stderr, "one line: " + run.stderr)


def main():
    try:
        refuses_without_display()
        for scale in (1, 1.5):
            play(scale)
    except Failed as failure:
        print(failure, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
