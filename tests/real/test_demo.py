"""The demonstration of `./run demo`: two peers of a simulated office on the real windows."""

import pathlib

from case import RealTest, given

PNG = b"\x89PNG\r\n\x1a\n"


class Demonstration(RealTest):
    def test_it_plays_the_first_exchange_without_a_network_and_names_its_pictures(self):
        if not given["build"]:
            self.skipTest("no build was named that has a demonstration")
        foreign = self.office.foreign_peer()
        host = self.newcomer("ROOM12", "alice")
        folder = host.home / "pictures"
        demo = given["build"].resolve() / "vexlo_demo"

        program = host.start_command([str(demo), str(folder)], screen="", driven=False)

        self.assertEqual(program.wait_end(60.0), 0, program.errors)
        told = program.errors
        self.assertIn("Alice sees Alice Meyer, Bob; Bob sees Alice Meyer, Bob.", told)
        self.assertIn("[ROOM12\\ALICE][ROOM07\\BOB]ALICE MEYER> Lunch at noon?", told)
        self.assertIn('It pops up on Bob\'s screen: "Alice Meyer Msg ', told)
        lines = [line.strip() for line in told.splitlines()]
        pictures = [pathlib.Path(line) for line in lines if line.endswith(".png")]
        self.assertEqual({picture.parent for picture in pictures}, {folder})
        self.assertEqual(
            [picture.stem for picture in pictures],
            ["alice-main", "bob-popup", "alice-popup", "bob-main"],
        )
        for picture in pictures:
            self.assertTrue(picture.read_bytes().startswith(PNG), picture)
        self.assertEqual(foreign.texts(), [])
