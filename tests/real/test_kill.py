"""The log outlives a process that is killed while it runs."""

import random
import re
import time

from case import RealTest

ALICE, EVE = b"[ROOM12\\ALICE]", b"[ROOM99\\EVE]"
MIRROR = "logs/logtemp.txt"
STAMP = rb"\d\d-\d\d-\d\d:[01]\d:[0-5]\d[ap]:"


class Killed(RealTest):
    def setUp(self):
        super().setUp()
        self.host = self.alice()
        self.foreign = self.office.foreign_peer()

    def test_a_log_outlives_kills_at_any_moment_of_a_run(self):
        chance = random.Random(20261115)
        before = self.leave_an_old_log()
        said = seen = 0
        for _ in range(6):
            program = self.up(self.host)
            for _ in range(chance.randrange(2, 7)):
                said += 1
                self.foreign.say(EVE + ALICE + b"EVE> number %d" % said)
                time.sleep(chance.uniform(0, 0.2))
            program.kill()
            now = self.lines()
            self.keeps(before, now)
            seen, before = max(seen, self.last_number(now)), now
        self.assertGreater(seen, 0)
        self.log_shows(self.up(self.host), seen)

    def leave_an_old_log(self):
        """A log that takes some time to write."""
        folder = self.host.app / "logs"
        folder.mkdir()
        (folder / "logtemp.txt").write_bytes(b"".join(b"%d" % n * 2000 + b"\r\n" for n in range(60)))
        return self.lines()

    def lines(self):
        return re.split(rb"\r\n?|\n", self.host.file(MIRROR))[:-1]

    def keeps(self, before, now):
        """Nothing that stood on disk has gone; the start has put its row in front."""
        self.assertRegex(now[0], STAMP + rb"Vexlo IM shutdown correctly\.")
        self.assertEqual(now[2 : 2 + len(before)], before)

    @staticmethod
    def last_number(lines):
        numbers = [int(line.split()[-1]) for line in lines if line.startswith(b"EVE> number")]
        return max(numbers, default=0)

    def log_shows(self, program, last):
        """The log window has every message that was written, in its order."""
        self.wait_quiet(program)
        program.main["spotmenu"].click()
        program.windows.settle()
        program.windows.choose("View Logs", "toolsmenu")
        rows = program.windows["log"]["lstMessages"]
        self.wait_that("the log", lambda: rows.visible)
        numbers = [int(row.split()[-1]) for row in rows.rows if row.startswith("EVE> number")]
        self.assertEqual(numbers, sorted(numbers))
        self.assertEqual(max(numbers), last)
