"""Captures: recorded from a real segment, replayed in memory, and put onto a segment again."""

import json
import signal

import tap
from case import RealTest
from listener import Listener

ALICE = b"[ROOM12\\ALICE]"
EVE = b"[ROOM99\\EVE]"
TEXTS = [
    b"***" + EVE + b"=Eve",
    b"**-" + EVE + b"=Eve",
    EVE + ALICE + b"EVE> one\r\ntwo \xe9 \x1b[31m",
    b"",
    b" ",
    EVE + b"[ALL]" + bytes(range(256)),
    EVE + b"[ROOM07\\BOB]" + b"x" * 20000,
]


class Captures(RealTest):
    def setUp(self):
        super().setUp()
        self.carl = self.carl()
        self.foreign = self.office.foreign_peer()
        self.file = self.carl.home / "eve.capture"

    def recorded(self):
        """How many datagrams the file holds so far."""
        lines = self.file.read_bytes().splitlines() if self.file.exists() else []
        return len([line for line in lines if line[:1].isdigit()])

    def record(self, *texts, end=signal.SIGINT):
        recorder = Listener(self.carl, "record", str(self.file))
        self.foreign.say(*texts)
        self.wait_that("the lines", lambda: self.recorded() == len(texts))
        return recorder, recorder.stop(end)

    def replayed(self, *options):
        ran = tap.run(self.carl, "replay", str(self.file), "--json", *options)
        self.assertEqual(ran.status, 0, ran.errors)
        return [json.loads(line) for line in ran.output.splitlines()]

    def test_a_crash_of_the_recorder_loses_nothing(self):
        _, status = self.record(*TEXTS, end=signal.SIGKILL)
        self.assertEqual(status, -signal.SIGKILL)
        self.assertEqual(self.file.read_bytes().splitlines()[0], b"vexlo capture 1")
        self.assertTrue(self.file.read_bytes().isascii())
        told = self.replayed("--as", ALICE.decode())
        self.assertEqual(len([line for line in told if line["what"] == "popup"]), 2)

    def test_ctrl_c_ends_it_with_a_summary_and_no_file_is_written_over(self):
        recorder, status = self.record(b"hello")
        self.assertEqual(status, 0)
        self.assertEqual(recorder.output.decode(), f"1 datagram in {self.file}\n")
        before = self.file.read_bytes()
        self.assertEqual(tap.run(self.carl, "record", str(self.file), "--for", "1").status, 1)
        self.assertEqual(self.file.read_bytes(), before)

    def test_a_replay_shows_what_the_real_program_has_shown(self):
        program = self.up(self.alice())
        self.wait_quiet(program)
        self.foreign.forget()
        self.record(*TEXTS[:3])
        self.wait_quiet(program)
        told = self.replayed("--as", ALICE.decode(), "--name", "Alice Meyer")
        shown = [line["text"] for line in told if line["what"] == "popup"]
        popup = program.windows["popup0"]
        self.assertEqual(len(shown), 1)
        sender, text = shown[0].split(": ", 1)
        self.assertEqual(sender, popup["messagefrom"].text)
        self.assertEqual(text.split("\r\n")[0], popup["message"].text.split("\n")[0])
        said = [line["text"].encode("cp1252") for line in told if line["what"] == "send"]
        self.assertEqual(len(said), 2)
        self.assertEqual(
            [text.split(b"=")[0] for text in said],
            [text.split(b"=")[0] for text in self.foreign.texts()],
        )

    def test_onto_a_segment_the_same_bytes_go_after_a_warning(self):
        self.record(*TEXTS)
        self.foreign.forget()
        self.replayed("--as", ALICE.decode())
        self.assertEqual(self.foreign.all_within(0.5), [])
        ran = tap.run(self.carl, "replay", str(self.file), "--onto-segment")
        self.assertEqual(ran.status, 0, ran.errors)
        self.assertIn("WARNING: everybody on this segment gets 7 datagrams", ran.errors)
        self.assertEqual(self.foreign.all_within(0.5), TEXTS)

    def test_onto_a_segment_they_go_at_the_recorded_pace(self):
        line = '{:.6f} 10.7.0.9:4112 > 4111 "{}"\n'.format
        capture = "vexlo capture 1\n" + line(0, "one") + line(0.8, "two") + line(1, "three")
        self.file.write_text(capture, encoding="ascii")
        ran = tap.run(self.carl, "replay", str(self.file), "--onto-segment")
        self.assertEqual(ran.status, 0, ran.errors)
        one, two, three = (said.at for said in self.foreign.heard())
        self.assertGreaterEqual(two - one, 0.75)
        self.assertLess(three - two, two - one)

    def test_a_bad_line_is_told(self):
        self.file.write_text('vexlo capture 1\n0.000000 here > 4111 "x"\n', encoding="ascii")
        ran = tap.run(self.carl, "replay", str(self.file))
        self.assertEqual(ran.status, 1)
        self.assertIn("line 2: the sender is not an address and a port", ran.errors)
        self.assertEqual(tap.run(self.carl, "replay", str(self.file) + ".none").status, 1)
        self.assertEqual(tap.run(self.carl, "replay").status, 2)
