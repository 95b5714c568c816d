"""What the machine refuses the companion, or says in another language."""

import shlex

import tap
from case import RealTest


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
            ran = tap.run(alice, "listen", "--for", "0.1", more, privileged=False)
            helps = shlex.split(ran.errors.splitlines()[-1])
            self.assertEqual(r"[ROOM12\ALICE]" in helps, of_alice, ran.errors)

    def test_what_cannot_be_told_is_not_done(self):
        alice = self.alice()
        (alice.app / "users.txt").write_bytes(b"[ROOM07\\BOB]=BOB\r\n")
        with open("/dev/full", "wb") as full:
            ran = tap.run(alice, "who", "--known", output=full)
        complaint = "vexlotap: standard output cannot be written\n"
        self.assertEqual((ran.status, ran.errors), (1, complaint))

    def test_a_firewall_of_another_language_is_understood(self):
        alice = self.alice()
        alice.offer("firewall-cmd")
        tool = alice.home / "bin" / "firewall-cmd"
        tool.write_text('#!/bin/sh\n[ "$LC_ALL" = C ] && echo yes || echo ja\n', encoding="utf-8")
        ran = tap.run(alice, "doctor")
        self.assertIn("firewalld lets udp port 4111 in", ran.output)
