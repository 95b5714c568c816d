"""One real process of the program, started on a host."""

import json
import os
import signal
import subprocess
import time

from ground import die_with_parent
from waiting import NotYet, wait_until
from windows import Driver, Windows

START_SECONDS = 30.0


class Program:
    """The process, and the line to its windows once there is one."""

    def __init__(self, host, number, command, screen, driven):
        self.host = host
        self.name = f"{host.name}#{number}"
        self._socket = host.home / f"driver{number}"
        self._errors = host.home / f"stderr{number}"
        self._driver = Driver(str(self._socket))
        self._connected = False
        self._statuses_seen = 0
        environment = host.environment(screen)
        if driven:
            environment["LD_PRELOAD"] = str(host.office.driver)
            environment["VEXLO_DRIVER_SOCKET"] = str(self._socket)
            # The sanitizer wants to be the first library; it works behind ours as well.
            options = environment.get("ASAN_OPTIONS", "")
            environment["ASAN_OPTIONS"] = f"{options}:verify_asan_link_order=0".lstrip(":")
        with open(self._errors, "wb") as errors:
            self._process = subprocess.Popen(
                command,
                cwd=host.home,
                env=environment,
                stdin=subprocess.DEVNULL,
                stdout=errors,
                stderr=errors,
                preexec_fn=self._before_exec,
            )

    def _before_exec(self):
        die_with_parent()
        self.host.enter_in_child()

    @property
    def windows(self):
        """Its windows; waits for the driver inside to answer."""
        if not self._connected:
            wait_until(f"{self.name} to come up", self._connect, START_SECONDS)
        return Windows(self._driver)

    def _connect(self):
        if not self.running:
            raise AssertionError(
                f"{self.name} ended with status {self._process.returncode}: {self.errors}"
            )
        self._driver.connect()
        self._connected = True
        return True

    @property
    def main(self):
        return self.windows.main

    @property
    def running(self):
        return self._process.poll() is None

    @property
    def pid(self):
        return self._process.pid

    @property
    def errors(self):
        """What it wrote to standard error and standard output."""
        return self._errors.read_text(encoding="utf-8", errors="replace")

    def first_run(self, name):
        """Answers the question of a first start, and waits until the program is up."""
        box = self.windows.wait_box(START_SECONDS)
        box.answer("OK", name)
        return self.wait_up()

    def wait_up(self):
        """Waits for the main window of a program that asks nothing at its start."""
        wait_until(f"the main window of {self.name}", self._is_up, START_SECONDS)
        return self

    def _is_up(self):
        box = self.windows.open_box()
        if box:
            raise NotYet(f"the box {box.title!r}: {box.text!r}")
        return self.main.visible

    def wait_end(self, seconds=15.0):
        """Waits for the process to end by itself, and gives its status."""
        wait_until(f"the end of {self.name}", lambda: not self.running, seconds)
        return self._process.returncode

    def interrupt(self):
        """Ctrl+C at its terminal."""
        self._process.send_signal(signal.SIGINT)

    def kill(self):
        """A crash: nothing is written, nothing is said."""
        self._process.send_signal(signal.SIGKILL)
        self._process.wait()

    def record(self):
        """All windows, boxes and status texts that were on show so far, also after the program's end."""
        path = f"{self._socket}.journal"
        if not os.path.exists(path):
            return []
        with open(path, encoding="utf-8") as lines:
            return [json.loads(line) for line in lines if line.endswith("\n")]

    def boxes_shown(self):
        """The texts of all boxes that this run has shown."""
        return [
            event["box"]["text"]
            for event in self.record()
            if event["event"] == "shown" and "box" in event
        ]

    def windows_shown(self):
        return [event["window"] for event in self.record() if event["event"] == "shown"]

    def has_told(self, text):
        """Whether the status line has shown the text since the last time that this was true."""
        texts = [event["text"] for event in self.record() if event["event"] == "status"]
        if text not in texts[self._statuses_seen:]:
            return False
        self._statuses_seen = texts.index(text, self._statuses_seen) + 1
        return True

    def described(self):
        lines = [f"{self.name}: {'running' if self.running else self._process.returncode}"]
        if self.running and self._connected:
            try:
                box = self.windows.open_box()
                lines.append(f"  windows {self.windows.visible()}, box {box and box.seen}")
                lines.append(f"  status {self.main['statustext'].text!r}")
                lines.append(f"  allusers {self.main['allusers'].rows}")
            except (AssertionError, NotYet) as failure:
                lines.append(f"  {failure}")
        lines.append(f"  boxes shown {self.boxes_shown()}")
        said = [line for line in self.errors.splitlines() if "plugin does not support" not in line]
        if said:
            lines.append("  said: " + "\n".join(said)[:4000])
        return "\n".join(lines)

    def close(self):
        self._driver.close()
        if self.running:
            self._process.terminate()
            end = time.monotonic() + 2.0
            while self.running and time.monotonic() < end:
                time.sleep(0.02)
        if self.running:
            self.kill()
