#!/usr/bin/env python3
"""Grows the corpus of each fuzz target and makes it small again.

    grow_fuzz.py BUILD CORPUS LOGS SECONDS [TARGET]...

BUILD holds the programs fuzz_*, CORPUS a folder of inputs for each, by the same name. One target
after the other runs for so many seconds of processor time. Then its corpus is the fewest inputs, of
all that were ever found in this BUILD, that reach the same edges of the program. An input with a
name stays in any case; one that is called by its hash was found, and may go. The last line is
"grown: 10 passed, 0 failed".
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import run_fuzz


def is_found(path):
    return re.fullmatch("[0-9a-f]{40}", path.name)


def edges(target, *folders):
    """How many edges of the program all these inputs reach."""
    ran = subprocess.run(
        [str(target), "-runs=0", *map(str, folders)], capture_output=True, text=True, check=True
    )
    return int(re.search(r"INITED\s+cov: (\d+)", ran.stderr)[1])


def reduce(target, seeds, finds, log):
    """Makes the seeds the fewest inputs that reach what seeds and finds reach together."""
    with tempfile.TemporaryDirectory(prefix="vexlo-") as folder:
        chosen = pathlib.Path(folder)
        for path in seeds.iterdir():
            if not is_found(path):
                shutil.copy(path, chosen)
        # Without counters an edge counts once, however often an input takes it.
        flags = ["-set_cover_merge=1", "-use_counters=0", "-timeout=10", "-rss_limit_mb=2048"]
        merge = [str(target), *flags, folder, str(finds), str(seeds)]
        subprocess.run(merge, stdin=subprocess.DEVNULL, stdout=log, stderr=log, check=True)
        for path in filter(is_found, list(seeds.iterdir())):
            path.unlink()
        for path in filter(is_found, chosen.iterdir()):
            shutil.copy(path, seeds)


def told(target, seeds):
    inputs, size = run_fuzz.measure(seeds)
    return f"{inputs} inputs, {size} bytes, {edges(target, seeds)} edges"


def grow(target, corpus, logs, seconds):
    """Whether the target stood all that it was given, and its corpus before and after."""
    seeds, finds = corpus / target.name, run_fuzz.finds_of(target)
    before = told(target, seeds)
    good, why = run_fuzz.run(target, corpus, logs, seconds)
    if not good:
        return False, why
    with open(logs / f"{target.name}-merge.log", "wb") as log:
        reduce(target, seeds, finds, log)
    fault = run_fuzz.fault_of(seeds)
    return not fault, f"{before}; now {told(target, seeds)}{fault and f'; {fault}'}"


def main():
    if len(sys.argv) < 5:
        print(__doc__)
        return 2
    build, corpus, logs = (pathlib.Path(given) for given in sys.argv[1:4])
    seconds, only = float(sys.argv[4]), sys.argv[5:]
    failed = 0
    chosen = [path for path in run_fuzz.targets(build) if not only or path.name in only]
    for target in chosen:
        good, line = grow(target, corpus, logs, seconds)
        print(f"{'ok' if good else 'FAILED':7} {target.name}: {line}", flush=True)
        failed += not good
    print(f"grown: {len(chosen) - failed} passed, {failed} failed")
    return 1 if failed or not chosen else 0


if __name__ == "__main__":
    sys.exit(main())
