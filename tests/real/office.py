"""A small office of real hosts: one bridge, a network namespace a host, the real program on each."""

import hashlib
import json
import os
import pathlib
import shutil
import tempfile

import settings_file
from foreign import ForeignPeer
from ground import Namespace, put_in_place
from program import Program
from waiting import wait_until

# What a build leaves beside the program folder's own files.
NOT_SHIPPED = shutil.ignore_patterns(
    "CMakeFiles", "*.cmake", "*_autogen", "*.a", "*.o", "settings.txt", "users.txt", "logs"
)


class Host:
    """A computer of the office, its user, and that user's copy of the program folder."""

    def __init__(self, office, number, computer, user, gateway):
        self.office = office
        self.name = f"{computer}-{number}"
        self.address = f"10.7.0.{number}"
        self.computer = computer
        self.user = user
        self.namespace = Namespace()
        self._port = f"port{number}"
        self._gateway = gateway
        self._programs = []
        self.more_environment = {}  # What this desktop's session tells its programs besides.
        self._plug_in()
        self._furnish()

    @property
    def identity(self):
        return f"[{self.computer}\\{self.user}]".upper().encode("cp1252")

    # The cable.

    def _plug_in(self):
        segment = self.office.segment
        segment.run(
            "ip", "link", "add", "name", self._port, "type", "veth",
            "peer", "name", "eth0", "netns", self.namespace.path,
        )  # fmt: skip
        segment.run("ip", "link", "set", self._port, "master", "office", "up")
        self.namespace.run(
            "ip", "address", "add", f"{self.address}/24", "broadcast", "+", "dev", "eth0"
        )
        self.link_up()

    def link_up(self):
        """The interface is switched on. Returns once the bridge passes on what it hears here."""
        self.namespace.run("ip", "link", "set", "eth0", "up")
        if self._gateway:
            self.namespace.run("ip", "route", "replace", "default", "via", "10.7.0.254")
        self._wait_forwarding()

    def _wait_forwarding(self):
        show = ("ip", "-json", "-details", "link", "show", self._port)

        def forwards():
            port = json.loads(self.office.segment.run(*show))[0]
            return port["linkinfo"]["info_slave_data"]["state"] == "forwarding"

        wait_until(f"the cable of {self.name}", forwards)
        self._wait_running(True)

    def _wait_running(self, wanted):
        """The kernel tells that a cable is in, or out, a while after it is."""

        def as_wanted():
            own = json.loads(self.namespace.run("ip", "-json", "link", "show", "eth0"))[0]
            return (own["operstate"] == "UP") == wanted

        wait_until(f"the network card of {self.name}", as_wanted)

    def link_down(self):
        """The interface is switched off."""
        self.namespace.run("ip", "link", "set", "eth0", "down")

    def cable_out(self):
        """The interface stays on, but its other end is gone."""
        self.office.segment.run("ip", "link", "set", self._port, "down")
        self._wait_running(False)

    def cable_in(self):
        self.office.segment.run("ip", "link", "set", self._port, "up")
        self._wait_forwarding()

    def occupy(self, port):
        """Takes a port on this host, as another program would."""
        taken = self.namespace.socket()
        taken.bind(("", port))
        self.office.on_close(taken.close)
        return taken

    def know(self, name, address):
        """The programs that are started here from now on find that name under that address."""
        with open(self._names, "a", encoding="ascii") as names:
            names.write(f"{address} {name}\n")

    def enter_in_child(self):
        """For the moment between fork and exec."""
        self.namespace.enter_in_child()
        if self._names.exists():
            put_in_place(self._names, "/etc/hosts")

    # The desk.

    def offer(self, command):
        """A command of the desktop's that only notes what it is given; gives the file of notes."""
        folder = self.home / "bin"
        folder.mkdir(exist_ok=True)
        notes = folder / f"{command}.notes"
        script = folder / command
        script.write_text(f'#!/bin/sh\nprintf "%s\\n" "$@" >>"{notes}"\n', encoding="utf-8")
        script.chmod(0o755)
        return notes

    def _furnish(self):
        self.home = self.office.folder / self.name
        self._names = self.home / "hosts"
        self.app = self.home / "app"
        shutil.copytree(self.office.app, self.app, symlinks=True, ignore=NOT_SHIPPED)
        for folder in ("config", "data", "cache", "run", "tmp"):
            (self.home / folder).mkdir(mode=0o700)

    def environment(self, screen):
        """Nothing of the person who runs the tests gets in."""
        values = {
            "PATH": f"{self.home / 'bin'}:{os.environ.get('PATH', '/usr/bin:/bin')}",
            "LANG": "C.UTF-8",
            "HOME": str(self.home),
            "USERPROFILE": str(self.home),
            "COMPUTERNAME": self.computer,
            "USERNAME": self.user,
            "XDG_CONFIG_HOME": str(self.home / "config"),
            "XDG_DATA_HOME": str(self.home / "data"),
            "XDG_CACHE_HOME": str(self.home / "cache"),
            "XDG_RUNTIME_DIR": str(self.home / "run"),
            "TMPDIR": str(self.home / "tmp"),
            "DBUS_SESSION_BUS_ADDRESS": "disabled:",
        }
        values.update({key: os.environ[key] for key in os.environ if key.endswith("SAN_OPTIONS")})
        if screen == "offscreen":
            values["QT_QPA_PLATFORM"] = "offscreen"
        elif screen:
            values.update(DISPLAY=screen, QT_QPA_PLATFORM="xcb")
        return values | self.more_environment

    def file(self, name):
        return (self.app / name).read_bytes()

    def has_file(self, name):
        return (self.app / name).exists()

    def logs(self):
        folder = self.app / "logs"
        return sorted(path.name for path in folder.iterdir()) if folder.is_dir() else []

    def stored_path_file(self):
        """Where the per-user settings store has put the program's path."""
        found = [path for path in (self.home / "config").rglob("*") if path.is_file()]
        holding = [path for path in found if b"NORVAN" in path.read_bytes()]
        if len(holding) != 1:
            raise AssertionError(f"the stored path stands in {holding} of {found}")
        return holding[0]

    def snapshot(self):
        """Every file of the program folder with its bytes and its time of change."""
        return {
            str(path.relative_to(self.app)): (path.stat().st_mtime_ns, path.read_bytes())
            for path in sorted(self.app.rglob("*"))
            if path.is_file()
        }

    def write_settings(self, name, **changes):
        """A settings file as the program saves it, so that a start asks for no name."""
        settings_file.write(self.app, name, changes)

    def settings(self, key):
        """What the settings file says for a key."""
        return settings_file.key_value(self.file("settings.txt"), key)

    # The program.

    def start(self, *arguments, screen="offscreen", driven=True):
        """Starts the program; it may still be loading, or showing a box, when this returns."""
        return self.start_command([str(self.app / "vexloim"), *arguments], screen, driven)

    def start_command(self, command, screen="offscreen", driven=True):
        """Starts the program by a command line of somebody else's."""
        number = len(self._programs) + 1
        program = Program(self, number, command, screen, driven)
        self._programs.append(program)
        return program

    def programs(self):
        return list(self._programs)

    def close(self):
        for program in self._programs:
            program.close()
        self._remove_lock()
        self.namespace.close()

    def _remove_lock(self):
        """The program's lock lies outside its folder, and its empty file outlives the folder."""
        place = hashlib.sha256(os.fsencode(self.app.resolve())).hexdigest()[:24]
        lock = pathlib.Path("/dev/shm", f"vexloim-{os.geteuid()}-{place}.lock")
        lock.unlink(missing_ok=True)


class Office:
    """Hosts on one broadcast segment, and nothing else there."""

    def __init__(self, app, driver):
        self.app = pathlib.Path(app)
        self.driver = pathlib.Path(driver)
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="vexlo-"))
        self.segment = Namespace()
        self.segment.run("ip", "link", "add", "name", "office", "type", "bridge")
        self.segment.run("ip", "link", "set", "office", "up")
        self._hosts = []
        self._closing = []

    def on_close(self, action):
        self._closing.append(action)

    def host(self, computer, user, gateway=False):
        host = Host(self, len(self._hosts) + 1, computer, user, gateway)
        self._hosts.append(host)
        return host

    def hosts(self):
        return list(self._hosts)

    def foreign_peer(self, listening=4111, sending=4112):
        """A peer on a host of its own that speaks raw datagrams."""
        host = self.host("FOREIGN", "nobody")
        peer = ForeignPeer(host.namespace, host.address, listening, sending)
        self.on_close(peer.close)
        return peer

    def described(self):
        """What a person walking through the office would see; for the report of a failure."""
        programs = [program for host in self._hosts for program in host.programs()]
        return "\n".join(program.described() for program in programs)

    def close(self):
        for action in reversed(self._closing):
            action()
        for host in self._hosts:
            host.close()
        self.segment.close()
        shutil.rmtree(self.folder, ignore_errors=True)
