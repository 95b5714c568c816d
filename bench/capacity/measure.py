"""Plays the experiments that have not been played yet, two at a time, and writes the page.

    measure.py PROGRAM FOLDER
"""

import concurrent.futures
import pathlib
import subprocess
import sys
import time

sys.dont_write_bytecode = True

import page  # noqa: E402
import plan  # noqa: E402
import plots  # noqa: E402
import results  # noqa: E402

ROOT = pathlib.Path(__file__).resolve().parents[2]
AT_ONCE = 2


def lines_of(program, experiment):
    scenario, told = experiment
    arguments = [f"{key}={value}" for key, value in told.items()]
    command = ["nice", "-n", "10", str(program), scenario, *arguments]
    return subprocess.run(command, stdout=subprocess.PIPE, text=True, check=True).stdout


def play(program, path, experiment):
    begin = time.monotonic()
    if plan.by_programs(experiment):
        lines = lines_of(program, experiment)
        if experiment[0] in plan.MOST_PROGRAMS and lines != lines_of(program, plan.modelled(experiment)):
            raise AssertionError(f"{path.stem}: the model does not do what the programs do")
    else:
        lines = lines_of(program, plan.modelled(experiment))
    # Aside first: half a file would count as played.
    aside = path.with_suffix(".part")
    aside.write_text(lines, encoding="utf-8")
    aside.rename(path)
    print(f"{path.stem:40} {time.monotonic() - begin:7.1f} s", flush=True)


def main():
    program, folder = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
    built = program.stat().st_mtime
    paths = {name: folder / f"{name}.csv" for name in plan.RUNS}
    due = [name for name, path in paths.items() if not path.exists() or path.stat().st_mtime < built]
    with concurrent.futures.ThreadPoolExecutor(AT_ONCE) as pool:
        played = [pool.submit(play, program, paths[name], plan.RUNS[name]) for name in due]
        for each in played:
            each.result()
    measured = {name: results.read(path) for name, path in paths.items()}
    plots.draw(measured, ROOT / "docs/pictures")
    page.write(measured, ROOT / "docs/capacity.md")


if __name__ == "__main__":
    main()
