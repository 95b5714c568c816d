"""What is on the wire, byte for byte, as a peer that is not our program hears it."""

from case import RealTest

ALICE = b"[ROOM12\\ALICE]"
BOB = b"[ROOM07\\BOB]"
EVE = b"[ROOM99\\EVE]"


class ALoneNewcomer(RealTest):
    def test_it_announces_itself_twice_and_answers_itself_three_times(self):
        foreign = self.office.foreign_peer()
        alice = self.newcomer("room12", "Alice").start().first_run("Alice Meyer")
        self.wait_quiet(alice)
        foreign.all_within(1.0)
        self.assertEqual(
            foreign.texts(),
            [b"***" + ALICE + b"=ALICE MEYER"] * 2 + [b"**-" + ALICE + b"=ALICE MEYER"] * 3,
        )
        self.sees(alice, ["Alice Meyer"])
        self.knows(alice, ALICE + b"=ALICE MEYER")

    def test_everything_goes_from_the_sending_port_to_the_broadcast_address(self):
        foreign = self.office.foreign_peer()
        alice = self.newcomer("ROOM12", "alice").start().first_run("Alice Meyer")
        self.wait_quiet(alice)
        heard = foreign.heard()
        self.assertEqual({said.port for said in heard}, {4112})
        self.assertEqual({said.destination for said in heard}, {"255.255.255.255"})
        self.assertEqual({said.source for said in heard}, {alice.host.address})

    def test_a_known_one_announces_itself_twice_at_every_start(self):
        host = self.newcomer("ROOM12", "alice")
        first = host.start().first_run("Alice Meyer")
        self.wait_quiet(first)
        self.leave(first)
        foreign = self.office.foreign_peer()
        self.wait_quiet(self.up(host))
        announce = b"***" + ALICE + b"=ALICE MEYER"
        answer = b"**-" + ALICE + b"=ALICE MEYER"
        self.assertEqual(foreign.texts(), [announce, announce, answer, answer])

    def test_an_idle_program_is_silent(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        self.assertEqual(foreign.all_within(11.0), [])


class Messages(RealTest):
    def setUp(self):
        super().setUp()
        self.program, self.other = self.acquainted(self.alice(), self.bob())
        self.foreign = self.office.foreign_peer()

    def test_a_direct_message(self):
        self.send(self.program, "Lunch at noon?", "Bob")
        self.foreign.wait_heard(ALICE + BOB + b"ALICE MEYER> Lunch at noon?")

    def test_a_message_to_all(self):
        self.send_to_all(self.program, "Server restarts at 5")
        self.foreign.wait_heard(ALICE + b"[ALL]ALICE MEYER> (To All) Server restarts at 5")

    def test_brackets_equal_signs_and_commas_travel_whole(self):
        text = '[a]]=b, "c" > d\\'
        self.send(self.program, text, "Bob")
        self.foreign.wait_heard(ALICE + BOB + b"ALICE MEYER> " + text.encode("cp1252"))
        self.pops_up(self.other, "Alice Meyer", "ALICE MEYER> " + text)

    def test_letters_are_those_of_the_offices_character_set(self):
        self.send(self.program, "Café für 5 €", "Bob")
        self.foreign.wait_heard(ALICE + BOB + b"ALICE MEYER> Caf\xe9 f\xfcr 5 \x80")
        self.pops_up(self.other, "Alice Meyer", "ALICE MEYER> Café für 5 €")

    def test_a_letter_that_the_set_lacks_becomes_a_question_mark(self):
        self.send(self.program, "Привет", "Bob")
        self.foreign.wait_heard(ALICE + BOB + b"ALICE MEYER> ??????")

    def test_nothing_comes_back_for_a_message(self):
        self.foreign.say(EVE + BOB + b"EVE> hello")
        self.pops_up(self.other, "[Room99\\eve]", "EVE> hello")
        self.assertEqual(self.foreign.all_within(1.0), [])


class ReadingMessages(RealTest):
    def setUp(self):
        super().setUp()
        self.program = self.up(self.alice())
        self.wait_quiet(self.program)
        self.foreign = self.office.foreign_peer()

    def test_the_sender_is_named_by_the_readers_own_directory(self):
        self.foreign.introduce(EVE, b"EVE STONE")
        self.sees(self.program, ["Eve Stone"])
        self.foreign.say(EVE + ALICE + b"SOMEBODY ELSE> it is me")
        self.pops_up(self.program, "Eve Stone", "SOMEBODY ELSE> it is me")

    def test_a_stranger_is_named_by_the_identity(self):
        self.foreign.say(EVE + ALICE + b"who am I?")
        self.pops_up(self.program, "[Room99\\eve]", "who am I?")

    def test_a_message_to_all_is_marked(self):
        self.foreign.say(EVE + b"[ALL]EVE> (To All) hear, hear")
        popup = self.pops_up(self.program, "[Room99\\eve]", "EVE> (To All) hear, hear")
        self.assertEqual(popup["Label3"].text, "(Sent to ALL)")

    def test_the_same_message_twice_pops_up_twice(self):
        self.foreign.say(*[EVE + ALICE + b"EVE> again"] * 2)
        self.pops_up(self.program, "[Room99\\eve]", "EVE> again", slot=0)
        self.pops_up(self.program, "[Room99\\eve]", "EVE> again", slot=1)

    def test_letters_of_the_character_set_are_shown(self):
        self.foreign.say(EVE + ALICE + b"Caf\xe9 f\xfcr 5 \x80")
        self.pops_up(self.program, "[Room99\\eve]", "Café für 5 €")

    def test_line_ends_are_shown(self):
        self.foreign.say(EVE + ALICE + b"one\r\ntwo\r\n")
        self.pops_up(self.program, "[Room99\\eve]", "one\ntwo\n")

    def test_an_identity_in_small_letters_is_another_one(self):
        self.foreign.say(EVE + ALICE.lower() + b"not for you")
        self.no_popup(self.program)

    def test_the_own_identity_as_sender_is_dropped(self):
        self.foreign.say(ALICE + ALICE + b"from me to me", ALICE + b"[ALL]from me to all")
        self.no_popup(self.program)

    def test_opening_brackets_are_never_asked_for(self):
        self.foreign.say(b"ab]" + ALICE + b"x")
        self.pops_up(self.program, "Ab]", "x")
