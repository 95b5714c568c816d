"""The page that tells the figures: docs/performance.md."""

import os
import platform
import subprocess

INTRODUCTION = """\
# Performance

Written by `bench/run`. Every figure is a ratio to a floor that was measured in the same run on the same machine, the median of
five pairs; the absolute figures beside it are for scale only. Nothing here is a test that passes or fails: an aim says where we
want to be, the figure in brackets where we would like to be one day.

The floors are the least that the same work can cost, in `bench/floors/` and beside each micro benchmark: an empty window; a window
with a bound UDP socket and a sound; a bare `recvmmsg` loop and a `QUdpSocket` loop with the same buffer; a `std::deque` of texts;
one write or one read of the same bytes; one scan of the same text. Whole programs run in network namespaces of the suite's own.
"""

# Why an aim is missed, by the beginning of what was measured: said where it is known.
REASONS = {
    "tick, message to us": (
        "The floor takes a row apart; the tick also fills a popup, colours it, and writes a row of "
        "the log and one of the history. In all that is a hundred thousandth of the tick's 120 ms; "
        "with the longest row it stays below the aim's slope, since nothing is done twice."
    ),
    "arrival, append": (
        "The floor only moves a text in and out. An arrival also shows the depth of the queue, and "
        "the tick that takes a row off has to find out what it is. The cost is that of some ten "
        "function calls, and does not grow with the queue."
    ),
    "lookupuser": "Some twenty nanoseconds of a call: the row's identity is put in upper case.",
    "cleanlog": (
        "The rows are put together in memory first, so that the disk is asked once: that copy is "
        "the other half."
    ),
    "history, load": (
        "A thousand fields become a thousand texts. The time is some 30 ns a field; with long rows "
        "it is the reading that counts."
    ),
    "history, save": "A thousand fields are put together in memory first, to be written at once.",
    "to the": (
        "Eighteen windows with some five hundred controls are made, and their style is worked out, "
        "before the splash: a message must find its window there, and whoever looks for a window "
        "by its name finds it, shown or hidden."
    ),
    "at rest": (
        "The same eighteen windows, hidden most of the time. Nearly half of what the program holds "
        "itself is the toolkit's knowledge of how their controls are drawn."
    ),
    "30 s, CPU": (
        "An empty window does nothing at all in that time, so nothing is infinitely more. Ours looks "
        "after the network six times, and a caret blinks."
    ),
    "wake-ups a second": (
        "The caret of the compose box blinks, twice a second, as carets do. Without the keyboard in "
        "the window it is still."
    ),
    "30 programs": (
        "The directories on disk are complete, the lists on show are not: a program empties its "
        "list for each newcomer, and only answers fill it again. Programs of the simulated office "
        "that start a tenth of a second apart do not complete theirs either, so nothing is lost on "
        "the way. What an office does about it is told in [capacity](capacity.md)."
    ),
    "1,000 at": (
        "A tenth of a second is so short that the first pictures of the flood weigh: the hundred "
        "times longer one meets the aim."
    ),
    "arrival to popup": (
        "The floor paints an empty window; a message window has some thirty controls to place, style "
        "and paint. It is a thirtieth of the tick that comes before it."
    ),
}


def of_file(path, key):
    with open(path, encoding="utf-8") as lines:
        for line in lines:
            if line.startswith(key):
                return line.split(":", 1)[1].strip()
    return "unknown"


def version_of(*command):
    ran = subprocess.run(command, capture_output=True, text=True, check=False)
    return ran.stdout.splitlines()[0].strip() if ran.stdout else "unknown"


def machine():
    memory = int(of_file("/proc/meminfo", "MemTotal").split()[0]) / (1 << 20)
    lines = [
        ("Processor", f"{of_file('/proc/cpuinfo', 'model name')}, {os.cpu_count()} of them"),
        ("Memory", f"{memory:.1f} GiB"),
        ("System", f"{platform.system()} {platform.release()}, {version_of('uname', '-m')}"),
        ("Compiler", version_of("c++", "--version")),
        ("Qt", version_of("qmake6", "-query", "QT_VERSION")),
        ("Load when it began", f"{os.getloadavg()[0]:.1f}"),
    ]
    return lines


def met(row):
    return "no aim" if row.met is None else "met" if row.met else "**missed**"


def table_of(rows):
    yield "| what | program | floor | measured | aim | |"
    yield "| --- | ---: | ---: | ---: | --- | --- |"
    for row in rows:
        yield (
            f"| {row.what} | {row.program} | {row.floor} | {row.measured} | {row.aim} | {met(row)} |"
        )


def reasons_of(rows):
    missed = [row for row in rows if row.met is False]
    for row in missed:
        known = [why for begin, why in REASONS.items() if row.what.startswith(begin)]
        yield f"- *{row.what}*, {row.measured} instead of {row.aim}: {(known or ['not yet known.'])[0]}"


def page(rows, about):
    parts = [INTRODUCTION, "## The machine\n", "| | |", "| --- | --- |"]
    parts += [f"| {name} | {value} |" for name, value in about]
    for subject in dict.fromkeys(row.subject for row in rows):
        parts += ["", f"## {subject}", ""]
        parts += table_of([row for row in rows if row.subject == subject])
    reasons = list(reasons_of(rows))
    if reasons:
        parts += ["", "## Where an aim is missed, and why", "", *reasons]
    return "\n".join(parts) + "\n"
