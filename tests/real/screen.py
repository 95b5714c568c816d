"""A screen of our own: an X server without a monitor, a window manager, and a hand on its mouse."""

import os
import shutil
import struct
import subprocess
import tempfile
import time

from ground import die_with_parent
from waiting import wait_until

TOOLS = ("Xvfb", "openbox", "xdotool")


def missing_tools():
    return [tool for tool in TOOLS if not shutil.which(tool)]


class Screen:
    """An X server with openbox on it."""

    width = 1280
    height = 1024

    def __init__(self):
        reading, writing = os.pipe()
        self._memory = tempfile.mkdtemp(prefix="screen-")
        self._server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{self.width}x{self.height}x24"]
            # Without -noreset the server throws everybody out when a first, short visitor leaves.
            + ["-fbdir", self._memory, "-nolisten", "tcp", "-ac", "-noreset"],
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
        wait_until("the window manager", self._is_managed, 60.0)

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
        """Moves the mouse of the screen onto a control that stands still, and clicks."""
        place = self._resting_place(control)
        self._click_in(control, place["x"] + place["width"] // 2, place["y"] + place["height"] // 2)

    @staticmethod
    def _resting_place(control):
        """Where in its window it is when nothing moves it any more."""
        seen = [control.inside]

        def rests():
            time.sleep(0.1)
            seen.append(control.inside)
            return seen[-1] == seen[-2]

        wait_until("a control to stand still", rests)
        return seen[-1]

    def click_row(self, control, text):
        """Clicks a row of a list."""
        spot = control.spot(row=control.rows.index(text))
        seen = control.read()
        place, inside = seen["place"], seen["inside"]
        x = spot["x"] - place["x"] + inside["x"]
        self._click_in(control, x, spot["y"] - place["y"] + inside["y"])

    def _click_in(self, control, x, y):
        """A place in the control's window, and where that is knows the X server: on a busy machine
        the toolkit may take one that is moved as it comes up for one that stands in the corner."""
        self._xdotool("mousemove", "--window", str(control.window_number), str(x), str(y))
        time.sleep(0.05)
        self._xdotool("click", "1")

    def click_at(self, x, y, button=1):
        self.point_at(x, y)
        time.sleep(0.05)
        self._xdotool("click", str(button))

    def point_at(self, x, y):
        self._xdotool("mousemove", str(x), str(y))

    def type(self, text):
        self._xdotool("type", "--delay", "20", text)

    def press(self, key):
        self._xdotool("key", key)

    def activate(self, title):
        """Takes a window from the task bar."""
        found = self._xdotool("search", "--name", f"^{title}$").split()
        self._xdotool("windowactivate", found[0])

    def active_title(self):
        return self._xdotool("getactivewindow", "getwindowname", check=False)

    def titles(self):
        """The titles of the windows that are mapped, in no order."""
        found = self._xdotool("search", "--onlyvisible", "--name", ".", check=False).split()
        return [self._xdotool("getwindowname", number, check=False) for number in found]

    def pixels(self, rows):
        """The uppermost rows of what the screen shows, each pixel as its three colour bytes."""
        with open(os.path.join(self._memory, "Xvfb_screen0"), "rb") as memory:
            head = struct.unpack(">25I", memory.read(100))
            header_size, bits, stride, colours = head[0], head[11], head[12], head[19]
            if bits != 32:
                raise AssertionError(f"pixels of {bits} bits")
            memory.seek(header_size + 12 * colours)
            lines = [memory.read(stride) for _ in range(rows)]
        return [
            [line[start : start + 3][::-1] for start in range(0, len(line), 4)] for line in lines
        ]

    def close(self):
        for process in (self._manager, self._server):
            process.terminate()
            process.wait(timeout=10)
        shutil.rmtree(self._memory, ignore_errors=True)
