"""What the program holds and does while nobody uses it."""

import statistics
import time

import figures

MEBIBYTE = 1 << 20
REST_SECONDS = 30


def rested(run):
    """The memory of a process that has come to rest, and its peak."""
    time.sleep(1)
    run.settle()
    return run.memory(), run.peak()


def memory_rows(bench):
    host = bench.host()
    found = []
    for _ in range(figures.PAIRS):
        program = bench.program(host)
        own = rested(program)
        bench.stop(program)
        floor = bench.messenger()
        found.append((own, rested(floor)))
        bench.stop(floor)
    for number, kind in ((0, "PSS"), (1, "peak")):
        pairs = [(own[number], floor[number]) for own, floor in found]
        yield figures.ratio_row(
            "Memory", f"at rest, {kind}", pairs, 1.6, figures.memory, 1.3
        )
    yield with_known_users(bench, [own[0] for own, _ in found])
    yield with_popups(bench)


def more_row(what, pairs, aim):
    """Memory beside what the program holds at rest."""
    more = statistics.median(with_it - without for with_it, without in pairs) / MEBIBYTE
    return figures.Row(
        "Memory",
        what,
        figures.memory(statistics.median(with_it for with_it, _ in pairs)),
        figures.memory(statistics.median(without for _, without in pairs)),
        f"{more:+.1f} MiB",
        f"≤ +{aim} MiB",
        more <= aim,
    )


def with_known_users(bench, at_rest):
    host = bench.host()
    rows = [rf"[ROOM{number:04}\USER{number:04}]=SOMEBODY {number:04}" for number in range(1000)]
    found = []
    for own in at_rest:
        (host.app / "users.txt").write_bytes("".join(row + "\r\n" for row in rows).encode())
        program = bench.program(host)
        found.append((rested(program)[0], own))
        bench.stop(program)
    return more_row("with 1,000 known users", found, 6)


def with_popups(bench):
    """Ten messages, one for each popup; the log on disk tells that all have been shown."""
    found = []
    for _ in range(figures.PAIRS):
        host = bench.host()
        program = bench.program(host)
        before = rested(program)[0]
        for number in range(10):
            bench.say(host, message_to(host, f"message {number}"))
        time.sleep(2)
        found.append((rested(program)[0], before))
        seen = host.file("logs/logtemp.txt").count(b"Msg from")
        if seen != 10:
            raise AssertionError(f"{seen} of ten messages have popped up")
        bench.stop(program)
    return more_row("with ten popups open", found, 10)


def message_to(host, text):
    return rb"[ROOM99\SOMEBODY]" + host.identity + f"SOMEBODY> {text}".encode("cp1252")


def idle_rows(bench, screens):
    for name, screen in screens:
        programs = [bench.program(screen=screen) for _ in range(figures.PAIRS)]
        floors = [bench.window(screen=screen) for _ in range(figures.PAIRS)]
        everybody = programs + floors
        # At a start each hears all others; their queues must have run dry.
        time.sleep(10)
        before = [(run.cpu, run.wake_ups()) for run in everybody]
        time.sleep(REST_SECONDS)
        after = [(run.cpu, run.wake_ups()) for run in everybody]
        bench.stop(*everybody)
        spent = [(late[0] - early[0], late[1] - early[1]) for early, late in zip(before, after)]
        own, empty = spent[: figures.PAIRS], spent[figures.PAIRS :]
        cpu = [(one[0], other[0]) for one, other in zip(own, empty)]
        yield figures.ratio_row(
            "Idle", f"{REST_SECONDS} s, CPU, {name}", cpu, 1.5, figures.seconds
        )
        yield wake_ups_row(name, own, empty)


def wake_ups_row(name, own, empty):
    a_second = statistics.median(count for _, count in own) / REST_SECONDS
    floor = statistics.median(count for _, count in empty) / REST_SECONDS
    return figures.Row(
        "Idle",
        f"wake-ups a second, {name}",
        f"{a_second:.2f}",
        f"{floor:.2f}",
        f"{a_second:.2f}",
        "≤ 1 (0.5)",
        a_second <= 1,
    )
