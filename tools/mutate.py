#!/usr/bin/env python3
"""Repairs what is odd and meant, one oddity at a time, and shows that a test fails each time.

    mutate.py            all of tests/mutation/*.toml; writes docs/mutation.md
    mutate.py WORD...    only entries whose name or file holds one of the words; writes nothing
    mutate.py --check    that each entry still meets its source and its test; builds nothing

Neither the tree nor build/dev is touched: the changed source is compiled aside and linked in front
of the program's libraries, so that its functions are found first.
"""

import collections
import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tomllib

ROOT = pathlib.Path(__file__).resolve().parents[1]
ENTRIES = ROOT / "tests" / "mutation"
BUILD = ROOT / "build" / "dev"
MUTANTS = ROOT / "build" / "mutation"
REPORT = ROOT / "docs" / "mutation.md"
PROGRAMS = {
    "unit": "vexlo_unit_tests",
    "office": "vexlo_tests",
    "talk": "vexlo_talk_tests",
    "desk": "vexlo_desk_tests",
    "windows": "vexlo_qt_tests",
}
LONGEST_SECONDS = 300
LARGEST_BYTES = 8 << 30

Oddity = collections.namedtuple("Oddity", "name file present flipped program test")
Verdict = collections.namedtuple("Verdict", "oddity killed told")


class Spoilt(Exception):
    """What says nothing about a test, such as a change that does not compile."""


def oddities():
    for path in sorted(ENTRIES.glob("*.toml")):
        for name, entry in tomllib.loads(path.read_text(encoding="utf-8")).items():
            program, _, test = entry["test"].partition(":")
            yield Oddity(name, entry["file"], entry["present"], entry["flipped"], program, test)


# The check


def test_names():
    """Every "Suite.Test" in the tests' sources."""
    named = re.compile(r"\bTEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\s*\)")
    sources = (ROOT / "tests").rglob("*_test.cpp")
    return {".".join(found) for path in sources for found in named.findall(path.read_text())}


def without_parameter(test):
    return re.sub(r"^\w+/|/[^.]*$", "", test)


def complaint(oddity, tests, names):
    path = ROOT / oddity.file
    times = path.read_text(encoding="utf-8").count(oddity.present) if path.exists() else 0
    if names[oddity.name] > 1:
        return "its name is given twice"
    if times != 1:
        return f"its present text is {times} times in {oddity.file}"
    if oddity.present == oddity.flipped:
        return "nothing is flipped"
    if oddity.program not in PROGRAMS or without_parameter(oddity.test) not in tests:
        return f"there is no test {oddity.program}:{oddity.test}"
    return None


def check(entries):
    tests, names = test_names(), collections.Counter(entry.name for entry in entries)
    failed = 0
    for entry in entries:
        if wrong := complaint(entry, tests, names):
            print(f"FAILED  {entry.name}: {wrong}")
            failed += 1
    print(f"mutation: {len(entries) - failed} passed, {failed} failed")
    return failed == 0


# The programs as they are


def must(command, folder=ROOT):
    ran = subprocess.run(command, cwd=folder, capture_output=True, text=True, check=False)
    if ran.returncode != 0:
        raise Spoilt(ran.stdout + ran.stderr)
    return ran.stdout


def build(programs):
    must(["cmake", "--preset", "dev"])
    must(["cmake", "--build", "--preset", "dev", "--target", *programs])


def compile_commands():
    """The words of each source's compile command, without its source and its object."""
    database = json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8"))
    commands = {}
    for entry in database:
        words = shlex.split(entry["command"])
        commands[os.path.relpath(entry["file"], ROOT)] = words[: words.index("-o")]
    return commands


def link_command(program):
    """The words of the program's link command, for a linker that is fast where there is one."""
    told = must(["ninja", "-C", str(BUILD), "-t", "commands", program])
    words = shlex.split(told.splitlines()[-1].split(" && ")[1])
    return [*words, "-Wl,--strip-debug", *(["-fuse-ld=lld"] if shutil.which("ld.lld") else [])]


# One mutant


def changed_source(oddity, folder):
    path = folder / oddity.file
    path.parent.mkdir(parents=True, exist_ok=True)
    text = (ROOT / oddity.file).read_text(encoding="utf-8")
    path.write_text(text.replace(oddity.present, oddity.flipped), encoding="utf-8")
    return path


def compile_changed(oddity, folder, commands):
    """Gives the object. Of a header, all inline functions are compiled, and win as the first."""
    source, made = changed_source(oddity, folder), folder / "changed.o"
    words = commands.get(oddity.file)
    if words is None:
        any_test = min(path for path in commands if path.startswith("tests/"))
        words = [*commands[any_test], "-fkeep-inline-functions", "-iquote", str(folder / "src")]
        source = folder / "header.cpp"
        source.write_text(f'#include "{oddity.file.removeprefix("src/")}"\n', encoding="utf-8")
    # What the change leaves unused is no mistake here.
    must([*words, "-w", "-g0", "-o", str(made), "-c", str(source)], BUILD)
    return made


def link(program, made, command):
    target = made.with_name(program)
    place = command.index("-o")
    compiler, before, behind = command[0], command[1:place], command[place + 2 :]
    must([compiler, str(made), *before, "-o", str(target), *behind], BUILD)
    return target


def tried(program, test, folder):
    """Whether the tests pass, and which do not."""
    command = ["prlimit", f"--as={LARGEST_BYTES}", str(program), f"--gtest_filter={test}"]
    try:
        ran = subprocess.run(command, cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                             stderr=subprocess.STDOUT, timeout=LONGEST_SECONDS, check=False)
    except subprocess.TimeoutExpired:
        return False, f"{test} (without end)"
    output = ran.stdout.decode("utf-8", "replace")
    if re.search(r"^\[={10}\] 0 tests", output, re.M):
        raise Spoilt(f"{program.name} has no test {test}")
    failed = re.findall(r"^\[  FAILED  \] (\S+?),? .*\(\d+ ms\)$", output, re.M)
    return ran.returncode == 0, " ".join(failed) or f"{test} (it dies)"


def verdict(oddity, number, commands, links):
    folder = MUTANTS / str(number)
    folder.mkdir(parents=True, exist_ok=True)
    program = PROGRAMS[oddity.program]
    try:
        made = compile_changed(oddity, folder, commands)
        passed, told = tried(link(program, made, links[program]), oddity.test, folder)
        given = Verdict(oddity, not passed, "" if passed else told)
    except Spoilt as reason:
        given = Verdict(oddity, None, str(reason)[-2000:])
    shutil.rmtree(folder)
    word = {True: "killed", False: "SURVIVES", None: "SPOILT"}[given.killed]
    print(f"{word:9} {oddity.name}  [{oddity.file}]  {given.told}", flush=True)
    return given


# The whole


def refuse_what_fails_already(entries):
    """The tests that are to fail pass on the program as it is."""
    for name, program in PROGRAMS.items():
        if tests := {entry.test for entry in entries if entry.program == name}:
            passed, told = tried(BUILD / program, ":".join(sorted(tests)), BUILD)
            if not passed:
                raise SystemExit(f"Without any change {told} fails already.")


def verdicts_on(entries):
    programs = sorted({PROGRAMS[entry.program] for entry in entries})
    build(programs)
    refuse_what_fails_already(entries)
    commands = compile_commands()
    links = {program: link_command(program) for program in programs}
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        jobs = [pool.submit(verdict, entry, number, commands, links)
                for number, entry in enumerate(entries)]
        return [job.result() for job in jobs]


def report(verdicts):
    killed = sum(bool(given.killed) for given in verdicts)
    lines = [
        "# What is odd and meant, and the test that holds it",
        "",
        "Each line looks like a mistake and is none, or is a rule that others rely on.",
        "`tools/mutate.py`, which writes this page, has \"repaired\" each one in its source, and",
        "the test beside it has failed. What the repair was stands in `tests/mutation/`.",
        "",
        f"{len(verdicts)} oddities: {killed} are held by a test, {len(verdicts) - killed} by none.",
    ]
    folder = None
    for given in sorted(verdicts, key=lambda given: given.oddity.file):
        path = pathlib.Path(given.oddity.file)
        if path.parent != folder:
            folder = path.parent
            lines += ["", f"## {folder}", ""]
            lines += ["| odd and meant | file | test |", "| --- | --- | --- |"]
        told = f"`{given.told}`" if given.killed else "**none**"
        lines.append(f"| {given.oddity.name} | `{path.name}` | {told} |")
    REPORT.write_text("\n".join(lines) + "\n", encoding="utf-8")


def main():
    words = sys.argv[1:]
    if words == ["--help"]:
        print(__doc__)
        return 2
    entries = list(oddities())
    fit = check(entries)
    if words == ["--check"] or not fit:
        return 0 if fit else 1
    if words:
        entries = [e for e in entries if any(word in e.name or word in e.file for word in words)]
    os.environ["QT_QPA_PLATFORM"] = "offscreen"
    verdicts = verdicts_on(entries)
    if not words:
        report(verdicts)
    bad = sum(not given.killed for given in verdicts)
    print(f"mutants: {len(verdicts) - bad} killed, {bad} not")
    return 1 if bad or not verdicts else 0


if __name__ == "__main__":
    sys.exit(main())
