#!/usr/bin/env python3
"""Runs the real-network tests on a program folder.

    run.py --app FOLDER --driver LIB [--only NAME]...

FOLDER is a complete program folder, LIB is libvexlo_driver.so. NAME is a part of a test's name. The
last line counts; where no private network can be made, all tests are skipped and it says why.
"""

import argparse
import pathlib
import sys
import time
import unittest

import case
import ground

HERE = pathlib.Path(__file__).resolve().parent


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--app", required=True, type=pathlib.Path)
    parser.add_argument("--driver", required=True, type=pathlib.Path)
    parser.add_argument("--only", action="append", default=[], metavar="NAME")
    return parser.parse_args()


def flat(suite):
    for part in suite:
        if isinstance(part, unittest.TestSuite):
            yield from flat(part)
        else:
            yield part


def chosen(only):
    """The tests whose names hold one of the wanted parts; the same class stays together."""
    found = unittest.TestLoader().discover(str(HERE), pattern="test_*.py", top_level_dir=str(HERE))
    return unittest.TestSuite(
        test for test in flat(found) if not only or any(name in test.id() for name in only)
    )


class Result(unittest.TestResult):
    """Tells each test when it ends, and what the office looked like when one failed."""

    passed = 0

    def startTest(self, test):
        super().startTest(test)
        self._start = time.monotonic()

    def _tell(self, word, test, more=""):
        place, _, sentence = test.id().rpartition(".test_")
        name = f"{place.rpartition('.')[2]}: {sentence.replace('_', ' ')}"
        took = time.monotonic() - getattr(self, "_start", time.monotonic())
        print(f"{word:7} {name} ({took:.1f} s){more}", flush=True)

    def addSuccess(self, test):
        super().addSuccess(test)
        self.passed += 1
        self._tell("ok", test)

    def _add_bad(self, test, problem):
        office = getattr(test, "office", None)
        try:
            state = "\n" + office.described() if office else ""
        except Exception as failure:  # The report of a failure must not be lost for another one.
            state = f"\n(the office cannot be described: {failure!r})"
        self._tell("FAILED", test, "\n" + self._exc_info_to_string(problem, test) + state)

    def addFailure(self, test, err):
        super().addFailure(test, err)
        self._add_bad(test, err)

    def addError(self, test, err):
        super().addError(test, err)
        self._add_bad(test, err)

    def addSkip(self, test, reason):
        super().addSkip(test, reason)
        self._tell("skipped", test, f": {reason}")


def summary(passed, failed, skipped):
    print(f"real: {passed} passed, {failed} failed, {skipped} skipped", flush=True)


def main():
    given = arguments()
    for needed in (given.app / "vexloim", given.driver):
        if not needed.exists():
            sys.exit(f"real: {needed} is missing")
    case.given.update(app=given.app.resolve(), driver=given.driver.resolve())
    tests = chosen(given.only)
    reason = ground.enter_or_explain()
    if reason:
        print(f"no private network can be made here: {reason}")
        summary(0, 0, tests.countTestCases())
        return 0
    result = Result()
    tests.run(result)
    failed = len(result.failures) + len(result.errors)
    summary(result.passed, failed, len(result.skipped))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
