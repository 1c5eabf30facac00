"""Turns words into outlines, so that the pictures need no fonts when they are shown."""

from functools import lru_cache

from fontTools.pens.basePen import BasePen
from fontTools.ttLib import TTFont

from sheet import number

FONT = "/usr/share/fonts/truetype/liberation2/LiberationSans-Bold.ttf"

# Height of the capitals as a part of the font size; words are sized by it, so that their
# capitals begin and end on whole pixels.
CAPITALS = 1409 / 2048


@lru_cache(maxsize=None)
def _font():
    font = TTFont(FONT)
    return font.getGlyphSet(), font.getBestCmap(), font["head"].unitsPerEm


class _PathPen(BasePen):
    """Writes the outline of a letter as an SVG path, moved and scaled."""

    def __init__(self, glyphs, x, baseline, factor):
        super().__init__(glyphs)
        self._x, self._y, self._factor = x, baseline, factor
        self.parts = []

    def _points(self, *points):
        numbers = [number(w) for x, y in points
                   for w in (self._x + x * self._factor, self._y - y * self._factor)]
        return " ".join(numbers)

    def _moveTo(self, point):
        self.parts.append("M" + self._points(point))

    def _lineTo(self, point):
        self.parts.append("L" + self._points(point))

    def _qCurveToOne(self, handle, point):
        self.parts.append("Q" + self._points(handle, point))

    def _curveToOne(self, handle1, handle2, point):
        self.parts.append("C" + self._points(handle1, handle2, point))

    def _closePath(self):
        self.parts.append("z")


def word_width(word, capitals):
    """Width of a word in pixels whose capitals are `capitals` pixels high."""
    glyphs, names, units = _font()
    return sum(glyphs[names[ord(letter)]].width for letter in word) * capitals / CAPITALS / units


def word_path(word, x, baseline, capitals):
    """The path of a word that begins at x on the given baseline."""
    glyphs, names, units = _font()
    factor = capitals / CAPITALS / units
    parts = []
    for letter in word:
        glyph = glyphs[names[ord(letter)]]
        pen = _PathPen(glyphs, x, baseline, factor)
        glyph.draw(pen)
        parts += pen.parts
        x += glyph.width * factor
    return "".join(parts)
