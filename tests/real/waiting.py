"""Bounded waiting. Nothing in these tests waits without an end or without saying what for."""

import time

PAUSE = 0.03

# How much longer than usual to wait; for busy machines and sanitized programs.
patience = {"factor": 1.0}


class NotYet(Exception):
    """Raised by a probe that cannot look yet, say because a window is not there."""


def wait_until(what, probe, seconds=10.0):
    """Asks the probe until its answer is true, and gives that answer."""
    end = time.monotonic() + seconds * patience["factor"]
    while True:
        try:
            answer = seen = probe()
        except NotYet as reason:
            answer, seen = None, reason
        if answer:
            return answer
        if time.monotonic() >= end:
            raise AssertionError(f"waited {seconds:g} s in vain for {what}; last seen: {seen!r}")
        time.sleep(PAUSE)


def wait_for(what, wanted, probe, seconds=10.0):
    """Asks the probe until it gives the wanted value."""
    end = time.monotonic() + seconds * patience["factor"]
    while True:
        try:
            seen = probe()
        except NotYet as reason:
            seen = reason
        if not isinstance(seen, NotYet) and seen == wanted:
            return
        if time.monotonic() >= end:
            raise AssertionError(
                f"waited {seconds:g} s in vain for {what}\n  wanted: {wanted!r}\n  seen:   {seen!r}"
            )
        time.sleep(PAUSE)
