"""The alert sound: two soft bell tones, the second a fourth above the first."""

import struct
from math import cos, exp, pi, sin

RATE = 44100
LENGTH = 0.6
PEAK = 0.5
ATTACK, FADE = 0.006, 0.06

# Start in seconds, pitch in hertz (G5 and C6), loudness.
TONES = ((0.0, 783.99, 0.8), (0.13, 1046.50, 1.0))
# Multiple of the pitch, loudness, and how many times a second it falls to 1/e.
PARTIALS = ((1, 1.0, 7.0), (2, 0.28, 12.0), (3, 0.10, 20.0))


def wav():
    """The bytes of a wave file: 16-bit PCM, mono, 44.1 kHz."""
    samples = _samples()
    data = struct.pack(f"<{len(samples)}h", *samples)
    form = struct.pack("<HHIIHH", 1, 1, RATE, RATE * 2, 2, 16)
    body = b"WAVE" + _chunk(b"fmt ", form) + _chunk(b"data", data)
    return _chunk(b"RIFF", body)


def _samples():
    count = round(RATE * LENGTH)
    wave = [_level(index / RATE) for index in range(count)]
    gain = PEAK * 32767 / max(abs(level) for level in wave)
    return [round(level * gain) for level in wave]


def _level(time):
    tones = sum(loud * _tone(time - start, pitch) for start, pitch, loud in TONES if time > start)
    return tones * _ramp((LENGTH - time) / FADE)


def _tone(age, pitch):
    bell = sum(
        loud * exp(-fall * age) * sin(2 * pi * pitch * multiple * age)
        for multiple, loud, fall in PARTIALS
    )
    return bell * _ramp(age / ATTACK)


def _ramp(along):
    """Rises smoothly from 0 to 1, so that no tone begins or ends with a click."""
    return 0.5 - 0.5 * cos(pi * min(1.0, max(0.0, along)))


def _chunk(kind, body):
    return kind + struct.pack("<I", len(body)) + body
