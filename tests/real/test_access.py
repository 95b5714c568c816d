"""What a screen reader is told of every window of the real program, over the desktop's own bus."""

import bus
import reader
from case import RealTest
from on_screen import OnScreen
from waiting import NotYet

ALICE = b"[ROOM12\\ALICE]"
TABS = ("General ", "Send Buttons", "Response Buttons ", "Auto Resp ", "Admin")
CONTROLS = {
    "push button", "check box", "text", "list", "list box", "combo box", "page tab", "page tab list",
    "tree", "table", "tree table", "menu item", "label",
}  # fmt: skip


class ScreenReader(OnScreen, RealTest):
    also_missing = reader.missing() + ([bus.TOOL] if bus.missing() else [])

    def setUp(self):
        super().setUp()
        self.bus = bus.Bus(self.screen.display)
        self.addCleanup(self.bus.close)
        host = self.alice(AUTORESPONSEALLOW=1)
        host.more_environment.update(
            DBUS_SESSION_BUS_ADDRESS=self.bus.address, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1"
        )
        self.program = host.start(screen=self.screen.display).wait_up()
        self.wait_quiet(self.program)

    def window(self, title):
        """What is told of the window with this title, once there is one."""

        def found():
            for told in reader.parts(reader.walk(self.bus)):
                if told["role"] in ("frame", "dialog") and told["name"] == title:
                    return told
            raise NotYet(f"no window {title!r}")

        return self.wait_that(f"{title!r} on the bus", found, 20.0)

    def expect_told(self, title, *names):
        """Each control on show has a name and a role; these names are among them."""
        told = self.window(title)
        shown = [part for part in reader.parts(told) if "showing" in part["states"]]
        self.assertEqual([part for part in shown if not part["role"]], [], title)
        for part in shown:
            if "focusable" in part["states"] and part["role"] in CONTROLS:
                self.assertTrue(part["name"], f"{title}: {part['role']} without a name")
        self.assertLessEqual(set(names), {part["name"] for part in shown}, title)

    def tool(self, entry):
        self.program.main["options"].click()
        self.program.windows.settle()
        self.program.windows.choose(entry, "toolsmenu")

    def open(self, entry, name):
        self.tool(entry)
        window = self.program.windows[name]
        self.wait_that(f"the window {name}", lambda: window.visible)
        return window

    def test_is_told_every_control_of_the_main_window(self):
        title = self.program.main.state["title"]
        self.expect_told(title, "Users", "Send to All Users", "Message", "Send message", "Call on 1")
        self.program.main["SSTab1"].click_tab(1)
        self.expect_told(title, "Groups", "Config Grps")

    def test_is_told_every_control_of_a_message(self):
        foreign = self.office.foreign_peer()
        foreign.say(b"[ROOM99\\EVE]" + ALICE + b"EVE> look up")
        popup = self.pops_up(self.program, "[Room99\\eve]", "EVE> look up")
        self.expect_told(
            popup.state["title"], "Message", "Response", "Send", "Close", "Forward", "Save / Print"
        )

    def test_is_told_every_control_of_history_log_and_groups(self):
        self.program.main["history"].click()
        self.expect_told("Vexlo History", "Messages", "Options", "Search logs", "Close")
        self.open("View Logs", "log")
        self.expect_told("Vexlo IM Log", "Log", "Selected row", "Open Log Dir", "Save and Clear")
        self.open("Configure Groups", "groups")
        self.expect_told("Configure Groups", "Groups", "Available Users", "New Group", "Save")

    def test_is_told_every_control_of_the_settings_tab_by_tab(self):
        window = self.open("Change Settings", "settings")
        for number, tab in enumerate(TABS):
            window["SSTab1"].click_tab(number)
            self.expect_told("Vexlo Instant Messaging - Settings", tab, "Save", "Cancel")
