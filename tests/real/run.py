#!/usr/bin/env python3
"""Runs the real-network tests on a program folder.

    run.py --app FOLDER --driver LIB [--build FOLDER] [--only NAME]... [--jobs N] [--patience X]
           [--name NAME]

The app is a complete program folder, LIB is libvexlo_driver.so. The build is the one that is
packed; without it the tests of the package are skipped. NAME is a part of a test's name, in any
case. Each test has its line when it ends; at the end, what failed is told in full and the last
line counts. Where no private network can be made, all tests are skipped and it says why.
"""

import argparse
import collections
import concurrent.futures
import contextlib
import multiprocessing
import os
import pathlib
import shutil
import signal
import sys
import tempfile
import time
import unittest

import case
import ground
import waiting

HERE = pathlib.Path(__file__).resolve().parent


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--app", required=True, type=pathlib.Path)
    parser.add_argument("--driver", required=True, type=pathlib.Path)
    parser.add_argument("--build", type=pathlib.Path, help="the build that is packed")
    parser.add_argument("--jobs", type=int, default=4, help="tests side by side")
    parser.add_argument("--patience", type=float, default=1.0, help="waits so many times as long")
    parser.add_argument("--name", default="real", help="what the last line is to begin with")
    parser.add_argument("--only", action="append", default=[], metavar="NAME")
    return parser.parse_args()


def flat(suite):
    for part in suite:
        if isinstance(part, unittest.TestSuite):
            yield from flat(part)
        else:
            yield part


def chosen(only):
    """The tests whose names hold one of the wanted parts."""
    found = unittest.TestLoader().discover(str(HERE), pattern="test_*.py", top_level_dir=str(HERE))
    tests = list(flat(found))
    for test in tests:
        if not isinstance(test, case.RealTest):
            sys.exit(f"real: {test.id()} cannot be loaded: {test}")
    wanted = [name.lower() for name in only] or [""]
    return [test for test in tests if any(name in test.id().lower() for name in wanted)]


class Result(unittest.TestResult):
    """What became of one test, with a picture of its office when it failed."""

    def __init__(self):
        super().__init__()
        self.outcome = "ok"
        self.more = ""

    def _add_bad(self, test, problem):
        office = getattr(test, "office", None)
        try:
            state = "\n" + office.described() if office else ""
        except Exception as failure:  # The report of a failure must not be lost for another one.
            state = f"\n(the office cannot be described: {failure!r})"
        self.outcome = "FAILED"
        self.more += "\n" + self._exc_info_to_string(problem, test) + state

    def addFailure(self, test, err):
        self._add_bad(test, err)

    def addError(self, test, err):
        self._add_bad(test, err)

    def addSubTest(self, test, subtest, err):
        if err:
            self._add_bad(test, err)

    def addSkip(self, test, reason):
        self.outcome = "skipped"
        self.more = f": {reason}"


def run_one(name):
    """Runs one test, in whichever process; gives its outcome, its line, and the report of a failure."""
    test = unittest.TestLoader().loadTestsFromName(name)
    start = time.monotonic()
    result = Result()
    test.run(result)
    place, _, sentence = name.rpartition(".test_")
    told = f"{place.rpartition('.')[2]}: {sentence.replace('_', ' ')}"
    line = f"{result.outcome:7} {told} ({time.monotonic() - start:.1f} s)"
    if result.outcome == "FAILED":
        return result.outcome, line, result.more
    return result.outcome, line + result.more, ""


def run_all(tests, jobs):
    """Offices do not hear each other, so several tests run side by side; some want to be alone."""
    outcomes = []
    failures = []

    def take(outcome, line, report):
        outcomes.append(outcome)
        print(line, flush=True)
        if report:
            failures.append(line + report)

    fork = multiprocessing.get_context("fork")
    side_by_side = [test.id() for test in tests if not test.alone]
    with concurrent.futures.ProcessPoolExecutor(jobs, fork, ground.die_with_parent) as pool:
        running = {pool.submit(run_one, name): name for name in side_by_side}
        for done in concurrent.futures.as_completed(running):
            broken = done.exception()
            lost = ("FAILED", f"FAILED  {running[done]}", f": {broken!r}")
            take(*(lost if broken else done.result()))
    for test in tests:
        if test.alone:
            take(*run_one(test.id()))
    # Together and last, so that whoever sees the end of the log only sees them.
    for failure in failures:
        print("\n" + failure, flush=True)
    return collections.Counter(outcomes)


@contextlib.contextmanager
def room():
    """One folder for all offices, gone at the end, also when somebody stops the run."""
    folder = tempfile.mkdtemp(prefix="vexlo-")
    tempfile.tempdir = folder
    runner = os.getpid()

    def stopped(number, _):
        if os.getpid() == runner:
            for worker in multiprocessing.active_children():
                worker.kill()
            shutil.rmtree(folder, ignore_errors=True)
        os._exit(128 + number)

    signal.signal(signal.SIGTERM, stopped)
    try:
        yield
    finally:
        shutil.rmtree(folder, ignore_errors=True)


def summary(name, passed, failed, skipped):
    print(f"{name}: {passed} passed, {failed} failed, {skipped} skipped", flush=True)


def main():
    given = arguments()
    for needed in (given.app / "vexloim", given.driver):
        if not needed.exists():
            sys.exit(f"real: {needed} is missing")
    waiting.patience["factor"] = given.patience
    case.given.update(
        app=given.app.resolve(),
        driver=given.driver.resolve(),
        build=given.build and given.build.resolve(),
    )
    tests = chosen(given.only)
    reason = ground.enter_or_explain()
    if reason:
        print(f"no private network can be made here: {reason}")
        summary(given.name, 0, 0, len(tests))
        return 0
    with room():
        counts = run_all(tests, given.jobs)
    summary(given.name, counts["ok"], counts["FAILED"], counts["skipped"])
    return 1 if counts["FAILED"] else 0


if __name__ == "__main__":
    sys.exit(main())
