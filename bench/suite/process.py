"""A process on a host of the private network: the program or one of its floors, and what it costs."""

import json
import os
import subprocess
import time

from ground import die_with_parent
from waiting import wait_until
from windows import Driver, Windows

POLL = 0.001


class Run:
    """One process, with the driver inside or without."""

    _number = 0

    def __init__(self, host, command, screen="offscreen", driven=False):
        Run._number += 1
        self.host = host
        self._socket = host.home / f"bench{Run._number}"
        environment = host.environment(screen)
        if driven:
            environment["LD_PRELOAD"] = str(host.office.driver)
            environment["VEXLO_DRIVER_SOCKET"] = str(self._socket)
        self._driver = Driver(str(self._socket))
        self._connected = False
        self._errors = open(host.home / f"stderr-bench{Run._number}", "wb")
        self.begin = time.monotonic()
        self._process = subprocess.Popen(
            [str(part) for part in command],
            cwd=host.home,
            env=environment,
            stdin=subprocess.DEVNULL,
            stdout=self._errors,
            stderr=self._errors,
            preexec_fn=self._before_exec,
        )
        self.pid = self._process.pid

    def _before_exec(self):
        die_with_parent()
        self.host.namespace.enter_in_child()

    # Its windows.

    @property
    def windows(self):
        if not self._connected:
            wait_until("the driver to answer", self._connect, 60.0)
        return Windows(self._driver)

    def _connect(self):
        self.require_alive()
        self._driver.connect()
        self._connected = True
        return True

    def require_alive(self):
        if self._process.poll() is not None:
            raise AssertionError(f"{self._process.args} ended with {self._process.returncode}")

    def wait_shown(self, window, seconds=60.0):
        """Waits until a window has been shown; gives the time since the start, and the processor
        time that it took."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            if window in self._windows_shown():
                return self.age, self.cpu
            self.require_alive()
            time.sleep(POLL)
        raise AssertionError(f"{window} was not shown in {seconds} s")

    def _windows_shown(self):
        journal = f"{self._socket}.journal"
        if not os.path.exists(journal):
            return []
        with open(journal, encoding="utf-8") as lines:
            events = [json.loads(line) for line in lines if line.endswith("\n")]
        return [event["window"] for event in events if event["event"] == "shown"]

    def wait_usable(self, seconds=60.0):
        """Waits until the main window is on show and the process answers again."""
        wait_until(
            "the main window", lambda: self.windows.main.visible and self._is_quiet(), seconds
        )
        return self.age, self.cpu

    def _is_quiet(self):
        return self.windows.driver.ask("state")["unfinished"] == 0

    # What it costs.

    @property
    def age(self):
        return time.monotonic() - self.begin

    @property
    def cpu(self):
        """Seconds of processor time, threads that have ended included."""
        return time.clock_gettime((~self.pid << 3) | 2)

    def memory(self):
        """The proportional part of the memory that it holds, in bytes."""
        return self._kilobytes("smaps_rollup", "Pss:")

    def peak(self):
        return self._kilobytes("status", "VmHWM:")

    def _kilobytes(self, table, key):
        with open(f"/proc/{self.pid}/{table}", encoding="ascii") as lines:
            for line in lines:
                if line.startswith(key):
                    return int(line.split()[1]) * 1024
        raise AssertionError(f"{table} tells no {key}")

    def wake_ups(self):
        """How often any of its threads has gone to sleep by itself so far."""
        total = 0
        for task in os.listdir(f"/proc/{self.pid}/task"):
            with open(f"/proc/{self.pid}/task/{task}/status", encoding="ascii") as lines:
                total += sum(
                    int(line.split()[1]) for line in lines if line.startswith("voluntary_ctxt")
                )
        return total

    def datagrams(self):
        """How many datagrams have been taken on its host, and how many found no room."""
        with open(f"/proc/{self.pid}/net/snmp", encoding="ascii") as lines:
            names, values = [line.split() for line in lines if line.startswith("Udp:")]
        table = dict(zip(names[1:], map(int, values[1:])))
        return table["InDatagrams"], table["RcvbufErrors"]

    def settle(self, seconds=60.0):
        """Waits until it has used no more than a hundredth of a processor for half a second."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            before = self.cpu
            time.sleep(0.5)
            if self.cpu - before < 0.005:
                return
        raise AssertionError(f"{self._process.args} does not come to rest")

    def close(self):
        self._driver.close()
        self._process.kill()
        self._process.wait()
        self._errors.close()


class Bench:
    """An office in which the program and its floors are measured side by side."""

    def __init__(self, office, build):
        self.office = office
        self.build = build
        self._runs = []

    def host(self, **settings):
        number = len(self.office.hosts()) + 1
        host = self.office.host(f"ROOM{number:02}", f"user{number:02}")
        host.write_settings(f"USER {number:02}", PLAYSOUND="0", **settings)
        return host

    def run(self, host, *command, **how):
        run = Run(host, command, **how)
        self._runs.append(run)
        return run

    def program(self, host=None, **how):
        host = host or self.host()
        return self.run(host, host.app / "vexloim", **how)

    def window(self, **how):
        return self.run(self.host(), self.build / "floor_window", **how)

    def messenger(self, **how):
        host = self.host()
        return self.run(
            host, self.build / "floor_messenger", "4111", host.app / "vexlo.wav", **how
        )

    def flood(self, to, count, rate, size=200):
        """Floods a host from another one; gives how many left, and the seconds that it took."""
        ran = subprocess.run(
            [str(self.build / "bench_flood"), to.address, "4111", str(count), str(rate), str(size)],
            preexec_fn=self._flooder().namespace.enter_in_child,
            capture_output=True,
            text=True,
            timeout=120,
            check=True,
        )
        sent, took = ran.stdout.split()
        return int(sent), float(took)

    def say(self, to, datagram):
        """One datagram to a host, from a socket that belongs to no program."""
        if not hasattr(self, "_voice"):
            self._voice = self._flooder().namespace.socket()
        self._voice.sendto(datagram, (to.address, 4111))

    def _flooder(self):
        if not hasattr(self, "_flooding_host"):
            self._flooding_host = self.host()
        return self._flooding_host

    def stop(self, *runs):
        for run in runs:
            run.close()
            self._runs.remove(run)

    def close(self):
        for run in self._runs:
            run.close()
