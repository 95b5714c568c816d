#!/usr/bin/env python3
"""Which lines of the logic the tests reach, and which ways they take; writes docs/coverage.md.

    coverage.py

The reason why a line is not reached stands in tests/coverage.toml, by the line's own words.
"""

import collections
import json
import pathlib
import re
import subprocess
import sys
import tomllib

ROOT = pathlib.Path(__file__).resolve().parents[1]
BUILD = ROOT / "build" / "coverage"
REPORT = ROOT / "docs" / "coverage.md"
FOLDERS = ("text", "platform", "controls", "forms", "network", "popups", "records", "messaging",
           "config", "desktop", "core", "tap")
PROGRAMS = ("vexlo_unit_tests", "vexlo_tests", "vexlo_talk_tests", "vexlo_desk_tests",
            "vexlo_tap_tests")
# The working day takes minutes and walks on the same roads as all others.
LEFT_OUT = "WorkingDay.*"

# Words that choose a way.
DECIDES = re.compile(r"\b(if|while|for|switch) \(| \? |&&|\|\|")

Line = collections.namedtuple("Line", "number words count choices")
Count = collections.namedtuple("Count", "lines reached ways taken")


def must(*command):
    subprocess.run(command, cwd=ROOT, check=True)


def run_tests():
    must("bash", "-c", "mkdir -p build/logs && source tools/packages.sh && need_packages gcovr")
    must("cmake", "--preset", "coverage")
    must("cmake", "--build", "--preset", "coverage", "--target", *PROGRAMS)
    for old in BUILD.rglob("*.gcda"):
        old.unlink()
    for program in PROGRAMS:
        must(str(BUILD / program), "--gtest_brief=1", f"--gtest_filter=-{LEFT_OUT}")


def measured():
    """The files of the logic, each with its lines."""
    told = BUILD / "coverage.json"
    must("gcovr", "--root", ".", "--filter", f"src/({'|'.join(FOLDERS)})/", "--json", str(told),
         "--exclude-throw-branches", "--exclude-unreachable-branches", str(BUILD))
    files = {}
    for file in json.loads(told.read_text(encoding="utf-8"))["files"]:
        # The libraries find their headers by links.
        path = (ROOT / file["file"]).resolve()
        words = path.read_text(encoding="utf-8").splitlines()
        files[str(path.relative_to(ROOT))] = [
            Line(line["line_number"], words[line["line_number"] - 1].strip(), line["count"],
                 choices(path, words[line["line_number"] - 1], line["branches"]))
            for line in file["lines"] if not line.get("gcovr/noncode")
        ]
    return files


def choices(path, words, branches):
    """How often each choice of the line goes on, and how often it jumps. Other jumps are the
    compiler's: they let go of what an exception leaves. Headers are left out, since each copy of an
    inline function would count by itself."""
    if path.suffix != ".cpp" or not DECIDES.search(words):
        return []
    return [(on["count"], jump["count"]) for on, jump in zip(branches, branches[1:])
            if on["fallthrough"] and not jump["fallthrough"]]


def count(lines):
    ways = [way for line in lines for choice in line.choices for way in choice]
    return Count(len(lines), sum(line.count > 0 for line in lines), len(ways),
                 sum(way > 0 for way in ways))


def share(part, whole):
    # Rounded down: all is only what is all.
    return f"{1000 * part // whole / 10:.1f} %" if whole else "–"


def table(files):
    rows = ["| folder | lines | reached | ways | taken |", "| --- | ---: | ---: | ---: | ---: |"]
    counts = {}
    for folder in FOLDERS:
        here = [path for path in files if path.startswith(f"src/{folder}/")]
        if lines := [line for path in here for line in files[path]]:
            counts[folder] = count(lines)
    counts["**all**"] = count([line for lines in files.values() for line in lines])
    for folder, of in counts.items():
        rows.append(f"| {folder} | {of.lines} | {share(of.reached, of.lines)} | {of.ways} "
                    f"| {share(of.taken, of.ways)} |")
    return rows


def missed(files, is_missed):
    return [(path, line) for path, lines in sorted(files.items()) for line in lines
            if is_missed(line)]


def never_run(line):
    return line.count == 0


def one_way(line):
    return any((on == 0) != (jump == 0) for on, jump in line.choices)


def listed(found, reasons):
    rows = ["| line | | why |", "| --- | --- | --- |"]
    for path, line in found:
        words = line.words.replace("|", "\\|")
        reason = reasons.get(path, {}).get(line.words, "")
        rows.append(f"| `{path.removeprefix('src/')}:{line.number}` | `{words}` | {reason} |")
    return rows if found else ["None."]


def report(files, reasons):
    REPORT.write_text("\n".join([
        "# What the tests of the logic reach",
        "",
        "`tools/coverage.py` builds the preset `coverage`, runs the unit tests and those on the",
        "simulated office, and writes this page. Each choice in a source has two ways; those that",
        "only an exception takes are not counted.",
        "",
        *table(files),
        "",
        "## Lines that no test reaches",
        "",
        *listed(missed(files, never_run), reasons),
        "",
        "## Choices of which the tests take one way",
        "",
        *listed(missed(files, one_way), reasons),
    ]) + "\n", encoding="utf-8")


def main():
    if sys.argv[1:]:
        print(__doc__)
        return 2
    run_tests()
    files = measured()
    reasons = tomllib.loads((ROOT / "tests" / "coverage.toml").read_text(encoding="utf-8"))
    report(files, reasons)
    bare = [(path, line) for rule in (never_run, one_way) for path, line in missed(files, rule)
            if line.words not in reasons.get(path, {})]
    for path, line in bare:
        print(f"{path}:{line.number}: {line.words}: not reached whole, and no reason told")
    return 1 if bare else 0


if __name__ == "__main__":
    sys.exit(main())
