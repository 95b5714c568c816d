"""The icon in the notification area of a real panel, which is killed and started again."""

import time
import unittest

import bus
import panel
from case import RealTest
from on_screen import OnScreen
from waiting import wait_for

ALICE = b"[ROOM12\\ALICE]"
AWAY_FROM_PANEL = (600, 600)
COMES_BACK = 15.0  # The program looks for a panel every five seconds.


class WithAScreen(OnScreen, RealTest):
    also_missing = [panel.TOOL] if panel.missing() else []

    def start_panel(self):
        started = panel.Panel(self.screen)
        self.addCleanup(started.close)
        return started

    def start(self, **settings):
        """Alice's program, up and known to nobody; and somebody who writes to her."""
        host = self.alice(**settings)
        program = host.start(screen=self.screen.display).wait_up()
        self.wait_quiet(program)
        self.foreign = self.office.foreign_peer()
        return program

    def get_message(self, program, text="look up", slot=0):
        self.foreign.say(b"[ROOM99\\EVE]" + ALICE + b"EVE> " + text.encode())
        return self.pops_up(program, "[Room99\\eve]", f"EVE> {text}", slot)

    def shows_icon(self, image, seconds=COMES_BACK):
        """Waits until the panel shows the icon with this image, and gives its place."""
        self.screen.point_at(*AWAY_FROM_PANEL)  # The pointer is part of the picture.
        return self.wait_that(
            f"the icon {image!r}", lambda: panel.place_of(image, self.screen), seconds
        )

    def has_tip(self, program, image, tip):
        """Rests the pointer on the icon, and once more, until this tip comes up."""
        place = self.shows_icon(image)
        label = program.windows["qtooltip_label"]

        def rest():
            self.screen.point_at(*AWAY_FROM_PANEL)
            time.sleep(0.3)
            self.screen.point_at(*place)
            self.screen.point_at(place[0] + 1, place[1])  # A tip wants a pointer that has moved.
            time.sleep(1.2)
            return label.visible and label.text

        wait_for("the tip", tip, rest, COMES_BACK)
        self.screen.point_at(*AWAY_FROM_PANEL)

    def hide(self, program):
        self.screen.click(program.main["spotmin"])
        self.wait_that("the window to go", lambda: not program.main.visible)

    def choose(self, program, entry, menu):
        program.windows.choose(entry, menu)
        program.windows.settle()


class Icon(WithAScreen):
    def setUp(self):
        super().setUp()
        self.panel = self.start_panel()
        self.program = self.start(AUTORESPONSEALLOW="1")

    def go_away(self):
        self.choose(self.program, "I'm away from my desk", "autores")

    def restart_panel(self):
        self.panel.kill()
        self.panel = self.start_panel()

    def test_it_sits_in_the_panel_with_the_short_tip(self):
        self.has_tip(self.program, "normal", "Vexlo IM")

    def test_messages_that_wait_change_it_until_they_are_closed(self):
        popup = self.get_message(self.program)
        self.has_tip(self.program, "waiting", "Vexlo IM")
        popup["Command1"].click()
        self.shows_icon("normal")

    def test_it_tells_who_is_away(self):
        self.shows_icon("normal")
        self.go_away()
        self.has_tip(self.program, "away", "Vexlo IM AWAY")

    def test_a_click_brings_the_hidden_window_back(self):
        place = self.shows_icon("normal")
        self.hide(self.program)
        self.screen.click_at(*place)
        self.wait_that("the window", lambda: self.program.main.visible)
        self.assertFalse(self.program.main.state["minimized"])

    def test_a_double_click_brings_the_hidden_window_back(self):
        place = self.shows_icon("normal")
        self.hide(self.program)
        self.screen.click_at(*place)
        self.screen.click_at(*place)
        self.wait_that("the window", lambda: self.program.main.visible)
        self.assertEqual(self.program.boxes_shown(), [])

    def test_a_right_click_offers_its_menu(self):
        self.get_message(self.program)
        place = self.shows_icon("waiting")
        self.screen.click_at(*place, button=3)
        entries = self.wait_that("the menu", self.program.windows.menu)
        shown = [(entry["text"], entry["enabled"]) for entry in entries if entry["visible"]]
        self.assertEqual(
            shown,
            [
                ("Close all popups", True),
                ("Recall last popup", False),
                ("Enable Auto Respond", True),
            ],
        )
        self.program.windows.choose("Close all popups")
        self.shows_icon("normal")
        self.assertEqual(self.program.windows.popups(), [])

    def test_its_menu_works_behind_an_open_box(self):
        self.get_message(self.program)
        place = self.shows_icon("waiting")
        self.screen.click(self.program.main["spotx"])
        self.program.windows.wait_box()
        self.screen.click_at(*place, button=3)
        self.wait_that("the menu", self.program.windows.menu)
        self.screen.press("Down")
        self.screen.press("Return")
        self.shows_icon("normal")
        self.program.windows.wait_box().answer("Cancel")
        self.program.windows.wait_no_box()
        self.assertEqual(self.program.windows.popups(), [])

    def test_it_comes_back_into_a_panel_that_starts_again(self):
        self.shows_icon("normal")
        self.restart_panel()
        self.has_tip(self.program, "normal", "Vexlo Instant Messaging")

    def test_it_comes_back_away_for_who_is_away(self):
        self.go_away()
        self.shows_icon("away")
        self.restart_panel()
        self.has_tip(self.program, "away", "Vexlo IM AWAY")

    def test_messages_that_wait_win_in_the_new_panel(self):
        self.get_message(self.program)
        self.go_away()
        self.shows_icon("away")
        self.restart_panel()
        self.has_tip(self.program, "waiting", "Vexlo IM")

    def test_a_panel_that_is_long_gone_gets_it_back_too(self):
        self.get_message(self.program)
        self.go_away()
        self.panel.kill()
        self.hidden_window_stays_in_task_bar()
        self.start_panel()
        self.shows_icon("waiting")
        self.wait_that("the window to go", lambda: not self.program.main.visible, COMES_BACK)

    def hidden_window_stays_in_task_bar(self):
        main = self.program.main
        self.hide(self.program)
        self.wait_that(
            "the window in the task bar",
            lambda: main.visible and main.state["minimized"],
            COMES_BACK,
        )

    def test_the_program_goes_on_without_its_panel(self):
        self.panel.kill()
        self.get_message(self.program, "first")
        self.get_message(self.program, "second", slot=1)
        self.assertTrue(self.program.running)

    def test_it_goes_with_the_program(self):
        self.shows_icon("normal")
        self.leave(self.program)
        self.wait_that("the icon to go", lambda: not panel.place_of("normal", self.screen))


class Starting(WithAScreen):
    def test_a_hidden_start_lives_in_the_panel_and_a_message_pops_up(self):
        self.start_panel()
        alice = self.alice().start("/m", screen=self.screen.display)
        self.shows_icon("normal", 30.0)
        self.wait_that("the end of the start", lambda: not alice.main.visible)
        self.wait_that("the splash to go", lambda: "loading" not in alice.windows.visible())
        self.foreign = self.office.foreign_peer()
        popup = self.get_message(alice)
        title = popup.state["title"]
        self.wait_that("the popup on the screen", lambda: title in self.screen.titles())
        self.shows_icon("waiting")
        self.assertFalse(alice.main.visible)

    def test_a_click_while_it_asks_for_the_name_tells_how_far_it_is(self):
        self.start_panel()
        program = self.newcomer("ROOM12", "alice").start(screen=self.screen.display)
        name_box = program.windows.wait_box(30.0)
        place = self.shows_icon("normal")
        self.screen.click_at(*place)
        self.wait_box_reading(program, "30").answer("OK")
        self.wait_box_reading(program, name_box.text).answer("OK", "Alice Meyer")
        program.wait_up()


@unittest.skipIf(bus.missing(), f"missing here: {bus.TOOL}")
class WithABus(WithAScreen):
    """A desktop's session bus, on which nobody takes tray icons: the panel does it the old way."""

    def test_the_icon_sits_in_the_panel(self):
        self.start_panel()
        self.start()
        self.shows_icon("normal")

    def test_a_bus_that_dies_takes_nothing_with_it(self):
        self.start_panel()
        alice = self.start()
        self.shows_icon("normal")
        self.bus.kill()
        self.get_message(alice)
        self.shows_icon("waiting")
        self.assertTrue(alice.running)

    def alice(self, **settings):
        host = super().alice(**settings)
        self.bus = bus.Bus()
        self.addCleanup(self.bus.close)
        host.more_environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus.address
        return host


class NoPanel(WithAScreen):
    def test_the_hidden_window_stays_in_the_task_bar(self):
        alice = self.start()
        self.wait_that("some seconds", lambda: self.hidden_in_task_bar(alice), COMES_BACK)
        self.assertEqual(alice.windows.timer("Timer1")["active"], True)

    def hidden_in_task_bar(self, alice):
        if alice.main.visible and not alice.main.state["minimized"]:
            self.screen.click(alice.main["spotmin"])
        return alice.main.visible and alice.main.state["minimized"]

    def test_who_takes_it_from_the_task_bar_has_it_back(self):
        alice = self.start()
        self.wait_that("some seconds", lambda: self.hidden_in_task_bar(alice), COMES_BACK)
        title = alice.main.state["title"]
        self.screen.activate(title)
        self.wait_that("the window", lambda: not alice.main.state["minimized"])
        self.foreign.all_within(6.0)  # Longer than the watch needs to come round.
        self.assertTrue(alice.main.visible)
        self.assertFalse(alice.main.state["minimized"])

    def test_a_hidden_start_stays_in_the_task_bar(self):
        alice = self.alice().start("/m", screen=self.screen.display)
        self.wait_that(
            "the window in the task bar",
            lambda: alice.main.visible and alice.main.state["minimized"],
            30.0,
        )

    def test_a_panel_that_comes_late_gets_the_icon(self):
        alice = self.start()
        self.start_panel()
        place = self.shows_icon("normal")
        self.hide(alice)
        self.screen.click_at(*place)
        self.wait_that("the window", lambda: alice.main.visible)
