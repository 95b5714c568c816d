"""Whole conversations between three programs: reply, forward, absence, restart, recall."""

from case import RealTest
from waiting import wait_for
from windows import Windows

ALICE, BOB, CARL = b"[ROOM12\\ALICE]", b"[ROOM07\\BOB]", b"[ROOM33\\CARL]"


class Conversation(RealTest):
    def setUp(self):
        super().setUp()
        self.peers = self.acquainted(self.alice(), self.bob(), self.carl(AUTORESPONSEALLOW=1))

    def _answer(self, popup, text):
        popup["temp"].type(text)
        popup["Command2"].click()

    def test_a_reply_quotes_the_message(self):
        alice, bob, carl = self.peers
        foreign = self.office.foreign_peer()
        self.send(alice, "Lunch at noon?", "Bob")
        popup = self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Lunch at noon?")
        self._answer(popup, "Yes")
        self.passing_status(bob, "Message sent to Alice Meyer")
        self.pops_up(alice, "Bob", "ALICE MEYER> Lunch at noon?\nBOB> Yes")
        foreign.wait_heard(BOB + ALICE + b"ALICE MEYER> Lunch at noon?\r\nBOB> Yes")
        self.wait_that("Bob's popup to go", lambda: not popup.visible)
        self.no_popup(carl)

    def test_a_reply_to_all_reaches_everybody(self):
        alice, bob, carl = self.peers
        self.send_to_all(alice, "Server restarts at 5")
        popup = self.pops_up(bob, "Alice Meyer", "ALICE MEYER> (To All) Server restarts at 5")
        self.assertTrue(popup["Check1"].visible)
        popup["Check1"].click()
        self._answer(popup, "Noted")
        text = "ALICE MEYER> (To All) Server restarts at 5\nBOB> Noted"
        self.pops_up(carl, "Bob", text, slot=1)
        self.pops_up(alice, "Bob", text)
        self.passing_status(bob, "Message sent to All")

    def test_a_forwarded_message_comes_from_its_first_sender(self):
        alice, bob, carl = self.peers
        foreign = self.office.foreign_peer()
        self.send(alice, "Lunch at noon?", "Bob")
        popup = self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Lunch at noon?")
        popup["fwd"].click()
        draft = "Begin forwarded message:\nALICE MEYER> Lunch at noon?\n"
        draft += "BOB> I'm forwarding this to you."
        self.wait_that("the draft", lambda: bob.main["messagetext"].text == draft)
        self.assertFalse(bob.main["qb(1)"].enabled)
        bob.main["allusers"].click_row("Carl Dunn")
        bob.windows.settle()
        bob.main["sendbtn"].click()
        self.pops_up(carl, "Alice Meyer", "ALICE MEYER> " + draft)
        wire = ALICE + CARL + b"ALICE MEYER> " + draft.replace("\n", "\r\n").encode()
        foreign.wait_heard(wire)
        self.wait_that("the quick buttons", lambda: bob.main["qb(1)"].enabled)

    def test_an_absent_program_answers_and_keeps_quiet(self):
        alice, _, carl = self.peers
        self._away(carl, "I'm in a meeting")
        self.send(alice, "Are you there?", "Carl Dunn")
        text = "ALICE MEYER> Are you there?\nCARL DUNN> (Auto Resp) I'm in a meeting"
        self.pops_up(alice, "Carl Dunn", text)
        self.no_popup(carl)
        carl.main["messagetext"].type("b")
        self.wait_that("the presence", lambda: not carl.main["Label5"].visible)

    def test_an_absent_program_forwards_in_its_users_place(self):
        alice, bob, carl = self.peers
        carl.kill()
        there = self.carl_forwarding()
        self._away(there, "Forward to: Bob")
        self.send(alice, "For Carl", "Carl Dunn")
        self.pops_up(bob, "Alice Meyer", "-- Msg auto fwded by CARL DUNN --\nALICE MEYER> For Carl")
        answer = "ALICE MEYER> For Carl\nCARL DUNN> (Auto Resp) Forward to: Bob"
        self.pops_up(alice, "Carl Dunn", answer)

    def carl_forwarding(self):
        host = self.peers[2].host
        host.write_settings(
            "CARL DUNN", AUTORESPONSEALLOW=1, AUTORESPONSEMSG3="Forward to: Bob"
        )
        program = host.start().wait_up()
        self.wait_quiet(program)
        return program

    def _away(self, program, response):
        program.main["autorespond"].click()
        program.windows.settle()
        program.windows.choose(response, "autores")
        banner = program.main["Label5"]
        self.wait_that(
            "the banner", lambda: banner.visible and banner.text == "Auto Respond On: " + response
        )

    def test_a_restart_brings_the_history_and_a_message_comes_back_from_it(self):
        alice, bob, _ = self.peers
        self.send(alice, 'He said "no"', "Bob")
        self.pops_up(bob, "Alice Meyer", 'ALICE MEYER> He said "no"')
        self.leave(bob)
        again = bob.host.start().wait_up()
        again.main["history"].click()
        history = again.windows["historyfrm"]
        self.wait_that("the history", lambda: history.visible)
        self.assertEqual(history["message"].text, 'ALICE MEYER> He said "no"')
        history["ListView1"].click(row=0, double=True)
        popup = again.windows["popuplast"]
        self.wait_that("the message", lambda: popup.visible)
        self.assertEqual(popup["message"].text, 'ALICE MEYER> He said "no"')
        self.assertRegex(popup.state["title"], r"^MsgAlice Meyer Msg [01]\d:[0-5]\d [ap]m$")

    def test_a_message_of_any_kind_comes_back_from_the_history_after_a_restart(self):
        alice, _, carl = self.peers
        self.send(alice, "Lunch?", "Carl Dunn")
        self._answer(self.pops_up(carl, "Alice Meyer", "ALICE MEYER> Lunch?"), "Yes")
        self.pops_up(alice, "Carl Dunn", "ALICE MEYER> Lunch?\nCARL DUNN> Yes")
        self.send(carl, "Bring Bob", "Alice Meyer")
        self.pops_up(alice, "Carl Dunn", "CARL DUNN> Bring Bob", slot=1)
        self._away(carl, "I'm in a meeting")
        self.send(alice, "Where?", "Carl Dunn")
        text = "ALICE MEYER> Where?\nCARL DUNN> (Auto Resp) I'm in a meeting"
        self.pops_up(alice, "Carl Dunn", text, slot=2)
        self.leave(carl)
        again = carl.host.start().wait_up()
        self.shows(again, "Alice Meyer")
        again.main["history"].click()
        self.wait_that("the history", lambda: again.windows["historyfrm"].visible)
        self._recalls(again, 0, "ALICE MEYER> Lunch?", "", sent=False)
        self._recalls(again, 1, "ALICE MEYER> Lunch?", "Yes", sent=True)
        self._recalls(again, 3, "ALICE MEYER> Where?", "I'm in a meeting", sent=True)
        again.windows["historyfrm"]["ListView1"].click(row=2, double=True)
        self.wait_that("the draft", lambda: again.main["messagetext"].text == "Bring Bob")
        users = again.main["allusers"]
        self.assertEqual([users.rows[row] for row in users.selected], ["Alice Meyer"])

    def _recalls(self, program, row, message, reply, sent):
        program.windows["historyfrm"]["ListView1"].click(row=row, double=True)
        popup = program.windows["popuplast"]
        wait_for(
            f"the message of row {row}",
            (True, message, reply, sent),
            lambda: (
                popup.visible, popup["message"].text, popup["temp"].text, popup["beensent"].visible
            ),
        )  # fmt: skip
        popup["Command1"].click()
        self.wait_that("the message to go", lambda: not popup.visible)


class KeyboardAlone(RealTest):
    """A conversation without a mouse."""

    def test_a_conversation_is_led_to_its_end_by_the_keyboard(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        for _ in ("Alice Meyer", "Bob"):  # A choice gives the keyboard to the compose box.
            self._reach(alice.main, "allusers")
            alice.main["allusers"].press("Down")
            alice.windows.settle()
        self.assertEqual(alice.main["allusers"].selected, [1])
        self._reach(alice.main, "messagetext")
        alice.main["messagetext"].type("Lunch?")
        alice.main["messagetext"].press("Return", "ctrl")
        # One character of the line end stays, and travels.
        popup = self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Lunch?\n")
        self._reach(popup, "temp")
        popup["temp"].type("Yes")
        self._reach(popup, "Command2")
        popup["Command2"].press("Space")
        answer = self.pops_up(alice, "Bob", "ALICE MEYER> Lunch?\n\nBOB> Yes")
        self.wait_that("Bob's popup to go", lambda: not popup.visible)
        self._reach(answer, "Command1")
        answer["Command1"].press("Space")
        self.wait_that("Alice's popup to go", lambda: not answer.visible)

    def _reach(self, window, name):
        """Tab by Tab, from wherever the focus is."""
        for _ in range(60):
            seen = [c for c in window.controls() if c["visible"] and c.get("window_focus")]
            focused = [c["name"] for c in seen]
            if focused == [name]:
                return
            window[focused[0]].press("Tab") if focused else window.press("Tab")
            Windows(window._driver).settle()
        self.fail(f"{name} is not reached by Tab")
