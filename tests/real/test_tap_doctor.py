"""The companion's look at a desk: what is wrong there, and whether its remedy mends it."""

import json
import shlex
import shutil
import subprocess
import sys
import unittest

import panel
import tap
from case import RealTest
from on_screen import OnScreen
from waiting import wait_until

THIEF = "import socket; s = socket.socket(socket.AF_INET, socket.SOCK_DGRAM); s.bind(('', {}));"
CLOSED = (
    "add table inet filter",
    "add chain inet filter input { type filter hook input priority 0; policy drop; }",
)
AGAINST_BROADCASTS = (
    "add table ip filter",
    "add chain ip filter input { type filter hook input priority 0; policy accept; }",
    "add rule ip filter input meta pkttype broadcast counter drop",
)


class DoctorTest(RealTest):
    def setUp(self):
        super().setUp()
        self.host = self.alice()

    def findings(self, *options, wrong=False, way=()):
        """What it finds, by what it looked at. `wrong`: whether it says that anything is."""
        ran = tap.run(self.host, "doctor", "--json", *options, way=way)
        self.assertEqual(ran.status, 1 if wrong else 0, ran.output + ran.errors)
        return {line["check"]: line for line in map(json.loads, ran.output.splitlines())}

    def health(self, check, wanted, *options, wrong=False):
        found = self.findings(*options, wrong=wrong)[check]
        self.assertEqual(found["health"], wanted, found)
        return found

    def apply(self, remedy):
        """Does on this host what it says. The tests are privileged there already."""
        self.host.namespace.run("sh", "-c", remedy.replace("sudo ", ""))


class ADesk(DoctorTest):
    def test_nothing_is_wrong_on_a_good_one(self):
        found = self.findings()
        good = [
            "listening port", "sending port", "pair of ports", "interface", "broadcasts", "echo",
            "program folder", "name",
        ]  # fmt: skip
        self.assertEqual({found[check]["health"] for check in good}, {"well"}, found)
        self.assertIn("Alice Meyer".upper(), found["name"]["text"])

    def test_words_name_each_look_in_its_line(self):
        ran = tap.run(self.host, "doctor")
        self.assertIn("ok       listening port  4111 is free", ran.output.splitlines())
        self.assertEqual(ran.errors, "")

    def test_the_others_hear_one_blank_and_no_file_is_touched(self):
        foreign = self.office.foreign_peer()
        before = self.host.snapshot()
        self.findings()
        foreign.wait_heard(b" ")
        self.assertEqual(foreign.texts(self.host), [b" "])
        self.assertEqual(self.host.snapshot(), before)

    def test_a_running_messenger_is_no_thief(self):
        self.up(self.host)
        found = self.findings()
        self.assertEqual(found["listening port"]["health"], "well")
        self.assertIn("held by the messenger", found["sending port"]["text"])
        self.assertEqual(found["echo"]["health"], "unknown")

    def test_a_letter_that_cuts_the_identity_is_wrong(self):
        self.host.more_environment["COMPUTERNAME"] = "ROOM]12"
        self.health("name", "wrong", wrong=True)

    def test_a_folder_without_a_messenger_is_wrong(self):
        elsewhere = str(self.host.home / "tmp")
        self.health("program folder", "wrong", "--folder", elsewhere, wrong=True)

    def test_every_remedy_can_be_pasted_into_a_shell(self):
        self.host.write_settings("ALICE MEYER", LISTENINGPORT="4321", STARTWITHWINDOWS="1")
        self.host.more_environment["COMPUTERNAME"] = "ROOM]12"
        self.host.link_down()
        remedies = [each["remedy"] for each in self.findings(wrong=True).values() if each["remedy"]]
        self.assertGreaterEqual(len(remedies), 6)
        for remedy in remedies:
            subprocess.run(["sh", "-n", "-c", remedy], check=True)
            command = remedy.removeprefix("sudo ").split()[0]
            known = command in ("#", "export") or shutil.which(shlex.split(command)[0])
            self.assertTrue(known, remedy)

    def test_an_ordinary_user_is_told_the_whole_command_of_root(self):
        way = tap.AS_ORDINARY_USER
        if subprocess.run([*way, "true"], capture_output=True, check=False).returncode != 0:
            self.skipTest("nobody else can be played here")
        found = self.findings(wrong=True, way=way)["firewall"]  # It may not look into the folder.
        self.assertEqual(found["health"], "unknown")
        self.assertEqual(found["remedy"], f"sudo {self.host.app}/vexlotap doctor --json")


class Ports(DoctorTest):
    def thief(self, port):
        holder = subprocess.Popen(
            [sys.executable, "-c", THIEF.format(port) + "print(flush=True); input()"],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            preexec_fn=self.host.namespace.enter_in_child,
        )
        self.addCleanup(holder.communicate)
        self.addCleanup(holder.kill)
        holder.stdout.readline()
        return holder

    def test_a_thief_of_the_listening_port_is_named_and_ended(self):
        thief = self.thief(4111)
        found = self.health("listening port", "wrong", wrong=True)
        self.assertIn(f"process {thief.pid}", found["text"])
        self.apply(found["remedy"])
        thief.wait(timeout=10)
        self.health("listening port", "well")

    def test_a_thief_that_only_root_sees_is_ended_by_root(self):
        thief = self.thief(4111)
        way = tap.AS_ORDINARY_USER
        if subprocess.run([*way, "true"], capture_output=True, check=False).returncode != 0:
            self.skipTest("nobody else can be played here")
        found = self.findings(wrong=True, way=way)["listening port"]
        self.assertIn("another user's program", found["text"])
        self.apply(found["remedy"])
        thief.wait(timeout=10)
        self.health("listening port", "well")

    def test_the_ports_of_the_settings_are_looked_at(self):
        self.thief(4321)
        self.host.write_settings("ALICE MEYER", LISTENINGPORT="4321", SENDINGPORT="4322")
        found = self.findings(wrong=True)
        self.assertEqual(found["listening port"]["health"], "wrong")
        self.assertEqual(found["pair of ports"]["health"], "warning")


class Cable(DoctorTest):
    def test_an_interface_that_is_off_is_switched_on(self):
        self.host.link_down()
        found = self.health("interface", "wrong", wrong=True)
        self.apply(found["remedy"])
        wait_until("the cable", lambda: tap.run(self.host, "doctor").status == 0)

    def test_a_cable_that_is_out_is_told(self):
        self.host.cable_out()
        self.assertIn("no link", self.health("interface", "wrong", wrong=True)["text"])

    def test_an_interface_without_an_address_is_told(self):
        self.host.namespace.run("ip", "address", "flush", "dev", "eth0")
        found = self.health("interface", "wrong", wrong=True)
        self.assertIn("eth0 has no address", found["text"])

    def test_without_a_route_broadcasts_leave_by_the_first_that_can(self):
        self.assertIn("the first that can", self.health("broadcasts", "well")["text"])


class CableBehindAGateway(DoctorTest):
    gateway = True

    def test_with_a_route_broadcasts_leave_by_it(self):
        self.assertEqual(self.health("broadcasts", "well")["text"], "they leave by eth0")


@unittest.skipIf(not shutil.which("nft"), "missing here: nft")
class AFirewall(DoctorTest):
    def test_one_that_keeps_the_port_out_is_opened(self):
        for rule in CLOSED:
            self.host.namespace.run("nft", rule)
        self.is_found_and_opened()

    def test_one_that_keeps_broadcasts_out_is_opened(self):
        for rule in AGAINST_BROADCASTS:
            self.host.namespace.run("nft", rule)
        self.is_found_and_opened()

    def is_found_and_opened(self):
        found = self.findings(wrong=True)
        self.assertEqual(found["firewall"]["health"], "wrong")
        self.assertEqual(found["echo"]["health"], "wrong", "nothing comes in, not even the echo")
        self.apply(found["firewall"]["remedy"])
        found = self.findings()
        self.assertEqual(found["firewall"]["health"], "well")
        self.assertEqual(found["echo"]["health"], "well")


class TheSessionsEntry(DoctorTest):
    def test_one_that_is_missing_is_made_by_the_messenger(self):
        self.health("session start", "warning")
        self.leave(self.up(self.host))
        self.health("session start", "well")

    def write_entry(self, program):
        folder = self.host.home / "config" / "autostart"
        folder.mkdir()
        entry = folder / "Vexlo IM AutoStart.desktop"
        entry.write_text(f'[Desktop Entry]\nExec="{program}" /m\n', encoding="utf-8")

    def test_one_that_starts_this_messenger_is_well(self):
        self.write_entry(self.host.app / "vexloim.exe")
        self.health("session start", "well")

    def test_one_that_leads_nowhere_is_wrong(self):
        self.write_entry("/nowhere/vexloim.exe")
        found = self.health("session start", "wrong", wrong=True)
        self.apply(found["remedy"])
        self.health("session start", "warning")  # Wanted, and not there yet.

    def test_one_of_another_folder_is_told(self):
        self.write_entry(shutil.which("true"))
        self.health("session start", "warning")


class TheTray(OnScreen, DoctorTest):
    also_missing = [panel.TOOL] if panel.missing() else []

    def test_a_desktop_without_one_is_told_and_one_with_one_is_well(self):
        self.host.more_environment["DISPLAY"] = self.screen.display
        self.health("tray", "warning")
        tray = panel.Panel(self.screen)
        self.addCleanup(tray.close)
        self.health("tray", "well")

    def test_without_a_desktop_nothing_is_known(self):
        self.health("tray", "unknown")
