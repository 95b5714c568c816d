"""The update check, against a real web host on the segment, or against none."""

import time

from desk_test import DeskTest
from on_screen import OnScreen
from waiting import wait_for
from web import Page, WebHost

ALICE = b"[ROOM12\\ALICE]"
NAME = "update.vexlo.example"
VERSION, NEWS = "/vexloimversion.htm", "/vexloimwhatsnew.htm"
RULE = "-" * 72
UNABLE = "Unable to connect to Server at this Time.\nTry again later."
LATEST = "Vexlo IM v1.5.3\nThis is the latest Version."
END = (
    "\n(Note: This version will close before installing a newer version)"
    "\n\nWould you like to download now?"
)


def offer(version, news=""):
    """The text of the box that offers a newer version."""
    head = f"This is version 1.5.3\nAn UPDATED version ({version}) is available!\n\n"
    if news:
        head += f"{RULE}\nWhat's NEW in version {version}?\n\n{news}\n{RULE}\n"
    return head + END


class UpdateTest(DeskTest):
    def served(self, pages):
        """Alice, who finds the update host, and that host."""
        web = WebHost(self.office.host("WEB", "www"), pages)
        self.office.on_close(web.close)
        host = self.alice()
        host.know(NAME, web.address)
        return host, web

    def checking(self, host, **how):
        """Starts the program and lets it look for an update; gives it and the box that comes."""
        alice = host.start(**how).wait_up()
        self.wait_quiet(alice)
        self.tool(alice, "Check for Updates")
        return alice, alice.windows.wait_box(30.0)

    def goes_on(self, alice):
        """The box is answered, nothing is left behind, and messages arrive as before."""
        alice.windows.wait_no_box()
        self.assertEqual(list((alice.host.home / "tmp").iterdir()), [])
        foreign = self.office.foreign_peer()
        foreign.say(b"[ROOM99\\EVE]" + ALICE + b"EVE> still there?")
        self.pops_up(alice, "[Room99\\eve]", "EVE> still there?")

    def ends_with_report(self, alice, box, text):
        self.assertEqual((box.title, box.text), ("Vexlo Instant Messaging", text))
        box.answer("OK")
        self.assertEqual(alice.wait_end(), 1)
        self.assertIn(text, alice.errors)


class Updates(UpdateTest):
    def told_and_left(self, pages, text, asked):
        """One box says so, it is answered, and the program goes on."""
        host, web = self.served(pages)
        alice, box = self.checking(host)
        self.assertEqual(box.text, text)
        box.answer("OK")
        self.goes_on(alice)
        self.assertEqual(web.asked, asked)
        return box

    def test_the_same_version_is_the_latest(self):
        pages = {VERSION: Page("1.5.3"), NEWS: Page("old")}
        box = self.told_and_left(pages, LATEST, [VERSION, NEWS])
        self.assertEqual(box.title, "Vexlo IM Updater")

    def test_an_older_version_is_no_update(self):
        self.told_and_left({VERSION: Page("1.4.99"), NEWS: Page("")}, LATEST, [VERSION, NEWS])

    def test_a_missing_version_page_is_no_connection_and_no_news_are_asked_for(self):
        self.told_and_left({NEWS: Page("news")}, UNABLE, [VERSION])

    def test_a_connection_that_is_cut_is_none(self):
        self.told_and_left({VERSION: Page("1.5.4", cut=True)}, UNABLE, [VERSION])

    def test_a_name_that_nobody_knows_is_no_connection(self):
        alice, box = self.checking(self.alice())
        self.assertEqual(box.text, UNABLE)
        box.answer("OK")
        self.goes_on(alice)

    def test_a_host_that_serves_nothing_is_no_connection(self):
        silent = self.office.host("WEB", "www")
        host = self.alice()
        host.know(NAME, silent.address)
        alice, box = self.checking(host)
        self.assertEqual(box.text, UNABLE)
        box.answer("OK")
        self.goes_on(alice)

    def offered(self, version, news, text):
        host, _ = self.served({VERSION: Page(version), NEWS: Page(news)})
        alice, box = self.checking(host)
        self.assertEqual(box.title, "Vexlo Instant Messaging Updater")
        self.assertEqual(box.text, text)
        self.assertEqual(box.buttons, ["Yes", "No"])
        box.answer("No")
        self.goes_on(alice)

    def test_a_newer_version_is_offered_with_its_news(self):
        self.offered("1.5.4~beta", "faster~smaller", offer("1.5.4", "faster\nsmaller"))

    def test_without_news_their_block_is_left_out(self):
        self.offered("1.6.0", "", offer("1.6.0"))

    def test_the_version_is_quoted_as_it_stands_with_its_line_end(self):
        self.offered("2.0.0\n", "", offer("2.0.0\n"))

    def test_missing_news_end_the_program_with_the_error_report(self):
        host, web = self.served({VERSION: Page("1.5.4")})
        alice, box = self.checking(host)
        self.ends_with_report(alice, box, "File not found")
        self.assertEqual(web.asked, [VERSION, NEWS])

    def test_an_error_page_that_says_all_is_well_is_taken_for_a_version(self):
        page = Page("<html><title>Sorry</title>moved</html>")
        host, _ = self.served({VERSION: page, NEWS: page})
        alice, box = self.checking(host)
        self.ends_with_report(alice, box, "Invalid procedure call or argument")

    def test_a_message_that_comes_behind_the_box_pops_up_after_it(self):
        host, _ = self.served({VERSION: Page("1.5.3"), NEWS: Page("")})
        alice, box = self.checking(host)
        foreign = self.office.foreign_peer()
        foreign.say(b"[ROOM99\\EVE]" + ALICE + b"EVE> psst")
        foreign.all_within(1.0)
        self.assertEqual(alice.windows.popups(), [])
        box.answer("OK")
        self.pops_up(alice, "[Room99\\eve]", "EVE> psst")


class OnAScreen(OnScreen, UpdateTest):
    def test_keyboard_and_mouse_are_dead_while_the_pages_are_fetched(self):
        page = Page("1.5.3")
        page.free.clear()
        host, web = self.served({VERSION: page, NEWS: Page("")})
        alice = host.start(screen=self.screen.display).wait_up()
        self.wait_quiet(alice)
        draft = alice.main["messagetext"]
        self.screen.click(draft)
        self.screen.type("before")
        wait_for("the keys", "before", lambda: draft.text)
        self.tool(alice, "Check for Updates")
        self.wait_that("the request", lambda: web.asked)
        self.screen.click(draft)
        self.screen.type("during")
        time.sleep(0.5)
        self.assertEqual(draft.text, "before")
        page.free.set()
        alice.windows.wait_box(30.0).answer("OK")
        self.goes_on(alice)
        self.screen.click(draft)
        self.screen.type("after")
        self.wait_that("the keys again", lambda: draft.text.endswith("after"))

    def test_yes_hands_the_installer_to_the_browser_and_ends_without_a_sign_off(self):
        host, _ = self.served({VERSION: Page("1.5.4"), NEWS: Page("faster")})
        opened = host.offer("xdg-open")
        (host.app / "users.txt").write_bytes(b"[ROOM66\\DAN]=DAN\r\n[ALL]=ALL\r\n")
        alice, box = self.checking(host, screen=self.screen.display)
        foreign = self.office.foreign_peer()
        box.answer("Yes")
        self.wait_box_reading(alice, "This program will close now.").answer("OK")
        self.assertEqual(alice.wait_end(), 0, alice.errors)
        self.wait_that("the browser", opened.exists)
        self.assertEqual(opened.read_text(), f"http://{NAME}/vexlo_setup.exe\n")
        self.assertEqual(foreign.texts(host), [])
        self.knows(alice, ALICE + b"=ALICE MEYER", b"[ROOM66\\DAN]=DAN")
