"""Contour lines of a random hilly field: the shapes of the mottled backdrop."""

from math import exp

from blatt import zahl


def huegelfeld(zufall, spalten, zeilen, weite, huegel):
    """Heights at the points of a grid: hills and hollows, `weite` pixels between two points."""
    liste = [(zufall.uniform(-60, spalten * weite + 60), zufall.uniform(-60, zeilen * weite + 60),
              zufall.uniform(18, 36), 1 if nummer % 2 else -1) for nummer in range(huegel)]
    # The hills are a little taller than wide, since most screens stretch the picture in width.
    return {(i, j): sum(seite * exp(-((i * weite - x) ** 2 + ((j * weite - y) / 1.3) ** 2) / (2 * r * r))
                        for x, y, r, seite in liste)
            for i in range(spalten) for j in range(zeilen)}


def hoehenlinie(feld, spalten, zeilen, weite, schwelle):
    """The path around all that is higher than the threshold; it closes along the border."""
    def hoch(punkt):
        return feld.get(punkt, -9) > schwelle

    def schnitt(kante):
        (i, j), (k, l) = kante
        a, b = feld.get((i, j), -9), feld.get((k, l), -9)
        t = (schwelle - a) / (b - a)
        return (i + t * (k - i)) * weite, (j + t * (l - j)) * weite

    # Walk around every cell: where the height rises above the threshold the line comes in, and
    # it leaves at the next edge. The cell behind that edge sees it come in there.
    naechste = {}
    for i in range(-1, spalten):
        for j in range(-1, zeilen):
            ecken = ((i, j), (i + 1, j), (i + 1, j + 1), (i, j + 1))
            kanten = [(hoch(q), tuple(sorted((p, q))))
                      for p, q in zip(ecken, ecken[1:] + ecken[:1]) if hoch(p) != hoch(q)]
            for nummer, (steigt, kante) in enumerate(kanten):
                if steigt:
                    naechste[kante] = kanten[(nummer + 1) % len(kanten)][1]

    teile = []
    while naechste:
        start, kante = naechste.popitem()
        x, y = (round(w) for w in schnitt(start))
        teile.append(f"M{x} {y}l")
        schritte = []
        while kante != start:
            neu_x, neu_y = (round(w) for w in schnitt(kante))
            if (neu_x, neu_y) != (x, y):
                schritte.append(f"{zahl(neu_x - x)} {zahl(neu_y - y)}")
                x, y = neu_x, neu_y
            kante = naechste.pop(kante)
        teile.append(" ".join(schritte).replace(" -", "-") + "z")
    return "".join(teile)
