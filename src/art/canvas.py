"""A square picture onto which shapes are painted with anti-aliased edges."""

from math import sqrt

BLOCK = 8


class Canvas:
    """Pixels with premultiplied alpha, addressed in the units of a design grid."""

    def __init__(self, size, grid):
        self.size = size
        self.unit = grid / size
        self.pixels = [(0.0, 0.0, 0.0, 0.0)] * (size * size)

    def paint(self, shape, top, bottom=None):
        """Lays a shape over the picture, in one colour or in a gradient down the whole canvas.

        Colours are "#rrggbb". A block whose centre is further from the edge than its own corners is
        all in or all out, so most pixels never ask the shape for their distance.
        """
        rows = self._row_colours(top, bottom or top)
        for block_y in range(0, self.size, BLOCK):
            for block_x in range(0, self.size, BLOCK):
                width, height = min(BLOCK, self.size - block_x), min(BLOCK, self.size - block_y)
                distance = self._distance(shape, block_x + width / 2, block_y + height / 2)
                reach = sqrt(width * width + height * height) / 2 + 1
                if distance > reach:
                    continue
                for y in range(block_y, block_y + height):
                    for x in range(block_x, block_x + width):
                        self._blend(shape, x, y, rows[y], solid=distance < -reach)

    def rgba(self, background=None):
        """The picture as straight 8-bit RGBA bytes; empty pixels take the background's colour."""
        empty = _channels(background) if background else (0.0, 0.0, 0.0)
        data = bytearray()
        for red, green, blue, alpha in self.pixels:
            colour = (red / alpha, green / alpha, blue / alpha) if alpha > 0 else empty
            data.extend(round(255 * min(1.0, part)) for part in colour)
            data.append(round(255 * alpha))
        return bytes(data)

    def _distance(self, shape, x, y):
        return shape(x * self.unit, y * self.unit) / self.unit

    def _blend(self, shape, x, y, colour, solid):
        cover = 1.0 if solid else min(1.0, max(0.0, 0.5 - self._distance(shape, x + 0.5, y + 0.5)))
        if cover == 0.0:
            return
        keep = 1.0 - cover
        index = y * self.size + x
        red, green, blue, alpha = self.pixels[index]
        self.pixels[index] = (
            colour[0] * cover + red * keep,
            colour[1] * cover + green * keep,
            colour[2] * cover + blue * keep,
            cover + alpha * keep,
        )

    def _row_colours(self, top, bottom):
        first, last = _channels(top), _channels(bottom)
        steps = max(1, self.size - 1)
        return [
            tuple(a + (b - a) * row / steps for a, b in zip(first, last))
            for row in range(self.size)
        ]


def _channels(colour):
    return tuple(int(colour[index : index + 2], 16) / 255 for index in (1, 3, 5))
