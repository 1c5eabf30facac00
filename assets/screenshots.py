#!/usr/bin/env python3
"""Takes the screenshots of the manuals and of the README anew, in one game that is the same every time.

    assets/screenshots.py

Needs build/release, build/web and what tests/support/desktop.py needs, and chromium for the page.
"""
import base64
import json
import os
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
sys.path.append(str(ROOT / "tests/support"))
os.environ["MALVONE_BUILD"] = str(ROOT / "build/release")
from desktop import LIST, MARGIN, NEW_GAME, NO, OK, Desktop, Game, cell  # noqa: E402
from processes import end, start, until  # noqa: E402

MANUALS, README = ROOT / "assets/manuals/screenshots", ROOT / "docs"

# The board, and the cells whose groups are taken one after the other, up to the end of the level.
STONES = ("1324314414" "3442111421" "2424324111" "2123311114" "3342213133" "2113434144" "1321231441"
          "2111213143" "4341112424" "3434312221" "2323224421" "4111113322" "4422112142" "4411241333")
MOVES = (12, 111, 65, 41, 87, 22, 25, 59, 124, 34, 58, 85, 86, 105, 7, 4, 5, 138, 47, 87, 119, 108, 49,
         48, 57, 8, 50, 50, 30, 20, 10, 9)
EARLY, LATE = 8, 25    # After so many moves a picture is taken,
POINTED = {EARLY: 60, LATE: 8}  # with the pointer on this cell.

BEST = {6241: "Grete", 5376: "Jörg", 5000: "Niemand", 4700: "Niemand", 4400: "Niemand"}

# In the main window: parts of »Wiederholen« and of the line that says what a move is worth.
REPEAT, WORTH = (560, 407, 80, 20), (244, 352, 253, 20)


class Windows(Game):
    """The game in real windows."""

    def __init__(self, desktop, scale=1):
        super().__init__(desktop, scale)
        self.done = 0

    def shoot(self, file, *window):
        """Writes PNG of whole colours that says nothing of the time it was taken."""
        self.desktop.run("import", *window, "-strip", "-define", "png:color-type=2",
                         "-define", "png:exclude-chunks=date,time", f"{file}.png")

    def changes(self, part, act):
        before = self.look(*part)
        act()
        until(lambda: self.look(*part) != before, "the window to change")

    def start_level(self):
        """Only a level that is over can be repeated, and it is repeated with the stones of the file."""
        self.click(NEW_GAME)
        until(self.snapshot, "the first board")
        self.play_to_end()
        with open(self.data("tessel.ini"), "w", encoding="ascii", newline="\r\n") as file:
            file.writelines(stone + "\n" for stone in STONES)
        self.changes(REPEAT, lambda: self.click((REPEAT[0] + 40, REPEAT[1] + 10)))

    def play(self, count):
        for number in MOVES[self.done:count]:
            self.take(number)
        self.done = count
        if count in POINTED:
            self.point(MARGIN)
            self.changes(WORTH, lambda: self.point(cell(POINTED[count])))


def of_manuals():
    with tempfile.TemporaryDirectory() as folder:
        best = Path(folder) / "daten/lindenspiele/malvone.txt"
        best.parent.mkdir(parents=True)
        best.write_text("\r\n".join([*BEST.values(), *map(str, BEST), ""]), encoding="cp1252", newline="")
        with Desktop(folder=folder, QT_SCALE_FACTOR="2") as desktop, Windows(desktop, 2) as game:
            shoot_manuals(desktop, game)


def shoot_manuals(desktop, game):
    game.key("alt+i", "Up", "Return")
    best = until(lambda: desktop.windows(LIST), "the best list")[0]
    game.painted((250, 50, 80, 100), best)
    game.shoot(MANUALS / "best-list", "-window", best)
    game.click((137, 300), best)
    until(lambda: not desktop.windows(LIST), "the best list to close")
    game.start_level()
    game.play(EARLY)
    game.shoot(MANUALS / "main-window", "-window", game.main)
    game.play(len(MOVES))
    game.shoot(MANUALS / "message", "-window", game.message())
    game.click(OK, game.message())
    game.no_message()
    game.key("ctrl+n")
    game.shoot(MANUALS / "question", "-window", game.message())


def of_windows():
    with Desktop(size=(1024, 640)) as desktop, Windows(desktop) as game:
        game.start_level()
        game.play(LATE)
        game.shoot(README / "malvone", "-window", game.main, "-frame")
        game.play(len(MOVES))
        message = game.message()
        # It opens beyond the corner of the main window, over the title; a player would drag it away.
        left, top, width, height = desktop.place(game.main)
        desktop.do("windowmove", message, left + 285, top + 70)
        until(lambda: desktop.place(message)[0] == left + 285, "the message in the middle of the board")
        game.painted((100, 20, 200, 100), message)
        margin = 32
        game.shoot(README / "level-end", "-window", "root", "-crop",
                   f"{width + 2 * margin}x{height + 2 * margin}+{left - margin}+{top - margin}", "+repage")


class Page:
    """The game in a browser without a window, driven through the pipe that browsers have for it."""

    def __init__(self, folder):
        self.server = start([ROOT / "tools/serve.py", ROOT / "build/web", "0"], stdout=subprocess.PIPE, text=True)
        address = next(word for word in self.server.stdout.readline().split() if word.startswith("http"))
        listens, tell = os.pipe()
        hear, answers = os.pipe()
        # The browser reads from its file 3 and writes to its file 4.
        self.browser = start(["bash", "-c", f'exec "$@" 3<&{listens} 4>&{answers}', "bash", "chromium",
                              "--headless=new", "--no-sandbox", f"--user-data-dir={folder}",
                              "--remote-debugging-pipe"],
                             pass_fds=[listens, answers], stderr=subprocess.DEVNULL)
        self.tell, self.hear, self.calls, self.session = os.fdopen(tell, "wb"), os.fdopen(hear, "rb"), 0, {}
        target = self.call("Target.createTarget", url=address)["targetId"]
        self.session = {"sessionId": self.call("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]}
        self.call("Emulation.setDeviceMetricsOverride", width=1280, height=720, deviceScaleFactor=1, mobile=False)
        self.until("""typeof page == "object" && page.focused""", "the game on the page")

    def __enter__(self):
        return self

    def __exit__(self, *error):
        end(self.browser)
        end(self.server)

    def call(self, method, **given):
        self.calls += 1
        message = {"id": self.calls, "method": method, "params": given, **self.session}
        self.tell.write(json.dumps(message).encode() + b"\0")
        self.tell.flush()
        while True:
            text = b""
            while not text.endswith(b"\0"):
                text += self.hear.read(1)
            answer = json.loads(text[:-1])
            if answer.get("id") == self.calls:
                return answer["result"]

    def run(self, script):
        return self.call("Runtime.evaluate", expression=script, returnByValue=True)["result"].get("value")

    def until(self, condition, what):
        return until(lambda: self.run(condition), what)

    def mouse(self, element, *kinds):
        place = self.run(f"""(() => {{ const box = document.getElementById("{element}").getBoundingClientRect();
            return [box.x + box.width / 2, box.y + box.height / 2]; }})()""")
        for kind in kinds:
            self.call("Input.dispatchMouseEvent", type=kind, x=place[0], y=place[1],
                      button="none" if kind == "mouseMoved" else "left", clickCount=1)

    def click(self, element):
        self.mouse(element, "mouseMoved", "mousePressed", "mouseReleased")

    def start_level(self):
        shown = 'document.getElementById("{}")?.checkVisibility()'
        self.click("frmTessel.lblNeu")
        while not self.run(shown.format("frmMsgOk")):
            for number in range(140, 0, -1):
                self.click(f"frmTessel.imgFeld({number})")
        self.click("frmMsgOk.lblOk")
        self.until(shown.format("frmTessel.imgWiederholen"), "the offer")
        self.run(f"""localStorage["C:\\\\lindenspiele\\\\tessel.ini"] = [..."{STONES}"].map(s => s + "\\r\\n").join("")""")
        self.click("frmTessel.imgWiederholen")
        self.until("!" + shown.format("frmTessel.imgWiederholen"), "the level")

    def play(self, count):
        for number in MOVES[:count]:
            self.mouse("frmTessel.Picture1", "mouseMoved")
            self.click(f"frmTessel.imgFeld({number})")
        self.mouse(f"frmTessel.imgFeld({POINTED[count]})", "mouseMoved")
        self.until("""document.getElementById("frmTessel.lblSumme").textContent.includes("100 Punkte")""", "the worth")

    def shoot(self, file):
        shot = self.call("Page.captureScreenshot", format="png")["data"]
        Path(f"{file}.png").write_bytes(base64.b64decode(shot))


def of_page():
    with tempfile.TemporaryDirectory() as folder, Page(folder) as page:
        page.start_level()
        page.play(EARLY)
        page.shoot(README / "browser")


if __name__ == "__main__":
    of_manuals()
    of_windows()
    of_page()
