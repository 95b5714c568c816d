"""From log-in on: the session's entry, and the hidden start that it makes."""

import shutil
import subprocess

import autostart
from case import RealTest
from hearing import Opened
from settings_file import key_value

ANNOUNCE = b"***[ROOM12\\ALICE]=ALICE MEYER"
ELSEWHERE = '[Desktop Entry]\nType=Application\nName=x\nExec="/opt/vexlo/vexloim.exe" /m\n'
PLACE = (
    "Key: '-2147483647',Section: 'Software\\Microsoft\\Windows\\CurrentVersion\\Run',"
    "Key: 'Vexlo IM AutoStart"
)


class Entry(RealTest):
    def put(self, host, content):
        entry = autostart.entry(host)
        entry.parent.mkdir()
        entry.write_text(content, encoding="utf-8")
        return entry

    def test_a_start_writes_it(self):
        host = self.alice()
        self.up(host)
        self.assertEqual(autostart.command(host), [f"{host.app}/vexloim.exe", "/m"])

    def test_one_that_names_another_folder_stays(self):
        host = self.alice()
        entry = self.put(host, ELSEWHERE)
        self.leave(self.up(host))
        self.assertEqual(entry.read_text(encoding="utf-8"), ELSEWHERE)

    def test_it_goes_at_the_start_where_it_is_not_wanted(self):
        host = self.alice(STARTWITHWINDOWS="0")
        entry = self.put(host, ELSEWHERE)
        self.up(host)
        self.assertFalse(entry.exists())

    def test_an_old_shortcut_brings_it_at_the_end_of_the_run(self):
        host = self.alice(STARTWITHWINDOWS="0")
        shortcut = host.home / "Start Menu" / "Programs" / "Startup" / "Vexlo IM.lnk"
        shortcut.parent.mkdir(parents=True)
        shortcut.touch()
        # A newcomer would be stored at once, which saves the settings too.
        (host.app / "users.txt").write_bytes(b"[ROOM12\\ALICE]=ALICE MEYER\r\n")
        alice = self.up(host)
        self.wait_quiet(alice)
        self.assertFalse(shortcut.exists())
        self.assertFalse(autostart.entry(host).exists())
        self.leave(alice)
        self.assertTrue(autostart.entry(host).exists())
        self.assertEqual(key_value(host.file("settings.txt"), "STARTWITHWINDOWS"), "1")


class ReadOnlyFolder(RealTest):
    def write_protect(self, host, content=None):
        """From now on nobody writes into the autostart folder, not even root."""
        folder = autostart.entry(host).parent
        folder.mkdir()
        subprocess.run(["mount", "-t", "tmpfs", "tmpfs", folder], check=True)
        self.office.on_close(lambda: subprocess.run(["umount", "-l", folder], check=True))
        if content:
            autostart.entry(host).write_text(content, encoding="utf-8")
        subprocess.run(["mount", "-o", "remount,bind,ro", folder], check=True)

    def ends_with_report(self, program, text):
        box = self.wait_box_reading(program, text[:20], 30.0)
        self.assertEqual(box.text, text)
        box.answer("OK")
        self.assertEqual(program.wait_end(), 1)
        self.assertIn(text, program.errors)

    def test_an_entry_that_cannot_be_written_is_reported_and_ends_the_start(self):
        host = self.alice()
        self.write_protect(host)
        foreign = self.office.foreign_peer()
        self.ends_with_report(
            host.start(),
            f"Failed to set registry value {PLACE}' to value: '\"{host.app}/vexloim.exe\" /m'",
        )
        self.assertEqual(foreign.texts(), [])

    def test_an_entry_that_cannot_be_deleted_is_reported_and_ends_the_start(self):
        host = self.alice(STARTWITHWINDOWS="0")
        self.write_protect(host, ELSEWHERE)
        self.ends_with_report(host.start(), f"Failed to delete registry {PLACE}")

    def test_an_entry_that_is_there_needs_no_writing(self):
        host = self.alice()
        self.write_protect(host, ELSEWHERE)
        self.leave(self.up(host))


class LogIn(RealTest):
    def log_in(self, host):
        """The session starts what the entry says; gives the program once it is known to others."""
        foreign = self.office.foreign_peer()
        alice = host.start_command(autostart.command(host))
        foreign.wait_heard(ANNOUNCE, seconds=30.0)
        self.wait_that("the end of the start", lambda: not alice.main.visible)
        self.wait_that("the splash to go", lambda: "loading" not in alice.windows.visible())
        return alice, foreign

    def prepared(self):
        host = self.alice()
        self.leave(self.up(host))
        return host

    def test_a_first_message_pops_up_over_a_hidden_program_and_is_heard(self):
        host = self.prepared()
        alice, foreign = self.log_in(host)
        heard = Opened(host.app / "vexlo.wav")
        self.addCleanup(heard.close)
        foreign.say(b"[ROOM99\\EVE][ROOM12\\ALICE]EVE> good morning")
        self.pops_up(alice, "[Room99\\eve]", "EVE> good morning")
        self.wait_that("the sound", heard)
        self.assertFalse(alice.main.visible)
        self.assertEqual(alice.boxes_shown(), [])

    def test_without_the_option_nothing_is_heard(self):
        host = self.alice(PLAYSOUND="0")
        self.leave(self.up(host))
        alice, foreign = self.log_in(host)
        heard = Opened(host.app / "vexlo.wav")
        self.addCleanup(heard.close)
        foreign.say(b"[ROOM99\\EVE][ROOM12\\ALICE]EVE> good morning")
        self.pops_up(alice, "[Room99\\eve]", "EVE> good morning")
        self.wait_quiet(alice)
        self.assertFalse(heard())

    def test_the_folder_may_have_any_name(self):
        host = self.alice()
        awkward = host.home / 'pro gramm "$x` \\100% Ж'
        shutil.move(host.app, awkward)
        host.app = awkward
        self.leave(self.up(host))
        alice, foreign = self.log_in(host)
        foreign.say(b"[ROOM99\\EVE][ROOM12\\ALICE]EVE> good morning")
        self.pops_up(alice, "[Room99\\eve]", "EVE> good morning")

    def test_a_session_without_a_bus_and_without_sound_is_no_hindrance(self):
        host = self.prepared()
        host.more_environment = {
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={host.home}/nothing-here",
            "PULSE_SERVER": f"unix:{host.home}/nothing-here",
            "ALSA_CONFIG_PATH": "/dev/null",
        }
        alice, foreign = self.log_in(host)
        for number, text in enumerate((b"one", b"two", b"three")):
            foreign.say(b"[ROOM99\\EVE][ROOM12\\ALICE]EVE> " + text)
            self.pops_up(alice, "[Room99\\eve]", "EVE> " + text.decode(), slot=number)
        self.assertTrue(alice.running)
