"""Button glyphs: white masks on a transparent ground, for the program to tint with its text colour.

Designs are drawn on a grid of 16 units. Upright and level lines have an edge on a whole unit, so
that they are crisp on at least one side at 16 pixels and on both at 32.
"""

from canvas import Canvas
from shapes import arc_points, circle, cut, polygon, rounded_box, stroke, union

GRID = 16
SIZES = (16, 32)
LINE, SMALL_LINE = 1.5, 1.1
MASK = "#ffffff"


def line(*points, width=LINE):
    return stroke(list(points), width)


def outline(points, radius):
    """The rim of a polygon, drawn inside its edge."""
    return cut(polygon(points, radius), polygon(points, radius - LINE))


def cross(x, y, reach, width=LINE):
    falling = line((x - reach, y - reach), (x + reach, y + reach), width=width)
    rising = line((x - reach, y + reach), (x + reach, y - reach), width=width)
    return union(falling, rising)


def close():
    return cross(8, 8, 4.25)


def minimize():
    return line((3.75, 10.75), (12.25, 10.75))


def menu():
    return union(*(line((2.75, y), (13.25, y)) for y in (3.75, 7.75, 11.75)))


def history():
    """A clock whose rim runs backwards."""
    rim = line((2, 5.75), *arc_points(8.25, 8, 5.75, -140, 165))
    tip = line((2, 2.5), (2, 5.75), (5.25, 5.75))
    return union(rim, tip, line((8.25, 5), (8.25, 8.25), (10.5, 9.5)))


def recall():
    """An arrow that turns back."""
    turn = arc_points(9.5, 9, 3.25, -90, 90)
    return union(line((3, 5.75), *turn, (6, 12.25)), line((5.75, 3), (3, 5.75), (5.75, 8.5)))


def close_all():
    """A cross on the front one of two windows."""
    front = outline([(3, 6), (10, 6), (10, 13), (3, 13)], 2)
    behind = line((5.75, 1.75), (12.25, 1.75), (13.5, 2.25), (14.25, 3.75), (14.25, 10.25))
    return union(front, behind, cross(6.5, 9.5, 2, SMALL_LINE))


def away():
    return cut(circle(7.5, 8.5, 6), circle(10.5, 6.25, 5))


def options():
    """Sliders."""
    rows = ((3.75, 10.5), (7.75, 5.25), (11.75, 9.25))
    return union(*(union(line((1.75, y), (14.25, y)), circle(knob, y, 2)) for y, knob in rows))


def send():
    """A paper plane."""
    plane = [(2.3, 2.3), (13.7, 7.5), (2.3, 12.7), (4.3, 7.5)]
    return cut(polygon(plane, 0.8), rounded_box(0, 7, 9, 8, 0))


def clear():
    """The key that takes back what was typed."""
    key = [(2.5, 7.5), (6, 3.5), (13.5, 3.5), (13.5, 11.5), (6, 11.5)]
    return union(outline(key, 1.5), cross(9.5, 7.5, 2, SMALL_LINE))


DESIGNS = (
    ("close", close),
    ("minimize", minimize),
    ("menu", menu),
    ("history", history),
    ("recall", recall),
    ("close-all", close_all),
    ("away", away),
    ("options", options),
    ("send", send),
    ("clear", clear),
)


def draw_all():
    """Yields (file name, canvas) for every glyph in every size."""
    for name, design in DESIGNS:
        for size in SIZES:
            canvas = Canvas(size, GRID)
            canvas.paint(design(), MASK)
            yield f"glyph-{name}-{size}.png", canvas
