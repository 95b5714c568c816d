"""Bad files and missing services: the program says so where that is told, or goes on."""

import desk_files
from desk_test import DeskTest
from waiting import wait_until

MANY = 100 << 20  # bytes
ALICE = b"[ROOM12\\ALICE]"


class HugeFiles(DeskTest):
    """A hundred megabytes. The program may take its time, but not for ever."""

    alone = True  # Each needs much memory, and all of a processor.
    SECONDS = 60.0

    def started_with(self, name, content):
        """Starts the program on that file, and waits for its main window."""
        host = self.alice()
        (host.app / "users.txt").write_bytes(ALICE + b"=ALICE MEYER\r\n[A\\B]=B\r\n")
        (host.app / name).write_bytes(content)
        alice = host.start()
        shown = "the main window over a huge file"
        wait_until(shown, lambda: "frmMain" in alice.windows_shown(), self.SECONDS)
        return alice

    def goes_on(self, alice):
        """Messages come and go as ever."""
        alice.wait_up()
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        foreign.say(b"[ROOM99\\EVE]" + ALICE + b"EVE> still there?")
        self.pops_up(alice, "[Room99\\eve]", "EVE> still there?")
        alice.windows["popup0"]["Command1"].click()
        self.wait_that("the popup to go", lambda: not alice.windows.popups())

    def test_buttons_with_a_huge_caption(self):
        rows = desk_files.saved_buttons({1: ("x" * MANY, "Hello", 0)})
        alice = self.started_with("buttons.txt", rows)
        self.goes_on(alice)
        alice.main["qb(1)"].click()
        self.wait_that("its text", lambda: alice.main["messagetext"].text == "Hello")

    def test_buttons_with_a_huge_message(self):
        rows = desk_files.saved_buttons({13: ("Hello", "x" * MANY, 0)})
        self.goes_on(self.started_with("buttons.txt", rows))

    def test_buttons_with_a_huge_rest_behind_the_rows(self):
        rows = desk_files.saved_buttons() + b"x," * (MANY // 2)
        self.goes_on(self.started_with("buttons.txt", rows))

    def test_buttons_that_are_one_huge_field_end_the_program_with_the_error_report(self):
        host = self.alice()
        (host.app / "buttons.txt").write_bytes(b"x" * MANY)
        alice = host.start()
        report = alice.windows.wait_box(self.SECONDS)
        self.assertEqual(report.text, "Input past end of file")
        report.answer("OK")
        self.assertEqual(alice.wait_end(), 1)

    def test_groups_of_nothing_but_commas(self):
        alice = self.started_with("groups.txt", b"," * MANY)
        self.assertEqual(alice.main["List1"].rows, [])
        self.goes_on(alice)

    def test_groups_that_are_no_text(self):
        self.goes_on(self.started_with("groups.txt", bytes(range(256)) * (MANY // 256)))

    def test_groups_with_millions_of_names_in_the_wrong_order(self):
        lines = b"".join(b"[Group01name  ]=%08d\r\n" % n for n in range(MANY // 26, 0, -1))
        alice = self.started_with("groups.txt", lines)
        self.goes_on(alice)
        self.assertEqual(alice.main["List1"].rows[:2], ["00000001", "00000002"])

    def test_groups_with_millions_of_members(self):
        line = b"[Group01member]=[A\\B]\r\n"
        self.goes_on(self.started_with("groups.txt", line * (MANY // len(line))))

    def test_groups_with_a_huge_name(self):
        alice = self.started_with("groups.txt", b"[Group01name  ]=" + b"A" * MANY)
        alice.main["SSTab1"].click_tab(1)
        alice.windows.settle(20.0)
        self.goes_on(alice)


class BadFiles(DeskTest):
    def test_quotes_and_commas_in_the_buttons_are_read_as_fields(self):
        host = self.alice()
        odd = b'  bare , "with, comma" rest,1x\r\n'
        rest = desk_files.saved_buttons().split(b"\r\n", 1)[1]
        (host.app / "buttons.txt").write_bytes(odd + rest)
        alice = self.up(host)
        self.assertEqual(alice.main["qb(1)"].text, "bare ")
        window = self.open_settings(alice, 1)
        self.assertEqual(window["qsendtext(1)"].text, "with, comma")
        self.assertTrue(window["qsendi(1)"].checked)

    def test_groups_that_are_binary_are_no_groups(self):
        host = self.alice()
        (host.app / "groups.txt").write_bytes(bytes(range(256)) * 64)
        alice = self.up(host)
        self.assertEqual(alice.main["List1"].rows, [])

    def test_an_empty_groups_file_stays_empty(self):
        host = self.alice()
        (host.app / "groups.txt").write_bytes(b"")
        alice = self.up(host)
        self.assertEqual(alice.main["List1"].rows, [])
        self.assertEqual(host.file("groups.txt"), b"")


class NoSound(DeskTest):
    """The program's runtime folder is its own, and no sound server lives there."""

    def test_a_message_pops_up_and_the_test_button_does_no_harm(self):
        alice, bob = self.acquainted(self.alice(PLAYSOUND="1"), self.bob())
        window = self.open_settings(alice)
        window["Command6"].click()
        alice.windows.settle()
        self.close_settings(alice, "cancelbtn")
        self.send(bob, "ding", "Alice Meyer")
        self.pops_up(alice, "Bob", "BOB> ding")
        self.assertTrue(alice.running)

    def test_a_sound_file_that_is_no_sound_does_no_harm(self):
        host = self.alice(PLAYSOUND="1")
        (host.app / "vexlo.wav").write_bytes(b"RIFF" + bytes(range(256)))
        alice, bob = self.acquainted(host, self.bob())
        self.send(bob, "dong", "Alice Meyer")
        self.pops_up(alice, "Bob", "BOB> dong")
        self.assertEqual(alice.boxes_shown(), [])
