"""The shapes that all pictures share: pills, badges, stones, faces, the ornament and the checker."""

from math import cos, pi, sin

from blatt import zahl
from schrift import wortbreite, wortpfad

# The colours of the family.
NACHT = "#0B1A45"        # darkest blue: rims, words on light ground
TIEFBLAU = "#152B66"     # ground of the ornament and of the message windows
GOLD = "#F6C945"         # badges, accents
HIMMEL = "#7FA8DC"       # second accent
LICHT = "#FFFFFF"
SCHATTEN = "#0A1230"

# Height of the capitals of all words, in pixels.
WORTHOEHE = 10

# Kinds of pills: rim, body from top to bottom, colour of the word, badge and its sign.
PILLEN = {
    "ruhe": ("#33476B", "#AFBED7", "#8296BA", "#667CA4", NACHT, "#22365F", LICHT),
    "gedrueckt": ("#0B5A17", "#2FBF3F", "#45E356", "#7CF58A", "#04330B", "#0A5C17", LICHT),
    "befehl": ("#0E2257", "#5C86DB", "#3562C0", "#234A9E", LICHT, GOLD, NACHT),
    "befehl-dunkel": ("#A9C4EE", "#5C86DB", "#3562C0", "#234A9E", LICHT, GOLD, NACHT),
    "anzeige": ("#4A5C80", "#F4F7FB", "#D3DCEA", "#B3C1D7", NACHT, None, None),
}


def pille(blatt, x, y, breite, hoehe, art, schatten=2):
    """A pill with a rim of one pixel; its shadow falls `schatten` pixels below it."""
    rand, oben, mitte, unten = PILLEN[art][:4]
    if schatten:
        blatt.rechteck(x, y + schatten, breite, hoehe, SCHATTEN, rx=hoehe / 2, opacity=0.16)
        blatt.rechteck(x, y + schatten / 2, breite, hoehe, SCHATTEN, rx=hoehe / 2, opacity=0.22)
    blatt.rechteck(x, y, breite, hoehe, rand, rx=hoehe / 2)
    koerper = blatt.linear((0, oben), (0.5, mitte), (1, unten))
    blatt.rechteck(x + 1, y + 1, breite - 2, hoehe - 2, koerper, rx=hoehe / 2 - 1)
    glanz = blatt.linear((0, LICHT, 0.55), (1, LICHT, 0.06))
    halb = (hoehe - 4) // 2
    blatt.rechteck(x + 4, y + 2, breite - 8, halb, glanz, rx=halb / 2)


def wort(blatt, text, x, grundlinie, farbe, hoehe=WORTHOEHE, mitte=False):
    """A word that begins at x, or has its middle there."""
    if mitte:
        x -= wortbreite(text, hoehe) / 2
    blatt.pfad(wortpfad(text, x, grundlinie, hoehe), farbe)


def marke(blatt, cx, cy, r, art, zeichen):
    """A round badge with a sign, in the colours of its pill."""
    rand, grund, farbe = PILLEN[art][0], PILLEN[art][5], PILLEN[art][6]
    blatt.kreis(cx, cy, r, rand)
    blatt.kreis(cx, cy, r - 1, grund)
    blatt.kreis(cx, cy, r - 1, blatt.linear((0, LICHT, 0.5), (0.6, LICHT, 0)))
    ZEICHEN[zeichen](blatt, cx, cy, farbe)


def _buchstabe(text):
    return lambda blatt, cx, cy, farbe: wort(blatt, text, cx, cy + 6, farbe, hoehe=12, mitte=True)


def _weiter(blatt, cx, cy, farbe):
    d = "".join(f"M{zahl(cx + dx)} {zahl(cy - 5)}l5 5l-5 5" for dx in (-5.5, 0.5))
    blatt.pfad(d, stroke=farbe, stroke_width=2.5)


def _zurueck(blatt, cx, cy, farbe):
    # Three quarters of a circle that end in an arrow head at the top right.
    r = 5.5
    ende = (cx + r * cos(-pi / 5), cy + r * sin(-pi / 5))
    anfang = (cx + r * cos(pi / 6), cy + r * sin(pi / 6))
    blatt.pfad(f"M{zahl(anfang[0])} {zahl(anfang[1])}A{r} {r} 0 1 1 {zahl(ende[0])} {zahl(ende[1])}",
               stroke=farbe, stroke_width=2.5)
    blatt.pfad(f"M{zahl(cx + 7.5)} {zahl(cy - 7)}v6.5h-6.5z", farbe)


def _spielen(blatt, cx, cy, farbe):
    blatt.pfad(f"M{zahl(cx - 4)} {zahl(cy - 6)}l10 6l-10 6z", farbe)


def _kreuz(blatt, cx, cy, farbe):
    blatt.pfad(f"M{zahl(cx - 4)} {zahl(cy - 4)}l8 8m0-8l-8 8", stroke=farbe, stroke_width=2.5,
               stroke_linecap="round")


ZEICHEN = {
    "frage": _buchstabe("?"),
    "info": _buchstabe("i"),
    "weiter": _weiter,
    "zurueck": _zurueck,
    "spielen": _spielen,
    "kreuz": _kreuz,
}


def tafelgrund(blatt, x, y, breite, hoehe):
    """The black well of a counter panel; its black is that of the digits."""
    blatt.rechteck(x - 1, y - 1, breite + 2, hoehe + 2, "#7182A0", rx=7)
    blatt.rechteck(x, y, breite, hoehe, "#000", rx=6)


def scheibe(blatt, cx, cy, r, hell, farbe, dunkel, rand, randbreite, glanz=0.75):
    """A round stone: rim, body lit from the top left, and a gleam."""
    blatt.kreis(cx, cy, r, rand)
    koerper = blatt.radial((0, hell), (0.55, farbe), (1, dunkel), cx=0.38, cy=0.32, r=0.72)
    blatt.kreis(cx, cy, r - randbreite, koerper)
    s = r / 15
    blatt.ellipse(cx - 1.5 * s, cy - 8.2 * s, 7 * s, 3.2 * s,
                  blatt.linear((0, LICHT, glanz), (1, LICHT, 0.05)))


def gesicht(blatt, cx, cy, r, art, farbe="#23160A"):
    """Eyes and mouth of a stone of radius r: "lacht" or "neutral"."""
    s = r / 15
    for seite in (-1, 1):
        blatt.ellipse(cx + seite * 4.6 * s, cy - 3.8 * s, 1.9 * s, 2.6 * s, farbe)
    if art == "lacht":
        d = (f"M{zahl(cx - 8 * s)} {zahl(cy + 1.5 * s)}h{zahl(16 * s)}"
             f"c0 {zahl(12 * s)} {zahl(-16 * s)} {zahl(12 * s)} {zahl(-16 * s)} 0z")
        blatt.pfad(d, farbe)
        blatt.ellipse(cx, cy + 8.2 * s, 3.6 * s, 1.9 * s, "#E4473C")
        blatt.rechteck(cx - 6.2 * s, cy + 1.5 * s, 12.4 * s, 1.9 * s, LICHT)
    else:
        blatt.rechteck(cx - 5.5 * s, cy + 4 * s, 11 * s, 2 * s, farbe, rx=1 * s)


def kacheln(felder, kante):
    """One path of square tiles with the given top left corners."""
    return "".join(f"M{zahl(x)} {zahl(y)}h{kante}v{kante}h-{kante}z" for x, y in felder)


def schachbrett(blatt, kante, farbe, **mehr):
    """Every second square of a checker over the whole sheet: one dashed line per row."""
    zeilen = "".join(f"M{zeile % 2 * kante} {y + kante // 2}H{blatt.breite}"
                     for zeile, y in enumerate(range(0, blatt.hoehe, kante)))
    blatt.pfad(zeilen, stroke=farbe, stroke_width=kante, stroke_dasharray=f"{kante} {kante}", **mehr)


def emblem(blatt, cx, cy, r):
    """The laughing yellow stone in a ring: the sign of the game."""
    blatt.kreis(cx, cy + 1.5, r + 2, "#000", opacity=0.3)
    blatt.kreis(cx, cy, r + 2, blatt.linear((0, LICHT), (1, HIMMEL)))
    scheibe(blatt, cx, cy, r, "#FFFF9A", "#F3F30C", "#D9B400", "#5A4A00", r / 9)
    gesicht(blatt, cx, cy, r, "lacht")
