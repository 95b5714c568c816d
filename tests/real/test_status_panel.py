"""The icon in a panel that is told of icons over the session bus, killed and started again."""

import bus
import status_panel
from case import RealTest
from on_screen import OnScreen
from waiting import wait_for

ALICE = b"[ROOM12\\ALICE]"
COMES_BACK = 15.0


class StatusIcon(OnScreen, RealTest):
    also_missing = status_panel.missing_tools()

    def setUp(self):
        super().setUp()
        self.bus = bus.Bus()
        self.addCleanup(self.bus.close)
        self.host = self.alice(AUTORESPONSEALLOW="1")
        self.host.more_environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus.address
        self.start_panel()
        self.program = self.host.start(screen=self.screen.display).wait_up()
        self.wait_quiet(self.program)

    def start_panel(self):
        self.panel = status_panel.StatusPanel(self.screen, self.bus, self.host.home)
        self.addCleanup(self.panel.close)

    def has_icon(self, image, tip):
        wait_for("the icon", (image, tip), self.seen, COMES_BACK)

    def seen(self):
        return self.panel.image(), self.panel.tip()

    def get_message(self):
        foreign = self.office.foreign_peer()
        foreign.say(b"[ROOM99\\EVE]" + ALICE + b"EVE> look up")
        return self.pops_up(self.program, "[Room99\\eve]", "EVE> look up")

    def go_away(self):
        self.program.windows.choose("I'm away from my desk", "autores")
        self.program.windows.settle()

    def hide(self):
        self.screen.click(self.program.main["spotmin"])
        self.wait_that("the window to go", lambda: not self.program.main.visible)

    def test_it_tells_the_states_of_the_program(self):
        self.has_icon("normal", "Vexlo IM")
        popup = self.get_message()
        self.has_icon("waiting", "Vexlo IM")
        self.go_away()
        self.has_icon("away", "Vexlo IM AWAY")
        popup["Command1"].click()
        self.has_icon("normal", "Vexlo IM")

    def test_a_press_brings_the_hidden_window_back(self):
        self.has_icon("normal", "Vexlo IM")
        self.hide()
        self.panel.press()
        self.wait_that("the window", lambda: self.program.main.visible)
        self.assertFalse(self.program.main.state["minimized"])

    def test_messages_that_wait_win_in_a_panel_that_starts_again(self):
        self.get_message()
        self.go_away()
        self.has_icon("away", "Vexlo IM AWAY")
        self.panel.kill()
        self.start_panel()
        self.has_icon("waiting", "Vexlo IM")

    def test_a_hidden_window_waits_in_the_task_bar_while_the_panel_is_gone(self):
        main = self.program.main
        self.has_icon("normal", "Vexlo IM")
        self.hide()
        self.panel.kill()
        self.wait_that(
            "the window in the task bar",
            lambda: main.visible and main.state["minimized"],
            COMES_BACK,
        )
        self.start_panel()
        self.has_icon("normal", "Vexlo Instant Messaging")
        self.wait_that("the window to go", lambda: not main.visible, COMES_BACK)
