#!/usr/bin/env python3
"""Takes the pictures of the docs from real programs that talk on a private network.

    pictures.py --app FOLDER --driver LIB --out FOLDER

Each window is photographed in the middle of a small conversation between three people: on a light
and on a dark desktop, at one and at two dots a pixel. Of those at two dots only a few are kept,
unless --all is given.
"""

import argparse
import pathlib
import shutil
import subprocess
import sys

import case
import ground
import screen
from waiting import wait_until


SOUND = pathlib.Path("/opt/vexloim/vexlo.wav")  # Where a person would see it.
DARK = """[Colors:Window]
BackgroundNormal=43,45,48
ForegroundNormal=223,225,229
[Colors:View]
BackgroundNormal=30,31,34
ForegroundNormal=223,225,229
BackgroundAlternate=38,39,42
[Colors:Button]
BackgroundNormal=60,63,67
ForegroundNormal=223,225,229
[Colors:Selection]
BackgroundNormal=61,126,216
ForegroundNormal=255,255,255
[Colors:Tooltip]
BackgroundNormal=60,63,67
ForegroundNormal=223,225,229
"""
FRAMED = ("historyfrm", "log", "groups", "settings", "fwdtofrm")  # They take the keyboard.
KEPT_LARGE = ("main", "popup", "history", "settings-general")


class LargeScreen(screen.Screen):
    """One that holds every window at two dots a pixel."""

    width = 2560
    height = 2048


class Photographer(case.RealTest):
    """Plays the conversation; the pictures go to `folder`."""

    folder = pathlib.Path(".")
    dark = False
    scale = 1
    kept = ()  # The names of the pictures that are wanted; all, if none are named.

    def setUp(self):
        super().setUp()
        self.screen = LargeScreen()
        self.addCleanup(self.screen.close)

    def runTest(self):
        alice, bob, carl = self.acquainted(
            self._desk(self.alice(AUTORESPONSEALLOW=1, WAVEFILE=str(SOUND))),
            self._desk(self.bob()),
            self._desk(self.carl()),
        )
        self._write(alice)
        self._answer(alice, bob)
        self._long_thread(carl, alice)
        self._windows(alice)
        self._settings(alice)

    def _desk(self, host):
        """The host's desktop has the colours and the size that are wanted."""
        host.more_environment.update(
            DISPLAY=self.screen.display,
            QT_QPA_PLATFORM="xcb",
            QT_SCALE_FACTOR=str(self.scale),
            XDG_CURRENT_DESKTOP="KDE",
            KDE_SESSION_VERSION="5",
        )
        if self.dark:
            (host.home / "config" / "kdeglobals").write_text(DARK, encoding="ascii")
        return host

    def _grab(self, program, window, name):
        if self.kept and name not in self.kept:
            return
        if window in FRAMED:
            wait_until(f"the keyboard in {window}", lambda: program.windows[window].state["active"])
        program.windows.settle()
        program.windows[window].grab(self.folder / f"{name}.png")

    def _write(self, alice):
        alice.main["allusers"].click_row("Bob")
        alice.main["messagetext"].type("Lunch at noon?")
        self._grab(alice, "frmMain", "main")
        alice.main["sendbtn"].click()
        alice.windows.settle()
        alice.main["SSTab1"].click_tab(1)
        self._grab(alice, "frmMain", "main-groups")
        alice.main["SSTab1"].click_tab(0)

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

    def _settings(self, alice):
        self._tool(alice, "Change Settings")
        settings = alice.windows["settings"]
        wait_until("the settings", lambda: settings.visible)
        for number, tab in enumerate(("general", "send-buttons", "responses", "away", "admin")):
            settings["SSTab1"].click_tab(number)
            self._grab(alice, "settings", f"settings-{tab}")
        settings["SSTab1"].click_tab(3)
        settings["btnAutoForward"].click()
        wait_until("the dialog", lambda: alice.windows["fwdtofrm"].visible)
        self._grab(alice, "fwdtofrm", "forward-to")
        alice.windows["fwdtofrm"]["cancelbtn"].click()
        wait_until("no dialog", lambda: not alice.windows["fwdtofrm"].visible)
        settings["cancelbtn"].click()


def lay_sound(app):
    """Puts the sound in its place, on a mount that ends with us."""
    subprocess.run(["mount", "-t", "tmpfs", "vexloim", SOUND.parents[1]], check=True)
    SOUND.parent.mkdir()
    shutil.copy(app / SOUND.name, SOUND)


def take_all(out, everything):
    """Plays the conversation on each kind of desktop; gives whether all went well."""
    good = True
    for name, dark, scale, kept in (
        (".", False, 1, ()),
        ("dark", True, 1, ()),
        ("large", False, 2, KEPT_LARGE),
        ("large-dark", True, 2, KEPT_LARGE),
    ):
        Photographer.folder = out / name
        Photographer.folder.mkdir(parents=True, exist_ok=True)
        Photographer.dark, Photographer.scale = dark, scale
        Photographer.kept = () if everything else kept
        result = Photographer().run()
        for _, problem in result.errors + result.failures:
            print(f"{name}: {problem}")
        good = good and result.wasSuccessful()
    return good


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    for name in ("app", "driver", "out"):
        parser.add_argument(f"--{name}", required=True, type=pathlib.Path)
    parser.add_argument("--all", action="store_true", help="keep every picture at two dots")
    given = parser.parse_args()
    case.given.update(app=given.app.resolve(), driver=given.driver.resolve())
    reason = ground.enter_or_explain()
    if reason:
        sys.exit(f"no private network can be made here: {reason}")
    lay_sound(given.app.resolve())
    return 0 if take_all(given.out.resolve(), given.all) else 1


if __name__ == "__main__":
    sys.exit(main())
