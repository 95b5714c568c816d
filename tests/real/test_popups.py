"""The ten popups: which one a message takes, and how they give their places back."""

from case import RealTest

ALICE = b"[ROOM12\\ALICE]"
EVE = b"[ROOM99\\EVE]"


class Popups(RealTest):
    def setUp(self):
        super().setUp()
        self.program = self.up(self.alice())
        self.wait_quiet(self.program)
        self.foreign = self.office.foreign_peer()

    def receive(self, *texts):
        for text in texts:
            self.foreign.say(EVE + ALICE + text.encode("ascii"))
        self.wait_quiet(self.program)

    def shows(self, slot, text):
        self.pops_up(self.program, "[Room99\\eve]", text, slot)

    def close(self, slot):
        self.program.windows[f"popup{slot}"]["Command1"].click()
        popup = self.program.windows[f"popup{slot}"]
        self.wait_that("the popup to close", lambda: not popup.visible)

    def test_each_message_takes_the_lowest_free_popup(self):
        self.receive("a", "b", "c")
        self.close(1)
        self.receive("d")
        for slot, text in enumerate(["a", "d", "c"]):
            self.shows(slot, text)

    def test_the_eleventh_message_takes_the_place_of_the_oldest(self):
        self.receive(*[f"number {number}" for number in range(11)])
        self.assertEqual(len(self.program.windows.popups()), 10)
        self.shows(0, "number 10")
        for slot in range(1, 10):
            self.shows(slot, f"number {slot}")

    def test_a_popup_taken_over_keeps_its_note_of_all(self):
        self.foreign.say(EVE + b"[ALL]to all")
        self.receive(*[f"number {number}" for number in range(1, 11)])
        self.shows(0, "number 10")
        self.assertEqual(self.program.windows["popup0"]["Label3"].text, "(Sent to ALL)")

    def test_all_are_closed_at_once_and_the_first_is_taken_next(self):
        self.receive("a", "b", "c")
        self.program.main["dissmissall"].click()
        self.wait_that("all to close", lambda: not self.program.windows.popups())
        self.receive("next")
        self.shows(0, "next")

    def test_closing_all_is_offered_from_the_first_message_on(self):
        self.assertFalse(self.program.main["dissmissall"].enabled)
        self.receive("a")
        self.assertTrue(self.program.main["dissmissall"].enabled)
        self.close(0)
        self.assertTrue(self.program.main["dissmissall"].enabled)

    def test_a_closed_popup_comes_back_empty_of_its_old_note(self):
        self.foreign.say(EVE + b"[ALL]to all")
        self.wait_quiet(self.program)
        self.close(0)
        self.receive("to me")
        self.assertEqual(self.program.windows["popup0"]["Label3"].text, "")

    def test_the_recall_button_shows_nothing_where_nothing_was_recalled(self):
        self.receive("a")
        self.close(0)
        self.program.main["recall"].click()
        self.program.windows.settle()
        self.assertEqual(self.program.windows.popups(), [])
