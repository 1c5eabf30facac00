"""A sheet to draw on: collects shapes and gradients of one picture and writes them as small SVG.

Only what Qt's SVG renderer draws is offered: basic shapes, paths, gradients with all their
numbers written out, and opacity.
"""


def zahl(wert):
    """A number as short as SVG allows, exact to a hundredth of a pixel."""
    text = f"{wert:.2f}".rstrip("0").rstrip(".")
    if text.startswith("0."):
        return text[1:]
    if text.startswith("-0."):
        return "-" + text[2:]
    return "0" if text in ("-0", "") else text


def _attribute(paare):
    teile = []
    for name, wert in paare.items():
        if wert is None:
            continue
        if isinstance(wert, (int, float)):
            wert = zahl(wert)
        teile.append(f' {name.rstrip("_").replace("_", "-")}="{wert}"')
    return "".join(teile)


class Blatt:
    """One picture of a given size in pixels."""

    def __init__(self, breite, hoehe):
        self.breite = breite
        self.hoehe = hoehe
        self._verlaeufe = {}
        self._formen = []

    def _verlauf(self, art, stufen, attribute):
        stops = "".join(
            f"<stop{_attribute({'offset': lage, 'stop_color': farbe, 'stop_opacity': deckung})}/>"
            for lage, farbe, deckung in ((*stufe, None)[:3] for stufe in stufen)
        )
        inhalt = f"{art}{_attribute(attribute)}>{stops}</{art}>"
        if inhalt not in self._verlaeufe:
            self._verlaeufe[inhalt] = "abcdefghijklmnopqrstuvwxyz"[len(self._verlaeufe)]
        return f"url(#{self._verlaeufe[inhalt]})"

    def linear(self, *stufen, quer=False):
        """A paint from top to bottom, or from left to right if `quer`.

        The steps are (place, colour) or (place, colour, opacity).
        """
        ende = {"x2": 1, "y2": 0} if quer else {"x2": 0, "y2": 1}
        return self._verlauf("linearGradient", stufen, {"x1": 0, "y1": 0, **ende})

    def radial(self, *stufen, cx=0.5, cy=0.5, r=0.5):
        """A paint from a centre outwards, measured in parts of the painted shape."""
        return self._verlauf("radialGradient", stufen, {"cx": cx, "cy": cy, "r": r})

    def rechteck(self, x, y, breite, hoehe, fill, rx=None, **mehr):
        masse = {"x": x, "y": y, "width": breite, "height": hoehe, "rx": rx, "ry": rx}
        self._form("rect", masse, fill, mehr)

    def kreis(self, cx, cy, r, fill, **mehr):
        self._form("circle", {"cx": cx, "cy": cy, "r": r}, fill, mehr)

    def ellipse(self, cx, cy, rx, ry, fill, **mehr):
        self._form("ellipse", {"cx": cx, "cy": cy, "rx": rx, "ry": ry}, fill, mehr)

    def pfad(self, d, fill="none", **mehr):
        self._form("path", {"d": d}, fill, mehr)

    def _form(self, art, masse, fill, mehr):
        self._formen.append(f"<{art}{_attribute({**masse, 'fill': fill, **mehr})}/>")

    def svg(self):
        verlaeufe = "".join(
            "<" + inhalt.replace("Gradient", f'Gradient id="{name}"', 1) + "\n"
            for inhalt, name in self._verlaeufe.items()
        )
        kopf = (
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.breite}" height="{self.hoehe}" '
            f'viewBox="0 0 {self.breite} {self.hoehe}">\n'
        )
        defs = f"<defs>\n{verlaeufe}</defs>\n" if verlaeufe else ""
        return kopf + defs + "\n".join(self._formen) + "\n</svg>\n"
