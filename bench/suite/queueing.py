"""The program with 100,000 rows waiting: whether a person notices, and what a row holds."""

import statistics
import time

import figures
from flooding import taken_by

QUEUED = 100_000
PORTION = 2_500
SIZE = 200
GESTURES = 15


def rows(bench):
    keys, clicks, memory = [], [], []
    for _ in range(figures.PAIRS):
        program = bench.program(driven=True)
        program.wait_usable()
        time.sleep(1)
        key, click, held = key_echo(program), click_answer(program), program.memory()
        taken = fill_queue(bench, program)
        keys.append((key_echo(program), key))
        clicks.append((click_answer(program), click))
        memory.append(((program.memory() - held) / taken, SIZE))
        bench.stop(program)
    return [
        figures.ratio_row("Queue", "100,000 rows: a key's echo", keys, 2, figures.seconds),
        figures.ratio_row("Queue", "100,000 rows: a click's answer", clicks, 2, figures.seconds),
        figures.ratio_row("Queue", "memory a queued row", memory, 2, figures.memory, 1.3),
    ]


def fill_queue(bench, program):
    """Portions that the buffer holds, each when the last one has been taken: none is to be lost."""
    taken = 0
    for _ in range(QUEUED // PORTION):
        before = program.datagrams()
        sent, _ = bench.flood(program.host, PORTION, 20_000, SIZE)
        taken += taken_by(program, before, sent)
    return taken


def gesture_time(do, seen, wanted):
    begin = time.perf_counter()
    do()
    while seen() != wanted:
        if time.perf_counter() - begin > 30:
            raise AssertionError("a gesture has no effect")
    return time.perf_counter() - begin


def key_echo(program):
    box = program.windows.main["messagetext"]
    box.click()
    program.windows.settle()
    times = []
    for _ in range(GESTURES):
        wanted = box.text + "a"
        times.append(gesture_time(lambda: box.type("a"), lambda: box.text, wanted))
    return statistics.median(times)


def click_answer(program):
    box = program.windows.main["Checkallusers"]
    times = []
    for _ in range(GESTURES):
        wanted = not box.checked
        times.append(gesture_time(box.click, lambda: box.checked, wanted))
    return statistics.median(times)
