"""Rename, sign-off, and what a foreign peer's presence does to the tables."""

from case import RealTest, plain
from waiting import wait_for

ALICE = b"[ROOM12\\ALICE]"
BOB = b"[ROOM07\\BOB]"
EVE = b"[ROOM99\\EVE]"


class Rename(RealTest):
    def test_a_new_name_is_told_once_and_replaces_the_old_one_everywhere(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        foreign = self.office.foreign_peer()
        alice.main.run("Command1")
        box = alice.windows.wait_box()
        self.assertEqual(box.title, "Change your Vexlo IM Name")
        self.assertEqual(plain(box.text), "Please enter your name:\n")
        self.assertEqual(box.default, "ALICE MEYER")
        box.answer("OK", "Alice Schmidt")

        for program in (alice, bob):
            self.sees(program, ["Alice Schmidt", "Bob"])
            self.knows(program, BOB + b"=BOB", ALICE + b"=ALICE SCHMIDT")
        self.assertEqual(foreign.texts().count(b"***" + ALICE + b"=ALICE SCHMIDT"), 1)
        self.assertEqual(alice.host.settings("MY NAME"), "ALICE SCHMIDT")
        self.status(alice, "Vexlo - Alice Schmidt Listening")

    def test_a_message_after_a_rename_comes_under_the_new_name(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        alice.main.run("Command1")
        alice.windows.wait_box().answer("OK", "Alice Schmidt")
        self.sees(alice, ["Alice Schmidt", "Bob"])
        self.sees(bob, ["Alice Schmidt", "Bob"])
        self.send(alice, "it is me", "Bob")
        self.pops_up(bob, "Alice Schmidt", "ALICE SCHMIDT> it is me")

    def test_a_cancelled_rename_changes_nothing(self):
        self._unchanged_after("Cancel", "Alice Schmidt")

    def test_an_empty_new_name_changes_nothing(self):
        self._unchanged_after("OK", "")

    def _unchanged_after(self, button, text):
        host = self.alice()
        alice = self.up(host)
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        before = host.snapshot()
        alice.main.run("Command1")
        alice.windows.wait_box().answer(button, text)
        alice.windows.wait_no_box()
        self.assertEqual(foreign.all_within(1.0), [])
        self.assertEqual(host.snapshot(), before)


class SignOff(RealTest):
    def test_a_sign_off_shows_in_the_status_line_and_the_name_stays(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        foreign = self.office.foreign_peer()
        self.leave(alice)
        self.passing_status(bob, "ALICE MEYER has signed off", seconds=3.0)
        self.assertEqual(foreign.texts(), [b"-**" + ALICE + b"=ALICE MEYER"])
        self.sees(bob, ["Alice Meyer", "Bob"])
        self.knows(bob, BOB + b"=BOB", ALICE + b"=ALICE MEYER")
        self.status(bob, "Vexlo - Bob Listening", seconds=7.0)

    def test_who_comes_back_is_known(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        self.leave(alice)
        foreign = self.office.foreign_peer()
        alice = self.up(alice.host)
        self.sees(alice, ["Alice Meyer", "Bob"])
        self.wait_quiet(bob)
        answers = [said.data for said in foreign.heard() if said.source == bob.host.address]
        self.assertEqual(answers, [b"**-" + BOB + b"=BOB"] * 2, "one a round, two rounds")

    def test_a_name_without_small_letters_leaves_the_list(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        foreign.introduce(EVE, b"7")
        foreign.say(b"**-" + ALICE + b"=ALICE MEYER")
        self.sees(alice, ["7", "Alice Meyer"])
        foreign.say(b"-**" + EVE + b"=7")
        self.passing_status(alice, "7 has signed off", seconds=3.0)
        self.sees(alice, ["Alice Meyer"])
        self.knows(alice, ALICE + b"=ALICE MEYER", EVE + b"=7")

    def test_the_sign_off_of_a_stranger_shows_nothing(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        before = alice.main["statustext"].text
        foreign.say(b"-**" + EVE + b"=EVE")
        self.wait_quiet(alice)
        self.assertIn(
            alice.main["statustext"].text, (before, "Vexlo - Alice Meyer Listening")
        )


class Answers(RealTest):
    def test_a_newcomer_is_answered_twice_and_a_known_peer_once(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        answer = b"**-" + ALICE + b"=ALICE MEYER"
        foreign.announce(EVE, b"EVE")
        self.wait_quiet(alice)
        self.assertEqual(foreign.texts(), [answer, answer])
        foreign.forget()
        foreign.announce(EVE, b"EVE")
        self.wait_quiet(alice)
        self.assertEqual(foreign.texts(), [answer])

    def test_the_first_answer_makes_the_row_and_the_second_one_shows_it(self):
        alice = self.up(self.alice())
        self.sees(alice, ["Alice Meyer"])
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        foreign.say(b"**-" + EVE + b"=EVE")
        self.sees(alice, [])
        self.knows(alice, ALICE + b"=ALICE MEYER", EVE + b"=EVE")
        foreign.say(b"**-" + EVE + b"=EVE")
        self.sees(alice, ["Eve"])

    def test_identity_and_name_are_put_in_upper_case_by_the_reader(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        foreign.introduce(b"[room99\\eve]", b"Eve Stone")
        self.knows(alice, ALICE + b"=ALICE MEYER", EVE + b"=EVE STONE")

    def test_a_further_equal_sign_belongs_to_the_name(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        foreign.introduce(EVE, b"E=MC2 ]")
        self.knows(alice, ALICE + b"=ALICE MEYER", EVE + b"=E=MC2 ]")
        self.sees(alice, ["E=mc2 ]"])

    def test_a_name_with_a_comma_becomes_two_rows_at_the_next_start(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        foreign.introduce(EVE, b"STONE, EVE")
        self.knows(alice, ALICE + b"=ALICE MEYER", EVE + b"=STONE, EVE")
        self.leave(alice)
        alice = self.up(alice.host)
        foreign.introduce(b"[ROOM98\\DAN]", b"DAN")
        wanted = {ALICE + b"=ALICE MEYER", b"[ROOM98\\DAN]=DAN", EVE + b"=STONE", b"EVE", b""}
        wait_for(
            "the two rows on disk",
            wanted,
            lambda: set(alice.host.file("users.txt").split(b"\r\n")),
        )
