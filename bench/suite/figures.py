"""The figures: a row of the table is the median of some pairs, each of the program and its floor."""

import dataclasses
import statistics

PAIRS = 5


@dataclasses.dataclass
class Row:
    """One line of the table."""

    subject: str
    what: str
    program: str  # absolute, for scale only
    floor: str
    measured: str
    aim: str
    met: bool | None  # None where no aim was set


def ratio_row(subject, what, pairs, aim, show=str, stretch=None):
    """A row from pairs (program, floor): the median of the ratios, against an upper bound."""
    ratios = [program / floor if floor else float("inf") for program, floor in pairs]
    measured = statistics.median(ratios)
    return Row(
        subject,
        what,
        show(statistics.median(program for program, _ in pairs)),
        show(statistics.median(floor for _, floor in pairs)),
        "∞" if measured == float("inf") else f"{measured:.2f}x",
        f"≤ {aim:g}x" + (f" ({stretch:g}x)" if stretch else "") if aim else "none",
        measured <= aim if aim else None,
    )


def share_row(subject, what, pairs, aim, show=str, stretch=None):
    """The same for figures of which more is better: the ratio has a lower bound."""
    row = ratio_row(subject, what, pairs, aim, show)
    row.aim = f"≥ {aim:g}x" + (f" ({stretch:g}x)" if stretch else "")
    row.met = float(row.measured[:-1]) >= aim
    return row


def seconds(value):
    for unit, size in (("s", 1.0), ("ms", 1e-3), ("µs", 1e-6)):
        if value >= size:
            return f"{value / size:.3g} {unit}"
    return f"{value / 1e-9:.3g} ns"


def memory(value):
    return f"{value / (1 << 20):.1f} MiB" if value >= 1 << 18 else f"{value:.0f} bytes"


def count(value):
    return f"{value:,.0f}"
