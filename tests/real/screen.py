"""A screen of our own: an X server without a monitor, a window manager, and a hand on its mouse."""

import os
import shutil
import subprocess
import time

from ground import die_with_parent
from waiting import wait_until

TOOLS = ("Xvfb", "openbox", "xdotool")


def missing_tools():
    return [tool for tool in TOOLS if not shutil.which(tool)]


class Screen:
    """An X server with openbox on it."""

    def __init__(self, size="1280x1024x24"):
        reading, writing = os.pipe()
        self._server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", size, "-nolisten", "tcp", "-ac"],
            pass_fds=[writing],
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
            preexec_fn=die_with_parent,
        )
        os.close(writing)
        with os.fdopen(reading) as number:
            line = number.readline().strip()
        if not line:
            raise AssertionError("the X server did not come up")
        self.display = f":{line}"
        self._manager = subprocess.Popen(
            ["openbox", "--sm-disable"],
            env=dict(os.environ, DISPLAY=self.display),
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
            preexec_fn=die_with_parent,
        )
        wait_until("the window manager", self._is_managed, 15.0)

    def _is_managed(self):
        return bool(self._xdotool("get_desktop", check=False))

    def _xdotool(self, *arguments, check=True):
        ran = subprocess.run(
            ["xdotool", *arguments],
            env=dict(os.environ, DISPLAY=self.display),
            capture_output=True,
            text=True,
            timeout=20,
            check=False,
        )
        if check and ran.returncode != 0:
            raise AssertionError(f"xdotool {arguments}: {ran.stderr}")
        return ran.stdout.strip() if ran.returncode == 0 else ""

    def click(self, control):
        """Moves the mouse of the screen onto a control and clicks."""
        place = control.place
        self.click_at(place["x"] + place["width"] // 2, place["y"] + place["height"] // 2)

    def click_row(self, control, text):
        """Clicks a row of a list."""
        spot = control.spot(row=control.rows.index(text))
        self.click_at(spot["x"], spot["y"])

    def click_at(self, x, y):
        self._xdotool("mousemove", str(x), str(y))
        time.sleep(0.05)
        self._xdotool("click", "1")

    def type(self, text):
        self._xdotool("type", "--delay", "20", text)

    def press(self, key):
        self._xdotool("key", key)

    def active_title(self):
        return self._xdotool("getactivewindow", "getwindowname", check=False)

    def titles(self):
        """The titles of the windows that are mapped, in no order."""
        found = self._xdotool("search", "--onlyvisible", "--name", ".", check=False).split()
        return [self._xdotool("getwindowname", number, check=False) for number in found]

    def close(self):
        for process in (self._manager, self._server):
            process.terminate()
            process.wait(timeout=10)
