"""Two people who start the program for the first time, and the first line between them."""


from case import RealTest, plain


class FirstContact(RealTest):
    def test_the_first_start_asks_for_the_name_and_offers_the_login(self):
        program = self.newcomer("ROOM12", "alice").start()
        box = program.windows.wait_box()
        self.assertEqual(box.title, "Vexlo Instant Messaging Setup")
        self.assertEqual(plain(box.text), "Please enter your name:\n")
        self.assertEqual(box.default, "alice")

    def test_two_newcomers_find_each_other(self):
        alice = self.newcomer("ROOM12", "alice").start().first_run("Alice Meyer")
        bob = self.newcomer("ROOM07", "bob").start().first_run("Bob")
        self._know_each_other(alice, bob)

    def test_two_newcomers_find_each_other_in_the_other_order(self):
        bob = self.newcomer("ROOM07", "bob").start().first_run("Bob")
        alice = self.newcomer("ROOM12", "alice").start().first_run("Alice Meyer")
        self._know_each_other(alice, bob)

    def test_two_newcomers_who_start_together_know_each_other_after_one_more_round(self):
        alice = self.newcomer("ROOM12", "alice").start()
        bob = self.newcomer("ROOM07", "bob").start()
        alice.windows.wait_box().answer("OK", "Alice Meyer")
        bob.windows.wait_box().answer("OK", "Bob")
        alice.wait_up()
        bob.wait_up()
        self.all_on_all_lists(alice, bob)
        self._know_each_other(alice, bob)

    def _know_each_other(self, alice, bob):
        self.shows(alice, "Bob")
        self.shows(bob, "Alice Meyer")
        for program in (alice, bob):
            self.knows(program, b"[ROOM07\\BOB]=BOB", b"[ROOM12\\ALICE]=ALICE MEYER")

    def test_a_line_typed_in_one_window_pops_up_in_the_other(self):
        alice = self.newcomer("ROOM12", "alice").start().first_run("alice MEYER")
        bob = self.newcomer("ROOM07", "bob").start().first_run("Bob")
        self.shows(alice, "Bob")
        # A row that comes late empties the list, and takes the choice with it.
        self.wait_quiet(alice)

        self.send(alice, "Lunch at noon?", "Bob")

        popup = self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Lunch at noon?")
        self.assertRegex(popup.state["title"], r"^Alice Meyer Msg [01]\d:[0-5]\d [ap]m$")
        self.assertEqual(popup["Label3"].text, "")
        self.passing_status(alice, "Message sent to Bob")
        self.assertEqual(alice.main["messagetext"].text, "")
        self.assertTrue(alice.main["messagetext"].window_focus)
        self.no_popup(alice)

    def test_the_answer_to_a_line_goes_the_same_way(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        self.send(alice, "Lunch at noon?", "Bob")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Lunch at noon?")
        self.send(bob, "Yes!", "Alice Meyer")
        self.pops_up(alice, "Bob", "BOB> Yes!")

    def test_the_title_and_the_status_line_tell_the_name_and_the_state(self):
        alice = self.up(self.alice())
        self.status(alice, "Vexlo - Alice Meyer Listening")
        self.assertEqual(alice.main.state["title"], "Vexlo - Alice Meyer Listening")

    def test_an_empty_name_is_taken_and_the_program_runs_on(self):
        foreign = self.office.foreign_peer()
        host = self.newcomer("ROOM12", "alice")
        host.start().first_run("")
        foreign.wait_heard(b"***[ROOM12\\ALICE]=")
        self.assertIn(b"\r\n[MY NAME             ]=\r\n", host.file("settings.txt"))

    def test_a_cancelled_name_box_gives_an_empty_name(self):
        foreign = self.office.foreign_peer()
        program = self.newcomer("ROOM12", "alice").start()
        program.windows.wait_box().answer("Cancel")
        program.wait_up()
        foreign.wait_heard(b"***[ROOM12\\ALICE]=")

    def test_a_name_is_cut_at_its_comma_before_the_first_word_on_the_wire(self):
        foreign = self.office.foreign_peer()
        host = self.newcomer("ROOM12", "alice")
        program = host.start().first_run("Meyer, Alice")
        self.wait_quiet(program)
        self.assertEqual(set(text[3:] for text in foreign.texts()), {b"[ROOM12\\ALICE]=MEYER"})
        self.assertEqual(host.settings("MY NAME"), "MEYER")


class FirstContactThroughAGateway(FirstContact):
    """The same where the hosts have a default route."""

    gateway = True


class NamesOnShow(RealTest):
    def test_a_peer_who_does_not_want_to_see_itself_is_not_on_its_own_list(self):
        alice, bob = self.up(self.alice(SHOWMEINLIST="0"), self.bob())
        self.shows(bob, "Alice Meyer")
        self.sees(alice, ["Bob"])
        self.wait_quiet(alice)
        self.sees(alice, ["Bob"])

    def test_a_name_in_any_case_is_shown_with_capital_first_letters(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        foreign.introduce(b"[ROOM99\\EVE]", b"eve o'NEILL von der heide")
        self.sees(alice, ["Eve O'neill Von Der Heide"])

