"""Three people: what reaches whom."""

from case import RealTest

EVERYBODY = ["Alice Meyer", "Bob", "Carl Dunn"]


class ThreePeers(RealTest):
    def setUp(self):
        super().setUp()
        self.peers = self.acquainted(self.alice(), self.bob(), self.carl())

    def test_all_know_all(self):
        for program in self.peers:
            self.sees(program, EVERYBODY)
            self.knows(
                program,
                b"[ROOM07\\BOB]=BOB",
                b"[ROOM12\\ALICE]=ALICE MEYER",
                b"[ROOM33\\CARL]=CARL DUNN",
            )

    def test_a_direct_message_reaches_only_its_addressee(self):
        alice, bob, carl = self.peers
        self.send(alice, "only for Bob", "Bob")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> only for Bob")
        self.no_popup(alice, carl)
        self.assertNotIn(b"only for Bob", carl.host.file("logs/logtemp.txt"))

    def test_a_message_to_all_reaches_all_others(self):
        alice, bob, carl = self.peers
        self.send_to_all(alice, "Server restarts at 5")
        for program in (bob, carl):
            text = "ALICE MEYER> (To All) Server restarts at 5"
            popup = self.pops_up(program, "Alice Meyer", text)
            self.assertEqual(popup["Label3"].text, "(Sent to ALL)")
        self.no_popup(alice)
        self.passing_status(alice, "Message sent to ALL")

    def test_sending_to_all_is_for_one_message(self):
        alice, bob, _ = self.peers
        alice.main["Checkallusers"].click()
        alice.windows.settle()
        self.assertFalse(alice.main["allusers"].enabled)
        alice.main["messagetext"].type("once")
        alice.windows.settle()
        alice.main["sendbtn"].click()
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> (To All) once")
        self.assertFalse(alice.main["Checkallusers"].checked)
        self.assertTrue(alice.main["allusers"].enabled)

    def test_a_message_to_two_is_two_messages_and_a_comma_too_many(self):
        alice, bob, carl = self.peers
        foreign = self.office.foreign_peer()
        self.send(alice, "Meeting", "Bob", "Carl Dunn")
        self.passing_status(alice, "Message sent to , Bob, Carl Dunn")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Meeting")
        self.pops_up(carl, "Alice Meyer", "ALICE MEYER> Meeting")
        self.assertEqual(
            foreign.texts(),
            [
                b"[ROOM12\\ALICE][ROOM07\\BOB]ALICE MEYER> Meeting",
                b"[ROOM12\\ALICE][ROOM33\\CARL]ALICE MEYER> Meeting",
            ],
        )

    def test_a_message_to_oneself_is_sent_and_dropped(self):
        alice, bob, carl = self.peers
        self.send(alice, "note to me", "Alice Meyer")
        self.passing_status(alice, "Message sent to Alice Meyer")
        self.no_popup(alice, bob, carl)

    def test_nothing_is_sent_where_nobody_is_selected(self):
        alice, bob, carl = self.peers
        foreign = self.office.foreign_peer()
        alice.main["messagetext"].type("to nobody")
        alice.windows.settle()
        alice.main["sendbtn"].click()
        self.assertEqual(foreign.all_within(1.0), [])
        self.assertEqual(alice.main["messagetext"].text, "to nobody")
        self.no_popup(bob, carl)

    def test_an_empty_draft_sends_nothing(self):
        alice = self.peers[0]
        foreign = self.office.foreign_peer()
        alice.main["allusers"].click_row("Bob")
        alice.main["sendbtn"].click()
        self.assertEqual(foreign.all_within(1.0), [])


class ToAllAndToMyself(RealTest):
    def test_who_wants_it_sees_the_own_message_to_all(self):
        alice, bob = self.acquainted(self.alice(SHOWOWN="1"), self.bob())
        self.send_to_all(alice, "fire drill")
        text = "ALICE MEYER> (To All) fire drill"
        self.pops_up(bob, "Alice Meyer", text)
        self.pops_up(alice, "Alice Meyer", text)


class TheEnterKey(RealTest):
    def test_ctrl_enter_sends_and_leaves_half_of_its_line_end(self):
        alice, _ = self.acquainted(self.alice(), self.bob())
        foreign = self.office.foreign_peer()
        self.assertEqual(alice.main["entlabel1"].text, "Press Ctrl+Enter to Send")
        alice.main["allusers"].click_row("Bob")
        alice.main["messagetext"].type("by key")
        alice.main["messagetext"].press("Return", "ctrl")
        self.passing_status(alice, "Message sent to Bob")
        self.assertEqual(
            foreign.texts(), [b"[ROOM12\\ALICE][ROOM07\\BOB]ALICE MEYER> by key\r"]
        )

    def test_enter_alone_makes_a_new_line(self):
        alice, _ = self.acquainted(self.alice(), self.bob())
        foreign = self.office.foreign_peer()
        alice.main["allusers"].click_row("Bob")
        alice.main["messagetext"].type("one\ntwo")
        alice.windows.settle()
        self.assertEqual(foreign.all_within(0.5), [])
        alice.main["sendbtn"].click()
        self.passing_status(alice, "Message sent to Bob")
        self.assertEqual(
            foreign.texts(), [b"[ROOM12\\ALICE][ROOM07\\BOB]ALICE MEYER> one\r\ntwo"]
        )

    def test_enter_sends_where_that_is_set(self):
        alice, _ = self.acquainted(self.alice(ENTERSEND="1"), self.bob())
        foreign = self.office.foreign_peer()
        self.assertEqual(alice.main["entlabel1"].text, "Press Enter to Send")
        self.assertEqual(alice.main["entlabel2"].text, "Ctrl+Enter for new line")
        alice.main["allusers"].click_row("Bob")
        alice.main["messagetext"].type("quick\n")
        self.passing_status(alice, "Message sent to Bob")
        self.assertEqual(foreign.texts(), [b"[ROOM12\\ALICE][ROOM07\\BOB]ALICE MEYER> quick\r"])

    def test_keys_are_dead_while_nobody_is_clicked(self):
        alice, _ = self.acquainted(self.alice(ENTERSEND="1"), self.bob())
        foreign = self.office.foreign_peer()
        alice.main["Checkallusers"].click()
        alice.main["messagetext"].type("to all?\n")
        alice.windows.settle()
        self.assertEqual(foreign.all_within(0.5), [])
        self.assertIn("to all?", alice.main["messagetext"].text)


class TheLengthOfADraft(RealTest):
    def test_the_971st_character_is_warned_of_and_cut(self):
        alice, _ = self.acquainted(self.alice(), self.bob())
        foreign = self.office.foreign_peer()
        alice.main["allusers"].click_row("Bob")
        alice.main["messagetext"].type("x" * 970)
        alice.windows.settle()
        self.assertFalse(alice.main["Label5"].visible)
        alice.main["messagetext"].type("y")
        alice.windows.settle()
        self.assertTrue(alice.main["Label5"].visible)
        self.assertEqual(alice.main["Label5"].text, "Message length exceeded")
        alice.main["sendbtn"].click()
        self.passing_status(alice, "Message sent to Bob")
        sent = b"[ROOM12\\ALICE][ROOM07\\BOB]ALICE MEYER> " + b"x" * 970
        self.assertEqual(foreign.texts(), [sent])
        self.assertFalse(alice.main["Label5"].visible)
