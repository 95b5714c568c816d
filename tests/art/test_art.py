#!/usr/bin/env python3
"""Runs the art script as the build does and looks at what it made."""

import re
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib
from pathlib import Path

ART = Path(__file__).resolve().parents[2] / "src" / "art"
TRAY_STATES = ("tray-normal", "tray-waiting", "tray-away")


def run_script(out_dir):
    subprocess.run([sys.executable, str(ART / "make_art.py"), str(out_dir)], check=True, timeout=60)


def contents(folder):
    return {path.name: path.read_bytes() for path in Path(folder).iterdir()}


def names_the_build_expects():
    build_file = (ART / "CMakeLists.txt").read_text()
    return set(re.findall(r"^    ([\w-]+\.(?:png|wav))\b", build_file, re.M))


def size_in_name(name):
    return int(re.search(r"-(\d+)\.png$", name).group(1))


def png_chunks(data):
    """The chunks of a PNG file in order, each with its checksum verified."""
    if data[:8] != b"\x89PNG\r\n\x1a\n":
        raise ValueError("not a PNG file")
    place, chunks = 8, []
    while place < len(data):
        length, kind = struct.unpack_from(">I4s", data, place)
        body = data[place + 8 : place + 8 + length]
        (checksum,) = struct.unpack_from(">I", data, place + 8 + length)
        if checksum != zlib.crc32(kind + body):
            raise ValueError(f"chunk {kind} is damaged")
        chunks.append((kind, body))
        place += 12 + length
    return chunks


def unfiltered(raw, width, height):
    """The rows of RGBA bytes, with the filters none and up undone."""
    stride, above, rows = width * 4, bytes(width * 4), []
    if len(raw) != height * (stride + 1):
        raise ValueError("wrong number of bytes")
    for start in range(0, len(raw), stride + 1):
        kind, row = raw[start], raw[start + 1 : start + 1 + stride]
        if kind not in (0, 2):
            raise ValueError(f"filter {kind} is not expected here")
        above = bytes((a + b) & 0xFF for a, b in zip(row, above)) if kind == 2 else row
        rows.append(above)
    return rows


def decode(data):
    """(width, height, list of RGBA pixels) of a PNG file."""
    chunks = png_chunks(data)
    kinds = [kind for kind, _ in chunks]
    if kinds[0] != b"IHDR" or kinds[-1] != b"IEND":
        raise ValueError("chunks out of order")
    width, height, depth, colour, *methods = struct.unpack(">IIBBBBB", chunks[0][1])
    if (depth, colour, methods) != (8, 6, [0, 0, 0]):
        raise ValueError("not 8-bit RGBA")
    raw = zlib.decompress(b"".join(body for kind, body in chunks if kind == b"IDAT"))
    rows = unfiltered(raw, width, height)
    return width, height, [tuple(row[x : x + 4]) for row in rows for x in range(0, width * 4, 4)]


class Art(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with tempfile.TemporaryDirectory() as folder:
            run_script(folder)
            cls.files = contents(folder)
        pngs = {name: data for name, data in cls.files.items() if name.endswith(".png")}
        cls.pictures = {name: decode(data) for name, data in pngs.items()}

    def alphas(self, name):
        return [pixel[3] for pixel in self.pictures[name][2]]

    def test_every_file_that_the_build_expects_is_made_and_no_other(self):
        expected = names_the_build_expects()
        self.assertGreater(len(expected), 50)
        self.assertEqual(set(self.files), expected)

    def test_every_picture_has_the_size_in_its_name(self):
        for name, (width, height, _) in self.pictures.items():
            self.assertEqual((width, height), (size_in_name(name), size_in_name(name)), name)

    def test_every_picture_has_full_empty_and_soft_pixels(self):
        for name in self.pictures:
            alphas = self.alphas(name)
            self.assertGreater(alphas.count(255), len(alphas) // 50, name)
            self.assertGreater(alphas.count(0), len(alphas) // 50, name)
            self.assertTrue(any(0 < alpha < 255 for alpha in alphas), f"{name} has hard edges")

    def test_an_icon_shows_more_than_one_colour(self):
        for name in self.pictures:
            if not name.startswith("glyph-"):
                solid = {pixel[:3] for pixel in self.pictures[name][2] if pixel[3] == 255}
                self.assertGreater(len(solid), 1, name)

    def test_a_glyph_is_white_wherever_it_is_seen_or_not(self):
        for name in self.pictures:
            if name.startswith("glyph-"):
                colours = {pixel[:3] for pixel in self.pictures[name][2]}
                self.assertEqual(colours, {(255, 255, 255)}, name)

    def test_the_tray_states_differ_in_shape_at_16_pixels(self):
        for first, second in ((0, 1), (0, 2), (1, 2)):
            one, other = (self.alphas(f"{TRAY_STATES[state]}-16.png") for state in (first, second))
            differing = sum(abs(a - b) > 127 for a, b in zip(one, other))
            self.assertGreater(differing, 32, (TRAY_STATES[first], TRAY_STATES[second]))

    def test_the_sound_is_a_short_mono_wave_of_16_bits(self):
        data = self.files["vexlo.wav"]
        opening = struct.unpack_from("<4sI4s4sI", data)
        self.assertEqual(opening, (b"RIFF", len(data) - 8, b"WAVE", b"fmt ", 16))
        self.assertEqual(struct.unpack_from("<HHIIHH", data, 20), (1, 1, 44100, 88200, 2, 16))
        kind, length = struct.unpack_from("<4sI", data, 36)
        self.assertEqual((kind, length), (b"data", len(data) - 44))
        self.assertAlmostEqual(length / 88200, 0.6, delta=0.1)

    def test_the_sound_is_heard_and_neither_clips_nor_clicks(self):
        samples = [sample for (sample,) in struct.iter_unpack("<h", self.files["vexlo.wav"][44:])]
        peak = max(abs(sample) for sample in samples)
        self.assertGreater(peak, 8000)
        self.assertLess(peak, 24000)
        for edge in (samples[:8], samples[-8:]):
            self.assertLess(max(abs(sample) for sample in edge), 64)
        self.assertLess(max(abs(a - b) for a, b in zip(samples, samples[1:])), 6000)

    def test_two_runs_give_the_same_bytes(self):
        with tempfile.TemporaryDirectory() as folder:
            run_script(folder)
            self.assertEqual(contents(folder), self.files)


def main():
    suite = unittest.defaultTestLoader.loadTestsFromTestCase(Art)
    result = unittest.TextTestRunner(stream=sys.stdout, verbosity=2).run(suite)
    failed = len(result.failures) + len(result.errors)
    print(f"art: {max(0, result.testsRun - failed)} passed, {failed} failed")
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
