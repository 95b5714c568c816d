"""A session bus of its own."""

import os
import shutil
import subprocess

from ground import die_with_parent

TOOL = "dbus-daemon"


def missing():
    return not shutil.which(TOOL)


class Bus:
    """The process, and where it is to be found."""

    def __init__(self, display=""):
        self._process = subprocess.Popen(
            [TOOL, "--session", "--nofork", "--nopidfile", "--print-address=1"],
            env=dict(os.environ, DISPLAY=display),
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            text=True,
            preexec_fn=die_with_parent,
        )
        self.address = self._process.stdout.readline().strip()
        if not self.address:
            raise AssertionError("the session bus did not come up")

    def tell(self, values):
        """What programs are told that the bus itself starts."""
        words = [f"{name}={value}" for name, value in values.items()]
        subprocess.run(
            ["dbus-update-activation-environment", *words],
            env=self.environment(),
            stderr=subprocess.DEVNULL,
            check=True,
        )

    def environment(self):
        return dict(os.environ, DBUS_SESSION_BUS_ADDRESS=self.address)

    def call(self, place, method, *arguments):
        """The answer of an object, "NAME/PATH", as it is written down; empty when there is none."""
        name, _, path = place.partition("/")
        ran = subprocess.run(
            ["gdbus", "call", "--session", "--dest", name, "--object-path", f"/{path}"]
            + ["--method", method, *arguments],
            env=self.environment(),
            capture_output=True,
            text=True,
            timeout=30,
            check=False,
        )
        return ran.stdout.strip() if ran.returncode == 0 else ""

    def property(self, place, interface, name):
        return self.call(place, "org.freedesktop.DBus.Properties.Get", interface, name)

    def kill(self):
        self._process.kill()
        self._process.wait(timeout=10)

    def close(self):
        if self._process.poll() is None:
            self.kill()
        self._process.stdout.close()
