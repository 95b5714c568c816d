"""The settings window: how soon it is there, and how long a save with everything open takes."""

import time

import figures
from popping import shown_after, usable_pair
from resting import message_to
from waiting import wait_until

FILES = ("settings.txt", "buttons.txt", "logs/logtemp.txt")


def rows(bench, screens):
    table = []
    for name, screen in screens:
        table += rows_on(bench, name, screen)
    return table


def rows_on(bench, name, screen):
    program, floor = usable_pair(bench, screen)
    for number in range(10):
        bench.say(program.host, message_to(program.host, f"message {number}"))
    wait_until("ten popups", lambda: len(program.windows.popups()) == 10, 30.0)
    opened, saved = [], []
    for slot in range(figures.PAIRS):
        took = seconds_to_open(program)
        opened.append((took, shown_after(bench, floor, b"hello", slot)))
        saved.append((seconds_to_save(program), seconds_to_write(program.host)))
        time.sleep(0.5)
    bench.stop(program, floor)
    what = f"the settings window, {name}"
    return [
        figures.ratio_row("Settings", f"opening {what}", opened, None, figures.seconds),
        figures.ratio_row(
            "Settings", f"a save with 24 rows and eleven popups, {name}", saved, None, figures.seconds
        ),
    ]


def seconds_to_open(program):
    program.windows.main["options"].click()
    program.windows.settle()
    begin = time.monotonic()
    program.windows.choose("Change Settings", "toolsmenu")
    return seconds_until(program, begin, True)


def seconds_to_save(program):
    begin = time.monotonic()
    program.windows["settings"]["savebtn"].click()
    return seconds_until(program, begin, False)


def seconds_until(program, begin, visible):
    """The window is shown or hidden, and what is on the screen has been painted."""
    window = program.windows["settings"]
    while window.visible != visible:
        if time.monotonic() - begin > 30:
            raise AssertionError("the settings window does not follow")
    program.windows.driver.ask("state")  # The window has been painted when the loop goes on.
    return time.monotonic() - begin


def seconds_to_write(host):
    """The bytes that a save writes, written to other files of the same folder."""
    contents = [host.file(name) for name in FILES]
    begin = time.monotonic()
    for number, content in enumerate(contents):
        (host.app / f"floor{number}").write_bytes(content)
    return time.monotonic() - begin
