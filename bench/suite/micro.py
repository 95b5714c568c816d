"""The logic's own figures: what Google Benchmark measures in one process, paired with the floors."""

import json
import subprocess
import tempfile

import figures

SUBJECT = "Logic"

# What is measured, and by how much it may stand above its floor. More rows of one subject are
# further kinds of the same thing.
AIMS = {
    "tick, presence row": 3,
    "tick, message to somebody else": 3,
    "tick, message to us": 3,
    "tick, foreign nonsense": 3,
    "lookupuser, the last row": 1.5,
    "lookupuser, nobody": 1.5,
    "sender, the last row": 1.5,
    "sender, nobody": 1.5,
    "arrival, append one and take one": 2,
    "discovery round": 20,
    "cleanlog, rows of 1 KB": 2,
    "history, save 100 rows": 3,
    "history, load 100 rows": 3,
    "colourmessage, a conversation": 5,
    "colourmessage, a name that nearly fits": 5,
}

UNITS = {
    "tick": "bytes",
    "lookupuser": "rows",
    "sender": "rows",
    "arrival": "queued",
    "discovery round": "peers",
    "cleanlog": "rows",
    "history": "characters a row",
    "colourmessage": "characters",
}


def measured(build):
    """Runs everything; the repetitions of program and floor alternate at random."""
    with tempfile.NamedTemporaryFile(suffix=".json") as report:
        subprocess.run(
            [
                build / "vexlo_bench",
                f"--benchmark_repetitions={figures.PAIRS}",
                "--benchmark_enable_random_interleaving=true",
                "--benchmark_min_time=0.1",
                f"--benchmark_out={report.name}",
                "--benchmark_out_format=json",
            ],
            stdout=subprocess.DEVNULL,
            check=True,
            timeout=1800,
        )
        return json.load(report)["benchmarks"]


def paired(runs):
    """For each subject and size the repetitions of program and floor, in the order of the aims."""
    pairs = {}
    for run in runs:
        if run["run_type"] != "iteration":
            continue
        what, who, size = run["run_name"].split("/")[:3]
        pairs.setdefault((what, int(size)), {}).setdefault(who, []).append(run)
    order = list(AIMS)
    return sorted(pairs.items(), key=lambda item: (order.index(item[0][0]), item[0][1]))


def rows(build):
    table = []
    for (what, size), pair in paired(measured(build)):
        unit = UNITS[what.split(",")[0]]
        name = f"{what}: {size:,} {unit}"
        times = [
            (program["cpu_time"] * 1e-9, floor["cpu_time"] * 1e-9)
            for program, floor in zip(pair["program"], pair["floor"])
        ]
        table.append(figures.ratio_row(SUBJECT, name, times, AIMS[what], figures.seconds))
        table += counted(name, pair)
    return table


def counted(name, pair):
    """What else a benchmark has counted: memory, calls, virtual time."""
    program, floor = pair["program"][0], pair["floor"][0]
    if program.get("bytes", 0) > 1:
        sizes = [(program["bytes"], floor["bytes"])]
        yield figures.ratio_row(SUBJECT, f"{name}, memory a row", sizes, 2, figures.memory)
    if "writes" in program:
        writes = program["writes"]
        yield figures.Row(
            SUBJECT, f"{name}, calls of write", f"{writes:g}", "1", f"{writes:g}x", "1", writes < 2
        )
    if "virtual_ms" in program:
        took, due = program["virtual_ms"], program["due_ms"]
        yield figures.Row(
            SUBJECT,
            f"{name}, in virtual time",
            f"{took / 1000:.2f} s",
            f"{due / 1000:.2f} s",
            f"{took / due:.3f}x",
            "1x: rows x 120 ms",
            abs(took - due) < 120,
        )
