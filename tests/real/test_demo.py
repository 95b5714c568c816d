"""The virtual office of `./run demo`: real windows on a simulated network."""

import pathlib
import re
import struct
import subprocess
import zlib

from case import RealTest, given
from on_screen import OnScreen
from waiting import wait_for, wait_until

DOCS = pathlib.Path(__file__).resolve().parents[2] / "docs"
PNG = b"\x89PNG\r\n\x1a\n"
PICTURES = {
    "box-close", "box-group", "box-name", "forward-to", "groups", "history", "log", "main",
    "main-away", "main-forwarding", "main-groups", "menu-away", "menu-options", "menu-tray",
    "popup", "popup-answering", "popup-auto-response", "popup-both-turns", "popup-recalled",
    "popup-to-all", "settings-admin", "settings-away", "settings-general", "settings-responses",
    "settings-send-buttons", "splash",
}  # fmt: skip
TOLD = (
    "Everybody is on your list, and you are on everybody's.",
    'A window pops up in front of you: Bob asks "Are you coming to lunch?"',
    "She answers in that window, and you read both: what you wrote, and the answer.",
    'Farid reads "Are you busy?"',
    "So do you, and it is on eleven screens at once.",
    "A message to the group reaches the three, and nobody else.",
    "You have switched on that your program may answer for you.",
    'His program answers for him: "(Auto Resp) I\'m in a meeting".',
    "You forward it, and Inês has it under Grace's name.",
    "The log has all of the day.",
    "Mei comes in and is on your list.",
    "The window has gone, and Kim still reaches you.",
)


def lines_of_points(path):
    """The rows of a picture, as they are packed in its file: how many, and how many differ."""
    content = path.read_bytes()
    place, packed, height = len(PNG), b"", 0
    while place < len(content):
        length, kind = struct.unpack(">I4s", content[place : place + 8])
        data = content[place + 8 : place + 8 + length]
        if kind == b"IHDR":
            height = struct.unpack(">I", data[4:8])[0]
        elif kind == b"IDAT":
            packed += data
        place += length + 12
    points = zlib.decompress(packed)
    width = len(points) // height
    return {points[start + 1 : start + width] for start in range(0, len(points), width)}


class VirtualOffice(RealTest):
    def setUp(self):
        super().setUp()
        if not given["build"]:
            self.skipTest("no build was named that has a demonstration")
        self.demo = given["build"].resolve() / "vexlo_demo"
        self.host = self.newcomer("ROOM12", "alice")

    def start(self, *arguments, **how):
        return self.host.start_command([str(self.demo), *arguments], **how)

    def told(self, program, line, seconds=60.0):
        wait_until(f"{line!r} to be told", lambda: line in program.errors, seconds)


class WithoutADisplay(VirtualOffice):
    def test_the_whole_story_is_told_and_each_window_has_its_picture(self):
        folder = self.host.home / "pictures"

        program = self.start(str(folder), screen="", driven=False)

        self.assertEqual(program.wait_end(60.0), 0, program.errors)
        told = [line.strip() for line in program.errors.splitlines()]
        self.assertEqual([line for line in told if line in TOLD], list(TOLD))
        self.assertIn("GRACE LIN> (To All) The fire drill is at eleven.", told)
        self.assertIn("ALICE MEYER> Lunch at noon?  (to Clara Novak)", told)
        self.assertIn("What is for lunch?  (to Elena Rossi, Kim Park, Lucas Martin)", told)
        self.assertIn(f"{len(PICTURES)} pictures of the windows are in {folder}", told)
        self.assertEqual({path.stem for path in folder.iterdir()}, PICTURES)
        for path in folder.iterdir():
            self.assertTrue(path.read_bytes().startswith(PNG), path)
            self.assertGreater(len(lines_of_points(path)), 8, f"{path} shows nothing")

    def test_the_docs_have_each_of_them(self):
        self.assertEqual({path.stem for path in (DOCS / "pictures").glob("*.png")}, PICTURES)
        shown = re.findall(r"\(pictures/([\w-]+)\.png\)", (DOCS / "windows.md").read_text("utf-8"))
        self.assertEqual(sorted(shown), sorted(PICTURES))

    def test_nothing_reaches_a_network(self):
        foreign = self.office.foreign_peer()
        before = self._sent()

        program = self.start(str(self.host.home / "pictures"), screen="", driven=False)

        self.assertEqual(program.wait_end(60.0), 0, program.errors)
        self.assertEqual(self._sent(), before)
        self.assertEqual(foreign.texts(), [])

    def _sent(self):
        """What the programs of the host have ever sent and opened, as its kernel counts it."""
        numbers = self.host.namespace.run("cat", "/proc/net/snmp")
        counts = {}
        for head, values in zip(numbers.splitlines()[::2], numbers.splitlines()[1::2]):
            kind = head.split(":")[0]
            counts.update(zip((f"{kind} {name}" for name in head.split()[1:]), values.split()[1:]))
        return {key: counts[key] for key in ("Udp OutDatagrams", "Udp InDatagrams", "Tcp ActiveOpens")}

    def test_its_own_code_does_not_even_know_of_sockets(self):
        if not pathlib.Path("/usr/bin/nm").exists():
            self.skipTest("binutils are missing")
        asked = ["nm", "--dynamic", "--undefined-only", str(self.demo)]
        names = subprocess.run(asked, capture_output=True, text=True, check=True).stdout
        foreign = set(re.findall(r"\bU (\w+)", names))
        self.assertIn("malloc" if "malloc" in foreign else "strlen", foreign)
        self.assertEqual(foreign & {"socket", "bind", "sendto", "recvfrom", "connect"}, set())

    def test_a_number_that_is_none_is_told_with_the_help(self):
        program = self.start("--stay", "soon", screen="", driven=False)

        self.assertEqual(program.wait_end(30.0), 2, program.errors)
        self.assertIn("the office closes after so long", program.errors)

    def test_pictures_that_cannot_be_kept_are_a_failure(self):
        program = self.start("/proc/nowhere", screen="", driven=False)

        self.assertEqual(program.wait_end(60.0), 1, program.errors)
        self.assertIn("cannot write /proc/nowhere/", program.errors)


class OnAScreen(OnScreen, VirtualOffice):
    def start_seen(self, *arguments):
        return self.start(*arguments, screen=self.screen.display)

    def take_over(self, program):
        """While Clara's windows are not there yet: each name is that of one window."""
        self.told(program, "2. Somebody writes")
        self.screen.click(program.windows["caption"]["take_over"])
        self.told(program, "The office is yours")

    def test_the_whole_story_is_told_and_the_office_opens(self):
        program = self.start_seen("--speed", "5")
        self.told(program, "The office is yours")
        told = [line.strip() for line in program.errors.splitlines()]
        self.assertEqual([line for line in told if line in TOLD], list(TOLD))

        program.interrupt()

        self.assertEqual(program.wait_end(30.0), 0, program.errors)

    def test_who_takes_over_is_answered_and_ends_it_by_closing_the_window(self):
        program = self.start_seen()
        self.take_over(program)
        self.answer_bob(program)
        self.write_to_kim(program)

        program.main["spotx"].click()
        program.windows.wait_box().answer("No")

        self.assertEqual(program.wait_end(30.0), 0, program.errors)
        self.assertIn("The office is closed.", program.errors)

    def answer_bob(self, program):
        popup = program.windows["popup0"]
        wait_until("Bob's message", lambda: popup.visible)
        self.screen.click(popup["temp"])
        self.screen.type("Is there coffee, too?")
        wait_for("the keys", "Is there coffee, too?", lambda: popup["temp"].text)
        self.screen.click(popup["Command2"])
        self.told(program, "Bob Hartmann answers you.")
        wait_until("the answer", lambda: self.is_on_show(program, "> In five minutes!"))

    def write_to_kim(self, program):
        """Not with the mouse of the screen: others may have written, and popped up in its way."""
        self.send(program, "Are you busy?", "Kim Park")
        self.told(program, "Kim Park answers you.")
        wait_until("the answer", lambda: self.is_on_show(program, "> Not at all, come over."))

    def is_on_show(self, program, text):
        windows = program.windows
        return any(text in windows[name]["message"].text for name in windows.popups())

    def test_the_office_closes_when_nobody_is_in_front_of_it(self):
        program = self.start_seen("--stay", "2")
        self.take_over(program)

        self.assertEqual(program.wait_end(30.0), 0, program.errors)
        self.assertIn("it ends by itself after 2 seconds", program.errors)
        self.assertIn("Nobody is there any more: the office closes.", program.errors)

    def test_ctrl_c_ends_it_also_while_a_box_is_open(self):
        program = self.start_seen()
        self.told(program, "1. Coming in")
        program.windows.wait_box(30.0)

        program.interrupt()

        self.assertEqual(program.wait_end(30.0), 0, program.errors)
        self.assertIn("The office is closed.", program.errors)
