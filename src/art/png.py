"""Writes pictures as PNG files."""

import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"
TRUECOLOUR_WITH_ALPHA = 6
FILTER_UP = b"\x02"


def encode(size, rgba):
    """The bytes of a PNG file that shows a square picture of straight 8-bit RGBA pixels."""
    header = struct.pack(">IIBBBBB", size, size, 8, TRUECOLOUR_WITH_ALPHA, 0, 0, 0)
    return (
        SIGNATURE
        + _chunk(b"IHDR", header)
        + _chunk(b"IDAT", zlib.compress(_filtered(rgba, size * 4), 9))
        + _chunk(b"IEND", b"")
    )


def _filtered(rgba, stride):
    """Each row as its difference to the row above, which packs gradients well."""
    above = bytes(stride)
    rows = []
    for start in range(0, len(rgba), stride):
        row = rgba[start : start + stride]
        rows.append(FILTER_UP + bytes((a - b) & 0xFF for a, b in zip(row, above)))
        above = row
    return b"".join(rows)


def _chunk(kind, body):
    return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))
