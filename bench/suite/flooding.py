"""Floods of foreign datagrams: what is lost, what each one costs, and what fits while nobody reads."""

import os
import signal
import time

import figures

BUFFER = 4 * 1024 * 1024
PORT = "4111"
TRIES = 3
LONGEST = 20
MORE_THAN_FITS = 20_000


def taken_by(run, before, sent):
    """How many of the datagrams sent a process has taken, once it has taken all or time is up.
    `before` is what datagrams() has told before."""
    end = time.monotonic() + LONGEST
    while time.monotonic() < end:
        taken, dropped = (now - then for now, then in zip(run.datagrams(), before))
        if taken + dropped >= sent:
            break
        time.sleep(0.02)
    return taken


class Taken:
    """One flood, and what became of it."""

    def __init__(self, bench, run, count, rate):
        before, cpu = run.datagrams(), run.cpu
        self.sent, self.seconds = bench.flood(run.host, count, rate)
        self.taken = taken_by(run, before, self.sent)
        self.cpu_each = (run.cpu - cpu) / max(1, self.taken)

    @property
    def lost(self):
        return self.sent - self.taken

    @property
    def rate(self):
        return self.taken / self.seconds


def program_at_rest(bench):
    program = bench.program()
    time.sleep(1)
    program.settle()
    return program


def floor_at_rest(bench, name):
    floor = bench.run(bench.host(), bench.build / name, PORT, str(BUFFER))
    time.sleep(0.5)
    return floor


def pairs_of(bench, floor_name, count, rate):
    for _ in range(figures.PAIRS):
        program = program_at_rest(bench)
        floor = floor_at_rest(bench, floor_name)
        yield Taken(bench, program, count, rate), Taken(bench, floor, count, rate)
        bench.stop(program, floor)


def rows(bench):
    for count in (1_000, 10_000, 100_000):
        yield from steady_rows(count, list(pairs_of(bench, "floor_udp_socket", count, 10_000)))
    for rate, name in ((50_000, "50,000 a second"), (100_000, "100,000 a second"), (0, "full speed")):
        pairs = list(pairs_of(bench, "floor_recvmmsg", 100_000, rate))
        yield figures.share_row(
            "Flood",
            f"100,000 at {name}, taken a second",
            [(program.rate, floor.rate) for program, floor in pairs],
            0.8,
            figures.count,
            0.95,
        )
    yield standing_still_row(bench)


def steady_rows(count, pairs):
    worst = max(program.lost for program, _ in pairs)
    what = f"{count:,} at 10,000 a second"
    floor_worst = max(floor.lost for _, floor in pairs)
    yield figures.Row(
        "Flood", f"{what}, lost", f"{worst}", f"{floor_worst}", f"{worst}", "none", worst == 0
    )
    yield figures.ratio_row(
        "Flood",
        f"{what}, CPU a datagram",
        [(program.cpu_each, floor.cpu_each) for program, floor in pairs],
        2,
        figures.seconds,
        1.3,
    )


def standing_still_row(bench):
    """The window's thread stands still for 250 ms; the floor is a process that is stopped, so what
    it keeps is what the buffer holds."""
    pairs = []
    for _ in range(figures.PAIRS):
        program = bench.program(driven=True)
        program.wait_usable()
        time.sleep(1)
        floor = floor_at_rest(bench, "floor_recvmmsg")
        pairs.append((kept_by_program(bench, program), kept_by_floor(bench, floor)))
        bench.stop(program, floor)
    return figures.share_row(
        "Flood", "kept while the thread stands still for 250 ms", pairs, 1, figures.count
    )


def kept_by_program(bench, program):
    for _ in range(TRIES):
        before = program.datagrams()
        program.windows.stall(0.25)
        sent, seconds = bench.flood(program.host, MORE_THAN_FITS, 0)
        kept = taken_by(program, before, sent)
        if seconds < 0.2:
            return kept
    raise AssertionError(f"{MORE_THAN_FITS} datagrams take {seconds:.2f} s to leave here")


def kept_by_floor(bench, floor):
    before = floor.datagrams()
    os.kill(floor.pid, signal.SIGSTOP)
    sent, _ = bench.flood(floor.host, MORE_THAN_FITS, 0)
    os.kill(floor.pid, signal.SIGCONT)
    return taken_by(floor, before, sent)
