"""Contour lines of a random hilly field: the shapes of the mottled backdrop."""

from math import exp

from sheet import number


def hilly_field(random, columns, rows, step, hills):
    """Heights at the points of a grid: hills and hollows, `step` pixels between two points."""
    hills_ = [(random.uniform(-60, columns * step + 60), random.uniform(-60, rows * step + 60),
              random.uniform(18, 36), 1 if index % 2 else -1) for index in range(hills)]
    # The hills are a little taller than wide, since most screens stretch the picture in width.
    return {(i, j): sum(side * exp(-((i * step - x) ** 2 + ((j * step - y) / 1.3) ** 2) / (2 * r * r))
                        for x, y, r, side in hills_)
            for i in range(columns) for j in range(rows)}


def contour(field, columns, rows, step, threshold):
    """The path around all that is higher than the threshold; it closes along the border."""
    def high(point):
        return field.get(point, -9) > threshold

    def crossing(edge):
        (i, j), (k, l) = edge
        a, b = field.get((i, j), -9), field.get((k, l), -9)
        t = (threshold - a) / (b - a)
        return (i + t * (k - i)) * step, (j + t * (l - j)) * step

    # Walk around every cell: where the height rises above the threshold the line comes in, and
    # it leaves at the next edge. The cell behind that edge sees it come in there.
    following = {}
    for i in range(-1, columns):
        for j in range(-1, rows):
            corners = ((i, j), (i + 1, j), (i + 1, j + 1), (i, j + 1))
            edges = [(high(q), tuple(sorted((p, q))))
                      for p, q in zip(corners, corners[1:] + corners[:1]) if high(p) != high(q)]
            for index, (rises, edge) in enumerate(edges):
                if rises:
                    following[edge] = edges[(index + 1) % len(edges)][1]

    parts = []
    while following:
        start, edge = following.popitem()
        x, y = (round(w) for w in crossing(start))
        parts.append(f"M{x} {y}l")
        steps = []
        while edge != start:
            new_x, new_y = (round(w) for w in crossing(edge))
            if (new_x, new_y) != (x, y):
                steps.append(f"{number(new_x - x)} {number(new_y - y)}")
                x, y = new_x, new_y
            edge = following.pop(edge)
        parts.append(" ".join(steps).replace(" -", "-") + "z")
    return "".join(parts)
