"""Turns words into outlines, so that the pictures need no fonts when they are shown."""

from functools import lru_cache

from fontTools.pens.basePen import BasePen
from fontTools.ttLib import TTFont

from blatt import zahl

SCHRIFT = "/usr/share/fonts/truetype/liberation2/LiberationSans-Bold.ttf"

# Height of the capitals as a part of the font size; words are sized by it, so that their
# capitals begin and end on whole pixels.
VERSALHOEHE = 1409 / 2048


@lru_cache(maxsize=None)
def _schrift():
    schrift = TTFont(SCHRIFT)
    return schrift.getGlyphSet(), schrift.getBestCmap(), schrift["head"].unitsPerEm


class _PfadStift(BasePen):
    """Writes the outline of a letter as an SVG path, moved and scaled."""

    def __init__(self, glyphen, x, grundlinie, faktor):
        super().__init__(glyphen)
        self._x, self._y, self._faktor = x, grundlinie, faktor
        self.teile = []

    def _punkte(self, *punkte):
        zahlen = [zahl(w) for x, y in punkte
                  for w in (self._x + x * self._faktor, self._y - y * self._faktor)]
        return " ".join(zahlen)

    def _moveTo(self, punkt):
        self.teile.append("M" + self._punkte(punkt))

    def _lineTo(self, punkt):
        self.teile.append("L" + self._punkte(punkt))

    def _qCurveToOne(self, griff, punkt):
        self.teile.append("Q" + self._punkte(griff, punkt))

    def _curveToOne(self, griff1, griff2, punkt):
        self.teile.append("C" + self._punkte(griff1, griff2, punkt))

    def _closePath(self):
        self.teile.append("z")


def wortbreite(wort, versalhoehe):
    """Width of a word in pixels whose capitals are `versalhoehe` pixels high."""
    glyphen, zeichen, einheiten = _schrift()
    return sum(glyphen[zeichen[ord(b)]].width for b in wort) * versalhoehe / VERSALHOEHE / einheiten


def wortpfad(wort, x, grundlinie, versalhoehe):
    """The path of a word that begins at x on the given baseline."""
    glyphen, zeichen, einheiten = _schrift()
    faktor = versalhoehe / VERSALHOEHE / einheiten
    teile = []
    for buchstabe in wort:
        glyphe = glyphen[zeichen[ord(buchstabe)]]
        stift = _PfadStift(glyphen, x, grundlinie, faktor)
        glyphe.draw(stift)
        teile += stift.teile
        x += glyphe.width * faktor
    return "".join(teile)
