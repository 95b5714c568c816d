"""Groups: made in their window, kept in their file, and written to with one click."""

import desk_files
from case import RealTest
from waiting import wait_for

ALICE, BOB, CARL = b"[ROOM12\\ALICE]", b"[ROOM07\\BOB]", b"[ROOM33\\CARL]"
PEOPLE = [ALICE + b"=ALICE MEYER", BOB + b"=BOB", CARL + b"=CARL DUNN"]


class Groups(RealTest):
    def knowing_everybody(self, **groups):
        """Alice, who has met Bob and Carl before and keeps these groups."""
        host = self.alice()
        (host.app / "users.txt").write_bytes(b"".join(row + b"\r\n" for row in PEOPLE))
        if groups:
            (host.app / "groups.txt").write_bytes(desk_files.saved_groups(**groups))
        return host

    def send_to_group(self, program, group, text):
        program.main["SSTab1"].click_tab(1)
        program.windows.settle()
        program.main["List1"].click_row(group)
        program.main["messagetext"].type(text)
        program.windows.settle()
        program.main["sendbtn"].click()

    def open_groups(self, program):
        program.main["SSTab1"].click_tab(1)
        program.windows.settle()
        program.main["configgroups"].click()
        window = program.windows["groups"]
        self.wait_that("the groups", lambda: window.visible)
        return window

    def test_a_first_start_writes_the_default_groups(self):
        host = self.newcomer("ROOM12", "alice")
        alice = host.start().first_run("Alice Meyer")
        self.assertEqual(host.file("groups.txt"), desk_files.default_groups())
        self.assertEqual(alice.main["List1"].rows, desk_files.DEFAULT_GROUPS)

    def test_each_known_member_gets_the_message_and_the_unknown_is_skipped(self):
        members = {2: ["[ROOM07\\BOB]", "[ROOM66\\GONE]", "[ROOM33\\CARL]"]}
        host = self.knowing_everybody(names=["SALES", "OFFICE"], members=members)
        alice, bob, carl = self.acquainted(host, self.bob(), self.carl())
        foreign = self.office.foreign_peer()
        self.send_to_group(alice, "OFFICE", "Cake!")
        self.pops_up(bob, "Alice Meyer", "Cake!")
        self.pops_up(carl, "Alice Meyer", "Cake!")
        self.wait_that("the empty box", lambda: alice.main["messagetext"].text == "")
        self.no_popup(alice)
        said = sorted(foreign.texts(host))
        self.assertEqual(said, [ALICE + BOB + b"Cake!", ALICE + CARL + b"Cake!"])
        self.assertIn(b"Msg to   OFFICE\t\r\nCake!\r\n---\r\n", host.file("logs/logtemp.txt"))
        self.assertNotIn("Message sent", alice.main["statustext"].text)

    def test_a_group_is_made_in_its_window_and_saved(self):
        alice, bob, carl = self.acquainted(self.knowing_everybody(), self.bob(), self.carl())
        window = self.open_groups(alice)
        window["Command2"].click()
        alice.windows.wait_box().answer("OK", "Canteen")
        self.wait_that("the row", lambda: "Canteen" in window["List1"].rows)
        window["List1"].click_row("Canteen")
        self.wait_that("the users", lambda: "CARL DUNN" in window["users"].rows)
        window["users"].click_row("CARL DUNN")
        window["Command4"].click()
        self.wait_that("the member", lambda: window["group(3)"].rows == ["CARL DUNN"])
        window["closebtn"].click()
        self.wait_that("the window to go", lambda: not window.visible)
        names = [*desk_files.DEFAULT_GROUPS, "CANTEEN"]
        saved = desk_files.saved_groups(names, {4: ["[ROOM33\\CARL]"]})
        wait_for("the file", saved, lambda: alice.host.file("groups.txt"))
        self.send_to_group(alice, "CANTEEN", "Soup")
        self.pops_up(carl, "Alice Meyer", "Soup")
        self.no_popup(bob)

    def test_cancel_brings_a_deleted_group_back(self):
        groups = {"names": ["OFFICE"], "members": {1: ["[ROOM07\\BOB]"]}}
        alice, bob = self.acquainted(self.knowing_everybody(**groups), self.bob())
        before = alice.host.file("groups.txt")
        window = self.open_groups(alice)
        window["Command3"].click()
        self.wait_that("the deletion", lambda: window["List1"].rows == [])
        self.assertEqual(alice.main["List1"].rows, ["OFFICE"])
        window["Command6"].click()
        self.wait_that("the window to go", lambda: not window.visible)
        self.assertEqual(alice.host.file("groups.txt"), before)
        self.send_to_group(alice, "OFFICE", "Still here")
        self.pops_up(bob, "Alice Meyer", "Still here")

    def test_a_member_who_is_gone_at_the_start_is_lost_at_the_next_save(self):
        groups = {"names": ["OFFICE"], "members": {1: ["[ROOM66\\GONE]", "[ROOM07\\BOB]"]}}
        host = self.knowing_everybody(**groups)
        alice = self.up(host)
        self.wait_quiet(alice)
        window = self.open_groups(alice)
        self.assertEqual(sorted(window["group(0)"].rows), ["BOB", "not found"])
        window["closebtn"].click()
        self.wait_that("the window to go", lambda: not window.visible)
        saved = desk_files.saved_groups(["OFFICE"], {1: ["[ROOM07\\BOB]", "[---]"]})
        wait_for("the file", saved, lambda: host.file("groups.txt"))
