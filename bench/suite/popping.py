"""From a datagram's arrival to its popup, and the pace of a burst."""

import statistics
import time

import figures
from resting import message_to

TICK = 0.120
BURST = 100


def rows(bench, screens):
    table = [popup_row(bench, name, screen) for name, screen in screens]
    return [*table, burst_row(bench)]


def usable_pair(bench, screen):
    """The program and its floor, both at rest."""
    pair = bench.program(screen=screen, driven=True), bench.messenger(screen=screen, driven=True)
    for run in pair:
        run.wait_usable()
    time.sleep(3)
    return pair


def popup_row(bench, name, screen):
    program, floor = usable_pair(bench, screen)
    pairs = []
    for slot in range(figures.PAIRS):
        popped = shown_after(bench, program, message_to(program.host, "hello"), slot) - TICK
        pairs.append((popped, shown_after(bench, floor, b"hello", slot)))
        time.sleep(0.5)
    bench.stop(program, floor)
    what = f"arrival to popup, beyond the tick, {name}"
    return figures.ratio_row("Popup", what, pairs, 3, figures.seconds)


def shown_after(bench, run, datagram, slot):
    begin = time.monotonic()
    bench.say(run.host, datagram)
    run.wait_shown(f"popup{slot}")
    run.windows.driver.ask("state")  # The window has been painted when the loop goes on.
    return time.monotonic() - begin


def burst_row(bench):
    """Several bursts side by side: they are all waiting."""
    programs = [bench.program(driven=True) for _ in range(figures.PAIRS)]
    for program in programs:
        program.wait_usable()
    for program in programs:
        wait_quiet(program)
    begin = {program: time.monotonic() for program in programs}
    for program in programs:
        begin[program] = time.monotonic()
        for number in range(BURST):
            bench.say(program.host, b"foreign words %d" % number)
    took = {}
    while len(took) < len(programs) and time.monotonic() - begin[programs[0]] < 60:
        time.sleep(0.01)
        for program in programs:
            if program not in took and not program.windows.timer("Timer3")["active"]:
                took[program] = time.monotonic() - begin[program]
    bench.stop(*programs)
    due = BURST * TICK
    median = statistics.median(took[program] for program in programs)
    return figures.Row(
        "Popup",
        f"pace of a burst of {BURST} rows",
        figures.seconds(median),
        figures.seconds(due),
        f"{100 * (median / due - 1):+.1f} %",
        "- 0 / + 3 %",
        0 <= median / due - 1 <= 0.03,
    )


def wait_quiet(program):
    """Waits for a second in which no row waits: what the start has brought is done."""
    calm, end = 0, time.monotonic() + 120
    while calm < 10 and time.monotonic() < end:
        calm = 0 if program.windows.timer("Timer3")["active"] else calm + 1
        time.sleep(0.1)
