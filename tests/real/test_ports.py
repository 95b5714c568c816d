"""Changing the ports, on one peer and on all."""

from case import RealTest, plain

ALICE_TO_BOB = b"[ROOM12\\ALICE][ROOM07\\BOB]ALICE MEYER> "


class Ports(RealTest):
    def change(self, program, command, answer, button="OK"):
        program.main.run(command)
        box = program.windows.wait_box()
        box.answer(button, answer)
        return box

    def test_all_move_to_another_listening_port_and_go_on_talking(self):
        peers = self.acquainted(self.alice(), self.bob(), self.carl())
        alice, bob, carl = peers
        for program in peers:
            box = self.change(program, "changeports1", "4200")
            program.windows.wait_no_box()
            self.assertEqual(box.title, "Change your Ports")
            self.assertEqual(plain(box.text), "Please enter the new Listening Port #:\n")
            self.assertEqual(box.default, "4111")
            self.assertEqual(program.host.settings("LISTENINGPORT"), "4200")
            self.assertEqual(program.host.settings("SENDINGPORT"), "4112")
        old = self.office.foreign_peer()
        new = self.office.foreign_peer(listening=4200)
        self.send(alice, "over here", "Bob")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> over here")
        self.no_popup(carl)
        self.assertEqual([said.port for said in new.heard()], [4112])
        self.assertEqual(new.texts(), [ALICE_TO_BOB + b"over here"])
        self.assertEqual(old.texts(), [])

    def test_all_move_to_another_sending_port_and_go_on_talking(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        for program in (alice, bob):
            box = self.change(program, "changeports2", "4300")
            program.windows.wait_no_box()
            self.assertEqual(plain(box.text), "Please enter the new Sending Port #:\n")
            self.assertEqual(box.default, "4112")
            self.assertEqual(program.host.settings("SENDINGPORT"), "4300")
        foreign = self.office.foreign_peer()
        self.send(alice, "from there", "Bob")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> from there")
        self.assertEqual([said.port for said in foreign.heard()], [4300])

    def test_the_new_port_lasts_over_a_start(self):
        alice = self.up(self.alice())
        self.change(alice, "changeports1", "4200")
        alice.windows.wait_no_box()
        self.leave(alice)
        foreign = self.office.foreign_peer(listening=4200)
        self.up(alice.host)
        foreign.wait_heard(b"***[ROOM12\\ALICE]=ALICE MEYER")

    def test_who_stays_behind_on_the_old_port_hears_nothing(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        self.change(alice, "changeports1", "4200")
        alice.windows.wait_no_box()
        self.send(alice, "hello?", "Bob")
        self.passing_status(alice, "Message sent to Bob")
        self.no_popup(bob)

    def test_the_listening_port_cannot_be_the_sending_one(self):
        self._refused("changeports1", "4112")

    def test_the_sending_port_cannot_be_the_listening_one(self):
        self._refused("changeports2", "4111")

    def _refused(self, command, other):
        host = self.alice()
        alice = self.up(host)
        self.wait_quiet(alice)
        before = host.snapshot()
        self.change(alice, command, other)
        refusal = self.wait_box_reading(alice, "Ports cannot be the same.")
        text = "Ports cannot be the same.\n   Listening and Sending"
        self.assertEqual(plain(refusal.text), text)
        refusal.answer("OK")
        alice.windows.wait_no_box()
        self.assertEqual(host.snapshot(), before)
        self.hears_on(alice, 4111)
        self.leave(alice)

    def hears_on(self, program, port):
        """The program answers who announces itself on that port."""
        foreign = self.office.foreign_peer(listening=port)
        foreign.announce(b"[ROOM99\\EVE]", b"EVE")
        foreign.wait_heard(b"**-" + program.host.identity + b"=ALICE MEYER")

    def test_the_present_port_as_answer_saves_nothing(self):
        self._untouched("4111", "OK")

    def test_a_cancelled_port_box_saves_nothing(self):
        self._untouched("4200", "Cancel")

    def test_an_empty_port_saves_nothing(self):
        self._untouched("", "OK")

    def _untouched(self, answer, button):
        host = self.alice()
        alice = self.up(host)
        self.wait_quiet(alice)
        before = host.snapshot()
        self.change(alice, "changeports1", answer, button)
        alice.windows.wait_no_box()
        self.assertEqual(host.snapshot(), before)
        self.hears_on(alice, 4111)

    def test_a_port_is_the_leading_number_of_the_answer(self):
        alice = self.up(self.alice())
        self.change(alice, "changeports1", "4200x")
        alice.windows.wait_no_box()
        self.assertEqual(alice.host.settings("LISTENINGPORT"), "4200")
        self.hears_on(alice, 4200)

    def test_a_word_as_port_is_port_nought(self):
        alice = self.up(self.alice())
        self.change(alice, "changeports1", "abc")
        alice.windows.wait_no_box()
        self.assertEqual(alice.host.settings("LISTENINGPORT"), "0")

    def test_a_taken_port_ends_the_program_with_the_error_report(self):
        host = self.alice()
        host.occupy(4200)
        alice = self.up(host)
        self.wait_quiet(alice)
        self.change(alice, "changeports1", "4200")
        report = self.wait_box_reading(alice, "Address in use")
        self.assertEqual(report.title, "Vexlo Instant Messaging")
        report.answer("OK")
        self.assertEqual(alice.wait_end(), 1)
        self.assertIn("Address in use", alice.errors)
        self.assertEqual(host.settings("LISTENINGPORT"), "4111", "nothing is saved on that way")

    def test_messages_pop_up_behind_the_port_box(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        bob.main.run("changeports1")
        bob.windows.wait_box()
        self.send(alice, "behind the box", "Bob")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> behind the box")
        self.assertEqual(bob.windows.open_box().title, "Change your Ports")


class PortReset(RealTest):
    def test_each_send_resets_the_ports_and_announces(self):
        alice, bob = self.acquainted(self.alice(RESETPORTS="1"), self.bob())
        foreign = self.office.foreign_peer()
        self.send(alice, "one", "Bob")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> one")
        self.wait_quiet(alice)
        self.assertEqual(
            foreign.texts(alice.host)[:2],
            [ALICE_TO_BOB + b"one", b"***[ROOM12\\ALICE]=ALICE MEYER"],
        )
        self.send(bob, "still there?", "Alice Meyer")
        self.pops_up(alice, "Bob", "BOB> still there?")

    def test_an_empty_send_resets_the_ports_too(self):
        alice = self.up(self.alice(RESETPORTS="1"))
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        alice.main["sendbtn"].click()
        self.passing_status(alice, "Reset Port")
        foreign.wait_heard(b"***[ROOM12\\ALICE]=ALICE MEYER")
