"""Quick buttons: pressed by the mouse and by function keys, in the main window and in popups."""

import desk_files
from case import RealTest

ALICE, BOB = b"[ROOM12\\ALICE]", b"[ROOM07\\BOB]"
OUT = "Leave the building"


class QuickButtons(RealTest):
    def with_buttons(self, host, **rows):
        """The host's own buttons: b2=("Caption", "message", 1) for the second one."""
        changes = {int(name[1:]): row for name, row in rows.items()}
        (host.app / "buttons.txt").write_bytes(desk_files.saved_buttons(changes))
        return host

    def test_a_first_start_writes_the_default_buttons(self):
        host = self.newcomer("ROOM12", "alice")
        alice = host.start().first_run("Alice Meyer")
        self.assertEqual(host.file("buttons.txt"), desk_files.default_buttons())
        self.assertEqual(alice.main["qb(3)"].text, "Spouse Calling")
        self.assertFalse(alice.main["qb(11)"].enabled)

    def test_an_emergency_button_reaches_everybody_though_nobody_is_chosen(self):
        host = self.with_buttons(self.alice(), b2=("eMergency exit", OUT, 1))
        alice, bob, carl = self.acquainted(host, self.bob(), self.carl())
        foreign = self.office.foreign_peer()
        alice.main["qb(2)"].click()
        text = "ALICE MEYER> (To All) " + OUT
        self.pops_up(bob, "Alice Meyer", text)
        self.pops_up(carl, "Alice Meyer", text)
        self.status(alice, "Message sent to ALL")
        self.assertEqual(foreign.texts(host), [ALICE + b"[ALL]" + text.encode()])
        self.assertFalse(alice.main["Checkallusers"].checked)
        self.assertEqual(alice.main["messagetext"].text, "")

    def test_an_emergency_button_that_is_not_immediate_waits_for_the_send_button(self):
        host = self.with_buttons(self.alice(), b2=("EMERGENCY", OUT, 0))
        alice, bob = self.acquainted(host, self.bob())
        alice.main["qb(2)"].click()
        self.wait_that("the text", lambda: alice.main["messagetext"].text == OUT)
        self.assertTrue(alice.main["Checkallusers"].checked)
        self.assertFalse(alice.main["allusers"].enabled)
        self.no_popup(bob)
        alice.main["sendbtn"].click()
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> (To All) " + OUT)

    def test_the_word_in_the_message_makes_no_emergency(self):
        host = self.with_buttons(self.alice(), b2=("Alarm", "EMERGENCY!", 1))
        alice, bob = self.acquainted(host, self.bob())
        alice.main["qb(2)"].click()
        self.wait_that("the text", lambda: alice.main["messagetext"].text == "EMERGENCY!")
        self.no_popup(bob)

    def test_a_function_key_is_dead_until_somebody_is_chosen(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        box = alice.main["messagetext"]
        box.type("draft")
        box.press("F4")
        alice.windows.settle()
        self.assertEqual(box.text, "draft")
        alice.main["allusers"].click_row("Bob")
        box.press("F4")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Are you busy?")
        self.assertEqual(box.text, "")

    def test_each_function_key_presses_the_button_of_its_number(self):
        # F11 and F12 press buttons that are disabled: the key does not ask.
        alice, bob = self.acquainted(self.alice(), self.bob())
        box = alice.main["messagetext"]
        alice.main["allusers"].click_row("Bob")
        sent = []
        for number, (_, text, immediate) in enumerate(desk_files.BUTTONS[:12], 1):
            box.press(f"F{number}")
            if immediate:
                sent.append(text)
                self.pops_up(bob, "Alice Meyer", "ALICE MEYER> " + text, slot=len(sent) - 1)
            alice.windows.settle()
            self.assertEqual(box.text, "" if immediate else text, number)
        self.assertEqual(len(bob.windows.popups()), len(sent))

    def test_a_response_button_answers_in_one_click(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        self.send(alice, "Lunch at noon?", "Bob")
        popup = self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Lunch at noon?")
        popup["qb(19)"].click()
        self.pops_up(alice, "Bob", "ALICE MEYER> Lunch at noon?\nBOB> Yes")
        self.wait_that("Bob's popup to go", lambda: not popup.visible)

    def test_a_response_that_is_not_immediate_waits_in_the_reply_box(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        self.send(alice, "Call for you", "Bob")
        popup = self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Call for you")
        popup["qb(14)"].click()
        self.wait_that("the text", lambda: popup["temp"].text == "Please take a message")
        self.no_popup(alice)

    def test_too_few_rows_end_the_program_with_the_error_report(self):
        host = self.alice()
        rows = desk_files.saved_buttons().split(b"\r\n")
        (host.app / "buttons.txt").write_bytes(b"\r\n".join(rows[:23]) + b"\r\n")
        before = host.snapshot()
        program = host.start()
        report = program.windows.wait_box()
        self.assertEqual(report.title, "Vexlo Instant Messaging")
        report.answer("OK")
        self.assertEqual(program.wait_end(), 1)
        self.assertIn("Input past end of file", program.errors)
        self.assertEqual(host.file("settings.txt"), before["settings.txt"][1])
