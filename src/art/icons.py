"""The program's icons: one speech bubble, told apart by what it says.

Designs are drawn on a grid of 64 units. Straight edges are snapped to whole pixels, since a bubble
whose outline falls between two pixels looks smeared on a task bar.
"""

from canvas import Canvas
from shapes import arc_points, circle, cut, grow, polygon, rounded_box, stroke, union

GRID = 64
DETAILED = 48  # From this size on there is room for shading and small decoration.

INDIGO, TURQUOISE = "#5a55f2", "#12b5c9"
CORAL, ROSE = "#ff8f5a", "#ee4a6b"
DUSK, NIGHT = "#7376a8", "#3f4272"
AMBER = "#f5b32e"
STONE = "#7f84a9"
WHITE, SHADE = "#ffffff", "#d6dcff"


class Icon:
    """A canvas that knows where its whole pixels are, and the parts that the icons share."""

    def __init__(self, size):
        self.size = size
        self.canvas = Canvas(size, GRID)
        self.detailed = size >= DETAILED
        self.edges = [self.snap(edge) for edge in (4, 4, 60, 49)]
        left, top, right, bottom = self.edges
        self.centre = ((left + right) / 2, (top + bottom) / 2)

    def snap(self, units):
        """The nearest pixel border, in grid units."""
        return self.pixels(round(units * self.size / GRID))

    def pixels(self, count):
        """So many pixels, in grid units."""
        return count * GRID / self.size

    def body(self):
        """The bubble without its tail."""
        return rounded_box(*self.edges, 15)

    def bubble(self):
        """The bubble with its tail, which points at whoever speaks."""
        bottom, tip = self.edges[3], self.snap(62)
        tail = polygon([(19, bottom - 8), (33, bottom - 4), (18, tip - 3)], 3)
        return union(self.body(), tail)

    def paint_vee(self, shift=0):
        """The V that the program is known by, folded like a ribbon where there is room."""
        x, y = (middle + shift for middle in self.centre)
        left, foot, right = (x - 11.5, y - 10), (x, y + 10), (x + 11.5, y - 10)
        self.canvas.paint(stroke([foot, right], 9), SHADE if self.detailed else WHITE)
        self.canvas.paint(stroke([left, foot], 9), WHITE)


def vexloim(icon):
    """The program: a bubble that says V."""
    icon.canvas.paint(icon.bubble(), INDIGO, TURQUOISE)
    icon.paint_vee()


def popup(icon):
    """A received message: a warm bubble with lines of text."""
    icon.canvas.paint(icon.bubble(), CORAL, ROSE)
    x, y = icon.centre
    thick = icon.pixels(max(2, round(6.5 * icon.size / GRID)))
    first = icon.snap(y - thick - 2.5)
    second = max(icon.snap(y + 2.5), first + thick + icon.pixels(1))
    for top, end in ((first, 17), (second, 6)):
        line = rounded_box(icon.snap(x - 17), top, icon.snap(x + end), top + thick, thick / 2)
        icon.canvas.paint(line, WHITE)


def away(icon):
    """Nobody in: a bubble at night."""
    icon.canvas.paint(icon.bubble(), DUSK, NIGHT)
    x, y = icon.centre
    icon.canvas.paint(_moon(x, y, 15), AMBER)
    if icon.detailed:
        icon.canvas.paint(_star(x + 11, y - 8, 5.5), WHITE)
        icon.canvas.paint(_star(x + 19, y + 1, 4), WHITE)


def tray_normal(icon):
    """The notification area at rest."""
    vexloim(icon)


def tray_waiting(icon):
    """Messages wait: a ball hangs at the bubble's corner, and the bubble makes room for it."""
    corner, radius = icon.snap(62), icon.snap(28) / 2
    ball = circle(corner - radius, corner - radius, radius)
    gap = max(3, icon.pixels(1))
    icon.canvas.paint(cut(icon.bubble(), grow(ball, gap)), INDIGO, TURQUOISE)
    icon.paint_vee(shift=-2)
    icon.canvas.paint(ball, CORAL, ROSE)


def tray_away(icon):
    """Nobody in: only the bubble's outline is left, around a moon."""
    rim = max(5, icon.pixels(1.5))
    icon.canvas.paint(cut(icon.bubble(), grow(icon.body(), -rim)), STONE)
    icon.canvas.paint(_moon(*icon.centre, 13), AMBER)


def _moon(x, y, radius):
    return cut(circle(x, y, radius), circle(x + radius * 0.5, y - radius * 0.33, radius * 0.83))


def _star(x, y, radius):
    outer = arc_points(x, y, radius, 0, 270, 3)
    inner = arc_points(x, y, radius * 0.35, 45, 315, 3)
    return polygon([point for pair in zip(outer, inner) for point in pair])


WINDOW_SIZES = (16, 22, 24, 32, 48, 64)
DESIGNS = (
    ("vexloim", vexloim, WINDOW_SIZES + (128, 256)),
    ("popup", popup, WINDOW_SIZES),
    ("away", away, WINDOW_SIZES),
    ("tray-normal", tray_normal, WINDOW_SIZES),
    ("tray-waiting", tray_waiting, WINDOW_SIZES),
    ("tray-away", tray_away, WINDOW_SIZES),
)


def draw_all():
    """Yields (file name, canvas) for every icon in every size."""
    for name, design, sizes in DESIGNS:
        for size in sizes:
            icon = Icon(size)
            design(icon)
            yield f"{name}-{size}.png", icon.canvas
