"""A sheet to draw on: collects shapes and gradients of one picture and writes them as small SVG.

Only what Qt's SVG renderer draws is offered: basic shapes, paths, gradients with all their
numbers written out, and opacity.
"""


def number(value):
    """A number as short as SVG allows, exact to a hundredth of a pixel."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    if text.startswith("0."):
        return text[1:]
    if text.startswith("-0."):
        return "-" + text[2:]
    return "0" if text in ("-0", "") else text


def _attributes(pairs):
    parts = []
    for name, value in pairs.items():
        if value is None:
            continue
        if isinstance(value, (int, float)):
            value = number(value)
        parts.append(f' {name.rstrip("_").replace("_", "-")}="{value}"')
    return "".join(parts)


class Sheet:
    """One picture of a given size in pixels."""

    def __init__(self, width, height):
        self.width = width
        self.height = height
        self._gradients = {}
        self._shapes = []

    def _gradient(self, kind, stops, attributes):
        elements = "".join(
            f"<stop{_attributes({'offset': offset, 'stop_color': colour, 'stop_opacity': opacity})}/>"
            for offset, colour, opacity in ((*stop, None)[:3] for stop in stops)
        )
        content = f"{kind}{_attributes(attributes)}>{elements}</{kind}>"
        if content not in self._gradients:
            self._gradients[content] = "abcdefghijklmnopqrstuvwxyz"[len(self._gradients)]
        return f"url(#{self._gradients[content]})"

    def linear(self, *stops, across=False, until=None):
        """A paint from top to bottom, or from left to right if `across`.

        The steps are (place, colour) or (place, colour, opacity). It is as long as the painted shape
        is high or wide, or goes `until` so many pixels below the top of the sheet.
        """
        end = {"x2": 1, "y2": 0} if across else {"x2": 0, "y2": until or 1}
        units = {"gradientUnits": "userSpaceOnUse"} if until else {}
        return self._gradient("linearGradient", stops, {"x1": 0, "y1": 0, **end, **units})

    def radial(self, *stops, cx=0.5, cy=0.5, r=0.5):
        """A paint from a centre outwards, measured in parts of the painted shape."""
        return self._gradient("radialGradient", stops, {"cx": cx, "cy": cy, "r": r})

    def rect(self, x, y, width, height, fill, rx=None, **more):
        geometry = {"x": x, "y": y, "width": width, "height": height, "rx": rx, "ry": rx}
        self._add("rect", geometry, fill, more)

    def circle(self, cx, cy, r, fill, **more):
        self._add("circle", {"cx": cx, "cy": cy, "r": r}, fill, more)

    def ellipse(self, cx, cy, rx, ry, fill, **more):
        self._add("ellipse", {"cx": cx, "cy": cy, "rx": rx, "ry": ry}, fill, more)

    def path(self, d, fill="none", **more):
        self._add("path", {"d": d}, fill, more)

    def _add(self, kind, geometry, fill, more):
        self._shapes.append(f"<{kind}{_attributes({**geometry, 'fill': fill, **more})}/>")

    def svg(self):
        gradients = "".join(
            "<" + content.replace("Gradient", f'Gradient id="{name}"', 1) + "\n"
            for content, name in self._gradients.items()
        )
        head = (
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.width}" height="{self.height}" '
            f'viewBox="0 0 {self.width} {self.height}">\n'
        )
        defs = f"<defs>\n{gradients}</defs>\n" if gradients else ""
        return head + defs + "\n".join(self._shapes) + "\n</svg>\n"
