"""The plots of docs/capacity.md, as SVG."""

import collections

import matplotlib

matplotlib.use("svg")
# One set of figures gives one file, to the byte.
matplotlib.rcParams["svg.hashsalt"] = "capacity"

import matplotlib.pyplot as plt  # noqa: E402
import plan  # noqa: E402
from matplotlib.ticker import FuncFormatter  # noqa: E402

SIZES = (10, 50, 100, 200, 500)
INK, SOFT, GRID = "#1f2933", "#616e7c", "#e4e7eb"
COLOURS = {10: "#7bb0d9", 50: "#2f7fb8", 100: "#1f9d8b", 200: "#e08a1e", 500: "#c2334d"}
DAYS = {"first": "the first day: nobody knows anybody", "usual": "a usual day: everybody is known"}

plt.rcParams.update(
    {
        "font.family": "DejaVu Sans",
        "font.size": 9.5,
        "text.color": INK,
        "axes.edgecolor": SOFT,
        "axes.labelcolor": SOFT,
        "axes.titlesize": 10.5,
        "axes.titlelocation": "left",
        "axes.spines.top": False,
        "axes.spines.right": False,
        "axes.grid": True,
        "axes.axisbelow": True,
        "grid.color": GRID,
        "xtick.color": SOFT,
        "ytick.color": SOFT,
        "legend.frameon": False,
        "figure.facecolor": "white",
        "lines.solid_capstyle": "round",
    }
)


def save(figure, folder, name):
    figure.savefig(folder / f"{name}.svg", bbox_inches="tight", metadata={"Date": None})
    plt.close(figure)


def thousands(axis):
    axis.set_major_formatter(FuncFormatter(lambda value, _: f"{value:,.0f}"))


def clock(seconds):
    if seconds < 120:
        return f"{seconds:.0f} s"
    return f"{seconds / 60:.0f} min" if seconds < 7200 else f"{seconds / 3600:g} h"


def time_axis(axes, ticks, last):
    axes.set_xscale("log")
    axes.set_xlim(ticks[0], last)
    axes.set_xticks(ticks, [clock(tick) for tick in ticks])
    axes.minorticks_off()


def percents(axis):
    axis.set_major_formatter(FuncFormatter(lambda value, _: f"{value:.0f} %"))


def queues(axes, measured, day):
    """Queue depth over time: the median peer, and the worst as the edge of a band."""
    for people in SIZES:
        points = measured[plan.start_name(people, day)].points
        times = [max(point.seconds, 1) for point in points]
        medians = [max(point.median, 0.7) for point in points]
        axes.plot(times, medians, color=COLOURS[people], lw=1.8, label=f"{people}")
        worst = [max(point.worst, 0.7) for point in points]
        axes.fill_between(times, medians, worst, color=COLOURS[people], alpha=0.22, lw=0)
    axes.set_yscale("log")
    axes.set_ylim(0.9, 1e6)
    thousands(axes.yaxis)
    time_axis(axes, (10, 60, 600, 3600, 8 * 3600), 16 * 3600)


def lists(axes, measured, day):
    """The share of programs with everybody on the list, and with everybody in users.txt."""
    dashed = {"lw": 1.1, "ls": (0, (2, 2))}
    for people in SIZES:
        points = measured[plan.start_name(people, day)].points
        times = [max(point.seconds, 1) for point in points]
        share = [100 * point.lists / people for point in points]
        axes.plot(times, share, color=COLOURS[people], lw=1.8, label=f"{people}")
        if day == "first":
            share = [100 * point.directories / people for point in points]
            axes.plot(times, share, color=COLOURS[people], **dashed)
    time_axis(axes, (60, 300, 1800, 8 * 3600), 16 * 3600)
    axes.set_ylim(0, 103)
    percents(axes.yaxis)
    if day == "usual":  # It has the legend of both.
        axes.plot([], [], color=SOFT, label="users.txt", **dashed)


def spreads(axes, measured, day):
    """The longest queue, by the time in which all start."""
    for people in SIZES[1:]:
        runs = [measured[plan.start_name(people, day, spread)] for spread in plan.SPREADS]
        longest = [run["greatest_queue"] for run in runs]
        axes.plot(range(len(runs)), longest, "o-", color=COLOURS[people], lw=1.8, label=people)
    minutes = [f"{spread // 60} min" for spread in plan.SPREADS]
    axes.set_xticks(range(len(minutes)), minutes)
    axes.set_yscale("log")
    axes.set_ylim(50, 1e6)
    thousands(axes.yaxis)


def losses(axes, measured, day):
    """Incomplete lists when all is quiet, by loss."""
    rates = (None, *plan.LOSSES)
    for offset, people in zip((-0.34, -0.17, 0, 0.17, 0.34), SIZES):
        shares = []
        for rate in rates:
            name = plan.start_name(people, day, **({} if rate is None else {"loss": rate}))
            shares.append(100 - 100 * measured[name]["complete_lists"] / people)
        places = [place + offset for place in range(len(rates))]
        bars = axes.bar(places, shares, 0.16, color=COLOURS[people], label=f"{people}")
        numbers = [f"{share:.0f}" for share in shares]
        axes.bar_label(bars, numbers, color=SOFT, padding=2, fontsize=7.5)
    names = ["none" if rate is None else f"{rate:.0%}" for rate in rates]
    axes.set_xticks(range(len(rates)), names)
    axes.grid(visible=False, axis="x")
    axes.set_ylim(0, 50)
    percents(axes.yaxis)


# Drawn once for each kind of day: the file, its height, what its axes are, the legend's place.
ByDay = collections.namedtuple("ByDay", "plot name height along up legend")
BY_DAY = (
    ByDay(
        queues, "capacity-queues", 4.2, "since the first start", "rows that wait",
        {"loc": "lower right", "bbox_to_anchor": (1.22, 0.2)},
    ),
    ByDay(
        lists, "capacity-lists", 3.8, "since the first start", "programs with a complete list",
        {"loc": "lower right", "bbox_to_anchor": (1.27, 0.2)},
    ),
    ByDay(
        spreads, "capacity-spread", 3.6, "time in which all start", "longest queue, rows",
        {"loc": "center left", "bbox_to_anchor": (1, 0.5)},
    ),
    ByDay(
        losses, "capacity-loss", 3.4, "datagrams lost, each receiver on its own",
        "incomplete lists when all is quiet", {"loc": "upper right"},
    ),
)  # fmt: skip


def draw_by_day(what, measured, folder):
    figure, both = plt.subplots(1, 2, figsize=(10, what.height), sharey=True)
    for axes, day in zip(both, plan.DAYS):
        what.plot(axes, measured, day)
        axes.set_title(DAYS[day])
        axes.set_xlabel(what.along)
    both[0].set_ylabel(what.up)
    both[1].legend(title="programs", **what.legend)
    save(figure, folder, what.name)


def checks(measured, folder):
    """The half-hourly check: queues over the hours, one panel a size."""
    figure, panels = plt.subplots(4, 1, figsize=(10, 5.6), sharex=True)
    for axes, people in zip(panels, SIZES[1:]):
        points = measured[f"check-{people}"].points
        begin = points[0].seconds
        hours = [(point.seconds - begin) / 3600 for point in points]
        medians = [point.median for point in points]
        axes.fill_between(hours, medians, color=COLOURS[people], lw=0.8, alpha=0.75)
        axes.set_ylim(0, 1.15 * max(1, *medians))
        axes.set_xlim(0, 4)
        thousands(axes.yaxis)
        axes.set_ylabel(f"{people}", rotation=0, ha="right", va="center", labelpad=12)
    panels[0].set_title("rows that wait, median; programs at the left")
    panels[-1].set_xlabel("hours after all have met, with the option on")
    save(figure, folder, "capacity-checks")


def draw(measured, folder):
    for each in BY_DAY:
        draw_by_day(each, measured, folder)
    checks(measured, folder)
