"""The companion while it listens, beside whatever happens in the office."""

import json
import signal
import subprocess

from waiting import wait_until


class Listener:
    """A `vexlotap listen` or `record` that hears from the moment when this returns.

    Of another command, `sign` is what it writes on standard error when it does.
    """

    def __init__(self, host, *arguments, sign=b"listening on port"):
        number = len(list(host.home.glob("listener*.out")))
        self._output = host.home / f"listener{number}.out"
        self._errors = host.home / f"listener{number}.err"
        with open(self._output, "wb") as output, open(self._errors, "wb") as errors:
            self._process = subprocess.Popen(
                [str(host.app / "vexlotap"), *arguments],
                env=host.environment(""),
                cwd=host.home,
                stdin=subprocess.DEVNULL,
                stdout=output,
                stderr=errors,
                preexec_fn=host.enter_in_child,
            )
        host.office.on_close(self.kill)
        wait_until("a listener", lambda: sign in self.errors or not self.runs)

    @property
    def runs(self):
        return self._process.poll() is None

    @property
    def output(self):
        return self._output.read_bytes()

    @property
    def errors(self):
        return self._errors.read_bytes()

    def told(self):
        """The JSON lines that are whole so far."""
        lines = self.output.split(b"\n")[:-1]
        return [json.loads(line) for line in lines]

    def wait_told(self, **wanted):
        """Waits for a line with these facts, and gives it."""

        def found():
            lines = (line for line in self.told() if wanted.items() <= line.items())
            return next(lines, None)

        return wait_until(f"a line with {wanted}", found)

    def stop(self, kind=signal.SIGINT):
        """Ends it as Ctrl+C does, and gives its exit status."""
        self._process.send_signal(kind)
        return self._process.wait(timeout=10)

    def kill(self):
        if self.runs:
            self._process.kill()
        self._process.wait()
