"""What the machine refuses the companion, or says in words that could mislead it."""

import os
import shlex
import shutil
import subprocess
import sys

import tap
from case import RealTest
from vitals import is_sanitized

THIEF = """
import socket
holder = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
holder.bind(("", 4111))
print("bound", flush=True)
input()
"""


class Refused(RealTest):
    def test_settings_that_name_no_port_are_refused(self):
        carl = self.carl(LISTENINGPORT=str(4111 + 65536))
        ran = tap.run(carl, "listen", "--for", "0.1")
        self.assertEqual((ran.status, ran.errors), (1, "vexlotap: Invalid argument\n"))

    def test_no_program_is_blamed_for_a_port_that_is_none(self):
        carl = self.carl(LISTENINGPORT=str(4111 + 65536))
        told = tap.run(carl, "doctor").output
        self.assertIn("69647 is no port", told)
        self.assertIn("not tried: Invalid argument", told)

    def test_the_command_that_helps_sees_with_the_eyes_of_who_asks(self):
        alice = self.up(self.alice()).host
        for more, of_alice in (("--away=read --as", True), (r"--as=[ROOM07\BOB]", False)):
            ran = tap.run(alice, "listen", "--for", "0.1", more, way=tap.WITHOUT_RAW_SOCKETS)
            helps = shlex.split(ran.errors.splitlines()[-1])
            self.assertEqual(r"[ROOM12\ALICE]" in helps, of_alice, ran.errors)

    def test_what_cannot_be_told_is_not_done(self):
        alice = self.alice()
        (alice.app / "users.txt").write_bytes(b"[ROOM07\\BOB]=BOB\r\n")
        with open("/dev/full", "wb") as full:
            ran = tap.run(alice, "who", "--known", output=full)
        complaint = "vexlotap: standard output cannot be written\n"
        self.assertEqual((ran.status, ran.errors), (1, complaint))

    def test_without_a_descriptor_to_stop_it_by_it_does_not_begin(self):
        if is_sanitized(self.office.app / "vexlotap"):
            self.skipTest("a sanitized program has other descriptors")
        carl = self.carl()
        for descriptors, wanted in ((5, (1, "Too many open files")), (6, (4, "heard 0 datagrams"))):
            way = ("prlimit", f"--nofile={descriptors}")
            ran = tap.run(carl, "listen", "--for", "0.1", way=way)
            last = ran.errors.splitlines()[-1].removeprefix("vexlotap: ")
            self.assertEqual((ran.status, last), wanted)

    def test_no_name_of_a_program_makes_a_line_of_its_own(self):
        alice = self.alice()
        odd = shutil.copy(os.path.realpath(sys.executable), alice.home / "bin\nok       echo")
        holder = subprocess.Popen(
            [odd, "-c", THIEF],
            env={"PYTHONHOME": sys.base_prefix},
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            preexec_fn=alice.namespace.enter_in_child,
        )
        self.addCleanup(holder.communicate)
        self.addCleanup(holder.kill)
        self.assertEqual(holder.stdout.readline(), b"bound\n")
        told = tap.run(alice, "doctor").output
        self.assertIn(f"process {holder.pid}", told)
        self.assertNotIn("\nok       echo", told)

    def test_a_firewall_of_another_language_is_understood(self):
        alice = self.alice()
        alice.offer("firewall-cmd")
        tool = alice.home / "bin" / "firewall-cmd"
        tool.write_text('#!/bin/sh\n[ "$LC_ALL" = C ] && echo yes || echo ja\n', encoding="utf-8")
        ran = tap.run(alice, "doctor")
        self.assertIn("firewalld lets udp port 4111 in", ran.output)
