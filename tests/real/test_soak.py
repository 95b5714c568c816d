"""Eight programs that are worked with for half a minute: what they take is what they had."""

import time

from soak import look
from staff import Staff
from vitals import MIB, is_sanitized

# What programs may grow by when their windows are used for the first time, and then some: a whole
# hour, which is measured exactly, is another matter.
FIRST_USE = 16 * MIB


class ShortSoak(Staff):
    beat = 0.2

    def test_half_a_minute_of_work_leaves_no_descriptor_and_no_thread(self):
        if is_sanitized(self.office.app / "vexloim"):
            self.skipTest("what a sanitized program holds tells nothing of the program")
        self.gather(seed=20261121)
        self.work_through()
        self.rest()
        before = look(self.people)
        self.work_until(time.monotonic() + 5.0)
        self.rest()
        for name, now in look(self.people).items():
            self.assertEqual(now.descriptors, before[name].descriptors, name)
            self.assertEqual(now.threads, before[name].threads, name)
            self.assertLess(now.held, before[name].held + FIRST_USE, name)
