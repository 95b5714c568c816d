#!/usr/bin/env python3
"""Lets eight programs be worked with for an hour, on a real network of their own.

    soak.py --app FOLDER --driver LIB [--minutes N] [--seed N] [--patience X]

Every twelfth of the time everything comes to rest: all lists are right, every message is in the log
of whoever was to have it, nothing has been written to standard error; and a row is printed of what
the eight take of the machine. Ends with status 0 if that stays within its bounds.
"""

import argparse
import pathlib
import sys
import time

import case
import ground
import waiting
from staff import Staff
from vitals import MIB, vitals

PARTS = 12
WARM_UP = 3  # Parts until logs and histories have reached the length that they keep.
# What the heap may differ by from one rest to another: a log of 300 rows is rolled into a file and
# grows anew, and a popup is laid out when it is first used. A leak of a few hundred bytes a datagram
# would go beyond it.
HELD_SWING = 2 * MIB
PROCESSOR_SHARE = 0.10  # Of one core, for each, at the beat of the staff.

HEAD = """| minutes | acts | datagrams | most own memory | most PSS | descriptors | threads | processor |
| ---: | ---: | ---: | ---: | ---: | ---: | ---: | ---: |"""


class Soak(Staff):
    seconds = 3600.0
    seed = 1

    def runTest(self):
        self.gather(self.seed)
        self.work_through()
        self.rest()
        self.begin = self.told = time.monotonic()
        print(f"seed {self.seed}\n\n{HEAD}", flush=True)
        looks = [look(self.people)]
        for part in range(1, PARTS + 1):
            self.work_until(self.begin + self.seconds * part / PARTS)
            self.rest()
            looks.append(look(self.people))
            self.tell(looks)
        self.judge(looks)
        for person in self.everybody():
            self.leave(person)
        self.all_files_load()

    def tell(self, looks):
        now, before = looks[-1].values(), looks[-2].values()
        spent = sum(each.processor for each in now) - sum(each.processor for each in before)
        share = spent / len(now) / (time.monotonic() - self.told)
        self.told = time.monotonic()
        print(
            f"| {(time.monotonic() - self.begin) / 60:.1f} | {self.acts} | {self.datagrams()} "
            f"| {max(each.held for each in now) / MIB:.2f} MiB "
            f"| {max(each.pss for each in now) / MIB:.1f} MiB "
            f"| {span(each.descriptors for each in now)} | {span(each.threads for each in now)} "
            f"| {share:.1%} |",
            flush=True,
        )

    def datagrams(self):
        """How many the first of the eight has been given."""
        with open(f"/proc/{self.people[0].pid}/net/snmp", encoding="ascii") as lines:
            names, values = [line.split() for line in lines if line.startswith("Udp:")]
        return int(values[names.index("InDatagrams")])

    def judge(self, looks):
        half = (WARM_UP + PARTS + 1) // 2
        for name in looks[0]:
            of_one = [look[name] for look in looks]
            first, second = of_one[WARM_UP:half], of_one[half:]
            rise = max(each.held for each in second) - max(each.held for each in first)
            self.assertLess(rise, HELD_SWING, f"{name} holds more and more")
            self.assertEqual({each.descriptors for each in of_one}, {of_one[0].descriptors}, name)
            self.assertEqual({each.threads for each in of_one}, {of_one[0].threads}, name)
            spent = of_one[-1].processor - of_one[0].processor
            self.assertLess(spent / (time.monotonic() - self.begin), PROCESSOR_SHARE, name)

    def all_files_load(self):
        """Each disk serves a new start: no box, the same name, everybody known."""
        for person in self.everybody():
            before = kept(person.host)
            again = person.host.start().wait_up()
            self.wait_quiet(again)
            self.assertEqual(kept(again.host), before, again.name)
            self.leave(again)


def kept(host):
    """The own name and the directory, as they stand on disk."""
    return host.settings("MY NAME"), sorted(host.file("users.txt").split())


def look(people):
    return {person.name: vitals(person.pid) for person in people}


def span(values):
    values = sorted(values)
    return f"{values[0]} to {values[-1]}" if values[0] != values[-1] else f"{values[0]}"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--app", required=True, type=pathlib.Path)
    parser.add_argument("--driver", required=True, type=pathlib.Path)
    parser.add_argument("--minutes", type=float, default=60.0)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--patience", type=float, default=1.0, help="waits so many times as long")
    given = parser.parse_args()
    waiting.patience["factor"] = given.patience
    case.given.update(app=given.app.resolve(), driver=given.driver.resolve())
    reason = ground.enter_or_explain()
    if reason:
        sys.exit(f"no private network can be made here: {reason}")
    Soak.seconds, Soak.seed = given.minutes * 60, given.seed
    soak = Soak()
    result = soak.run()
    for _, problem in result.errors + result.failures:
        print(problem)
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
