"""The companion listens: to a real conversation, beside a messenger, and to what is meant to harm."""

import shlex
import signal

import tap
from case import RealTest
from listener import Listener

ALICE = b"[ROOM12\\ALICE]"
BOB = b"[ROOM07\\BOB]"
EVE = b"[ROOM99\\EVE]"
LONGEST = 65507
HARMFUL = bytes(value for value in range(256) if value < 32 or 127 <= value < 160)


class AConversation(RealTest):
    def test_each_datagram_is_told_with_what_the_listener_would_do(self):
        alice, _ = self.acquainted(self.alice(), self.bob())
        listener = Listener(self.carl(), "listen", "--json")
        self.send(alice, "Lunch at noon?", "Bob")
        told = listener.wait_told(kind="message", act="drops")
        self.assertEqual(told["reason"], "for [ROOM07\\BOB], not for [ROOM33\\CARL]")
        self.assertEqual(told["body"], "ALICE MEYER> Lunch at noon?")
        self.assertEqual((told["from"], told["from_port"]), (alice.host.address, 4112))
        self.send_to_all(alice, "Café")
        told = listener.wait_told(kind="message", act="shows")
        self.assertEqual(told["popup"]["text"], "ALICE MEYER> (To All) Café")
        self.leave(alice)
        listener.wait_told(kind="sign-off", name="ALICE MEYER")

    def test_ctrl_c_ends_it_with_a_summary(self):
        for kind in (signal.SIGINT, signal.SIGTERM):
            listener = Listener(self.carl(), "listen")
            self.assertEqual(listener.stop(kind), 0)
            self.assertTrue(listener.errors.endswith(b"heard 0 datagrams\n"), listener.errors)

    def test_its_bounds_end_it(self):
        carl, foreign = self.carl(), self.office.foreign_peer()
        self.assertEqual(tap.run(carl, "listen", "--for", "0.3").status, 4)
        listener = Listener(carl, "listen", "--count", "2")
        foreign.say(b"one", b"two", b"three")
        self.wait_that("its end", lambda: not listener.runs)
        self.assertIn(b"heard 2 datagrams: drops 2\n", listener.errors)


class BesideAMessenger(RealTest):
    def setUp(self):
        super().setUp()
        self.program = self.up(self.alice())
        self.wait_quiet(self.program)
        self.host = self.program.host
        self.foreign = self.office.foreign_peer()

    def test_it_foretells_what_the_messenger_does(self):
        listener = Listener(self.host, "listen", "--json")
        self.foreign.announce(EVE, b"Eve")
        foretold = listener.wait_told(kind="announce", name="EVE")
        self.assertEqual((foretold["act"], len(foretold["sends"])), ("answers", 2))
        self.wait_that("both answers", lambda: len(self.foreign.texts()) == 2)
        said = [text.decode("cp1252") for text in self.foreign.texts()]
        self.assertEqual(foretold["sends"], said)
        # What the messenger has said is heard here, too.
        listener.wait_told(kind="answer", name="ALICE MEYER")
        self.foreign.say(EVE + ALICE + b"EVE> hello")
        foretold = listener.wait_told(kind="message")["popup"]
        self.pops_up(self.program, foretold["from"], foretold["text"])
        self.foreign.say(b"***blocks", EVE + ALICE + b"EVE> in vain")
        listener.wait_told(kind="block", act="blocks")
        listener.wait_told(act="waits", body="EVE> in vain")

    def test_the_longest_datagram_is_put_together(self):
        listener = Listener(self.host, "listen", "--json", "--count", "1")
        text = (EVE + ALICE + b"0123456789abcdef" * 5000)[:LONGEST]
        self.foreign.say(text)
        told = listener.wait_told(kind="message", act="shows")
        self.assertEqual(told["sender"] + told["recipient"] + told["body"], text.decode("ascii"))

    def test_an_ordinary_user_is_told_the_command_that_helps(self):
        ran = tap.run(self.host, "listen", "--for", "0.2", way=tap.WITHOUT_RAW_SOCKETS)
        self.assertEqual(ran.status, 5)
        self.assertIn("another program holds port 4111", ran.errors)
        helps = shlex.split(ran.errors.splitlines()[-1])
        self.assertEqual(helps[:2], ["sudo", str(self.host.app / "vexlotap")])
        self.assertIn(ALICE.decode(), helps)
        self.assertEqual(tap.run(self.host, *helps[2:]).status, 4)


class Harm(RealTest):
    def test_no_datagram_steers_the_terminal(self):
        carl, foreign = self.carl(), self.office.foreign_peer()
        names = [b"Eve" + HARMFUL, b"\x1b]0;owned\x07", b"\x9b2J"]
        texts = [b"***" + EVE + b"=" + name for name in names]
        texts += [EVE + b"[ALL]" + name for name in names]
        texts += [b"-**" + HARMFUL + b"=x", HARMFUL, b"**-no equal sign" + HARMFUL]
        for form in ([], ["--json"]):
            listener = Listener(carl, "listen", *form, "--count", str(len(texts)))
            foreign.say(*texts)
            self.wait_that("its end", lambda: not listener.runs)
            shown = (listener.output + listener.errors).decode("utf-8")
            self.assertEqual(len(listener.output.splitlines()), len(texts))
            steering = [letter for letter in shown if letter != "\n" and not letter.isprintable()]
            self.assertEqual(steering, [], form)
            if form:
                exact = [line["bytes"] for line in listener.told()]
                self.assertIn("\\x1b]0;owned\\x07", exact[1])


class OtherEyes(RealTest):
    def test_a_name_of_the_directory_or_an_identity_sees(self):
        alice, foreign = self.alice(), self.office.foreign_peer()
        (alice.app / "users.txt").write_bytes(BOB + b"=BOB\r\n")
        for who in ("bob", "[room07\\bob]"):
            listener = Listener(alice, "listen", "--json", "--as", who, "--count", "2")
            foreign.say(EVE + BOB + b"for Bob", EVE + ALICE + b"for Alice")
            self.assertEqual(listener.wait_told(body="for Bob")["act"], "shows")
            self.assertEqual(listener.wait_told(body="for Alice")["act"], "drops")
        self.assertEqual(tap.run(alice, "listen", "--as", "Zoe", "--for", "1").status, 3)

    def test_an_absent_one_responds_or_forwards(self):
        alice, foreign = self.alice(), self.office.foreign_peer()
        listener = Listener(alice, "listen", "--json", "--away", "Lunch", "--count", "1")
        foreign.say(EVE + ALICE + b"EVE> there?")
        self.assertEqual(
            listener.wait_told(act="responds")["sends"],
            ["[ROOM12\\ALICE][ROOM99\\EVE]EVE> there?\r\nALICE MEYER> (Auto Resp) Lunch"],
        )
