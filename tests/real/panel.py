"""A desktop's panel with a notification area, and what it shows of our icon."""

import functools
import os
import pathlib
import shutil
import subprocess
import sys

from ground import die_with_parent
from waiting import wait_until

TOOL = "trayer"
ART = pathlib.Path(__file__).resolve().parents[2] / "src" / "art"
ICON = 22  # Pixels of an icon in a panel of HEIGHT.
HEIGHT = 24
OPAQUE = 255


def missing():
    return not shutil.which(TOOL)


class Panel:
    """A process of its own, that can be killed and started again."""

    def __init__(self, screen):
        self._screen = screen
        self._process = subprocess.Popen(
            [TOOL, "--edge", "top", "--align", "right", "--widthtype", "request"]
            + ["--height", str(HEIGHT), "--expand", "false"],
            env=dict(os.environ, DISPLAY=screen.display),
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
            preexec_fn=die_with_parent,
        )
        wait_until("the panel", lambda: "panel" in screen.titles(), 15.0)

    def kill(self):
        """It is gone at once, and says good-bye to nobody."""
        self._process.kill()
        self._process.wait(timeout=10)
        wait_until("the panel to go", lambda: "panel" not in self._screen.titles())

    def close(self):
        if self._process.poll() is None:
            self.kill()


@functools.lru_cache
def drawn(image):
    """The icon "normal", "waiting" or "away" as it is drawn: colours of its full pixels by place."""
    sys.path.insert(0, str(ART))
    try:
        import icons  # The script that the build draws with.
    finally:
        sys.path.remove(str(ART))
    icon = icons.Icon(ICON)
    getattr(icons, f"tray_{image}")(icon)
    rgba = icon.canvas.rgba()
    pixels = [rgba[start : start + 4] for start in range(0, len(rgba), 4)]
    return {
        divmod(number, ICON)[::-1]: pixel[:3]
        for number, pixel in enumerate(pixels)
        if pixel[3] == OPAQUE
    }


def place_of(image, screen):
    """The middle of the icon on the screen, if it shows exactly this image somewhere in the panel."""
    strip = screen.pixels(HEIGHT)
    wanted = drawn(image)
    for top in range(HEIGHT - ICON + 1):
        for left in range(screen.width - ICON + 1):
            if all(strip[top + y][left + x] == colour for (x, y), colour in wanted.items()):
                return left + ICON // 2, top + ICON // 2
    return None
