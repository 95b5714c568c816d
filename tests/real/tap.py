"""The companion for the terminal, run on a host."""

import dataclasses
import subprocess

SECONDS = 30.0
# Ways to start it as somebody else: who may not listen beside a program that holds the port, and who
# is not root. The tests' own folders are open to root alone, so that one may look into all.
WITHOUT_RAW_SOCKETS = ("setpriv", "--bounding-set=-net_raw")
AS_ORDINARY_USER = (
    "setpriv", "--reuid=65534", "--regid=65534", "--clear-groups",
    "--inh-caps=+dac_override", "--ambient-caps=+dac_override",
)  # fmt: skip


@dataclasses.dataclass
class Ran:
    """How it ended, and what it wrote."""

    status: int
    output: str
    errors: str


def run(host, *arguments, entered="", output=subprocess.PIPE, way=()):
    """Runs it to its end; `entered` is its standard input, `output` where its output goes.

    `way` is a command that starts it, one of those above.
    """
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
