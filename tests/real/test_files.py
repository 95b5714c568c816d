"""The files of the program folder, byte for byte."""

import settings_file
from case import RealTest
from waiting import wait_for

STAMP = rb"\d\d-\d\d-\d\d:[01]\d:[0-5]\d[ap]:"


def positions(host):
    """Where the window stands, as the file tells it; the screen decides."""
    return {key: host.settings(key) for key in ("WINPOSX", "WINPOSY")}


class SettingsFile(RealTest):
    def test_the_default_file_of_a_first_start(self):
        host = self.newcomer("ROOM12", "alice")
        # Without network the start stops at a box, before the own new row has saved everything.
        host.link_down()
        program = host.start()
        program.windows.wait_box().answer("OK", "Meyer, Alice")
        self.wait_box_reading(program, "No Network Connection.")
        values = positions(host)
        for value in values.values():
            self.assertRegex(value, r"^\d+(\.\d+)?$")
        values.update({"MY NAME": "MEYER, ALICE", "WAVESOUND": f"{host.app}/vexlo.wav"})
        self.assertEqual(host.file("settings.txt"), settings_file.default(values))

    def test_the_default_file_lives_until_the_own_row_is_met(self):
        host = self.newcomer("ROOM12", "alice")
        program = host.start().first_run("Alice Meyer")
        self.wait_quiet(program)
        values = positions(host)
        values.update({"MY NAME": "ALICE MEYER", "WAVEFILE": f"{host.app}/vexlo.wav"})
        self.assertEqual(host.file("settings.txt"), settings_file.saved(values))

    def test_a_saved_file_comes_back_as_it_was(self):
        changes = {
            "PLAYSOUND": "0", "REPLYTOALL": "1", "SHOWOWN": "1", "AUTORESPONSEMSG": "Back soon",
            "AUTORESPONSEMSG3": "Forward to: BOB", "AUTORESPONSEALLOW": "1", "SHOWMEINLIST": "0",
            "STARTWITHWINDOWS": "0", "KEEPINFRONT": "1", "MESSAGEFONTSIZE": "14",
            "USERLISTFONT": "1", "RESETPORTS": "1", "ENTERSEND": "1", "HIDEENTERSENDTIP": "1",
            "WINPOSX": "300", "WINPOSY": "450", "AUTOCHECKUSERS": "1",
        }  # fmt: skip
        host = self.alice(**changes)
        before = host.file("settings.txt")
        self.leave(self.up(host))
        self.assertEqual(host.file("settings.txt"), before)

    def test_a_comma_cuts_a_value_for_good(self):
        host = self.alice(AUTORESPONSEMSG="Back soon, call me")
        self.leave(self.up(host))
        self.assertEqual(host.settings("AUTORESPONSEMSG"), "Back soon")

    def test_a_negative_place_is_raised_to_nought(self):
        host = self.alice(WINPOSX="-200")
        self.leave(self.up(host))
        self.assertEqual(host.settings("WINPOSX"), "0")

    def test_strange_lines_are_dropped_at_the_next_save(self):
        host = self.alice()
        clean = host.file("settings.txt")
        strange = clean.replace(b"\r\nEnd", b"\r\n[COLOUR              ]=red\r\nhello\r\nEnd")
        (host.app / "settings.txt").write_bytes(strange)
        self.leave(self.up(host))
        self.assertEqual(host.file("settings.txt"), clean)

    def test_a_flag_that_is_no_number_ends_the_program_with_the_error_report(self):
        host = self.alice(SHOWOWN="yes")
        before = host.file("settings.txt")
        program = host.start()
        report = program.windows.wait_box()
        self.assertEqual(report.title, "Vexlo Instant Messaging")
        report.answer("OK")
        self.assertEqual(program.wait_end(), 1)
        self.assertEqual(host.file("settings.txt"), before)
        self.assertIn(report.text.strip(), program.errors)

    def test_a_folder_that_cannot_be_written_ends_the_program_with_the_error_report(self):
        host = self.newcomer("ROOM12", "alice")
        # A folder in the file's place refuses to be written to, even for root.
        (host.app / "users.txt").mkdir()
        program = host.start()
        program.windows.wait_box().answer("OK", "Alice Meyer")
        report = self.wait_that("the report", lambda: self._report(program))
        self.assertEqual(report.title, "Vexlo Instant Messaging")
        report.answer("OK")
        self.assertEqual(program.wait_end(), 1)

    @staticmethod
    def _report(program):
        box = program.windows.open_box()
        return box if box and box.kind == "message" else None


class UsersFile(RealTest):
    def test_rows_are_sorted_and_in_upper_case(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        foreign.introduce(b"[room99\\eve]", b"eve")
        foreign.introduce(b"[ROOM01\\ZOE]", b"ZOE")
        self.knows(
            alice, b"[ROOM01\\ZOE]=ZOE", b"[ROOM12\\ALICE]=ALICE MEYER", b"[ROOM99\\EVE]=EVE"
        )

    def test_the_row_of_all_is_neither_read_nor_written(self):
        host = self.alice()
        (host.app / "users.txt").write_bytes(
            b"[ALL]=ALL\r\n[ROOM99\\EVE]=eve\r\n[ALL]=SOMETHING\r\n"
        )
        alice = self.up(host)
        self.wait_quiet(alice)
        self.leave(alice)
        rows = host.file("users.txt").split(b"\r\n")
        self.assertEqual(rows, [b"[ROOM12\\ALICE]=ALICE MEYER", b"[ROOM99\\EVE]=EVE", b""])

    def test_a_stored_peer_is_known_but_not_on_show(self):
        host = self.alice()
        (host.app / "users.txt").write_bytes(
            b"[ROOM12\\ALICE]=ALICE MEYER\r\n[ROOM99\\EVE]=EVE\r\n"
        )
        alice = self.up(host)
        self.wait_quiet(alice)
        self.sees(alice, ["Alice Meyer"])
        foreign = self.office.foreign_peer()
        foreign.say(b"**-[ROOM99\\EVE]=EVE")
        self.sees(alice, ["Alice Meyer", "Eve"])

    def test_the_cache_is_cleared_at_a_start_where_that_is_set(self):
        host = self.alice(STARTCLEARUSERCACHE="1")
        (host.app / "users.txt").write_bytes(b"[ROOM99\\EVE]=EVE\r\n")
        alice = self.up(host)
        self.wait_quiet(alice)
        self.knows(alice, b"[ROOM12\\ALICE]=ALICE MEYER")


class LogFile(RealTest):
    def test_messages_both_ways_stand_in_the_log(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        self.send(alice, "Lunch at noon?", "Bob")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Lunch at noon?")
        start = rb"^" + STAMP + rb"Vexlo IM\.\t\r\n---\r\n"
        self.assertRegex(
            alice.host.file("logs/logtemp.txt"),
            start + STAMP + rb"Msg to   BOB\t\r\nLunch at noon\?\r\n---\r\n$",
        )
        wanted = rb"Msg from ALICE MEYER\t\r\nALICE MEYER> Lunch at noon\?\r\n---\r\n$"
        self.assertRegex(bob.host.file("logs/logtemp.txt"), start + STAMP + wanted)

    def test_a_message_to_all_is_logged_with_its_prefix(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        self.send_to_all(alice, "hear")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> (To All) hear")
        wanted = rb"Msg to   ALL\t\r\nALICE MEYER> \(To All\) hear\r\n---\r\n$"
        self.assertRegex(alice.host.file("logs/logtemp.txt"), wanted)

    def test_a_log_of_more_than_three_hundred_rows_is_rolled(self):
        host = self.alice()
        (host.app / "logs").mkdir()
        (host.app / "logs" / "logtemp.txt").write_bytes(b"row\r\n" * 300)
        self.up(host)
        wait_for("the roll", 1, lambda: len(host.logs()))
        self.assertRegex(host.logs()[0], r"^log\d{12}\.txt$")
        rolled = host.file(f"logs/{host.logs()[0]}")
        self.assertEqual(rolled.count(b"\r\nrow"), 300)
