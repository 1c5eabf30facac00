#!/usr/bin/python3
"""Measures how far apart the four stones look, with and without colour vision deficiencies.

Renders the plain stones with rsvg-convert, takes the mean colour of each disc with its rim but
without the tile, and prints the difference of every two of them by CIEDE2000. Deficiencies are
simulated after Machado, Oliveira and Fernandes (2009) at severity 1.0 on linear RGB.
Fails if two stones are closer than 10.
"""

import subprocess
import sys
from itertools import combinations
from math import atan2, cos, degrees, exp, hypot, radians, sin, sqrt
from pathlib import Path

LEAST_DISTANCE = 10.0
EDGE = 256        # The stones are measured at 8 times their size.
RADIUS = 15 / 32  # Of the disc with its rim, as a part of the tile.

NAMES = {1: "orange", 2: "green", 3: "yellow", 4: "blue"}

VISIONS = {
    "normal": ((1, 0, 0), (0, 1, 0), (0, 0, 1)),
    "protanopia": ((0.152286, 1.052583, -0.204868), (0.114503, 0.786281, 0.099216),
                   (-0.003882, -0.048116, 1.051998)),
    "deuteranopia": ((0.367322, 0.860646, -0.227968), (0.280085, 0.672501, 0.047413),
                     (-0.011820, 0.042940, 0.968881)),
    "tritanopia": ((1.255528, -0.076749, -0.178779), (-0.078411, 0.930809, 0.147602),
                   (0.004733, 0.691367, 0.303900)),
}


def linear(value):
    value /= 255
    return value / 12.92 if value <= 0.04045 else ((value + 0.055) / 1.055) ** 2.4


LINEAR = [linear(value) for value in range(256)]


def mean_colour(picture):
    """Mean of the disc in linear RGB, as the eye mixes it from afar."""
    png = subprocess.run(["rsvg-convert", "-w", str(EDGE), "-h", str(EDGE), picture],
                         check=True, capture_output=True).stdout
    pixels = subprocess.run(["convert", "png:-", "-depth", "8", "rgb:-"], input=png,
                            check=True, capture_output=True).stdout
    middle = (EDGE - 1) / 2
    disc = [at for at in range(EDGE * EDGE)
            if hypot(at % EDGE - middle, at // EDGE - middle) <= RADIUS * EDGE]
    return [sum(LINEAR[pixels[3 * at + channel]] for at in disc) / len(disc) for channel in range(3)]


def seen(rgb, matrix):
    return [min(1.0, max(0.0, sum(m * v for m, v in zip(row, rgb)))) for row in matrix]


def lab(rgb):
    r, g, b = rgb
    xyz = ((0.4124564 * r + 0.3575761 * g + 0.1804375 * b) / 0.95047,
           0.2126729 * r + 0.7151522 * g + 0.0721750 * b,
           (0.0193339 * r + 0.1191920 * g + 0.9503041 * b) / 1.08883)
    x, y, z = (w ** (1 / 3) if w > 216 / 24389 else (24389 / 27 * w + 16) / 116 for w in xyz)
    return 116 * y - 16, 500 * (x - y), 200 * (y - z)


def ciede2000(one, two):
    l1, a1, b1 = one
    l2, a2, b2 = two
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
    folder = Path(__file__).resolve().parent
    colours = {value: mean_colour(folder / f"stone-{value}.svg") for value in NAMES}
    pairs = list(combinations(NAMES, 2))
    print(f"{'CIEDE2000':14}" + "".join(f"{NAMES[a] + '-' + NAMES[b]:>15}" for a, b in pairs))
    smallest = 100.0
    for vision, matrix in VISIONS.items():
        labs = {value: lab(seen(rgb, matrix)) for value, rgb in colours.items()}
        distances = [ciede2000(labs[a], labs[b]) for a, b in pairs]
        smallest = min(smallest, *distances)
        print(f"{vision:14}" + "".join(f"{distance:15.1f}" for distance in distances))
    print(f"smallest: {smallest:.1f}, wanted: {LEAST_DISTANCE:.0f}")
    return 0 if smallest >= LEAST_DISTANCE else 1


if __name__ == "__main__":
    sys.exit(main())
