"""The exit dialog, and what is left behind."""

from case import RealTest, plain

QUESTION = (
    "Do you want Vexlo IM to continue running in the background?\n"
    "\n"
    "  Yes - Minimize to Tray (run in background)\n"
    "   No - Terminate"
)
SIGN_OFF = b"-**[ROOM12\\ALICE]=ALICE MEYER"


class ExitDialog(RealTest):
    def setUp(self):
        super().setUp()
        self.host = self.alice()
        self.program = self.up(self.host)
        self.wait_quiet(self.program)
        self.foreign = self.office.foreign_peer()

    def ask(self):
        self.program.main["spotx"].click()
        return self.program.windows.wait_box()

    def test_it_asks(self):
        box = self.ask()
        self.assertEqual(box.title, "Exit Vexlo Instant Messaging")
        self.assertEqual(plain(box.text), QUESTION)
        self.assertEqual(sorted(box.buttons), ["Cancel", "No", "Yes"])

    def test_cancel_changes_nothing(self):
        before = self.host.snapshot()
        self.ask().answer("Cancel")
        self.program.windows.wait_no_box()
        self.assertEqual(self.foreign.all_within(1.0), [])
        self.assertEqual(self.host.snapshot(), before)
        self.assertTrue(self.program.main.visible)
        self.assertTrue(self.program.running)

    def test_yes_hides_the_window_and_goes_on_without_a_sign_off(self):
        self.ask().answer("Yes")
        main = self.program.main
        self.wait_that("the main window to hide", lambda: not main.visible)
        self.assertEqual(self.foreign.all_within(6.0), [])
        self.assertFalse(main.visible)
        self.foreign.announce(b"[ROOM99\\EVE]", b"EVE")
        self.foreign.wait_heard(b"**-[ROOM12\\ALICE]=ALICE MEYER")

    def test_no_signs_off_and_ends_with_status_nought(self):
        self.ask().answer("No")
        self.assertEqual(self.program.wait_end(), 0)
        self.assertEqual(self.foreign.texts(), [SIGN_OFF])

    def test_the_exit_rolls_the_log_into_a_dated_file(self):
        self.ask().answer("No")
        self.program.wait_end()
        logs = self.host.logs()
        self.assertEqual(len(logs), 1, logs)
        self.assertRegex(logs[0], r"^log\d{12}\.txt$")
        stamp = rb"\d\d-\d\d-\d\d:[01]\d:[0-5]\d[ap]:"
        self.assertRegex(
            self.host.file(f"logs/{logs[0]}"),
            rb"^" + stamp + rb"Vexlo IM\.\t\r\n---\r\n"
            + stamp + rb"Vexlo IM Closed\.\t\r\n---\r\n$",
        )  # fmt: skip

    def test_messages_wait_behind_the_dialog(self):
        box = self.ask()
        self.foreign.say(b"[ROOM99\\EVE][ROOM12\\ALICE]EVE> quick")
        self.foreign.announce(b"[ROOM99\\EVE]", b"EVE")
        self.assertEqual(self.foreign.all_within(1.0), [])
        self.assertEqual(self.program.windows.popups(), [])
        box.answer("Cancel")
        self.pops_up(self.program, "[Room99\\eve]", "EVE> quick")
        self.foreign.wait_heard(b"**-[ROOM12\\ALICE]=ALICE MEYER")

    def test_rows_that_wait_already_go_on_waiting_behind_the_dialog(self):
        for _ in range(30):
            self.foreign.announce(b"[ROOM12\\ALICE]", b"ALICE MEYER")
        box = self.ask()
        answered = len(self.foreign.all_within(0.3))
        self.assertLess(answered, 30)
        self.assertEqual(len(self.foreign.all_within(1.0)), answered)
        box.answer("Cancel")
        self.wait_that("the rest", lambda: len(self.foreign.texts()) == 30, 15.0)

    def test_the_minimise_spot_hides_the_window(self):
        self.program.main["spotmin"].click()
        self.wait_that("the main window to hide", lambda: not self.program.main.visible)
        self.assertEqual(self.foreign.all_within(6.0), [])
        self.assertFalse(self.program.main.visible)
        self.assertTrue(self.program.running)


class LeavingWithoutNetwork(RealTest):
    def test_a_failed_sign_off_does_not_cancel_the_exit(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        alice.host.link_down()
        alice.main["spotx"].click()
        alice.windows.wait_box().answer("No")
        self.assertEqual(alice.wait_end(), 0)


class AfterACrash(RealTest):
    def test_the_log_of_the_crashed_run_is_kept_behind_a_line_that_says_the_opposite(self):
        host = self.alice()
        alice = self.up(host)
        self.wait_quiet(alice)
        alice.kill()
        self.assertEqual(host.logs(), ["logtemp.txt"])
        self.leave(self.up(host))
        logs = host.logs()
        self.assertEqual(len(logs), 1, logs)
        stamp = rb"\d\d-\d\d-\d\d:[01]\d:[0-5]\d[ap]:"
        self.assertRegex(
            host.file(f"logs/{logs[0]}"),
            rb"^" + stamp + rb"Vexlo IM shutdown correctly\.\t\r\n---\r\n"
            + stamp + rb"Vexlo IM\.\t\r\n---\r\n"
            + stamp + rb"Vexlo IM\.\t\r\n---\r\n"
            + stamp + rb"Vexlo IM Closed\.\t\r\n---\r\n$",
        )  # fmt: skip
