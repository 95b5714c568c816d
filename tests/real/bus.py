"""A session bus of its own."""

import shutil
import subprocess

from ground import die_with_parent

TOOL = "dbus-daemon"


def missing():
    return not shutil.which(TOOL)


class Bus:
    """The process, and where it is to be found."""

    def __init__(self):
        self._process = subprocess.Popen(
            [TOOL, "--session", "--nofork", "--nopidfile", "--print-address=1"],
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            text=True,
            preexec_fn=die_with_parent,
        )
        self.address = self._process.stdout.readline().strip()
        if not self.address:
            raise AssertionError("the session bus did not come up")

    def kill(self):
        self._process.kill()
        self._process.wait(timeout=10)

    def close(self):
        if self._process.poll() is None:
            self.kill()
        self._process.stdout.close()
