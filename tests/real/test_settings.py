"""The settings window: every tab, what is kept, what is forgotten, and what acts at once."""

import wave

import desk_files
import settings_file
from case import plain
from desk_test import ADMIN, AUTO_RESPOND, RESPONSES, SEND_BUTTONS, DeskTest
from waiting import wait_for

ALICE, BOB = b"[ROOM12\\ALICE]", b"[ROOM07\\BOB]"

FLAGS = {
    "soundon": "PLAYSOUND",
    "replytoall": "REPLYTOALL",
    "myown": "SHOWOWN",
    "showme": "SHOWMEINLIST",
    "autostartup": "STARTWITHWINDOWS",
    "ontop": "KEEPINFRONT",
    "startminimized": "MINIMIZEONSTART",
    "userlistfont": "USERLISTFONT",
    "startclearusers": "STARTCLEARUSERCACHE",
    "resetports": "RESETPORTS",
    "entersend": "ENTERSEND",
    "hidetip": "HIDEENTERSENDTIP",
    "autocheckusers": "AUTOCHECKUSERS",
}
FRESH = dict(settings_file.SAVED_ORDER)


def other(flag):
    """The other value of a flag than a fresh program has."""
    return "0" if FRESH[flag] == "1" else "1"


class SettingsTour(DeskTest):
    def sound(self, host, name):
        """A short wave file of the user's, in the folder that the dialog shows first."""
        with wave.open(str(host.app / name), "wb") as sound:
            sound.setnchannels(1)
            sound.setsampwidth(2)
            sound.setframerate(8000)
            sound.writeframes(bytes(1600))
        return name

    def pick_sound(self, program, name):
        program.windows["settings"]["btnSoundFile"].click()
        box = program.windows.wait_box()
        self.assertEqual(box.title, "Select Sound file")
        dialog = program.windows["QFileDialog"]
        self.wait_that("the files", lambda: "vexlo.wav" in str(dialog["listView"].rows))
        self.type_over(dialog["fileNameEdit"], name)
        dialog.press("Return")
        program.windows.wait_no_box()

    def change_everything(self, program):
        """Goes through all tabs as a person would; nothing of it acts before Save."""
        window = program.windows["settings"]
        self.tick(window, *(name for name in FLAGS if name != "ontop"), "watchdog", "ontop")
        for key in ("Tab", "Down", "Down"):  # The list of sizes stands behind that box.
            window.press(key)
        self.wait_that("the size", lambda: window["msgfontsize"].text == "14")
        self.pick_sound(program, self.sound(program.host, "ding.WAV"))
        self.turn_to(program, SEND_BUTTONS)
        self.type_over(window["qsend(2)"], "Emergency!")
        self.type_over(window["qsendtext(2)"], 'Say "out", please')
        self.tick(window, "qsendi(2)")
        self.turn_to(program, RESPONSES)
        self.type_over(window["qsend(22)"], "Later")
        self.type_over(window["qsendtext(22)"], "Later, please")
        self.turn_to(program, AUTO_RESPOND)
        self.tick(window, "autoresmaster")
        self.type_over(window["ar(0)"], "Back soon")
        self.type_over(window["ar(2)"], "")
        window["btnAutoForward"].click()
        self.choose_forward_target(program, "Bob")
        self.tick(window, "autoreply")

    def choose_forward_target(self, program, name):
        dialog = program.windows["fwdtofrm"]
        self.wait_that("the dialog", lambda: dialog.visible)
        self.assertEqual(dialog["fwdto"].rows, ["None", "Bob"])
        dialog["fwdto"].click_row(name)
        dialog["savebtn"].click()
        self.wait_that("the dialog to go", lambda: not dialog.visible)
        shown = program.windows["settings"]["ar3temp"]
        wait_for("the target", name, lambda: shown.text)

    def everything_changed(self, host):
        values = {flag: other(flag) for flag in FLAGS.values()}
        values.update(
            {
                "MY NAME": "ALICE MEYER",
                "MESSAGEFONTSIZE": "14",
                "WAVEFILE": f"{host.app}/ding.WAV",
                "AUTORESPONSEALLOW": "1",
                "AUTORESPONSEMSG": "Back soon",
                "AUTORESPONSEMSG2": "",
                "AUTORESPONSEMSG3": "Forward to: Bob",
                "AUTORESPONSEFORWARD": "0",
            }
        )
        return settings_file.saved(values)

    def test_save_keeps_what_every_tab_says(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        foreign = self.office.foreign_peer()
        self.open_settings(alice)
        self.change_everything(alice)
        self.close_settings(alice, "savebtn")
        host = alice.host
        wait_for("the settings", self.everything_changed(host), lambda: host.file("settings.txt"))
        rows = {
            2: ("Emergency!", "Say 'out', please", 1),
            22: ("Later", "Later, please", 0),
        }
        wait_for("the buttons", desk_files.saved_buttons(rows), lambda: host.file("buttons.txt"))
        self.assertEqual(host.file("groups.txt"), desk_files.default_groups())
        self.assertRegex(self.log_of(host), rb":\d\d[ap]: Settings changed and saved\.\r\n")
        foreign.wait_heard(b"***" + ALICE + b"=ALICE MEYER")
        self.wait_quiet(alice)
        # The directory was cleared, so Bob is met anew; her own name is not on show any more.
        self.tool(alice, "Find Other Users")
        self.sees(alice, ["Bob"])
        self.assertEqual(alice.main["qb(2)"].text, "Emergency!")
        alice.main["qb(2)"].click()
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> (To All) Say 'out', please")

    def test_a_saved_tour_comes_back_at_the_next_start(self):
        alice, _ = self.acquainted(self.alice(), self.bob())
        self.open_settings(alice)
        self.change_everything(alice)
        self.tick_back(alice)
        self.close_settings(alice, "savebtn")
        self.wait_quiet(alice)
        self.leave(alice)
        again = self.up(alice.host)
        window = self.open_settings(again)
        self.assertEqual(window["msgfontsize"].text, "14")
        self.assertEqual(window["wavefile"].text, f"{alice.host.app}/ding.WAV")
        for name, flag in FLAGS.items():
            wanted = FRESH[flag] if name == "startminimized" else other(flag)
            self.assertEqual(window[name].checked, wanted == "1", name)
        self.assertFalse(window["watchdog"].checked)
        self.turn_to(again, AUTO_RESPOND)
        self.assertEqual(window["ar(0)"].text, "Back soon")
        self.assertEqual(window["ar3temp"].text, "Bob")
        self.assertTrue(window["autoreply"].visible)
        self.turn_to(again, RESPONSES)
        self.assertEqual(window["qsendtext(22)"].text, "Later, please")

    def tick_back(self, program):
        """Started hidden, the next run could not be looked at."""
        self.turn_to(program, 0)
        self.tick(program.windows["settings"], "startminimized")

    def test_cancel_forgets_everything(self):
        alice, _ = self.acquainted(self.alice(), self.bob())
        host = alice.host
        files = ("settings.txt", "buttons.txt", "groups.txt", "users.txt")
        before = {name: host.file(name) for name in files}
        foreign = self.office.foreign_peer()
        window = self.open_settings(alice)
        self.change_everything(alice)
        self.close_settings(alice, "cancelbtn")
        self.assertEqual({name: host.file(name) for name in files}, before)
        self.assertEqual(foreign.texts(), [])
        self.assertEqual(alice.main["qb(2)"].text, "Call on 2")
        self.open_settings(alice)
        for name, flag in FLAGS.items():
            self.assertEqual(window[name].checked, FRESH[flag] == "1", name)
        self.assertEqual(window["msgfontsize"].text, "10")
        self.assertEqual(window["wavefile"].text, f"{host.app}/vexlo.wav")
        self.turn_to(alice, RESPONSES)
        self.assertEqual(window["qsend(22)"].text, "")
        self.turn_to(alice, AUTO_RESPOND)
        self.assertEqual([window[f"ar({n})"].text for n in (0, 3)], ["I'm away from my desk", ""])
        self.assertEqual(window["ar3temp"].text, "")

    def test_save_without_a_change_writes_the_files_and_tells_nobody(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        host = alice.host
        before = host.file("settings.txt")
        foreign = self.office.foreign_peer()
        self.open_settings(alice)
        self.close_settings(alice, "savebtn")
        # The first save of the buttons gives them the form of a saved file.
        wait_for("the buttons", desk_files.saved_buttons(), lambda: host.file("buttons.txt"))
        self.assertEqual(host.file("settings.txt"), before)
        self.assertIn(b" Settings changed and saved.\r\n", self.log_of(host))
        self.assertEqual(foreign.all_within(1.0), [])

    def test_ticking_there_and_back_counts_as_a_change(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        window = self.open_settings(alice)
        self.tick(window, "hidetip", "hidetip")
        self.close_settings(alice, "savebtn")
        foreign.wait_heard(b"***" + ALICE + b"=ALICE MEYER")

    def test_a_file_that_is_no_wave_file_is_dropped_without_a_word(self):
        alice = self.up(self.alice())
        window = self.open_settings(alice)
        (alice.host.app / "song.mp3").write_bytes(b"la")
        self.pick_sound(alice, "song.mp3")
        self.assertEqual(window["wavefile"].text, f"{alice.host.app}/vexlo.wav")


class ActingAtOnce(DeskTest):
    def test_a_new_name_is_told_to_everybody_and_outlives_cancel(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        window = self.open_settings(alice)
        window["Command1"].click()
        alice.windows.wait_box().answer("OK", "Alice Berg")
        wait_for("the name", "ALICE BERG", lambda: window["friendlyname"].text.upper())
        self.close_settings(alice, "cancelbtn")
        self.shows(bob, "Alice Berg")
        self.assertEqual(alice.host.settings("MY NAME"), "ALICE BERG")

    def test_new_ports_hold_at_once(self):
        alice = self.up(self.alice())
        window = self.open_settings(alice)
        self.assertEqual([window["portlisten"].text, window["portsend"].text], ["4111", "4112"])
        for button, port in (("Command2", "4200"), ("Command3", "4300")):
            window[button].click()
            alice.windows.wait_box().answer("OK", port)
            alice.windows.wait_no_box()
        wait_for("the port", "4200", lambda: window["portlisten"].text)
        self.close_settings(alice, "cancelbtn")
        self.assertEqual(alice.host.settings("LISTENINGPORT"), "4200")
        self.assertEqual(alice.host.settings("SENDINGPORT"), "4300")
        foreign = self.office.foreign_peer(listening=4200, sending=4300)
        foreign.announce(b"[ROOM99\\EVE]", b"EVE")
        foreign.wait_heard(b"**-" + ALICE + b"=ALICE MEYER")

    def test_chat_ports_are_compared_as_text_and_stored_as_numbers(self):
        alice = self.up(self.alice())
        window = self.open_settings(alice)
        for answer in ("4111", "4113"):
            window["btnChatPort1"].click()
            box = alice.windows.wait_box()
            self.assertEqual(plain(box.text), "Please enter the new Chat Listening Port #:\n")
            box.answer("OK", answer)
            self.wait_box_reading(alice, "Ports cannot be the same.").answer("OK")
            alice.windows.wait_no_box()
            self.assertEqual(window["chatport1"].text, "4114")
        window["btnChatPort1"].click()
        alice.windows.wait_box().answer("OK", "04111")
        wait_for("the port", "4111", lambda: window["chatport1"].text)

    def test_what_arrives_behind_a_port_box_is_lost(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        foreign = self.office.foreign_peer()
        window = self.open_settings(alice)
        window["btnChatPort2"].click()
        box = alice.windows.wait_box()
        foreign.say(b"[ROOM99\\EVE]" + ALICE + b"EVE> lost")
        foreign.all_within(0.5)
        box.answer("Cancel")
        alice.windows.wait_no_box()
        foreign.say(b"[ROOM99\\EVE]" + ALICE + b"EVE> heard")
        self.close_settings(alice, "cancelbtn")
        self.pops_up(alice, "[Room99\\eve]", "EVE> heard")

    def test_the_panel_tells_who_and_where_the_program_is(self):
        alice = self.up(self.alice())
        window = self.open_settings(alice)
        lines = plain(window["localinfo"].text).split("\n")
        self.assertEqual(lines[:2], ["Version: 1.5.3", f"Local IP Address: {alice.host.address}"])
        self.assertEqual(lines[3:5], ["Local User Name: alice", "Winsock 1 State: Listening"])
        self.assertEqual(lines[5], "Winsock 2 State: Ready")
        self.assertTrue(lines[2].startswith("Local Host Name: "))


class Admin(DeskTest):
    def test_auto_clean_leaves_the_own_row_and_those_who_answer(self):
        host = self.alice()
        (host.app / "users.txt").write_bytes(
            b"[ROOM12\\ALICE]=ALICE MEYER\r\n[ROOM66\\GONE]=GONE FISHING\r\n"
        )
        alice, bob = self.acquainted(host, self.bob())
        self.assertIn(b"GONE FISHING", host.file("users.txt"))
        window = self.open_settings(alice, ADMIN)
        window["autoclean"].click()
        wait_for("the own row", ALICE + b"=ALICE MEYER\r\n", lambda: host.file("users.txt"))
        self.close_settings(alice, "savebtn")
        self.wait_quiet(alice)
        self.tool(alice, "Find Other Users")
        self.sees(alice, ["Alice Meyer", "Bob"])
        self.knows(alice, BOB + b"=BOB", ALICE + b"=ALICE MEYER")
        self.assertEqual(bob.boxes_shown(), [])

    def test_the_transfer_button_is_dead_without_the_utility(self):
        alice = self.up(self.alice())
        window = self.open_settings(alice, ADMIN)
        self.assertFalse(window["btnTransfer"].enabled)
        name = "Settings and Buttons Transfer Utility  (Utility not Installed)"
        self.assertEqual(window["transfername"].text, name)


class ResetAll(DeskTest):
    FILES = ("settings.txt", "users.txt", "buttons.txt", "groups.txt")

    def reset(self, program, answer):
        window = self.open_settings(program, ADMIN)
        window["Command4"].click()
        box = program.windows.wait_box()
        self.assertEqual((box.title, box.text), ("Reset All", "Are you Sure?"))
        box.answer(answer)

    def test_no_leaves_everything_as_it_was(self):
        alice = self.up(self.alice())
        self.wait_quiet(alice)
        before = alice.host.snapshot()
        self.reset(alice, "No")
        alice.windows.wait_no_box()
        self.close_settings(alice, "cancelbtn")
        after = alice.host.snapshot()
        for name in self.FILES:
            self.assertEqual(after[name], before[name])

    def test_yes_deletes_the_four_files_and_ends_without_a_sign_off(self):
        alice, bob = self.acquainted(self.alice(), self.bob())
        self.send(alice, "before", "Bob")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> before")
        self.leave(alice)  # That is when the history is written.
        host = alice.host
        alice = self.up(host)
        self.wait_quiet(alice)
        log = self.log_of(host)
        foreign = self.office.foreign_peer()
        self.reset(alice, "Yes")
        last = self.wait_box_reading(alice, "Please Restart Vexlo Instant Messaging")
        self.assertEqual(last.title, "Reset All")
        last.answer("OK")
        self.assertEqual(alice.wait_end(), 0, alice.errors)
        self.assertEqual([name for name in self.FILES if host.has_file(name)], [])
        self.assertTrue(self.log_of(host).startswith(log))
        self.assertEqual(foreign.all_within(1.0), [])
        self.sees(bob, ["Alice Meyer", "Bob"])
        self.starts_afresh(host)

    def starts_afresh(self, host):
        again = host.start().first_run("Alice Berg")
        self.wait_quiet(again)
        self.assertEqual(host.settings("MY NAME"), "ALICE BERG")
        self.default_files_stand(host)
        again.main["history"].click()
        history = again.windows["historyfrm"]
        self.wait_that("the history", lambda: history.visible)
        self.assertEqual([row[2:4] for row in history["ListView1"].rows], [["To", "Bob"]])
        history["ListView1"].click(row=0)
        wait_for("the message", "ALICE BERG> before", lambda: history["message"].text)
