#!/usr/bin/env python3
"""Plays the game as a screen reader does, over the real bus of the desktop's accessibility: reads the
tree, listens to its events and presses what it finds; the board is played by keys alone."""
import importlib.util
import os
import re
import subprocess
import sys
import time

if importlib.util.find_spec("pyatspi") is None and sys.executable != "/usr/bin/python3":
    os.execv("/usr/bin/python3", ["/usr/bin/python3", *sys.argv])   # where Debian's modules are

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, "support"))
from desktop import MENU, PAIR, Desktop, Game
from processes import expect, script, until

COLOURS = ["leer", "orange", "hellgrün", "gelb", "himmelblau"]
TITLE = r"Malvone Vers\.: \d+\.\d+\.\d+"
LONGEST = 50    # Screen readers drop a longer queue of events whole,
IN_TIME = 0.8   # and look at it more often than this, in seconds.


class Reader:
    def __init__(self, desktop):
        bus = desktop.start("dbus-daemon", "--session", "--nofork", "--print-address",
                            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        desktop.env["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        os.environ.update(desktop.env)
        global pyatspi, GLib
        import pyatspi
        from gi.repository import Gio, GLib
        Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
            GLib.Variant("(ssv)", ("org.a11y.Status", "ScreenReaderEnabled", GLib.Variant("b", True))),
            None, Gio.DBusCallFlags.NONE, -1)
        self.queue, self.heard, self.listened = [], [], 0
        pyatspi.Registry.registerEventListener(
            lambda event: self.queue.append(event), "window:activate", "window:deactivate",
            "object:state-changed:focused", "object:state-changed:showing",
            "object:property-change:accessible-name")

    def listen(self):
        while GLib.MainContext.default().iteration(False):
            pass
        queue, self.queue = self.queue, []
        late = time.monotonic() - self.listened > IN_TIME
        self.listened = time.monotonic()
        for event in queue if late or len(queue) <= LONGEST else []:
            try:
                self.heard.append((event.type.name or str(event.type), event.detail1,
                                   event.source.getRoleName(), event.source.name))
            except GLib.GError:
                pass    # what has gone meanwhile

    def wait(self, condition, what):
        def looked():
            self.listen()
            try:
                return condition()
            except GLib.GError:
                return None
        return until(looked, what)

    def hears(self, kind, role, words, detail=None):
        """Waits for an event, and forgets it with all before it."""
        def found():
            for number, (type_, number1, whose, name) in enumerate(self.heard):
                if kind in type_ and whose == role and re.fullmatch(words, name) and \
                        detail in (None, number1):
                    del self.heard[:number + 1]
                    return name
            return None
        return self.wait(found, f"{kind} of {role} {words}; heard: {self.heard[-5:]}")

    def windows(self):
        program = next(one for one in pyatspi.Registry.getDesktop(0) if one.name == "malvone")
        return list(program)

    def window(self, role):
        return self.wait(lambda: next((one for one in self.windows() if one.getRoleName() == role),
                                      None), "a window: " + role)

    @staticmethod
    def words(window):
        """What can be read at the moment, from top to bottom; not the menu."""
        return [one.name for one in window if one.getState().contains(pyatspi.STATE_SHOWING)
                and one.getRoleName() != "menu bar"]

    def press(self, window, name):
        """The call comes back at once, also where a message opens: nobody closes it meanwhile."""
        action = next(one for one in window if one.name == name).queryAction()
        self.listen()
        expect(action.doAction(0), name)


def all_below(node):
    yield node
    for child in node:
        yield from all_below(child)


def tree(reader):
    main = reader.window("frame")
    expect(len(reader.windows()) == 1 and re.fullmatch(TITLE, main.name), "the main window alone, no backdrop")
    cells = [f"Spalte {i // 10 + 1}, Reihe {i % 10 + 1}, leer" for i in range(140)]
    words = reader.words(main)
    expect(words == ["Malvone", "Hilfe", "Info", "Punkte: 0", "Levelpunkte: 0", "Level: 0",
                     "Neues Spiel", "Beenden", *cells, "Klicken Sie auf »Neues Spiel«."], words)
    menu = [one.name for one in all_below(main[0])]
    expect("Neues Spiel" in " ".join(menu) and "\t" not in "".join(menu), menu)
    for one in (one for one in main if one.name in cells):
        box = one.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        found = main.queryComponent().getAccessibleAtPoint(
            box.x + box.width // 2, box.y + box.height // 2, pyatspi.DESKTOP_COORDS)
        expect(found.name == one.name, f"{found.name} lies on {one.name}")
    return main


def board_by_keys(reader, game, main):
    reader.press(main, "Neues Spiel")
    reader.hears("showing", "notification", r"Neues Spiel\.", 1)
    reader.hears("name", "label", "Level: 1")
    stones = until(game.snapshot, "the snapshot")
    reader.hears("name", "push button", "Spalte 14, Reihe 10, " + COLOURS[int(stones[139])])
    pair = next(i for i in range(130) if stones[i] == stones[i + 10])
    column, row = divmod(pair, 10)
    # The first arrow only shows the place, at the bottom left.
    game.key("Right", *["Up"] * (9 - row), *["Right"] * column)
    colour = COLOURS[int(stones[pair])]
    reader.hears("focused", "push button", f"Spalte {column + 1}, Reihe {row + 1}, {colour}", 1)
    stone = next(one for one in main if one.getState().contains(pyatspi.STATE_FOCUSED))
    worth = int(re.fullmatch(r"Dieser Spielzug ergibt (\d+) Punkte!", stone.description)[1])
    game.key("Delete")
    said = reader.hears("showing", "notification", r"\d+ Steine entfernt, \d+ Punkte\.", 1)
    expect(said == f"{round(worth ** .5)} Steine entfernt, {worth} Punkte.", said)
    for display in ("Punkte", "Levelpunkte"):
        reader.hears("name", "label", f"{display}: {worth}")


def message(reader, main):
    reader.press(main, "Info")
    reader.hears(":activate", "alert", TITLE)
    words = reader.hears("focused", "paragraph", "Programmierung: .+ Grafik: .+", 1)
    alert = reader.window("alert")
    expect(reader.words(alert) == [words, "OK", "schließen"], reader.words(alert))
    reader.press(alert, "OK")
    reader.wait(lambda: len(reader.windows()) == 1, "the message to close")


def best_list(reader, game):
    game.key("alt+i")
    until(lambda: game.desktop.windows(MENU), "the menu")
    game.desktop.do("key", "Down", "Down", "Return")
    window = reader.window("dialog")
    expect(reader.words(window) == ["Name des Spielers", "Punkte", *[
        f"Platz {number}: Niemand, {5300 - 300 * number} Punkte" for number in range(1, 6)], "OK"],
        reader.words(window))
    reader.press(window, "OK")


def end_of_level(reader, game, main):
    game.play_to_end()
    expect("Nächster Level" in reader.words(main), "the offer")
    reader.listen()     # that was faster than any reader; it does not count
    game.repeat(PAIR)
    reader.hears("showing", "notification", r"Der Level beginnt\.", 1)
    game.take(10)
    reader.hears("focused", "paragraph", r"Es ist kein weiterer Zug .+ in diesem Level\.", 1)
    game.key("Escape", window=game.message())
    told = reader.wait(lambda: [one[0] for one in reader.heard
                              if one[2] == "frame" and "window" in one[0]], "the main window")
    expect(told[0] == "window:activate", "what is being said would be cut off")
    said = reader.hears("showing", "notification", r"Der Level ist zu Ende\..*", 1)
    expect(said.endswith("Klicken Sie auf »Nächster Level« oder »Wiederholen«."), said)
    reader.press(main, "Nächster Level")
    reader.hears("showing", "notification", r"Der Level beginnt\.", 1)


def main():
    # Qt warns of a bus that takes long to answer to a key, as it does on a busy machine.
    with Desktop(QT_LOGGING_RULES="default.warning=false") as desktop:
        reader = Reader(desktop)
        desktop.do("mousemove", 0, 0)   # away from the board
        with Game(desktop) as game:
            main = tree(reader)
            board_by_keys(reader, game, main)
            message(reader, main)
            best_list(reader, game)
            end_of_level(reader, game, main)
            reader.press(main, "Beenden")
            reader.hears(":activate", "alert", TITLE)
            reader.press(reader.window("alert"), "Ja")
            game.end()


if __name__ == "__main__":
    script(main)
