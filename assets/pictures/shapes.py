"""The shapes that all pictures share: pills, badges, stones, faces, the ornament and the checker."""

from math import cos, pi, sin

from lettering import word_path, word_width
from sheet import number

# The colours of the family.
NIGHT = "#0B1A45"      # darkest blue: rims, words on light ground
DEEP_BLUE = "#152B66"  # ground of the ornament and of the message windows
GOLD = "#F6C945"       # badges, accents
SKY = "#7FA8DC"        # second accent
LIGHT = "#FFFFFF"
SHADOW = "#0A1230"

# Height of the capitals of all words, in pixels.
WORD_HEIGHT = 10

# Kinds of pills: rim, body from top to bottom, colour of the word, badge and its sign.
PILLS = {
    "rest": ("#33476B", "#AFBED7", "#8296BA", "#667CA4", NIGHT, "#22365F", LIGHT),
    "pressed": ("#0B5A17", "#2FBF3F", "#45E356", "#7CF58A", "#04330B", "#0A5C17", LIGHT),
    "command": ("#0E2257", "#5C86DB", "#3562C0", "#234A9E", LIGHT, GOLD, NIGHT),
    "command-dark": ("#A9C4EE", "#5C86DB", "#3562C0", "#234A9E", LIGHT, GOLD, NIGHT),
    "display": ("#4A5C80", "#F4F7FB", "#D3DCEA", "#B3C1D7", NIGHT, None, None),
}


def pill(sheet, x, y, width, height, kind, shadow=2):
    """A pill with a rim of one pixel; its shadow falls `shadow` pixels below it."""
    rim, top, middle, bottom = PILLS[kind][:4]
    if shadow:
        sheet.rect(x, y + shadow, width, height, SHADOW, rx=height / 2, opacity=0.16)
        sheet.rect(x, y + shadow / 2, width, height, SHADOW, rx=height / 2, opacity=0.22)
    sheet.rect(x, y, width, height, rim, rx=height / 2)
    body = sheet.linear((0, top), (0.5, middle), (1, bottom))
    sheet.rect(x + 1, y + 1, width - 2, height - 2, body, rx=height / 2 - 1)
    gleam = sheet.linear((0, LIGHT, 0.55), (1, LIGHT, 0.06))
    half = (height - 4) // 2
    sheet.rect(x + 4, y + 2, width - 8, half, gleam, rx=half / 2)


def word(sheet, text, x, baseline, colour, height=WORD_HEIGHT, middle=False):
    """A word that begins at x, or has its middle there."""
    if middle:
        x -= word_width(text, height) / 2
    sheet.path(word_path(text, x, baseline, height), colour)


def badge(sheet, cx, cy, r, kind, sign):
    """A round badge with a sign, in the colours of its pill."""
    rim, ground, colour = PILLS[kind][0], PILLS[kind][5], PILLS[kind][6]
    sheet.circle(cx, cy, r, rim)
    sheet.circle(cx, cy, r - 1, ground)
    sheet.circle(cx, cy, r - 1, sheet.linear((0, LIGHT, 0.5), (0.6, LIGHT, 0)))
    SIGNS[sign](sheet, cx, cy, colour)


def _letter(text):
    return lambda sheet, cx, cy, colour: word(sheet, text, cx, cy + 6, colour, height=12, middle=True)


def _forward(sheet, cx, cy, colour):
    d = "".join(f"M{number(cx + dx)} {number(cy - 5)}l5 5l-5 5" for dx in (-5.5, 0.5))
    sheet.path(d, stroke=colour, stroke_width=2.5)


def _back(sheet, cx, cy, colour):
    # Three quarters of a circle that end in an arrow head at the top right.
    r = 5.5
    end = (cx + r * cos(-pi / 5), cy + r * sin(-pi / 5))
    start = (cx + r * cos(pi / 6), cy + r * sin(pi / 6))
    sheet.path(f"M{number(start[0])} {number(start[1])}A{r} {r} 0 1 1 {number(end[0])} {number(end[1])}",
               stroke=colour, stroke_width=2.5)
    sheet.path(f"M{number(cx + 7.5)} {number(cy - 7)}v6.5h-6.5z", colour)


def _play(sheet, cx, cy, colour):
    sheet.path(f"M{number(cx - 4)} {number(cy - 6)}l10 6l-10 6z", colour)


def _cross(sheet, cx, cy, colour):
    sheet.path(f"M{number(cx - 4)} {number(cy - 4)}l8 8m0-8l-8 8", stroke=colour, stroke_width=2.5,
               stroke_linecap="round")


SIGNS = {
    "question": _letter("?"),
    "info": _letter("i"),
    "forward": _forward,
    "back": _back,
    "play": _play,
    "cross": _cross,
}


def well(sheet, x, y, width, height):
    """The black well of a counter panel; its black is that of the digits."""
    sheet.rect(x - 1, y - 1, width + 2, height + 2, "#7182A0", rx=7)
    sheet.rect(x, y, width, height, "#000", rx=6)


def disc(sheet, cx, cy, r, light, colour, dark, rim, rim_width, gleam=0.75):
    """A round stone: rim, body lit from the top left, and a gleam."""
    sheet.circle(cx, cy, r, rim)
    body = sheet.radial((0, light), (0.55, colour), (1, dark), cx=0.38, cy=0.32, r=0.72)
    sheet.circle(cx, cy, r - rim_width, body)
    s = r / 15
    sheet.ellipse(cx - 1.5 * s, cy - 8.2 * s, 7 * s, 3.2 * s,
                  sheet.linear((0, LIGHT, gleam), (1, LIGHT, 0.05)))


def face(sheet, cx, cy, r, kind, colour="#23160A"):
    """Eyes and mouth of a stone of radius r: "laughing" or "neutral"."""
    s = r / 15
    for side in (-1, 1):
        sheet.ellipse(cx + side * 4.6 * s, cy - 3.8 * s, 1.9 * s, 2.6 * s, colour)
    if kind == "laughing":
        d = (f"M{number(cx - 8 * s)} {number(cy + 1.5 * s)}h{number(16 * s)}"
             f"c0 {number(12 * s)} {number(-16 * s)} {number(12 * s)} {number(-16 * s)} 0z")
        sheet.path(d, colour)
        sheet.ellipse(cx, cy + 8.2 * s, 3.6 * s, 1.9 * s, "#E4473C")
        sheet.rect(cx - 6.2 * s, cy + 1.5 * s, 12.4 * s, 1.9 * s, LIGHT)
    else:
        sheet.rect(cx - 5.5 * s, cy + 4 * s, 11 * s, 2 * s, colour, rx=1 * s)


def checker(sheet, edge, colour, left, top, right, bottom, **more):
    """Every second square of a checker: one dashed line for each row."""
    rows = "".join(f"M{left + row % 2 * edge} {y + edge // 2}H{right}"
                   for row, y in enumerate(range(top, bottom, edge)))
    sheet.path(rows, stroke=colour, stroke_width=edge, stroke_dasharray=f"{edge} {edge}", **more)


def emblem(sheet, cx, cy, r):
    """The laughing yellow stone in a ring: the sign of the game."""
    sheet.circle(cx, cy + 1.5, r + 2, "#000", opacity=0.3)
    sheet.circle(cx, cy, r + 2, sheet.linear((0, LIGHT), (1, SKY)))
    disc(sheet, cx, cy, r, "#FFFF9A", "#F3F30C", "#D9B400", "#5A4A00", r / 9)
    face(sheet, cx, cy, r, "laughing")
