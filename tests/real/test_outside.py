"""What the program leaves to the desktop: its help page, and its pages on the web."""

import urllib.parse

from desk_test import DeskTest
from on_screen import OnScreen


class Openers(OnScreen, DeskTest):
    def setUp(self):
        super().setUp()
        self.host = self.alice()
        self.opened = self.host.offer("xdg-open")
        self.program = self.host.start(screen=self.screen.display).wait_up()

    def wait_opened(self, number=1):
        def lines():
            text = self.opened.read_text() if self.opened.exists() else ""
            return text.splitlines() if text.count("\n") == number else None

        return self.wait_that("the desktop's opener", lines)

    def test_help_opens_the_page_of_the_program_folder(self):
        self.tool(self.program, "Help")
        (address,) = self.wait_opened()
        path = urllib.parse.unquote(urllib.parse.urlparse(address).path)
        self.assertEqual(path, f"{self.host.app}/help/index.html")
        with open(path, encoding="utf-8") as page:
            self.assertIn("<h1>Vexlo Instant Messaging</h1>", page.read())

    def test_the_help_button_and_the_links_open_the_pages_on_the_web(self):
        wanted = []
        for control, path in (("helpbtn", "/help"), ("Label3", "/software.shtml"), ("Label4", "/")):
            self.program.main[control].click()
            wanted.append(f"https://www.vexlo.example{path}")
            self.assertEqual(self.wait_opened(len(wanted)), wanted)

    def test_on_line_help_of_the_menu_is_the_help_button(self):
        self.tool(self.program, "On-line Help")
        self.assertEqual(self.wait_opened(), ["https://www.vexlo.example/help"])

    def test_a_desktop_without_an_opener_is_passed_over(self):
        self.opened.parent.joinpath("xdg-open").write_text("#!/bin/sh\nexit 3\n")
        self.tool(self.program, "Help")
        self.program.main["helpbtn"].click()
        self.program.windows.settle()
        self.assertTrue(self.program.running)
        self.assertEqual(self.program.boxes_shown(), [])
