"""The same on a screen, with a window manager, a mouse and a keyboard that are not ours."""

from case import RealTest
from on_screen import OnScreen
from waiting import wait_for

ALICE = b"[ROOM12\\ALICE]"


class OnAScreen(OnScreen, RealTest):
    def on_screen(self, host):
        return host.start(screen=self.screen.display)

    def test_a_person_types_a_line_and_it_pops_up_on_the_other_screen(self):
        bob = self.up(self.bob())
        alice = self.on_screen(self.alice()).wait_up()
        self.all_on_all_lists(alice, bob)
        users = alice.main["allusers"]
        self.screen.click_row(users, "Bob")
        wait_for("the click", [users.rows.index("Bob")], lambda: users.selected)
        self.screen.click(alice.main["messagetext"])
        self.screen.type("Lunch at noon?")
        text = alice.main["messagetext"]
        wait_for("the keys", "Lunch at noon?", lambda: text.text)
        self.screen.click(alice.main["sendbtn"])
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Lunch at noon?")
        self.passing_status(alice, "Message sent to Bob")

    def test_a_message_pops_up_in_a_window_of_its_own(self):
        alice = self.on_screen(self.alice()).wait_up()
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        foreign.say(b"[ROOM99\\EVE]" + ALICE + b"EVE> look up")
        popup = self.pops_up(alice, "[Room99\\eve]", "EVE> look up")
        title = popup.state["title"]
        self.wait_that("the popup on the screen", lambda: title in self.screen.titles())
        self.screen.click(popup["Command1"])
        self.wait_that("the popup to go", lambda: title not in self.screen.titles())
        self.assertFalse(popup.visible)

    def test_the_name_is_asked_for_and_typed(self):
        foreign = self.office.foreign_peer()
        program = self.on_screen(self.newcomer("ROOM12", "alice"))
        box = program.windows.wait_box()
        self.wait_that("the box on the screen", lambda: box.title in self.screen.titles())
        self.wait_that("its keyboard", lambda: self.screen.active_title() == box.title)
        self.screen.press("ctrl+a")
        self.screen.type("Alice Meyer")
        self.screen.press("Return")
        program.wait_up()
        foreign.wait_heard(b"***" + ALICE + b"=ALICE MEYER")

    def test_a_hidden_start_shows_no_window(self):
        foreign = self.office.foreign_peer()
        program = self.on_screen_hidden(self.alice())
        foreign.wait_heard(b"***" + ALICE + b"=ALICE MEYER", seconds=30.0)
        self.wait_quiet(program)
        titles = self.screen.titles  # What is seen for a moment may be about to go.
        self.wait_that("an empty screen", lambda: not [each for each in titles() if "Vexlo" in each])

    def on_screen_hidden(self, host):
        return host.start("/m", screen=self.screen.display)

    def test_the_close_spot_asks_and_the_answer_ends_the_program(self):
        alice = self.on_screen(self.alice()).wait_up()
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        self.screen.click(alice.main["spotx"])
        box = alice.windows.wait_box()
        self.wait_that("the box on the screen", lambda: box.title in self.screen.titles())
        box.answer("No")
        self.assertEqual(alice.wait_end(), 0)
        foreign.wait_heard(b"-**" + ALICE + b"=ALICE MEYER")

    def test_closing_the_window_by_the_window_manager_ends_nothing(self):
        alice = self.on_screen(self.alice()).wait_up()
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        self.screen.click(alice.main["messagetext"])
        self.wait_that("the keyboard", lambda: alice.main.state["active"])
        self.screen.press("alt+F4")
        foreign.announce(b"[ROOM99\\EVE]", b"EVE")
        foreign.wait_heard(b"**-" + ALICE + b"=ALICE MEYER")
        self.assertTrue(alice.running)
