#!/usr/bin/env python3
"""Runs test programs made with GoogleTest and counts their tests.

    run_gtest.py NAME PROGRAM...

At the end, what failed is told once more and the last line is "NAME: 345 passed, 0 failed". A program
that is missing, dies, hangs, or has no test counts as one failed test.
"""

import dataclasses
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import threading

LONGEST_SECONDS = 1200
LAST_LINES = 30


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


@dataclasses.dataclass
class Result:
    passed: int = 0
    skipped: int = 0
    failures: list[str] = dataclasses.field(default_factory=list)

    def add(self, more):
        self.passed += more.passed
        self.skipped += more.skipped
        self.failures += more.failures


def reported(report):
    """What the program's own report says."""
    result = Result()
    for suite in json.loads(report.read_text(encoding="utf-8"))["testsuites"]:
        for test in suite["testsuite"]:
            if test.get("failures"):
                text = "\n".join(each["failure"] for each in test["failures"])
                result.failures.append(f"{suite['name']}.{test['name']}\n{text}")
            elif test["status"] != "RUN" or test["result"] == "SKIPPED":
                result.skipped += 1
            else:
                result.passed += 1
    return result


def seen(lines):
    """What a program that died had said until then."""
    ended = (re.match(r"\[  FAILED  \] (.*) \(\d+ ms\)$", line) for line in lines)
    return Result(
        passed=sum(line.startswith("[       OK ] ") for line in lines),
        failures=[match[1] for match in ended if match],
    )


def run(program):
    if not program.exists():
        return Result(failures=[f"{program} is missing"])
    with tempfile.TemporaryDirectory() as folder:
        report = pathlib.Path(folder) / "report.json"
        status, lines = told(program, report)
        whole = report.exists() and report.stat().st_size > 0
        result = reported(report) if whole else seen(lines)
    nothing = not result.passed and not result.failures
    if (status != 0 and not result.failures) or not whole or nothing:
        # What a sanitizer said of it stands at the end.
        last = "\n".join(lines[-LAST_LINES:])
        result.failures.append(
            f"{program} ended with status {status} after {result.passed} passed tests\n{last}"
        )
    return result


def main():
    name, *programs = sys.argv[1:]
    whole = Result()
    for program in programs:
        whole.add(run(pathlib.Path(program)))
    # Together and last, so that whoever sees the end of the log only sees them.
    for failure in whole.failures:
        print(f"\nFAILED  {failure}")
    more = f", {whole.skipped} skipped" if whole.skipped else ""
    print(f"{name}: {whole.passed} passed, {len(whole.failures)} failed{more}")
    return 1 if whole.failures else 0


if __name__ == "__main__":
    sys.exit(main())
