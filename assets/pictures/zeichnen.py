#!/usr/bin/python3
"""Draws all pictures of the game as SVG files beside this file.

    zeichnen.py            writes the files
    zeichnen.py --pruefen  writes nothing; fails if a file is missing or differs
"""

import sys
from pathlib import Path
from random import Random

from blatt import Blatt, zahl
from formen import (GOLD, HIMMEL, LICHT, NACHT, SCHATTEN, TIEFBLAU, WORTHOEHE, emblem, gesicht,
                    kacheln, marke, pille, schachbrett, scheibe, tafelgrund, wort)
from wolken import hoehenlinie, huegelfeld

ORDNER = Path(__file__).resolve().parent

# Stones by value: light, body and dark side, rim, width of the rim. Rim and shading differ in
# lightness as well as in hue, so that the four stay apart without colour vision
# (farbabstand.py measures it).
STEINE = {
    1: ("#FFAE2A", "#F19D0E", "#B45C00", "#421800", 3),
    2: ("#C0F6A2", "#93E56C", "#57B63A", "#1A521C", 2),
    3: ("#FFFFA8", "#F6F618", "#EFE000", "#867200", 1.5),
    4: ("#58DAFF", "#0CC5F3", "#0484C0", "#04305A", 2),
}

# Segments of a digit, from the top clockwise, the middle one last; and which are lit.
SEGMENTE = "abcdefg"
ZIFFERN = {
    "0": "abcdef", "1": "bc", "2": "abdeg", "3": "abcdg", "4": "bcfg", "5": "acdfg",
    "6": "acdefg", "7": "abc", "8": "abcdefg", "9": "abcdfg", "leer": "",
}

# Counter panels: word, left end of the panel in the main window, and in pixels of the panel the
# first column, the last column and the top of its digits. The panels do not lie exactly one
# under the other; their pills and wells are drawn so that they do.
TAFELN = {
    "punkte": ("Punkte", 10, 108, 178, 6),
    "levelpunkte": ("Levelpunkte", 8, 122, 178, 6),
    "level": ("Level", 6, 148, 176, 8),
}
SPALTE_LINKS, SPALTE_RECHTS, BRUNNEN_RECHTS = 18, 197, 190

# The edge of the ornament: start on the top border, then cubic curves down the picture.
BOGEN_TESSEL = (236, ((228, 44, 200, 62, 142, 66), (84, 70, 62, 96, 58, 160),
                      (52, 270, 62, 330, 56, 420), (48, 560, 36, 640, 54, 800)))
BOGEN_BESTE = (66, ((60, 40, 50, 60, 48, 110), (46, 190, 54, 240, 48, 300), (42, 360, 40, 400, 50, 450)))


# --- stones, digits, arrows ---------------------------------------------------------------------

def kachel(blatt):
    blatt.rechteck(0, 0, 32, 32, blatt.linear((0, "#D4BD9F"), (1, "#B09375"), quer=True))
    blatt.pfad("M0 0h32v1h-31v31h-1z", LICHT, opacity=0.3)
    blatt.pfad("M32 0v32h-32v-1h31v-31z", "#5A3E20", opacity=0.22)


def stein(blatt, wert, miene=None):
    kachel(blatt)
    blatt.kreis(16.4, 17, 14.9, "#2A1A08", opacity=0.3)
    hell, farbe, dunkel, rand, randbreite = STEINE[wert]
    scheibe(blatt, 16, 16, 15, hell, farbe, dunkel, rand, randbreite)
    if miene:
        gesicht(blatt, 16, 16, 15, miene)


def ziffer(blatt, an):
    blatt.rechteck(0, 0, 14, 28, "#000")
    formen = {}
    for name, x, y in (("a", 3.5, 4.5), ("g", 3.5, 14.5), ("d", 3.5, 24.5)):
        formen[name] = f"M{zahl(x + .4)} {zahl(y)}l1.5-1.5h3.2l1.5 1.5-1.5 1.5h-3.2z"
    for name, x, y in (("f", 3.5, 4.5), ("b", 10.5, 4.5), ("e", 3.5, 14.5), ("c", 10.5, 14.5)):
        formen[name] = f"M{zahl(x)} {zahl(y + .4)}l1.5 1.5v6.2l-1.5 1.5-1.5-1.5v-6.2z"
    for segmente, farbe in ((set(SEGMENTE) - set(an), "#0E4A14"), (set(an), "#3CFF4A")):
        if segmente:
            blatt.pfad("".join(formen[s] for s in SEGMENTE if s in segmente), farbe)


def pfeil(blatt, rand, oben, unten):
    form = "M{0} 12L{1} {2}V{3}H{4}V{5}H{1}V{6}z"
    blatt.pfad(form.format(2, 15, 2, 8, 31, 18, 24), SCHATTEN, opacity=0.2)
    blatt.pfad(form.format(1, 15, 0, 7, 32, 17, 24), rand)
    blatt.pfad(form.format(2.5, 14, 2.1, 8, 31, 16, 21.9), blatt.linear((0, oben), (1, unten)))
    blatt.pfad("M4.5 11L13 4.2V9H30V11z", LICHT, opacity=0.45)


# --- pills --------------------------------------------------------------------------------------

def knopf(blatt, links, rechts, text, zeichen, gedrueckt):
    """A small button with its badge at the right; pressed it sinks by a pixel."""
    tiefe = 1 if gedrueckt else 0
    pille(blatt, links, 1 + tiefe, rechts - links, 38, "gedrueckt" if gedrueckt else "ruhe",
          schatten=0 if gedrueckt else 2)
    wort(blatt, text, links + 16, 25 + tiefe, NACHT)
    marke(blatt, rechts - 20, 20 + tiefe, 13, "gedrueckt" if gedrueckt else "ruhe", zeichen)


def tafel(blatt, text, lage, erste, letzte, ziffern_oben):
    links, oben = SPALTE_LINKS - lage, ziffern_oben - 5
    pille(blatt, links, oben, SPALTE_RECHTS - SPALTE_LINKS, 38, "anzeige")
    wort(blatt, text, links + 14, oben + 24, NACHT)
    luft = BRUNNEN_RECHTS - lage - letzte
    tafelgrund(blatt, erste - luft, ziffern_oben - 2, letzte - erste + 2 * luft, 32)


def befehl(blatt, x, y, breite, hoehe, text, zeichen=None, art="befehl"):
    """A pill to click on: its word in the middle of what the badge leaves free."""
    pille(blatt, x, y, breite, hoehe, art)
    radius = hoehe / 2 - 5
    frei = breite - (hoehe if zeichen else 0)
    wort(blatt, text, x + frei / 2 + (4 if zeichen else 0), y + (hoehe + WORTHOEHE) // 2, LICHT, mitte=True)
    if zeichen:
        marke(blatt, x + breite - hoehe / 2, y + hoehe / 2, radius, "befehl", zeichen)


def gefasst(blatt, x, y, breite, hoehe, text, zeichen):
    """A pill to click on in a setting four pixels wide."""
    blatt.rechteck(x, y, breite, hoehe, "#6F89B4", rx=hoehe / 2)
    blatt.rechteck(x + 1, y + 1, breite - 2, hoehe - 2, blatt.linear((0, "#9DB4D9"), (1, "#EAF1FB")),
                   rx=hoehe / 2 - 1)
    befehl(blatt, x + 4, y + 3, breite - 8, hoehe - 7, text, zeichen)


def angebot(blatt, text, zeichen):
    gefasst(blatt, 0, 0, 191, 41, text, zeichen)


def felder(blatt):
    gefasst(blatt, 10, 2, 189, 41, "Neues Spiel", "spielen")
    gefasst(blatt, 10, 52, 129, 41, "Beenden", "kreuz")


# --- backgrounds --------------------------------------------------------------------------------

def _kante(bogen):
    """Points of the ornament's edge, close to each other, from top to bottom."""
    x0, y0 = bogen[0], 0
    for x1, y1, x2, y2, x3, y3 in bogen[1]:
        for i in range(50):
            t = i / 50
            a, b, c, d = (1 - t) ** 3, 3 * (1 - t) ** 2 * t, 3 * (1 - t) * t * t, t ** 3
            yield a * x0 + b * x1 + c * x2 + d * x3, a * y0 + b * y1 + c * y2 + d * y3
        x0, y0 = x3, y3
    yield x0, y0


def ornament(blatt, bogen, kante):
    """The dark ornament along the left border: a curved band of tiles with two bright seams."""
    kurven = "".join("C" + " ".join(zahl(w) for w in k) for k in bogen[1])
    band = f"M0 0H{bogen[0]}{kurven}H0z"
    for dx, dy, farbe in ((8, 6, "#C9D8EE"), (5, 4, HIMMEL), (2.5, 2, GOLD)):
        saum = "".join("C" + " ".join(zahl(w + (dy if i % 2 else dx)) for i, w in enumerate(k))
                       for k in bogen[1])
        blatt.pfad(f"M0 0H{zahl(bogen[0] + dx)}V{dy}{saum}H0z", farbe)
    blatt.pfad(band, blatt.linear((0, "#23408C"), (0.3, TIEFBLAU), (1, NACHT)))
    rand = list(_kante(bogen))
    felder_ = []
    for zeile, y in enumerate(range(0, blatt.hoehe, kante)):
        grenze = min(x for x, ky in rand if y - 2 <= ky <= y + kante + 2) - 2
        felder_ += [(x, y) for x in range(zeile % 2 * kante, int(grenze) - kante + 1, 2 * kante)]
    blatt.pfad(kacheln(felder_, kante), LICHT, opacity=0.06)


def grund_tessel(blatt):
    blatt.rechteck(0, 0, 1000, 800, LICHT)
    ornament(blatt, BOGEN_TESSEL, 16)
    # A light plate under the title: its dark blue letters would be lost on the ornament.
    pille(blatt, 40, 19, 140, 31, "anzeige")
    emblem(blatt, 44, 36, 25)


def grund_beste(blatt):
    blatt.rechteck(0, 0, 650, 450, LICHT)
    ornament(blatt, BOGEN_BESTE, 12)
    # The ground of the list, dark enough for its white lines and light enough for blue words.
    blatt.rechteck(59, 5, 281, 223, SCHATTEN, rx=9, opacity=0.2)
    blatt.rechteck(58, 4, 282, 222, "#5C7299", rx=9)
    blatt.rechteck(59, 5, 280, 220, blatt.linear((0, "#C3D1E6"), (1, "#ABBDD9")), rx=8)
    emblem(blatt, 28, 30, 19)
    # The places 1 to 5 beside the name boxes.
    for platz, y in enumerate((63, 96, 130, 163, 196), start=1):
        blatt.kreis(74, y, 9, NACHT if platz > 1 else "#8A6A00")
        blatt.kreis(74, y, 8, "#3562C0" if platz > 1 else GOLD)
        wort(blatt, str(platz), 74, y + 4, LICHT if platz > 1 else NACHT, hoehe=8, mitte=True)


def rahmen(blatt):
    """Quiet tiling; the lines around the shown part and around the stones make the frame."""
    blatt.rechteck(0, 0, 866, 580, "#9DB0CB")
    schachbrett(blatt, 8, "#93A7C4")
    blatt.pfad("M0 0h463v337h-463zM1 1v335h461v-335z", "#3F5378", fill_rule="evenodd")
    blatt.pfad("M1 1h461v1h-460v334h-1z", LICHT, opacity=0.6)
    blatt.pfad("M462 2v334h-460v-1h459v-333z", NACHT, opacity=0.25)
    blatt.rechteck(5, 5, 452, 324, "#33476B", rx=2)
    blatt.rechteck(6, 6, 450, 322, "#6B5840", rx=1)


def hintergrund(blatt):
    """Mottled grey: hills of a random field, filled from one contour line to the next.

    From line to line the grey grows so little that no edge is seen: the whole looks soft at any
    stretching, and flat opaque fills cost less than gradients.
    """
    spalten, zeilen, weite = 34, 34, 20
    feld = huegelfeld(Random(14), spalten, zeilen, weite, 220)
    grau = ["#" + 3 * f"{wert:02X}" for wert in range(0xB8, 0xC3)]
    # The rare deepest and highest places share the first and the last grey.
    hoehen = sorted(feld.values())
    tief, hoch = hoehen[len(hoehen) // 25], hoehen[-len(hoehen) // 25]
    blatt.rechteck(0, 0, 643, 647, grau[0])
    for nummer, farbe in enumerate(grau[1:]):
        schwelle = tief + (hoch - tief) * (nummer + 0.5) / (len(grau) - 1)
        blatt.pfad(hoehenlinie(feld, spalten, zeilen, weite, schwelle), farbe)


def meldung(blatt, breite, hoehe, *pillen):
    """Ground of a message window, whose shown part is breite x hoehe."""
    blatt.rechteck(0, 0, blatt.breite, blatt.hoehe,
                   blatt.linear((0, "#23408C"), (0.22, TIEFBLAU), (1, NACHT)))
    schachbrett(blatt, 14, LICHT, opacity=0.055)
    blatt.rechteck(0, 0, breite, 24, blatt.linear((0, LICHT, 0.16), (1, LICHT, 0.02)))
    blatt.pfad(f"M0 0h{breite}v{hoehe}h-{breite}zM1 1v{hoehe - 2}h{breite - 2}v-{hoehe - 2}z", HIMMEL,
               fill_rule="evenodd")
    emblem(blatt, 30, 26, 17)
    for x, y, pillenbreite, text in pillen:
        befehl(blatt, x, y, pillenbreite, 27, text, art="befehl-dunkel")


def schliessen(blatt):
    blatt.kreis(16, 16, 15.5, "#6E0E0E")
    blatt.kreis(16, 16, 14, blatt.linear((0, "#FF6A5A"), (0.5, "#E0261B"), (1, "#B5120C")))
    blatt.pfad("M10.5 10.5l11 11m0-11l-11 11", stroke=LICHT, stroke_width=4, stroke_linecap="round")


# --- small pictures -----------------------------------------------------------------------------

def hand(blatt):
    """A pointing hand; the tip of the finger is at 5, 0."""
    blatt.pfad("M5.5 0C4.2 0 3.5 .9 3.5 2V12.2L2.6 11.3C1.7 10.5 .2 11 .2 12.4C.2 13.2 .5 13.6 .9 14.2"
               "L4.5 19.6V23H15.5V19.6C16.4 18 16.8 16.5 16.8 14.8V10C16.8 8.2 14.6 7.8 14 8.9"
               "C13.6 7.3 11.6 7 10.9 8.2C10.3 6.8 8.3 6.7 7.5 7.6V2C7.5 .9 6.8 0 5.5 0z", "#000")
    blatt.pfad("M5.5 1C4.8 1 4.5 1.5 4.5 2V14.5L2.4 12.2C1.8 11.6 1 12 1.2 12.8L1.6 13.6L5.5 19.3V22"
               "H14.5V19.3C15.4 17.8 15.8 16.5 15.8 14.8V10.2C15.8 9 14.2 9 14.2 10.2V12.5H13.2V9.6"
               "C13.2 8.3 11.2 8.2 11.2 9.5V12.5H10.2V8.9C10.2 7.6 7.9 7.5 7.9 8.9V12.5H6.5V2"
               "C6.5 1.5 6.2 1 5.5 1z", LICHT)


def symbol(blatt, r):
    hell, farbe, dunkel, rand, _ = STEINE[3]
    scheibe(blatt, 16, 16, r, hell, farbe, "#DDB800", rand, 1.5)
    gesicht(blatt, 16, 16, r, "lacht")


# --- the table of all pictures ------------------------------------------------------------------

def bilder():
    """All pictures: name, width, height, how to draw it and with what."""
    yield "kachel", 32, 32, kachel, ()
    for wert in STEINE:
        yield f"stein-{wert}", 32, 32, stein, (wert,)
        yield f"stein-{wert}-lacht", 32, 32, stein, (wert, "lacht")
        yield f"stein-{wert}-neutral", 32, 32, stein, (wert, "neutral")
    for name, an in ZIFFERN.items():
        yield f"ziffer-{name}", 14, 28, ziffer, (an,)
    yield "pfeil-rot", 33, 24, pfeil, ("#6E0E0E", "#FF6A5A", "#D01510")
    yield "pfeil-gelb", 33, 24, pfeil, ("#6B5200", "#FFE95A", "#FFC400")
    for name, links, rechts, text, zeichen in (("hilfe", 2, 96, "Hilfe", "frage"),
                                               ("info", 0, 94, "Info", "info")):
        yield name, 96, 42, knopf, (links, rechts, text, zeichen, False)
        yield f"{name}-gedrueckt", 96, 42, knopf, (links, rechts, text, zeichen, True)
    for name, masse in TAFELN.items():
        yield f"tafel-{name}", 191, 42, tafel, masse
    yield "naechster-level", 191, 42, angebot, ("Nächster Level", "weiter")
    yield "wiederholen", 191, 42, angebot, ("Wiederholen", "zurueck")
    yield "felder", 200, 96, felder, ()
    yield "grund-tessel", 1000, 800, grund_tessel, ()
    yield "rahmen", 866, 580, rahmen, ()
    yield "hintergrund", 643, 647, hintergrund, ()
    yield "grund-msgja", 392, 237, meldung, (392, 236, (32, 193, 147, "Nein"), (222, 193, 145, "Ja"))
    yield "grund-msgok", 392, 237, meldung, (387, 228, (120, 194, 145, "OK"))
    yield "schliessen", 32, 32, schliessen, ()
    yield "grund-beste", 650, 450, grund_beste, ()
    yield "beste-ok", 143, 33, befehl, (0, 0, 139, 31, "OK")
    yield "beste-loeschen", 147, 35, befehl, (8, 1, 139, 31, "Einträge löschen")
    yield "hand", 32, 32, hand, ()
    yield "symbol-tessel", 32, 32, symbol, (15.5,)
    yield "symbol-beste", 32, 32, symbol, (11,)


def main(argumente):
    abweichend = []
    for name, breite, hoehe, zeichne, womit in bilder():
        blatt = Blatt(breite, hoehe)
        zeichne(blatt, *womit)
        datei = ORDNER / f"{name}.svg"
        if argumente != ["--pruefen"]:
            datei.write_text(blatt.svg(), encoding="utf-8")
        elif not datei.is_file() or datei.read_text(encoding="utf-8") != blatt.svg():
            abweichend.append(datei.name)
    if abweichend:
        print("differ from what is drawn:", " ".join(abweichend), file=sys.stderr)
    return 1 if abweichend else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
