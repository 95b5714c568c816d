"""The companion for the terminal, run on a host."""

import dataclasses
import subprocess

SECONDS = 30.0


@dataclasses.dataclass
class Ran:
    """How it ended, and what it wrote."""

    status: int
    output: str
    errors: str


def run(host, *arguments, entered="", output=subprocess.PIPE, privileged=True):
    """Runs it to its end; `entered` is its standard input, `output` where its output goes.

    Privileged, it may listen beside a program that holds the port.
    """
    way = [] if privileged else ["setpriv", "--bounding-set=-net_raw"]
    ran = subprocess.run(
        [*way, str(host.app / "vexlotap"), *arguments],
        env=host.environment(""),
        cwd=host.home,
        input=entered,
        stdout=output,
        stderr=subprocess.PIPE,
        text=True,
        timeout=SECONDS,
        preexec_fn=host.enter_in_child,
        check=False,
    )
    return Ran(ran.returncode, ran.stdout, ran.stderr)
