"""Contour lines of a random hilly field: the shapes of the mottled backdrop."""

from math import exp

STEP = 36      # pixels between two points of the grid
POINTS = 21    # in a row and in a column; the first lies one step outside of the picture
OUTSIDE = -9   # lower than every hollow
SMALLEST = 12  # crossings of the grid; a shorter line would surround a speck


def hilly_field(random, hills):
    """Heights at the points of a grid: hills and hollows."""
    places = [(random.uniform(-80, POINTS * STEP), random.uniform(-80, POINTS * STEP),
               random.uniform(35, 65), 1 if index % 2 else -1) for index in range(hills)]
    # The hills are a little taller than wide, since most screens stretch the picture in width.
    return {(i, j): sum(side * exp(-(((i - 1) * STEP - x) ** 2 + (((j - 1) * STEP - y) / 1.3) ** 2)
                                   / (2 * r * r)) for x, y, r, side in places)
            for i in range(POINTS) for j in range(POINTS)}


def contour(field, threshold):
    """The path around all that is higher than the threshold; it closes outside of the picture."""
    def high(point):
        return field.get(point, OUTSIDE) > threshold

    def crossing(edge):
        (i, j), (k, l) = edge
        a, b = field.get((i, j), OUTSIDE), field.get((k, l), OUTSIDE)
        t = (threshold - a) / (b - a)
        return round((i - 1 + t * (k - i)) * STEP), round((j - 1 + t * (l - j)) * STEP)

    # Walk around every cell: where the height rises above the threshold the line comes in, and
    # it leaves at the next edge. The cell behind that edge sees it come in there.
    following = {}
    for i in range(-1, POINTS):
        for j in range(-1, POINTS):
            corners = ((i, j), (i + 1, j), (i + 1, j + 1), (i, j + 1))
            edges = [(high(q), tuple(sorted((p, q))))
                     for p, q in zip(corners, corners[1:] + corners[:1]) if high(p) != high(q)]
            for index, (rises, edge) in enumerate(edges):
                if rises:
                    following[edge] = edges[(index + 1) % len(edges)][1]

    parts = []
    while following:
        edge, edge_after = following.popitem()
        line = [crossing(edge)]
        while edge_after != edge:
            line.append(crossing(edge_after))
            edge_after = following.pop(edge_after)
        if len(line) >= SMALLEST:
            parts.append(_rounded(line))
    return "".join(parts)


def _rounded(line):
    """A closed curve that bends at the points of a line and touches it half way between them."""
    halves = [((x + next_x) // 2, (y + next_y) // 2)
              for (x, y), (next_x, next_y) in zip(line, line[1:] + line[:1])]
    x, y = halves[-1]
    parts = [f"M{x} {y}q"]
    for (bend_x, bend_y), (to_x, to_y) in zip(line, halves):
        parts.append(f"{bend_x - x} {bend_y - y} {to_x - x} {to_y - y} ")
        x, y = to_x, to_y
    return "".join(parts).replace(" -", "-").rstrip() + "z"
