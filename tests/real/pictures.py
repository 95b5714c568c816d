#!/usr/bin/env python3
"""Takes the pictures of the docs from real programs that talk on a private network.

    pictures.py --app FOLDER --driver LIB --out FOLDER

Each window is photographed in the middle of a small conversation between three people.
"""

import argparse
import pathlib
import sys

import case
import ground
from waiting import wait_until


class Photographer(case.RealTest):
    """Plays the conversation; the pictures go to `folder`."""

    folder = pathlib.Path(".")

    def runTest(self):
        alice, bob, carl = self.acquainted(
            self.alice(AUTORESPONSEALLOW=1), self.bob(), self.carl()
        )
        self._write(alice)
        self._answer(alice, bob)
        self._long_thread(carl, alice)
        self._windows(alice)

    def _grab(self, program, window, name):
        program.windows.settle()
        program.windows[window].grab(self.folder / f"{name}.png")

    def _write(self, alice):
        alice.main["allusers"].click_row("Bob")
        alice.main["messagetext"].type("Lunch at noon?")
        self._grab(alice, "frmMain", "main")
        alice.main["sendbtn"].click()

    def _answer(self, alice, bob):
        popup = self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Lunch at noon?")
        popup["temp"].type("Yes, the usual place")
        self._grab(bob, "popup0", "popup-one-turn")
        popup["Command2"].click()
        answer = "ALICE MEYER> Lunch at noon?\nBOB> Yes, the usual place"
        self.pops_up(alice, "Bob", answer)
        self._grab(alice, "popup0", "popup")

    def _long_thread(self, carl, alice):
        self.send_to_all(carl, "The server restarts at five")
        wait_until("Carl's message", lambda: alice.windows["popup1"].visible)
        self._grab(alice, "popup1", "popup-to-all")
        alice.windows["popup1"]["temp"].type("x" * 971)
        self._grab(alice, "popup1", "popup-too-long")
        alice.windows["popup1"]["Command1"].click()

    def _tool(self, program, entry):
        program.main["options"].click()
        program.windows.settle()
        program.windows.choose(entry, "toolsmenu")

    def _windows(self, alice):
        alice.main["history"].click()
        wait_until("the history", lambda: alice.windows["historyfrm"].visible)
        self._grab(alice, "historyfrm", "history")
        self._tool(alice, "View Logs")
        wait_until("the log", lambda: alice.windows["log"].visible)
        self._grab(alice, "log", "log")
        self._tool(alice, "Configure Groups")
        wait_until("the groups", lambda: alice.windows["groups"].visible)
        self._grab(alice, "groups", "groups")
        alice.windows["groups"]["Command6"].click()
        wait_until("no groups", lambda: not alice.windows["groups"].visible)
        self._tool(alice, "Change Settings")
        wait_until("the settings", lambda: alice.windows["settings"].visible)
        for number, tab in enumerate(("general", "send-buttons", "responses", "away", "admin")):
            alice.windows["settings"]["SSTab1"].click_tab(number)
            self._grab(alice, "settings", f"settings-{tab}")
        alice.windows["settings"]["cancelbtn"].click()


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    for name in ("app", "driver", "out"):
        parser.add_argument(f"--{name}", required=True, type=pathlib.Path)
    given = parser.parse_args()
    case.given.update(app=given.app.resolve(), driver=given.driver.resolve())
    Photographer.folder = given.out.resolve()
    Photographer.folder.mkdir(parents=True, exist_ok=True)
    reason = ground.enter_or_explain()
    if reason:
        sys.exit(f"no private network can be made here: {reason}")
    result = Photographer().run()
    for _, problem in result.errors + result.failures:
        print(problem)
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
