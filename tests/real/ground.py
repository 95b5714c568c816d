"""The ground under the real-network tests: a private place where broadcasts reach nobody outside.

Everything runs in a network and mount namespace of its own, made by `unshare`: as root directly, as
an ordinary user with a user namespace around it. Inside, each host gets a further network namespace,
which this process holds open by a file descriptor; it goes when the descriptor is closed.
"""

import atexit
import contextlib
import ctypes
import os
import shutil
import signal
import socket
import subprocess
import sys

CLONE_NEWNET = 0x40000000
CLONE_NEWNS = 0x00020000
MS_BIND = 0x1000
MS_REC = 0x4000
MS_PRIVATE = 1 << 18
PR_SET_PDEATHSIG = 1
INSIDE = "VEXLO_REAL_INSIDE"

_libc = ctypes.CDLL(None, use_errno=True)


def _checked(result):
    if result != 0:
        code = ctypes.get_errno()
        raise OSError(code, os.strerror(code))


def _setns(descriptor):
    _checked(_libc.setns(descriptor, CLONE_NEWNET))


def die_with_parent():
    """For the moment before an exec: no process outlives the tests that started it."""
    _libc.prctl(PR_SET_PDEATHSIG, signal.SIGKILL, 0, 0, 0)


def put_in_place(source, target):
    """For the moment between fork and exec: the process sees one file in the place of another."""
    _checked(_libc.unshare(CLONE_NEWNS))
    _checked(_libc.mount(b"none", b"/", None, MS_REC | MS_PRIVATE, None))
    _checked(_libc.mount(os.fsencode(source), os.fsencode(target), None, MS_BIND, None))


def way_in():
    """The command in front of ours that makes the ground, or the reason why there is none."""
    for tool in ("unshare", "ip"):
        if not shutil.which(tool):
            return None, f"the command `{tool}` is missing"
    flags = ["-nm"] if os.geteuid() == 0 else ["-Urnm"]
    probe = "ip link add name probe type bridge && ip link add name one type veth peer name two"
    tried = subprocess.run(
        ["unshare", *flags, "sh", "-c", probe], capture_output=True, text=True, check=False
    )
    if tried.returncode != 0:
        return None, f"`unshare {flags[0]}` is refused here: {tried.stderr.strip()}"
    return ["unshare", *flags], ""


def enter_or_explain():
    """Starts this script over inside the ground. Returns only inside, with "", or with a reason."""
    if os.environ.get(INSIDE):
        _must_be_private()
        _make_room_for_screens()
        _silence()
        return ""
    way, reason = way_in()
    if not way:
        return reason
    environment = dict(os.environ, **{INSIDE: "1"})
    os.execvpe(way[0], [*way, sys.executable, *sys.argv], environment)


def _must_be_private():
    with open("/proc/self/net/dev", encoding="ascii") as table:
        devices = [line.split(":")[0].strip() for line in table if ":" in line]
    if devices != ["lo"]:
        sys.exit(f"{INSIDE} is set, but this network is not a private one: {devices}")


def _make_room_for_screens():
    """X servers of the tests meet their clients here, and no X server of the machine."""
    sockets = "/tmp/.X11-unix"
    # The folder stays: to remove it would take the screens from under another run beside this one.
    os.makedirs(sockets, exist_ok=True)
    subprocess.run(["mount", "-t", "tmpfs", "-o", "mode=1777", "tmpfs", sockets], check=True)
    atexit.register(subprocess.run, ["umount", "-l", sockets], check=True)


def _silence():
    """Nobody is to hear the tests: here this machine has no sound devices."""
    devices = "/dev/snd"
    if os.path.isdir(devices):
        subprocess.run(["mount", "-t", "tmpfs", "tmpfs", devices], check=True)
        atexit.register(subprocess.run, ["umount", "-l", devices], check=True)


class Namespace:
    """A network namespace of its own. Nothing is up in it at first."""

    def __init__(self):
        with self._home() as home:
            _checked(_libc.unshare(CLONE_NEWNET))
            self._descriptor = os.open("/proc/thread-self/ns/net", os.O_RDONLY | os.O_CLOEXEC)
            _setns(home)
        self.run("ip", "link", "set", "lo", "up")

    @staticmethod
    @contextlib.contextmanager
    def _home():
        descriptor = os.open("/proc/thread-self/ns/net", os.O_RDONLY | os.O_CLOEXEC)
        try:
            yield descriptor
        finally:
            os.close(descriptor)

    @property
    def path(self):
        """How `ip` names this namespace, from any other one."""
        return f"/proc/{os.getpid()}/fd/{self._descriptor}"

    def enter_in_child(self):
        """For the moment between fork and exec."""
        _setns(self._descriptor)

    def run(self, *command):
        """Runs a command in this namespace and gives what it wrote."""
        ran = subprocess.run(
            command, preexec_fn=self.enter_in_child, check=False, capture_output=True, text=True
        )
        if ran.returncode != 0:
            raise OSError(f"{' '.join(command)}: {ran.stderr.strip()}")
        return ran.stdout

    def socket(self, family=socket.AF_INET, kind=socket.SOCK_DGRAM):
        """A socket that stays in this namespace, usable from here."""
        with self._home() as home:
            _setns(self._descriptor)
            try:
                return socket.socket(family, kind)
            finally:
                _setns(home)

    def close(self):
        if self._descriptor >= 0:
            os.close(self._descriptor)
            self._descriptor = -1
