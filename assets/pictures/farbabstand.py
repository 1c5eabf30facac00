#!/usr/bin/python3
"""Measures how far apart the four stones look, with and without colour vision deficiencies.

Renders the plain stones with rsvg-convert, takes the mean colour of each disc with its rim but
without the tile, and prints the difference of every two of them by CIEDE2000. Deficiencies are
simulated after Machado, Oliveira and Fernandes (2009) at severity 1.0 on linear RGB.
Fails if two stones are closer than 10.
"""

import subprocess
import sys
import zlib
from itertools import combinations
from math import atan2, cos, degrees, exp, hypot, radians, sin, sqrt
from pathlib import Path

MINDESTABSTAND = 10.0
KANTE = 256      # The stones are measured at 8 times their size.
RADIUS = 15 / 32  # Of the disc with its rim, as a part of the tile.

NAMEN = {1: "orange", 2: "green", 3: "yellow", 4: "blue"}

SEHEN = {
    "normal": ((1, 0, 0), (0, 1, 0), (0, 0, 1)),
    "protanopia": ((0.152286, 1.052583, -0.204868), (0.114503, 0.786281, 0.099216),
                   (-0.003882, -0.048116, 1.051998)),
    "deuteranopia": ((0.367322, 0.860646, -0.227968), (0.280085, 0.672501, 0.047413),
                     (-0.011820, 0.042940, 0.968881)),
    "tritanopia": ((1.255528, -0.076749, -0.178779), (-0.078411, 0.930809, 0.147602),
                   (0.004733, 0.691367, 0.303900)),
}


def png_zeilen(daten):
    """The rows of a coloured PNG with 8 bits per channel, as triples of red, green and blue."""
    breite, hoehe = int.from_bytes(daten[16:20], "big"), int.from_bytes(daten[20:24], "big")
    if daten[24] != 8 or daten[25] not in (2, 6) or daten[28] != 0:
        raise ValueError("expected 8 bit RGB or RGBA without interlacing")
    kanaele = 3 if daten[25] == 2 else 4
    stelle, gepackt = 8, b""
    while stelle < len(daten):
        laenge = int.from_bytes(daten[stelle:stelle + 4], "big")
        if daten[stelle + 4:stelle + 8] == b"IDAT":
            gepackt += daten[stelle + 8:stelle + 8 + laenge]
        stelle += laenge + 12
    roh, schritt = zlib.decompress(gepackt), kanaele * breite
    oben = bytes(schritt)
    for y in range(hoehe):
        art = roh[y * (schritt + 1)]
        zeile = bytearray(roh[y * (schritt + 1) + 1:(y + 1) * (schritt + 1)])
        for i in range(schritt):
            links, ecke = (zeile[i - kanaele], oben[i - kanaele]) if i >= kanaele else (0, 0)
            ueber = oben[i]
            zeile[i] = (zeile[i] + _vorhersage(art, links, ueber, ecke)) & 255
        oben = bytes(zeile)
        yield list(zip(*(oben[kanal::kanaele] for kanal in range(3))))


def _vorhersage(art, links, ueber, ecke):
    if art == 4:
        p = links + ueber - ecke
        return min((abs(p - links), 0, links), (abs(p - ueber), 1, ueber), (abs(p - ecke), 2, ecke))[2]
    return (0, links, ueber, (links + ueber) // 2)[art]


def linear(wert):
    wert /= 255
    return wert / 12.92 if wert <= 0.04045 else ((wert + 0.055) / 1.055) ** 2.4


LINEAR = [linear(wert) for wert in range(256)]


def mittlere_farbe(datei):
    """Mean of the disc in linear RGB, as the eye mixes it from afar."""
    png = subprocess.run(["rsvg-convert", "-w", str(KANTE), "-h", str(KANTE), str(datei)],
                         check=True, capture_output=True).stdout
    summe, anzahl, mitte = [0.0, 0.0, 0.0], 0, (KANTE - 1) / 2
    for y, zeile in enumerate(png_zeilen(png)):
        for x in range(KANTE):
            if hypot(x - mitte, y - mitte) <= RADIUS * KANTE:
                for kanal in range(3):
                    summe[kanal] += LINEAR[zeile[x][kanal]]
                anzahl += 1
    return [s / anzahl for s in summe]


def gesehen(rgb, matrix):
    return [min(1.0, max(0.0, sum(m * w for m, w in zip(zeile, rgb)))) for zeile in matrix]


def lab(rgb):
    r, g, b = rgb
    xyz = ((0.4124564 * r + 0.3575761 * g + 0.1804375 * b) / 0.95047,
           0.2126729 * r + 0.7151522 * g + 0.0721750 * b,
           (0.0193339 * r + 0.1191920 * g + 0.9503041 * b) / 1.08883)
    x, y, z = (w ** (1 / 3) if w > 216 / 24389 else (24389 / 27 * w + 16) / 116 for w in xyz)
    return 116 * y - 16, 500 * (x - y), 200 * (y - z)


def ciede2000(eins, zwei):
    l1, a1, b1 = eins
    l2, a2, b2 = zwei
    c7 = ((hypot(a1, b1) + hypot(a2, b2)) / 2) ** 7
    g = 0.5 * (1 - sqrt(c7 / (c7 + 25 ** 7)))
    a1, a2 = a1 * (1 + g), a2 * (1 + g)
    c1, c2 = hypot(a1, b1), hypot(a2, b2)
    h1, h2 = degrees(atan2(b1, a1)) % 360, degrees(atan2(b2, a2)) % 360
    dh = 0.0 if c1 * c2 == 0 else (h2 - h1 + 180) % 360 - 180
    delta_h = 2 * sqrt(c1 * c2) * sin(radians(dh / 2))
    lm, cm = (l1 + l2) / 2, (c1 + c2) / 2
    hm = h1 + h2 if c1 * c2 == 0 else (h1 + dh / 2) % 360
    t = (1 - 0.17 * cos(radians(hm - 30)) + 0.24 * cos(radians(2 * hm))
         + 0.32 * cos(radians(3 * hm + 6)) - 0.20 * cos(radians(4 * hm - 63)))
    sl = 1 + 0.015 * (lm - 50) ** 2 / sqrt(20 + (lm - 50) ** 2)
    sc, sh = 1 + 0.045 * cm, 1 + 0.015 * cm * t
    rc = 2 * sqrt(cm ** 7 / (cm ** 7 + 25 ** 7))
    rt = -rc * sin(radians(60 * exp(-(((hm - 275) / 25) ** 2))))
    dl, dc, dhh = (l2 - l1) / sl, (c2 - c1) / sc, delta_h / sh
    return sqrt(dl * dl + dc * dc + dhh * dhh + rt * dc * dhh)


def main():
    ordner = Path(__file__).resolve().parent
    farben = {wert: mittlere_farbe(ordner / f"stein-{wert}.svg") for wert in NAMEN}
    paare = list(combinations(NAMEN, 2))
    print(f"{'CIEDE2000':14}" + "".join(f"{NAMEN[a] + '-' + NAMEN[b]:>15}" for a, b in paare))
    kleinster = 100.0
    for sehen, matrix in SEHEN.items():
        labs = {wert: lab(gesehen(rgb, matrix)) for wert, rgb in farben.items()}
        abstaende = [ciede2000(labs[a], labs[b]) for a, b in paare]
        kleinster = min(kleinster, *abstaende)
        print(f"{sehen:14}" + "".join(f"{abstand:15.1f}" for abstand in abstaende))
    print(f"smallest: {kleinster:.1f}, wanted: {MINDESTABSTAND:.0f}")
    return 0 if kleinster >= MINDESTABSTAND else 1


if __name__ == "__main__":
    sys.exit(main())
