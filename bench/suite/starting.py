"""How long a start takes: to the splash, and to a main window that can be used."""

import figures


def pairs_on(bench, screen):
    """For each pair: (wall, processor) at the splash and when usable, for program and floor."""
    host = bench.host()
    found = []
    for _ in range(figures.PAIRS):
        program = bench.program(host, screen=screen, driven=True)
        splash = program.wait_shown("loading")
        usable = program.wait_usable()
        bench.stop(program)
        floor = bench.messenger(screen=screen, driven=True)
        shown = floor.wait_shown("frmMain")
        ready = floor.wait_usable()
        bench.stop(floor)
        found.append((splash, shown, usable, ready))
    return found


def rows(bench, screens):
    table = []
    for name, screen in screens:
        found = pairs_on(bench, screen)
        for what, program, floor, aim, stretch in (
            ("to the splash", 0, 1, 2, 1.5),
            ("to the usable main window", 2, 3, 3, 2),
        ):
            for number, kind in ((0, "wall"), (1, "CPU")):
                pairs = [(pair[program][number], pair[floor][number]) for pair in found]
                table.append(
                    figures.ratio_row(
                        "Start", f"{what}, {kind}, {name}", pairs, aim, figures.seconds, stretch
                    )
                )
    return table
