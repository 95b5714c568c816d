"""Flat shapes as signed distance functions.

A shape is a function of a point (x, y) that answers the distance to its edge: negative inside,
positive outside. No shape overstates that distance, so the canvas may skip whole blocks of pixels.
"""

from math import cos, hypot, inf, radians, sin


def circle(cx, cy, radius):
    """A filled disc."""
    return lambda x, y: hypot(x - cx, y - cy) - radius


def rounded_box(left, top, right, bottom, radius):
    """A filled rectangle with round corners."""
    cx, cy = (left + right) / 2, (top + bottom) / 2
    half_width, half_height = (right - left) / 2 - radius, (bottom - top) / 2 - radius

    def distance(x, y):
        dx, dy = abs(x - cx) - half_width, abs(y - cy) - half_height
        if dx > 0 and dy > 0:
            return hypot(dx, dy) - radius
        return max(dx, dy) - radius

    return distance


def polygon(points, radius=0):
    """A filled simple polygon, grown by a radius that rounds its outward corners."""
    edges = []
    for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1]):
        ex, ey = bx - ax, by - ay
        edges.append((ax, ay, by, ex, ey, 1 / (ex * ex + ey * ey)))

    def distance(x, y):
        nearest, inside = inf, False
        for ax, ay, by, ex, ey, scale in edges:
            px, py = x - ax, y - ay
            along = min(1, max(0, (px * ex + py * ey) * scale))
            nearest = min(nearest, hypot(px - along * ex, py - along * ey))
            # Even-odd crossing test of the ray to the left of the point.
            if (ay > y) != (by > y) and (px * ey > py * ex) == (ey > 0):
                inside = not inside
        return (-nearest if inside else nearest) - radius

    return distance


def stroke(points, width):
    """A line through the points with round joints and ends."""
    half = width / 2
    segments = []
    for (ax, ay), (bx, by) in zip(points, points[1:]):
        ex, ey = bx - ax, by - ay
        segments.append((ax, ay, ex, ey, 1 / (ex * ex + ey * ey)))

    def distance(x, y):
        nearest = inf
        for ax, ay, ex, ey, scale in segments:
            px, py = x - ax, y - ay
            along = min(1, max(0, (px * ex + py * ey) * scale))
            nearest = min(nearest, hypot(px - along * ex, py - along * ey))
        return nearest - half

    return distance


def arc_points(cx, cy, radius, start, end, steps=24):
    """Points along an arc; angles in degrees, 0 to the right, growing clockwise on the screen."""
    angles = (radians(start + (end - start) * step / steps) for step in range(steps + 1))
    return [(cx + radius * cos(angle), cy + radius * sin(angle)) for angle in angles]


def grow(shape, by):
    """The shape with its edge moved outwards (or, by a negative amount, inwards)."""
    return lambda x, y: shape(x, y) - by


def union(*shapes):
    """All that lies in any of the shapes."""
    return lambda x, y: min(shape(x, y) for shape in shapes)


def cut(shape, *holes):
    """What remains of the shape once the holes are taken away."""
    return lambda x, y: max(shape(x, y), *(-hole(x, y) for hole in holes))
