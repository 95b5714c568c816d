"""What the real-network tests have in common: an office of their own, and how its people act."""

import unittest

from office import Office
from waiting import wait_for, wait_until

# What a run of all tests is given on the command line.
given = {"app": None, "driver": None, "build": None}


class RealTest(unittest.TestCase):
    """A test in an office of its own."""

    gateway = False  # Whether the hosts have a default route.
    alone = False  # Whether the clock matters, so that no other test may run beside.

    def setUp(self):
        self.office = Office(given["app"], given["driver"])
        self.addCleanup(self.office.close)

    # Who is there.

    def alice(self, **settings):
        """Alice Meyer at ROOM12, who has run the program before."""
        return self._furnished("ROOM12", "alice", "ALICE MEYER", settings)

    def bob(self, **settings):
        return self._furnished("ROOM07", "bob", "BOB", settings)

    def carl(self, **settings):
        return self._furnished("ROOM33", "carl", "CARL DUNN", settings)

    def _furnished(self, computer, user, name, settings):
        host = self.office.host(computer, user, self.gateway)
        host.write_settings(name, **settings)
        return host

    def newcomer(self, computer, user):
        """Somebody who has just unpacked the program folder."""
        return self.office.host(computer, user, self.gateway)

    def up(self, *hosts):
        """Starts the program on each host, one after the other, and waits for each main window."""
        programs = [host.start().wait_up() for host in hosts]
        return programs[0] if len(programs) == 1 else programs

    def acquainted(self, *hosts):
        """Starts the program on each host and waits until all have all on their lists."""
        programs = [host.start().wait_up() for host in hosts]
        self.all_on_all_lists(*programs)
        return programs

    def all_on_all_lists(self, *programs):
        """Waits for all to be on show everywhere, with one more round where that is needed.

        Each new row empties a list whole, so it is complete for sure only after a round in which
        every answer meets a known row.
        """
        for program in programs:
            self.wait_quiet(program)
        names = sorted(shown_name(program) for program in programs)
        if any(program.main["allusers"].rows != names for program in programs):
            for program in programs:
                program.main.run("getusers")
        for program in programs:
            self.sees(program, names)
        for program in programs:
            self.wait_quiet(program)

    # What they do.

    def send(self, program, text, *recipients):
        """Clicks the recipients in the list, types the text and presses the send button."""
        users = program.main["allusers"]
        for number, recipient in enumerate(recipients):
            users.click_row(recipient, *(["ctrl"] if number else []))
        program.main["messagetext"].type(text)
        program.windows.settle()
        program.main["sendbtn"].click()

    def send_to_all(self, program, text):
        program.main["Checkallusers"].click()
        program.main["messagetext"].type(text)
        program.windows.settle()
        program.main["sendbtn"].click()

    def leave(self, program):
        """Closes the program by the close spot, and waits for its end."""
        program.main["spotx"].click()
        program.windows.wait_box().answer("No")
        self.assertEqual(program.wait_end(), 0, program.errors)

    # What is seen.

    def sees(self, program, names, seconds=15.0):
        """The names in the list of recipients, in its order."""
        users = program.main["allusers"]
        wait_for(f"the list of {program.name}", list(names), lambda: users.rows, seconds)

    def shows(self, program, *names, seconds=15.0):
        """These names are in the list of recipients, whoever else is."""
        users = program.main["allusers"]
        what = f"{', '.join(names)} in the list of {program.name}"
        wait_until(what, lambda: set(names) <= set(users.rows), seconds)

    def knows(self, program, *rows):
        """The directory as it stands on disk."""
        wanted = b"".join(row + b"\r\n" for row in rows)
        host = program.host
        wait_for(
            f"the directory of {host.name}",
            wanted,
            lambda: host.has_file("users.txt") and host.file("users.txt"),
        )

    def status(self, program, text, seconds=10.0):
        """The status line shows the text, and goes on showing it."""
        line = program.main["statustext"]
        wait_for(f"the status line of {program.name}", text, lambda: line.text, seconds)

    def passing_status(self, program, text, seconds=10.0):
        """The status line shows the text until the next look of the watch, which may come at once."""
        what = f"{text!r} in the status line of {program.name}"
        wait_until(what, lambda: program.has_told(text), seconds)

    def pops_up(self, program, sender, text, slot=0, seconds=10.0):
        """A popup of that slot shows the message; gives its window."""
        popup = program.windows[f"popup{slot}"]
        wait_until(f"popup{slot} of {program.name}", lambda: popup.visible, seconds)
        self.assertEqual(popup["messagefrom"].text, sender)
        self.assertEqual(popup["message"].text, text)
        return popup

    def wait_quiet(self, *programs, seconds=30.0):
        """Waits until no row waits in any of their queues and no further one is on its way."""
        calm = []

        def quiet():
            calm.append(not any(each.windows.timer("Timer3")["active"] for each in programs))
            return len(calm) > 12 and all(calm[-12:])

        names = ", ".join(each.name for each in programs)
        wait_until(f"a quiet queue of {names}", quiet, seconds)

    def wait_that(self, what, probe, seconds=10.0):
        return wait_until(what, probe, seconds)

    def wait_box_reading(self, program, beginning, seconds=10.0):
        """Waits for the box whose text begins so, also when another one has just been answered."""

        def found():
            box = program.windows.open_box()
            return box if box and box.text.startswith(beginning) else None

        return wait_until(f"the box {beginning!r}", found, seconds)

    def no_popup(self, *programs):
        for program in programs:
            self.wait_quiet(program)
            self.assertEqual(program.windows.popups(), [], program.name)


def shown_name(program):
    """The own display name as the program writes it in its title, in proper case."""
    name = program.host.settings("MY NAME")
    return " ".join(word[:1].upper() + word[1:].lower() for word in name.split(" "))


def plain(text):
    """A text with the line ends of the test's own language."""
    return text.replace("\r\n", "\n").replace("\r", "\n")
