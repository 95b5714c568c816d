#!/usr/bin/env python3
"""Runs every fuzz target on its corpus for some seconds of processor time.

    run_fuzz.py BUILD CORPUS LOGS [SECONDS]

BUILD holds the programs fuzz_*, CORPUS a folder of inputs for each, by the same name; one that is
too large fails its target. What is found on the way is kept in BUILD, an input that breaks a target
in LOGS. The last line is "fuzz: 8 passed, 0 failed".
"""

import concurrent.futures
import os
import pathlib
import subprocess
import sys

LONGEST_ROUNDS = 60
# Of one target's corpus. Every run begins with all of it.
MOST_INPUTS = 100
MOST_BYTES = 64 * 1024


def targets(build):
    found = (path for path in build.glob("fuzz_*") if path.is_file() and os.access(path, os.X_OK))
    return sorted(found)


def finds_of(target):
    return target.parent / "finds" / target.name


def measure(seeds):
    """How many inputs a corpus holds, and how many bytes."""
    sizes = [path.stat().st_size for path in seeds.glob("*")]
    return len(sizes), sum(sizes)


def fault_of(seeds):
    """What is wrong with a corpus; "" when nothing is."""
    inputs, size = measure(seeds)
    if not inputs:
        return f"{seeds} holds no corpus"
    if inputs > MOST_INPUTS or size > MOST_BYTES:
        return f"{seeds} is too large, with {inputs} inputs of {size} bytes together"
    return ""


def one_round(command, log):
    """The status of one run and the processor time that it took."""
    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=log, stderr=log)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    return process.returncode, usage.ru_utime + usage.ru_stime


def run(target, corpus, logs, wanted):
    """Whether the target stands every input, for as many seconds of processor time as wanted."""
    seeds = corpus / target.name
    finds = finds_of(target)
    finds.mkdir(parents=True, exist_ok=True)
    log_path = logs / f"{target.name}.log"
    spent, rounds = 0.0, 0
    with open(log_path, "wb") as log:
        # A busy machine gives less than a second of processor time a second.
        while spent < wanted and rounds < LONGEST_ROUNDS:
            rounds += 1
            status, took = one_round(
                [
                    str(target),
                    f"-max_total_time={max(1, round(wanted - spent))}",
                    "-timeout=10",
                    "-rss_limit_mb=2048",
                    "-print_final_stats=1",
                    f"-artifact_prefix={logs}/{target.name}-",
                    str(finds),
                    str(seeds),
                ],
                log,
            )
            spent += took
            if status != 0:
                tail = log_path.read_text(encoding="utf-8", errors="replace")[-4000:]
                return False, f"status {status}\n{tail}"
    return spent >= wanted, f"{spent:.1f} s of processor time"


def judge(target, corpus, logs, wanted):
    fault = fault_of(corpus / target.name)
    return (False, fault) if fault else run(target, corpus, logs, wanted)


def main():
    if len(sys.argv) not in (4, 5):
        print(__doc__)
        return 2
    build, corpus, logs = (pathlib.Path(given) for given in sys.argv[1:4])
    wanted = float(sys.argv[4]) if len(sys.argv) > 4 else 10.0
    found = targets(build)
    passed = failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = pool.map(lambda target: judge(target, corpus, logs, wanted), found)
        for target, (good, told) in zip(found, results):
            print(f"{'ok' if good else 'FAILED':7} {target.name}: {told}", flush=True)
            passed, failed = passed + good, failed + (not good)
    if not found:
        print(f"{build} holds no fuzz target")
        failed = 1
    print(f"fuzz: {passed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
