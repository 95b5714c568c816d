"""Thirty programs that start at once on one segment, until all have all on their lists."""

import statistics
import subprocess
import time

import figures

PROGRAMS = 30
LONGEST = 60


def rows(bench):
    bound = statistics.median(virtual_bound(bench) for _ in range(figures.PAIRS))
    hosts = [bench.host() for _ in range(PROGRAMS)]
    rounds = [until_complete(bench, hosts) for _ in range(figures.PAIRS)]
    took = statistics.median(seconds for seconds, _ in rounds)
    left = max(missing for _, missing in rounds)
    more = took - bound
    return [
        figures.Row(
            "Office",
            f"{PROGRAMS} programs at once: all on all lists, from the last main window on",
            figures.seconds(took),
            f"{figures.seconds(bound)} in virtual time",
            f"{left} lists incomplete" if left else f"{more:+.1f} s",
            "≤ + 3 s",
            more <= 3 and not left,
        )
    ]


def virtual_bound(bench):
    ran = subprocess.run(
        [bench.build / "floor_office", str(PROGRAMS)], capture_output=True, text=True, check=True
    )
    seconds, state = ran.stdout.split()
    if state != "complete":
        raise AssertionError(f"the simulated office says {ran.stdout!r}")
    return float(seconds)


def until_complete(bench, hosts):
    for host in hosts:
        (host.app / "users.txt").unlink(missing_ok=True)
    programs = [bench.program(host, driven=True) for host in hosts]
    for program in programs:
        program.wait_usable(LONGEST)
    begin = time.monotonic()
    missing = list(programs)
    while missing and time.monotonic() - begin < LONGEST:
        missing = [run for run in missing if len(run.windows.main["allusers"].rows) < PROGRAMS]
        time.sleep(0.05)
    took = time.monotonic() - begin
    bench.stop(*programs)
    return took, len(missing)
