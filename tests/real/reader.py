"""What a screen reader is told, over the accessibility bus of a session.

Run as a program, with the system's own Python, it prints that as JSON:

    reader.py ADDRESS-OF-THE-SESSION-BUS
"""

import json
import os
import subprocess
import sys

from waiting import NotYet

PYTHON = "/usr/bin/python3"  # The one that the distribution's modules are for.
DEEPEST = 40
ROOT = "/org/a11y/atspi/accessible/root"
ACCESSIBLE = "org.a11y.atspi.Accessible"
STATES = {"enabled": 8, "focusable": 11, "focused": 12, "showing": 25}


def missing():
    """What the walk needs and is not here."""
    tools = [] if os.path.exists(PYTHON) else [PYTHON]
    if not tools and subprocess.run([PYTHON, "-c", "import dbus"], capture_output=True).returncode:
        tools.append("python3-dbus")
    if not os.path.exists("/usr/share/dbus-1/services/org.a11y.Bus.service"):
        tools.append("at-spi2-core")
    return tools


def walk(bus):
    """Every accessible object of every program on a bus, as dictionaries from the top down."""
    ran = subprocess.run(
        [PYTHON, __file__, bus.address], capture_output=True, text=True, timeout=120, check=False
    )
    if ran.returncode != 0:
        raise NotYet(f"the walk failed: {ran.stderr}")
    return json.loads(ran.stdout)


def parts(told):
    """An object and everything in it."""
    yield told
    for child in told["children"]:
        yield from parts(child)


def described(bus, name, path, depth):
    import dbus

    def ask(interface, method, *arguments):
        return bus.call_blocking(
            name, path, interface, method, "s" * len(arguments), arguments, timeout=20.0
        )

    low, high = ask(ACCESSIBLE, "GetState")
    states = int(low) | int(high) << 32
    children = ask(ACCESSIBLE, "GetChildren") if depth < DEEPEST else []
    return {
        "name": str(ask(dbus.PROPERTIES_IFACE, "Get", ACCESSIBLE, "Name")),
        "role": str(ask(ACCESSIBLE, "GetRoleName")),
        "states": sorted(state for state, bit in STATES.items() if states >> bit & 1),
        "children": [described(bus, *child, depth + 1) for child in children],
    }


def main():
    import dbus

    session = dbus.bus.BusConnection(sys.argv[1])
    desk = ("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus")
    address = session.call_blocking(*desk, "GetAddress", "", ())
    bus = dbus.bus.BusConnection(str(address))
    json.dump(described(bus, "org.a11y.atspi.Registry", ROOT, 0), sys.stdout)


if __name__ == "__main__":
    main()
