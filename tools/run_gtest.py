#!/usr/bin/env python3
"""Runs test programs made with GoogleTest and counts their tests.

    run_gtest.py NAME PROGRAM...

The last line is "NAME: 345 passed, 0 failed". A program that is missing, dies, hangs, or has no test
counts as one failed test.
"""

import json
import pathlib
import re
import subprocess
import sys
import tempfile
import threading

LONGEST_SECONDS = 1200


def told(program, report):
    """Runs the program, hands its output on, and gives its status and every line."""
    process = subprocess.Popen(
        [str(program), "--gtest_brief=0", f"--gtest_output=json:{report}"],
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
    )
    alarm = threading.Timer(LONGEST_SECONDS, process.kill)
    alarm.start()
    lines = []
    for raw in process.stdout:
        line = raw.decode("utf-8", "replace").rstrip("\n")
        lines.append(line)
        print(line, flush=True)
    status = process.wait()
    alarm.cancel()
    return status, lines


def reported(report):
    """Passed, failed and skipped tests of the program's own report."""
    passed = failed = skipped = 0
    for suite in json.loads(report.read_text(encoding="utf-8"))["testsuites"]:
        for test in suite["testsuite"]:
            if test.get("failures"):
                failed += 1
            elif test["status"] != "RUN" or test["result"] == "SKIPPED":
                skipped += 1
            else:
                passed += 1
    return passed, failed, skipped


def seen(lines):
    """What a program that died had said until then."""
    passed = sum(line.startswith("[       OK ] ") for line in lines)
    failed = sum(bool(re.match(r"\[  FAILED  \] .* \(\d+ ms\)$", line)) for line in lines)
    return passed, failed, 0


def run(program):
    if not program.exists():
        print(f"{program} is missing")
        return 0, 1, 0
    with tempfile.TemporaryDirectory() as folder:
        report = pathlib.Path(folder) / "report.json"
        status, lines = told(program, report)
        whole = report.exists() and report.stat().st_size > 0
        passed, failed, skipped = reported(report) if whole else seen(lines)
    if (status != 0 and failed == 0) or not whole or passed + failed == 0:
        print(f"{program} ended with status {status} after {passed} passed tests")
        failed += 1
    return passed, failed, skipped


def main():
    name, *programs = sys.argv[1:]
    passed, failed, skipped = map(sum, zip(*(run(pathlib.Path(program)) for program in programs)))
    more = f", {skipped} skipped" if skipped else ""
    print(f"{name}: {passed} passed, {failed} failed{more}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
