"""Datagrams that nobody should send, and a row that blocks the queue for good."""

import random

from case import RealTest

ALICE = b"[ROOM12\\ALICE]"
EVE = b"[ROOM99\\EVE]"
LONGEST = 65507


class Garbage(RealTest):
    def setUp(self):
        super().setUp()
        self.program = self.up(self.alice())
        self.wait_quiet(self.program)
        self.foreign = self.office.foreign_peer()

    def still_works(self):
        """A message behind the garbage pops up in the first slot."""
        self.foreign.say(EVE + ALICE + b"EVE> still there?")
        self.pops_up(self.program, "[Room99\\eve]", "EVE> still there?", seconds=20.0)

    def test_what_is_no_message_is_dropped_without_a_trace(self):
        before = self.program.host.snapshot()
        self.foreign.say(
            b"", b" ", b"\r\n", b"\0", b"\xff" * 40, b"]", b"one]", b"=", b"**", b"*-*[A]=B",
            b"---[HOST\\USER]=NAME", b"no brackets at all", b"[" * 1000, b"[ROOM12\\ALICE",
        )  # fmt: skip
        self.no_popup(self.program)
        self.assertEqual(self.program.host.snapshot(), before)
        self.assertEqual(self.foreign.texts(), [])
        self.still_works()

    def test_what_is_for_somebody_else_is_dropped(self):
        self.foreign.say(b"]]", b"ab]cd]ef", b"[][]", b"]" * LONGEST, EVE + b"[---]lost")
        self.still_works()

    def test_the_longest_datagram_is_shown_whole(self):
        text = (EVE + ALICE + b"EVE> " + b"0123456789abcdef" * 4096)[:LONGEST]
        self.foreign.say(text)
        shown = text[len(EVE + ALICE) :].decode("ascii")
        self.pops_up(self.program, "[Room99\\eve]", shown)

    def test_the_longest_name_is_taken(self):
        name = b"N" * (LONGEST - len(b"***" + EVE + b"="))
        self.foreign.announce(EVE, name)
        self.knows(self.program, ALICE + b"=ALICE MEYER", EVE + b"=" + name)
        self.still_works_as("N" + "n" * (len(name) - 1))

    def still_works_as(self, sender):
        self.foreign.say(EVE + ALICE + b"EVE> still there?")
        self.pops_up(self.program, sender, "EVE> still there?")

    def test_noise_of_every_length_does_no_harm(self):
        source = random.Random(4111)
        for _ in range(60):
            noise = source.randbytes(source.choice([1, 3, 20, 200, 1472, 1473, 9000]))
            # A blocking row is told of elsewhere.
            if noise[:3] not in (b"***", b"**-", b"-**"):
                self.foreign.say(noise)
        self.still_works()
        self.assertTrue(self.program.running)

    def test_presence_with_odd_parts_does_no_harm(self):
        self.foreign.say(b"***=", b"**-=", b"-**=", b"***]][[=,\"=", b"**-" + b"=" * 2000)
        self.still_works_in_any_slot()

    def still_works_in_any_slot(self):
        self.foreign.say(EVE + ALICE + b"EVE> still there?")
        self.wait_that("a popup", lambda: self.program.windows.popups() == ["popup0"], 20.0)


class BlockingRow(RealTest):
    def blocked(self, row):
        program = self.up(self.alice())
        self.wait_quiet(program)
        foreign = self.office.foreign_peer()
        foreign.say(row)
        self.wait_that("the row", lambda: program.windows.timer("Timer3")["active"])
        return program, foreign

    def stays_blocked_behind(self, row):
        program, foreign = self.blocked(row)
        foreign.announce(EVE, b"EVE")
        foreign.say(EVE + ALICE + b"EVE> behind it")
        self.assertEqual(foreign.all_within(1.0), [])
        self.assertEqual(program.windows.popups(), [])
        self.assertTrue(program.windows.timer("Timer3")["active"])

    def test_a_bare_announcement_stops_the_queue_for_good(self):
        self.stays_blocked_behind(b"***")

    def test_an_announcement_without_an_equal_sign_stops_the_queue_for_good(self):
        self.stays_blocked_behind(b"***ABC")

    def test_a_message_that_begins_like_an_announcement_stops_the_queue_for_good(self):
        self.stays_blocked_behind(b"***][X]hi")

    def test_an_answer_without_an_equal_sign_stops_the_queue_for_good(self):
        self.stays_blocked_behind(b"**-[ROOM99\\EVE]")

    def test_a_bare_sign_off_stops_the_queue_for_good(self):
        self.stays_blocked_behind(b"-**")

    def test_the_gauge_shows_how_many_wait_behind_it(self):
        program, foreign = self.blocked(b"***ABC")
        foreign.say(*[b" "] * 7)
        foreign.all_within(1.0)
        self.assertEqual(program.main["cuetotal"].text, "7")
        self.assertEqual(program.main["traffic"].value, 28)
        foreign.say(*[b" "] * 60)
        foreign.all_within(1.0)
        self.assertEqual(program.main["cuetotal"].text, "67")
        self.assertEqual(program.main["traffic"].value, 100)

    def test_sending_goes_on(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        foreign = self.office.foreign_peer()
        foreign.say(b"***ABC")
        self.wait_that("the row", lambda: alice.windows.timer("Timer3")["active"])
        self.send(alice, "I hear nothing", "Bob")
        foreign.wait_heard(b"[ROOM12\\ALICE][ROOM07\\BOB]ALICE MEYER> I hear nothing")
        self.passing_status(alice, "Message sent to Bob")
        foreign.all_within(0.5)
        self.assertEqual(bob.windows.popups(), [], "Bob is blocked as well")

    def test_leaving_goes_on(self):
        program, foreign = self.blocked(b"***ABC")
        self.leave(program)
        foreign.wait_heard(b"-**" + ALICE + b"=ALICE MEYER")


class Pace(RealTest):
    alone = True

    def test_a_burst_is_handled_one_row_a_tick(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        foreign.introduce(EVE, b"EVE")
        self.sees(alice, ["Eve"])
        self.wait_quiet(alice)
        foreign.forget()
        for _ in range(30):
            foreign.announce(EVE, b"EVE")
        # Each answer is a row of its own here, behind the burst.
        self.wait_quiet(alice)
        answers = foreign.heard()
        self.assertEqual([said.data for said in answers], [b"**-" + ALICE + b"=ALICE MEYER"] * 30)
        took = answers[-1].at - answers[0].at
        self.assertGreater(took, 29 * 0.120 * 0.99)
        self.assertLess(took, 29 * 0.120 * 1.25, "the machine may be busy, but not that busy")
        self.assertEqual(alice.main["cuetotal"].text, "0")
        self.assertFalse(alice.windows.timer("Timer3")["active"])

    def test_the_queue_s_timer_is_exact_and_sleeps_while_nothing_waits(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        timer = alice.windows.timer("Timer3")
        self.assertEqual((timer["interval"], timer["precise"]), (120, True))
        self.assertFalse(timer["active"])
        self.assertEqual(alice.windows.timer("Timer1")["interval"], 5000)
        self.assertTrue(alice.windows.timer("Timer1")["active"])

    def test_what_arrives_while_the_window_stands_still_is_kept(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        alice.windows.stall(0.5)
        for _ in range(20):
            foreign.announce(ALICE, b"ALICE MEYER")
        self.wait_quiet(alice)
        self.assertEqual(len(foreign.texts()), 20)
