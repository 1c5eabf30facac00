"""A desktop that belongs to one script: an X server, a window manager, the game, pointer, keys and
pictures. All of it ends with the script, however that ends.

    with Desktop() as desktop:                              # openbox on 1920 x 1200
    with Desktop(["xfwm4"], size=(1366, 768)) as desktop:   # any window manager; None for none
    with Desktop(folder=data, QT_SCALE_FACTOR="1.5") as desktop:   # more environment; None removes
        with Game(desktop) as game:                         # waits for the painted main window
            game.click(NEW_GAME)                            # a place in its client area, in pixels
            until(lambda: game.snapshot(), "the snapshot")
            game.key("ctrl+e")                              # waits for the focus first
            game.click(YES, game.message())                 # waits for the message window
            game.end()                                      # status 0, silence on standard error
        desktop.run("import", "-window", "root", "all.png")

HOME, the runtime folder and the data lie in a temporary folder, or in one that is handed in and stays.
MALVONE_BUILD names the folder of the built game. Needs xvfb, xdotool, x11-utils, imagemagick.
"""
import contextlib
import os
import re
import shutil
import subprocess
import tempfile

from processes import Failed, end, expect, start, until

BUILD = os.environ.get("MALVONE_BUILD", "build/release")
MAIN, MESSAGE, LIST, MENU = "^Malvone  Vers", "^Malvone$", "^Beste Spieler", "^malvone$"
WIDTH, HEIGHT = 755, 463

# Places in pixels of the client area, below the menu bar; YES, NO and OK in their windows.
NEW_GAME, LEAVE, INFO = (100, 362), (60, 412), (66, 149)
YES, NO, OK, LIST_OK = (285, 206), (105, 206), (192, 207), (137, 300)
MARGIN = (252, 12)
BOARD = (257, 17, 448, 320)
POINTS, LEVEL, ARROW = (118, 202, 70, 28), (154, 300, 28, 28), (210, 350, 33, 28)
OFFER = (506, 350, 191, 42)     # »Nächster Level«, once a level is over
PAIR = "0" * 8 + "11" + "0" * 129 + "2"     # ends with the first move, at cell 10


def cell(number):
    """The middle of a cell of the board, 1 to 140, column by column from above."""
    column, row = divmod(number - 1, 10)
    return BOARD[0] + 32 * column + 16, BOARD[1] + 32 * row + 16


class Desktop:
    def __init__(self, manager=("openbox",), size=(1920, 1200), folder=None, **environment):
        self.temporary = None if folder else tempfile.mkdtemp(prefix="malvone-")
        self.folder, self.size, self.manager = folder or self.temporary, size, None
        read, write = os.pipe()
        self.processes = [start(
            # Without -noreset the server starts anew whenever its last client leaves, and drops
            # those that are just connecting.
            ["Xvfb", "-displayfd", write, "-screen", "0", f"{size[0]}x{size[1]}x24", "-nolisten",
             "tcp", "-noreset"], pass_fds=[write], stderr=subprocess.DEVNULL)]
        try:
            os.close(write)
            with os.fdopen(read) as numbers:
                number = numbers.readline().strip()
            expect(number, "Xvfb does not start")
            self.env = {key: value for key, value in os.environ.items()
                        if not key.startswith(("QT_", "XDG_", "WAYLAND", "DBUS", "PULSE_"))}
            self.data = os.path.join(self.folder, "daten")
            self.env.update(DISPLAY=":" + number, HOME=self.folder, XDG_RUNTIME_DIR=self.folder,
                            XDG_DATA_HOME=self.data)
            self.env.update(environment)
            self.env = {name: value for name, value in self.env.items() if value is not None}
            os.chmod(self.folder, 0o700)
            if manager:
                self.manage(manager)
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *error):
        self.close()

    def close(self):
        for process in reversed(self.processes):
            end(process)
        if self.temporary:
            shutil.rmtree(self.temporary, ignore_errors=True)

    def start(self, *command, **options):
        self.processes.append(start(command, env=self.env, **options))
        return self.processes[-1]

    def manage(self, manager):
        """Starts a window manager and waits until it has taken the windows, and has said so where
        managers do. openbox says so long before its own start is over, and may then never show a
        window that comes between: it is ready when it runs its start-up command."""
        name = os.path.basename(manager[0])
        told = "_NET_SUPPORTING_WM_CHECK"
        if name == "openbox":
            told = "OPENBOX_READY"
            self.run("xprop", "-root", "-remove", told)
            manager = [*manager, "--startup", f"xprop -root -f {told} 32x -set {told} 1"]
        if name == "fluxbox":
            # Its style wants a wallpaper, and where that fails a message comes over the game.
            os.makedirs(os.path.join(self.folder, ".fluxbox"), exist_ok=True)
            with open(os.path.join(self.folder, ".fluxbox", "overlay"), "w", encoding="utf-8") as overlay:
                overlay.write("background: none\n")
        self.manager = self.start(*manager, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        until(lambda: "SubstructureRedirect" in self.run("xwininfo", "-root", "-events"), name)
        if name != "twm":
            until(lambda: {"=", "#"} & set(self.run("xprop", "-root", told)), name)

    def run(self, *command):
        return subprocess.run(list(map(str, command)), env=self.env, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True, timeout=60).stdout

    def do(self, *arguments):
        self.run("xdotool", *arguments)

    def windows(self, name):
        """Visible windows whose title matches, without helpers of a few pixels and the backdrop."""
        # By the name xdotool finds no menus, and does not tell "malvone", theirs, from "Malvone".
        found = self.run("xdotool", "search", "--onlyvisible", "--class", ".").split()
        return [window for window in found if 100 < self.place(window)[2] < self.size[0]
                and re.search(name, self.run("xdotool", "getwindowname", window))]

    def focused(self):
        return self.run("xdotool", "getwindowfocus").strip()

    def place(self, window):
        """Left, top, width and height of the client area on the screen."""
        info = self.run("xwininfo", "-id", window)
        numbers = [re.search(label + r":\s+(-?\d+)", info) for label in
                   ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]
        return [int(number.group(1)) if number else 0 for number in numbers]

    def picture(self, left, top, width, height):
        """The pixels of a part of the screen, three bytes each."""
        return subprocess.run(
            ["import", "-window", "root", "-crop", f"{width}x{height}+{left}+{top}", "+repage",
             "-depth", "8", "rgb:-"],
            env=self.env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=60).stdout


class Game:
    def __init__(self, desktop, scale=1.0, program=None):
        self.desktop, self.scale = desktop, scale
        self.errors = tempfile.TemporaryFile("w+")
        self.process = desktop.start(*(program or [os.path.join(BUILD, "malvone")]),
                                     stderr=self.errors)
        try:
            self.main = until(lambda: self.alive() and desktop.windows(MAIN), "the main window")[0]
            self.painted(BOARD, self.main)
        except Failed as failure:
            self.__exit__(Failed, failure, None)
            raise

    def __enter__(self):
        return self

    def __exit__(self, kind, error, trace):
        if isinstance(error, Failed):
            picture = os.path.join(tempfile.gettempdir(), f"malvone-{os.getpid()}.png")
            self.desktop.run("import", "-window", "root", picture)
            error.args = (f"{error} (picture: {picture})",)
        end(self.process)
        self.errors.close()

    def alive(self):
        expect(self.process.poll() is None, f"the game has ended with {self.process.poll()}")
        return True

    def area(self, window=None):
        """The corner of the client area on the screen, below the menu bar of the main window."""
        left, top, _, height = self.desktop.place(window or self.main)
        if window in (None, self.main):
            top += height - round(HEIGHT * self.scale)
        return left, top

    def spot(self, spot, window=None):
        left, top = self.area(window)
        return round(left + spot[0] * self.scale), round(top + spot[1] * self.scale)

    def point(self, spot, window=None):
        self.desktop.do("mousemove", *self.spot(spot, window))

    def click(self, spot, window=None):
        self.desktop.do("mousemove", *self.spot(spot, window), "click", 1)

    def key(self, *keys, window=None):
        """Presses keys where they belong: in the window named, a message or the main window."""
        if self.desktop.manager:
            until(lambda: self.desktop.focused() ==
                  (window or (self.open_messages() or [self.main])[0]), "the focus")
        self.desktop.do("key", *keys)

    def message(self, after=None):
        """The message window, or the one that follows another, as soon as it is up and painted."""
        window = until(lambda: self.alive() and [window for window in self.open_messages()
                                                 if window != after], "a message window")[0]
        self.painted((100, 20, 200, 100), window)
        return window

    def painted(self, part, window):
        until(lambda: len(set(self.look(*part, window))) > 8, "a painted window")

    def open_messages(self):
        return self.desktop.windows(MESSAGE)

    def centred(self, message):
        """Whether a message lies over the middle of the main window."""
        box, main = self.desktop.place(message), self.desktop.place(self.main)
        across, down = (2 * box[i] + box[i + 2] - 2 * main[i] - main[i + 2] for i in (0, 1))
        # The title bar counts as a part of the main window.
        return abs(across) <= 6 and -30 <= down <= 6

    def no_message(self):
        until(lambda: not self.open_messages(), "the message window to close")

    def look(self, left, top, width, height, window=None):
        """The pixels of a part of the client area."""
        x, y = self.area(window)
        scale = self.scale
        return self.desktop.picture(round(x + left * scale), round(y + top * scale),
                                    round(width * scale), round(height * scale))

    def data(self, name):
        return os.path.join(self.desktop.env["XDG_DATA_HOME"], "lindenspiele", name)

    def snapshot(self):
        """The 140 colours that the level has begun with, as digits; empty until they are saved."""
        try:
            with open(self.data("tessel.ini"), encoding="ascii") as file:
                lines = file.read().split("\n")
        except FileNotFoundError:
            return ""
        return "".join(lines[:-1]) if len(lines) == 141 else ""

    def play_to_end(self):
        """Clicks on every cell, again and again, until the level is over. From then on it can be
        repeated, and so with any board: see repeat()."""
        without = self.look(*OFFER)

        def over():
            # A click may have hit the message's own button, so that one on it now would go through
            # to what lies below. And clicks this fast may have kept the focus on the main window.
            for window in self.open_messages():
                self.desktop.do("windowfocus", window, "key", "Escape")
            return self.look(*OFFER) != without

        spots = [self.spot(cell(number)) for number in range(140, 0, -1)]
        for first in [*range(0, 140, 10)] * 40:
            steps = []
            for x, y in spots[first:first + 10]:
                # xdotool's own click would pause for a while.
                steps += ["mousemove", x, y, "mousedown", 1, "mouseup", 1]
            self.desktop.do(*steps)
            if self.open_messages() or first == 130 and over():
                return until(over, "the offer of the next level")
        raise Failed("the level does not end")

    def repeat(self, stones):
        """Plays on with 140 stones as digits, in the next level and with all points."""
        with open(self.data("tessel.ini"), "w", encoding="ascii", newline="\r\n") as file:
            file.writelines(stone + "\n" for stone in stones)
        before = self.look(*BOARD)
        self.key("ctrl+w")
        until(lambda: self.look(*BOARD) != before, "the stones of the repeated level")

    def take(self, number):
        """Takes the group of a cell; the pointer comes from the margin, as the marks need it."""
        self.point(MARGIN)
        self.click(cell(number))

    @contextlib.contextmanager
    def question(self):
        """The question whether to leave; in the end the answer is no."""
        self.click(LEAVE)
        message = self.message()
        yield message
        self.click(NO, message)
        self.no_message()

    def leave(self):
        self.click(LEAVE)
        self.click(YES, self.message())
        self.end()

    def end(self):
        status = self.process.wait(30)
        expect(status == 0, f"exit status {status}")
        self.errors.seek(0)
        text = self.errors.read()
        expect(text == "", "on standard error: " + text)
