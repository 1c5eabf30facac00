#!/usr/bin/python3
"""Draws all pictures of the game as SVG files beside this file.

    draw.py          writes the files
    draw.py --check  writes nothing; fails if a file is missing or differs
"""

import sys
from pathlib import Path
from random import Random

from hills import contour, hilly_field
from shapes import (DEEP_BLUE, GOLD, LIGHT, NIGHT, SHADOW, SKY, WORD_HEIGHT, badge, checker, disc,
                    emblem, face, pill, well, word)
from sheet import Sheet, number

FOLDER = Path(__file__).resolve().parent

# Stones by value: light, body and dark side, rim, width of the rim. Rim and shading differ in
# lightness as well as in hue, so that the four stay apart without colour vision
# (colour_distance.py measures it).
STONES = {
    1: ("#FFAE2A", "#F19D0E", "#B45C00", "#421800", 3),
    2: ("#C0F6A2", "#93E56C", "#57B63A", "#1A521C", 2),
    3: ("#FFFFA8", "#F6F618", "#EFE000", "#867200", 1.5),
    4: ("#58DAFF", "#0CC5F3", "#0484C0", "#04305A", 2),
}

# Segments of a digit, from the top clockwise, the middle one last; and which are lit.
SEGMENTS = "abcdefg"
DIGITS = {
    "0": "abcdef", "1": "bc", "2": "abdeg", "3": "abcdg", "4": "bcfg", "5": "acdfg",
    "6": "acdefg", "7": "abc", "8": "abcdefg", "9": "abcdfg", "blank": "",
}

# Counter panels: word, left end of the panel in the main window, and in pixels of the panel the
# first column, the last column and the top of its digits. The panels do not lie exactly one
# under the other; their pills and wells are drawn so that they do.
PANELS = {
    "punkte": ("Punkte", 10, 108, 178, 6),
    "levelpunkte": ("Levelpunkte", 8, 122, 178, 6),
    "level": ("Level", 6, 148, 176, 8),
}
COLUMN_LEFT, COLUMN_RIGHT, WELL_RIGHT = 18, 197, 190

# The edge of the ornament: start on the top border, then cubic curves down the picture. In the main
# window it goes on straight above and below.
CURVE_TESSEL = (236, ((236, 44, 200, 62, 142, 66), (84, 70, 62, 96, 58, 160),
                      (52, 270, 62, 330, 56, 420), (48, 560, 54, 640, 54, 800)))
CURVE_BESTE = (66, ((60, 40, 50, 60, 48, 110), (46, 190, 54, 240, 48, 300), (42, 360, 40, 400, 50, 450)))

# How far the ground of the main window is drawn beyond all borders of its picture: enough for a
# window of any proportion.
BEYOND = 1600


# --- stones, digits, arrows ---------------------------------------------------------------------

def tile(sheet):
    sheet.rect(0, 0, 32, 32, sheet.linear((0, "#D4BD9F"), (1, "#B09375"), across=True))
    sheet.path("M0 0h32v1h-31v31h-1z", LIGHT, opacity=0.3)
    sheet.path("M32 0v32h-32v-1h31v-31z", "#5A3E20", opacity=0.22)


def stone(sheet, value, mood=None):
    tile(sheet)
    sheet.circle(16.4, 17, 14.9, "#2A1A08", opacity=0.3)
    light, colour, dark, rim, rim_width = STONES[value]
    disc(sheet, 16, 16, 15, light, colour, dark, rim, rim_width)
    if mood:
        face(sheet, 16, 16, 15, mood)


def digit(sheet, lit):
    sheet.rect(0, 0, 14, 28, "#000")
    shapes = {}
    for name, x, y in (("a", 3.5, 4.5), ("g", 3.5, 14.5), ("d", 3.5, 24.5)):
        shapes[name] = f"M{number(x + .4)} {number(y)}l1.5-1.5h3.2l1.5 1.5-1.5 1.5h-3.2z"
    for name, x, y in (("f", 3.5, 4.5), ("b", 10.5, 4.5), ("e", 3.5, 14.5), ("c", 10.5, 14.5)):
        shapes[name] = f"M{number(x)} {number(y + .4)}l1.5 1.5v6.2l-1.5 1.5-1.5-1.5v-6.2z"
    for segments, colour in ((set(SEGMENTS) - set(lit), "#0E4A14"), (set(lit), "#3CFF4A")):
        if segments:
            sheet.path("".join(shapes[s] for s in SEGMENTS if s in segments), colour)


def arrow(sheet, rim, top, bottom):
    outline = "M{0} 12L{1} {2}V{3}H{4}V{5}H{1}V{6}z"
    sheet.path(outline.format(2, 15, 2, 8, 31, 18, 24), SHADOW, opacity=0.2)
    sheet.path(outline.format(1, 15, 0, 7, 32, 17, 24), rim)
    sheet.path(outline.format(2.5, 14, 2.1, 8, 31, 16, 21.9), sheet.linear((0, top), (1, bottom)))
    sheet.path("M4.5 11L13 4.2V9H30V11z", LIGHT, opacity=0.45)


# --- pills --------------------------------------------------------------------------------------

def button(sheet, left, right, text, sign, pressed):
    """A small button with its badge at the right; pressed it sinks by a pixel."""
    depth = 1 if pressed else 0
    pill(sheet, left, 1 + depth, right - left, 38, "pressed" if pressed else "rest",
         shadow=0 if pressed else 2)
    word(sheet, text, left + 16, 25 + depth, NIGHT)
    badge(sheet, right - 20, 20 + depth, 13, "pressed" if pressed else "rest", sign)


def panel(sheet, text, offset, first, last, digits_top):
    left, top = COLUMN_LEFT - offset, digits_top - 5
    pill(sheet, left, top, COLUMN_RIGHT - COLUMN_LEFT, 38, "display")
    word(sheet, text, left + 14, top + 24, NIGHT)
    margin = WELL_RIGHT - offset - last
    well(sheet, first - margin, digits_top - 2, last - first + 2 * margin, 32)


def command(sheet, x, y, width, height, text, sign=None, kind="command"):
    """A pill to click on: its word in the middle of what the badge leaves free."""
    pill(sheet, x, y, width, height, kind)
    radius = height / 2 - 5
    free = width - (height if sign else 0)
    word(sheet, text, x + free / 2 + (4 if sign else 0), y + (height + WORD_HEIGHT) // 2, LIGHT, middle=True)
    if sign:
        badge(sheet, x + width - height / 2, y + height / 2, radius, "command", sign)


def in_setting(sheet, x, y, width, height, text, sign):
    """A pill to click on in a setting four pixels wide."""
    sheet.rect(x, y, width, height, "#6F89B4", rx=height / 2)
    sheet.rect(x + 1, y + 1, width - 2, height - 2, sheet.linear((0, "#9DB4D9"), (1, "#EAF1FB")),
               rx=height / 2 - 1)
    command(sheet, x + 4, y + 3, width - 8, height - 7, text, sign)


def offer(sheet, text, sign):
    in_setting(sheet, 0, 0, 191, 41, text, sign)


def fields(sheet):
    in_setting(sheet, 10, 2, 189, 41, "Neues Spiel", "play")
    in_setting(sheet, 10, 52, 129, 41, "Beenden", "cross")


# --- backgrounds --------------------------------------------------------------------------------

def ornament(sheet, curve, edge, beyond=0):
    """A dark checker along the left border. What lies right of its curved edge covers it: two
    bright seams and the white of the window. `beyond` pixels of it lie outside of the picture."""
    left, top, bottom = -beyond, -beyond, sheet.height + beyond
    sheet.rect(left, top, curve[0] + beyond, bottom - top,
               sheet.linear((0, "#23408C"), (0.3, DEEP_BLUE), (1, NIGHT), until=sheet.height))
    checker(sheet, edge, LIGHT, left, top, curve[0], bottom, opacity=0.06)
    for dx, dy, colour in ((0, 0, GOLD), (2.5, 2, SKY), (5, 4, "#C9D8EE"), (8, 6, LIGHT)):
        curves = "".join("C" + " ".join(number(w + (dy if i % 2 else dx)) for i, w in enumerate(k))
                         for k in curve[1])
        sheet.path(f"M{number(curve[0] + dx)} {top}V{dy}{curves}V{bottom}H{sheet.width + beyond}V{top}z", colour)


def ground_tessel(sheet):
    """White with the ornament. A window of other proportions shows more of the drawing than the
    picture: it goes on beyond all four borders."""
    ornament(sheet, CURVE_TESSEL, 16, BEYOND)
    # A light plate for the title, whose capitals stand 26 to 39 pixels below the window's top: its
    # dark blue letters would be lost on the ornament.
    pill(sheet, 40, 17, 140, 31, "display")
    emblem(sheet, 44, 33, 25)


# Rows of the best list, in pixels: the middle of each badge and the bottom of its band. The digits
# of a row are 34 pixels below those of the row before, the names only 33.
ROWS = ((63, 79), (96, 113), (130, 147), (163, 180), (197, 215))


def ground_beste(sheet):
    sheet.rect(0, 0, 650, 450, LIGHT)
    ornament(sheet, CURVE_BESTE, 12)
    # The ground of the list, dark enough for its white lines and light enough for blue words. Its
    # right end lies outside of the window, since the digits all but touch the window's border.
    sheet.rect(59, 5, 301, 223, SHADOW, rx=9, opacity=0.2)
    sheet.rect(58, 4, 302, 222, "#5C7299", rx=9)
    sheet.rect(59, 5, 300, 220, sheet.linear((0, "#C3D1E6"), (1, "#ABBDD9")), rx=8)
    emblem(sheet, 28, 30, 19)
    top = 45
    for place, (middle, bottom) in enumerate(ROWS, start=1):
        # Every second row lies on a darker band, which leads the eye from the badge to the digits.
        if place % 2:
            sheet.rect(59, top, 300, bottom - top, "#7E97BF", opacity=0.45)
        top = bottom
        sheet.circle(74, middle, 9, NIGHT if place > 1 else "#8A6A00")
        sheet.circle(74, middle, 8, "#3562C0" if place > 1 else GOLD)
        word(sheet, str(place), 74, middle + 4, LIGHT if place > 1 else NIGHT, height=8, middle=True)
        well(sheet, 249, 34 * place + 13, 90, 30)


def frame(sheet):
    """Quiet tiling; the lines around the shown part and around the stones make the frame."""
    sheet.rect(0, 0, 866, 580, "#9DB0CB")
    checker(sheet, 8, "#93A7C4", 0, 0, sheet.width, sheet.height)
    sheet.path("M0 0h463v337h-463zM1 1v335h461v-335z", "#3F5378", fill_rule="evenodd")
    sheet.path("M1 1h461v1h-460v334h-1z", LIGHT, opacity=0.6)
    sheet.path("M462 2v334h-460v-1h459v-333z", NIGHT, opacity=0.25)
    sheet.rect(5, 5, 452, 324, "#33476B", rx=2)
    sheet.rect(6, 6, 450, 322, "#6B5840", rx=1)


def backdrop(sheet):
    """Mottled grey: hills of a random field, filled from one contour line to the next.

    From line to line the grey grows so little that no edge is seen: the whole looks soft at any
    stretching, and flat opaque fills cost less than gradients.
    """
    field = hilly_field(Random(20), 110)
    greys = ["#" + 3 * f"{value:02X}" for value in range(0xB8, 0xC3)]
    # The rare deepest and highest places share the first and the last grey.
    heights = sorted(field.values())
    low, high = heights[len(heights) // 25], heights[-len(heights) // 25]
    sheet.rect(0, 0, 643, 647, greys[0])
    for index, colour in enumerate(greys[1:]):
        threshold = low + (high - low) * (index + 0.5) / (len(greys) - 1)
        sheet.path(contour(field, threshold), colour)


def message(sheet, width, height, *pills):
    """Ground of a message window, whose shown part is width x height."""
    sheet.rect(0, 0, sheet.width, sheet.height,
               sheet.linear((0, "#23408C"), (0.22, DEEP_BLUE), (1, NIGHT)))
    checker(sheet, 14, LIGHT, 0, 0, sheet.width, sheet.height, opacity=0.055)
    sheet.rect(0, 0, width, 24, sheet.linear((0, LIGHT, 0.16), (1, LIGHT, 0.02)))
    sheet.path(f"M0 0h{width}v{height}h-{width}zM1 1v{height - 2}h{width - 2}v-{height - 2}z", SKY,
               fill_rule="evenodd")
    emblem(sheet, 30, 26, 17)
    for x, y, pill_width, text in pills:
        command(sheet, x, y, pill_width, 27, text, kind="command-dark")


def close(sheet):
    sheet.circle(16, 16, 15.5, "#6E0E0E")
    sheet.circle(16, 16, 14, sheet.linear((0, "#FF6A5A"), (0.5, "#E0261B"), (1, "#B5120C")))
    sheet.path("M10.5 10.5l11 11m0-11l-11 11", stroke=LIGHT, stroke_width=4, stroke_linecap="round")


# --- small pictures -----------------------------------------------------------------------------

def hand(sheet):
    """A pointing hand; the tip of the finger is at 5, 0."""
    sheet.path("M5.5 0C4.2 0 3.5 .9 3.5 2V12.2L2.6 11.3C1.7 10.5 .2 11 .2 12.4C.2 13.2 .5 13.6 .9 14.2"
               "L4.5 19.6V23H15.5V19.6C16.4 18 16.8 16.5 16.8 14.8V10C16.8 8.2 14.6 7.8 14 8.9"
               "C13.6 7.3 11.6 7 10.9 8.2C10.3 6.8 8.3 6.7 7.5 7.6V2C7.5 .9 6.8 0 5.5 0z", "#000")
    sheet.path("M5.5 1C4.8 1 4.5 1.5 4.5 2V14.5L2.4 12.2C1.8 11.6 1 12 1.2 12.8L1.6 13.6L5.5 19.3V22"
               "H14.5V19.3C15.4 17.8 15.8 16.5 15.8 14.8V10.2C15.8 9 14.2 9 14.2 10.2V12.5H13.2V9.6"
               "C13.2 8.3 11.2 8.2 11.2 9.5V12.5H10.2V8.9C10.2 7.6 7.9 7.5 7.9 8.9V12.5H6.5V2"
               "C6.5 1.5 6.2 1 5.5 1z", LIGHT)


def icon(sheet, r):
    light, colour, dark, rim, _ = STONES[3]
    disc(sheet, 16, 16, r, light, colour, "#DDB800", rim, 1.5)
    face(sheet, 16, 16, r, "laughing")


# --- the table of all pictures ------------------------------------------------------------------

def pictures():
    """All pictures: name, width, height, how to draw it and with what."""
    yield "tile", 32, 32, tile, ()
    for value in STONES:
        yield f"stone-{value}", 32, 32, stone, (value,)
        yield f"stone-{value}-laughing", 32, 32, stone, (value, "laughing")
        yield f"stone-{value}-neutral", 32, 32, stone, (value, "neutral")
    for name, lit in DIGITS.items():
        yield f"digit-{name}", 14, 28, digit, (lit,)
    yield "arrow-red", 33, 24, arrow, ("#6E0E0E", "#FF6A5A", "#D01510")
    yield "arrow-yellow", 33, 24, arrow, ("#6B5200", "#FFE95A", "#FFC400")
    for name, left, right, text, sign in (("hilfe", 2, 96, "Hilfe", "question"),
                                          ("info", 0, 94, "Info", "info")):
        yield name, 96, 42, button, (left, right, text, sign, False)
        yield f"{name}-pressed", 96, 42, button, (left, right, text, sign, True)
    for name, geometry in PANELS.items():
        yield f"panel-{name}", 191, 42, panel, geometry
    yield "naechster-level", 191, 42, offer, ("Nächster Level", "forward")
    yield "wiederholen", 191, 42, offer, ("Wiederholen", "back")
    yield "fields", 200, 96, fields, ()
    yield "ground-tessel", 1000, 800, ground_tessel, ()
    yield "frame", 866, 580, frame, ()
    yield "hintergrund", 643, 647, backdrop, ()
    yield "ground-msgja", 392, 237, message, (392, 236, (32, 193, 147, "Nein"), (222, 193, 145, "Ja"))
    yield "ground-msgok", 392, 237, message, (387, 228, (120, 194, 145, "OK"))
    yield "close", 32, 32, close, ()
    yield "ground-beste", 650, 450, ground_beste, ()
    yield "beste-ok", 143, 33, command, (0, 0, 139, 31, "OK")
    yield "beste-loeschen", 147, 35, command, (8, 1, 139, 31, "Einträge löschen")
    yield "hand", 32, 32, hand, ()
    yield "icon-tessel", 32, 32, icon, (15.5,)
    yield "icon-beste", 32, 32, icon, (11,)


def main(arguments):
    different = []
    for name, width, height, draw, args in pictures():
        sheet = Sheet(width, height)
        draw(sheet, *args)
        file = FOLDER / f"{name}.svg"
        if arguments != ["--check"]:
            file.write_text(sheet.svg(), encoding="utf-8")
        elif not file.is_file() or file.read_text(encoding="utf-8") != sheet.svg():
            different.append(file.name)
    if different:
        print("differ from what is drawn:", " ".join(different), file=sys.stderr)
    return 1 if different else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
