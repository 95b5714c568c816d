#!/usr/bin/env python3
"""Draws the program's icons and button glyphs and synthesises its alert sound.

Usage: make_art.py OUT_DIR

Needs nothing but the standard library, and writes the same bytes every time.
"""

import sys

sys.dont_write_bytecode = True  # A build leaves nothing behind in the source tree.

from pathlib import Path

import chime
import glyphs
import icons
import png


def files():
    """Yields (file name, bytes) for everything there is."""
    yield "vexlo.wav", chime.wav()
    for name, canvas in icons.draw_all():
        yield name, png.encode(canvas.size, canvas.rgba())
    for name, canvas in glyphs.draw_all():
        # The invisible pixels are white as well, so that a scaled mask gets no dark fringe.
        yield name, png.encode(canvas.size, canvas.rgba(background=glyphs.MASK))


def main(arguments):
    if len(arguments) != 1:
        sys.exit("usage: make_art.py OUT_DIR")
    out_dir = Path(arguments[0])
    out_dir.mkdir(parents=True, exist_ok=True)
    for name, content in files():
        (out_dir / name).write_bytes(content)


if __name__ == "__main__":
    main(sys.argv[1:])
