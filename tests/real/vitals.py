"""What a process takes of its machine."""

import os
import time
from dataclasses import dataclass

MIB = 1 << 20


@dataclass(frozen=True)
class Vitals:
    """One look at one process."""

    held: int  # Bytes of memory that are its own.
    pss: int  # Bytes, with its part of what it shares: that part falls with each who shares it.
    descriptors: int
    threads: int
    processor: float  # Seconds so far, threads that have ended included.


def processor_clock(pid):
    """The kernel's number for the clock of a process, as clock_getcpuclockid(3) makes it."""
    scheduler = 2
    return (~pid << 3) | scheduler


def vitals(pid):
    with open(f"/proc/{pid}/smaps_rollup", encoding="ascii") as table:
        sizes = {line.split()[0]: line.split()[1] for line in table if line.endswith("kB\n")}
    return Vitals(
        held=int(sizes["Pss_Anon:"]) * 1024,
        pss=int(sizes["Pss:"]) * 1024,
        descriptors=len(os.listdir(f"/proc/{pid}/fd")),
        threads=len(os.listdir(f"/proc/{pid}/task")),
        processor=time.clock_gettime(processor_clock(pid)),
    )


def is_sanitized(program):
    """Whether what it holds is the sanitizer's, and tells nothing of the program."""
    return b"__asan_init" in program.read_bytes()
