#!/usr/bin/env python3
"""Checks the sources: clang-format on all of them, clang-tidy on what is no test.

    lint.py BUILD [PART]...

BUILD is a configured build folder with a compilation database. With PARTs, only files whose paths
hold one of them. The last line counts files, once for each check: "lint: 310 passed, 0 failed".
"""

import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
FORMATTED = ("src", "sim", "terminal", "demo", "tests", "bench", "fuzz")
TIDIED = ("src", "sim", "terminal", "demo")


def wanted(path, parts):
    return not parts or any(part in str(path) for part in parts)


def sources(parts):
    found = (path for folder in FORMATTED for path in (ROOT / folder).rglob("*"))
    return sorted(path for path in found if path.suffix in (".cpp", ".h") and wanted(path, parts))


def units(build, parts):
    """The translation units of the folders that clang-tidy looks at; headers come with them."""
    database = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    paths = {pathlib.Path(entry["directory"], entry["file"]).resolve() for entry in database}
    homes = [ROOT / folder for folder in TIDIED]
    ours = (path for path in paths if any(path.is_relative_to(home) for home in homes))
    return sorted(path for path in ours if wanted(path, parts))


def told(command):
    ran = subprocess.run(command, capture_output=True, text=True, check=False)
    return ran.returncode == 0, ran.stdout + ("" if ran.returncode == 0 else ran.stderr)


def well_formatted(path):
    return told(["clang-format-14", "--dry-run", "-Werror", "--style=file", str(path)])


def tidy(build, path):
    good, output = told(["clang-tidy-14", "--quiet", "-p", str(build), str(path)])
    broken = [line for line in output.splitlines() if "[clang-diagnostic-error" in line]
    # What does not compile brings findings that are none.
    return good, "\n".join(broken) or output


def main():
    if sys.argv[1:] in ([], ["--help"]):
        print(__doc__)
        return 2
    build, parts = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2:]
    jobs = [(f"format {path.relative_to(ROOT)}", well_formatted, (path,)) for path in sources(parts)]
    jobs += [(f"tidy {path.relative_to(ROOT)}", tidy, (build, path)) for path in units(build, parts)]
    passed = failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = pool.map(lambda job: job[1](*job[2]), jobs)
        for (name, _, _), (good, output) in zip(jobs, results):
            passed, failed = passed + good, failed + (not good)
            if not good:
                print(f"FAILED  {name}\n{output}", flush=True)
    print(f"lint: {passed} passed, {failed} failed")
    return 1 if failed or not passed else 0


if __name__ == "__main__":
    sys.exit(main())
