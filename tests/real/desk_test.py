"""What the tests of the desk's windows have in common: ways in, and ways to change things."""

import desk_files
from case import RealTest
from waiting import wait_for

GENERAL, SEND_BUTTONS, RESPONSES, AUTO_RESPOND, ADMIN = range(5)


class DeskTest(RealTest):
    """A test that goes through the tools menu and the settings window."""

    def tool(self, program, entry):
        program.main["options"].click()
        program.windows.settle()
        program.windows.choose(entry, "toolsmenu")

    def open_settings(self, program, tab=GENERAL):
        self.tool(program, "Change Settings")
        window = program.windows["settings"]
        self.wait_that("the settings", lambda: window.visible)
        self.turn_to(program, tab)
        return window

    def turn_to(self, program, tab):
        program.windows["settings"]["SSTab1"].click_tab(tab)
        program.windows.settle()

    def close_settings(self, program, button):
        window = program.windows["settings"]
        window[button].click()
        self.wait_that("the settings to go", lambda: not window.visible)

    def type_over(self, control, text):
        """Marks what stands there and types over it."""
        control.click()
        control.press("A", "ctrl")
        control.press("Del")
        control.type(text)
        self.wait_that(f"{text!r} in its box", lambda: control.text == text)

    def tick(self, window, *names):
        """Clicks check boxes, and waits until each has changed."""
        for name in names:
            before = window[name].checked
            window[name].click()
            wait_for(f"the tick of {name}", not before, lambda: window[name].checked)

    def log_of(self, host):
        return host.file("logs/logtemp.txt")

    def default_files_stand(self, host):
        self.assertEqual(host.file("buttons.txt"), desk_files.default_buttons())
        self.assertEqual(host.file("groups.txt"), desk_files.default_groups())
