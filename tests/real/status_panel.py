"""A panel of today, which is told of the icons over the session bus."""

import re
import shutil
import subprocess

import panel
from ground import die_with_parent
from waiting import wait_until

TOOLS = ("xfce4-panel", "gdbus", "dbus-daemon", "dbus-update-activation-environment")
WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
ONE_TRAY = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array"><value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="20"/>
      <property name="size" type="uint" value="30"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
"""


def missing_tools():
    return [tool for tool in TOOLS if not shutil.which(tool)]


class StatusPanel:
    """The process, and what it knows of our icon."""

    def __init__(self, screen, bus, home):
        self._bus = bus
        settings = home / "panel" / "xfce4" / "xfconf" / "xfce-perchannel-xml"
        settings.mkdir(parents=True, exist_ok=True)
        (settings / "xfce4-panel.xml").write_text(ONE_TRAY, encoding="utf-8")
        own = {
            "DISPLAY": screen.display,
            "HOME": str(home),
            "XDG_CONFIG_HOME": str(home / "panel"),
            "XDG_CACHE_HOME": str(home / "panel"),
        }
        bus.tell(own)  # Its settings come from a program that the bus starts.
        self._process = subprocess.Popen(
            ["xfce4-panel", "--disable-wm-check"],
            env=bus.environment() | own,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
            preexec_fn=die_with_parent,
        )
        wait_until("the panel", self._takes_icons, 30.0)

    def _takes_icons(self):
        place = f"{WATCHER}/StatusNotifierWatcher"
        return "true" in self._bus.property(place, WATCHER, "IsStatusNotifierHostRegistered")

    def item(self):
        """Where the only icon it knows of can be asked; None while there is not just one."""
        place = f"{WATCHER}/StatusNotifierWatcher"
        items = self._bus.property(place, WATCHER, "RegisteredStatusNotifierItems")
        found = re.findall(r"'([^']+)'", items)
        return found[0] if len(found) == 1 else None

    def tip(self):
        found = re.search(r"\[\], '([^']*)', ''", self._property("ToolTip"))
        return found and found[1]

    def image(self):
        """The name of the picture that the icon is."""
        size = panel.ICON
        found = re.search(rf"\({size}, {size}, \[([^]]*)\]", self._property("IconPixmap"))
        if not found:
            return None
        argb = [int(number, 16) for number in re.findall(r"0x[0-9a-f]+", found[1])]
        pixels = [bytes(argb[start + 1 : start + 4]) for start in range(0, len(argb), 4)]
        for name in ("normal", "waiting", "away"):
            if all(pixels[y * size + x] == rgb for (x, y), rgb in panel.drawn(name).items()):
                return name
        return "another picture"

    def press(self):
        self._bus.call(self.item(), f"{ITEM}.Activate", "10", "10")

    def _property(self, name):
        item = self.item()
        return self._bus.property(item, ITEM, name) if item else ""

    def kill(self):
        self._process.kill()
        self._process.wait(timeout=10)
        wait_until("the panel to go", lambda: not self._takes_icons())

    def close(self):
        if self._process.poll() is None:
            self._process.kill()
            self._process.wait(timeout=10)
