"""The package that people get: unpacked into a folder of theirs, and started there."""

import pathlib
import re
import shutil
import subprocess
import unittest

import package
from case import RealTest, given

# What a person's folder may be called; not every letter of it is in the office's character set.
FOLDER = "Büro 'Łódź' 100 % \"neu\" $HOME `x` \\o"


def checked_by(tool, *arguments):
    """Runs a checker of the desktop's, where it is installed."""
    if not shutil.which(tool):
        raise unittest.SkipTest(f"missing here: {tool}")
    ran = subprocess.run(
        [tool, *map(str, arguments)], capture_output=True, text=True, timeout=60, check=False
    )
    return ran.returncode, ran.stdout + ran.stderr


class Package(RealTest):
    def setUp(self):
        super().setUp()
        if not given["build"]:
            self.skipTest("no build was named that could be packed")
        place = self.office.folder / "package"
        place.mkdir()
        self.archive = package.packed(given["build"], place)

    def unpacked_by(self, computer, user):
        """A host whose user has unpacked the package into a folder of theirs."""
        host = self.newcomer(computer, user)
        host.app = package.unpacked(self.archive, host.home / FOLDER)
        return host

    def add_to_menu(self, host, *arguments):
        subprocess.run(
            [host.app / "add-to-menu", *arguments],
            env=host.environment(""), cwd="/", check=True, capture_output=True, timeout=60,
        )  # fmt: skip
        return host.home / "data" / "applications" / "vexloim.desktop"

    def test_two_people_unpack_it_and_talk(self):
        hosts = [self.unpacked_by("ROOM12", "alice"), self.unpacked_by("ROOM07", "bob")]
        alice = hosts[0].start().first_run("Alice Meyer")
        bob = hosts[1].start().first_run("Bob")
        self.all_on_all_lists(alice, bob)
        self.send(alice, "Lunch at noon?", "Bob")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Lunch at noon?")
        self.assertEqual([p.running for p in (alice, bob)], [True, True])
        for name in ("settings.txt", "users.txt", "buttons.txt", "groups.txt"):
            self.assertTrue(hosts[0].has_file(name), name)
        self.assertEqual(package.files_below(hosts[0].home / "tmp"), [])

    def test_it_comes_back_with_everything_when_its_folder_is_moved(self):
        host = self.unpacked_by("ROOM12", "alice")
        alice = host.start().first_run("Alice Meyer")
        self.wait_quiet(alice)
        self.leave(alice)
        host.app = host.app.rename(host.home / "elsewhere")
        self.sees(self.up(host), ["Alice Meyer"])

    def test_it_holds_the_program_and_nothing_of_the_build(self):
        folder = package.unpacked(self.archive, self.office.folder / "look")
        self.assertEqual(folder.name + ".tar.gz", self.archive.name)
        entries = sorted(path.name for path in folder.iterdir())
        self.assertEqual(
            entries,
            ["README.txt", "add-to-menu", "help", "share", "vexlo.wav", "vexloim", "vexloim.exe",
             "vexlotap"],
        )
        self.assertEqual((folder / "vexloim.exe").readlink(), pathlib.Path("vexloim"))
        binary = (folder / "vexloim").read_bytes()
        self.assertNotIn(bytes(given["build"]), binary)
        self.assertEqual((folder / "vexlo.wav").read_bytes()[:4], b"RIFF")

    def test_an_installation_lays_the_same_folder(self):
        folder = package.unpacked(self.archive, self.office.folder / "look")
        laid = package.installed(given["build"], self.office.folder / "laid")
        self.assertEqual(package.files_below(laid), package.files_below(folder))

    def test_the_help_page_finds_all_that_it_shows(self):
        folder = package.unpacked(self.archive, self.office.folder / "look")
        page = (folder / "help" / "index.html").read_text(encoding="utf-8")
        shown = re.findall(r'(?:src|href)="([^"#]+)"', page)
        self.assertGreater(len(shown), 2)
        for name in shown:
            self.assertTrue((folder / "help" / name).is_file(), name)
        for anchor in re.findall(r'href="#([^"]+)"', page):
            self.assertIn(f'id="{anchor}"', page)

    def test_every_file_that_the_entry_names_is_there(self):
        folder = package.unpacked(self.archive, self.office.folder / "look")
        entry = folder / "share" / "applications" / "vexloim.desktop"
        values = package.entry_values(entry.read_text(encoding="utf-8"))
        self.assertTrue((folder / values["Exec"]).is_file())
        sides = sorted(
            int(icon.parts[-3].split("x")[0])
            for icon in (folder / "share" / "icons").rglob(f"{values['Icon']}.png")
        )
        self.assertEqual(sides, [16, 22, 24, 32, 48, 64, 128, 256])

    def test_the_entry_is_a_good_one(self):
        folder = package.unpacked(self.archive, self.office.folder / "look")
        entry = folder / "share" / "applications" / "vexloim.desktop"
        self.assertEqual(checked_by("desktop-file-validate", entry), (0, ""))

    def test_the_entry_in_the_menu_is_a_good_one(self):
        host = self.unpacked_by("ROOM12", "alice")
        self.assertEqual(checked_by("desktop-file-validate", self.add_to_menu(host)), (0, ""))

    def test_the_metainfo_is_good(self):
        folder = package.unpacked(self.archive, self.office.folder / "look")
        metainfo = folder / "share" / "metainfo" / "vexloim.metainfo.xml"
        status, said = checked_by("appstreamcli", "validate", "--no-net", metainfo)
        self.assertEqual(status, 0, said)

    def test_all_tell_the_same_version(self):
        folder = package.unpacked(self.archive, self.office.folder / "look")
        metainfo = folder / "share" / "metainfo" / "vexloim.metainfo.xml"
        version = re.search(r'<release version="([^"]+)"', metainfo.read_text(encoding="utf-8"))[1]
        self.assertIn(f"-{version}-", self.archive.name)
        alice = self.up(self.alice())
        self.assertIn(f"v{version}", alice.host.file("settings.txt").decode("cp1252"))

    def test_the_menu_starts_the_program_where_it_lies(self):
        host = self.unpacked_by("ROOM12", "alice")
        entry = self.add_to_menu(host)
        command = package.command_of(entry.read_text(encoding="utf-8"))
        self.assertEqual(command, str(host.app / "vexloim"))
        icons = host.home / "data" / "icons"
        self.assertEqual(len(list(icons.rglob("vexloim.png"))), 8)

    def test_what_the_menu_was_given_can_be_taken_back(self):
        host = self.unpacked_by("ROOM12", "alice")
        self.add_to_menu(host)
        self.add_to_menu(host, "--remove")
        self.assertEqual(package.files_below(host.home / "data"), [])
        self.assertEqual(package.files_below(host.home / ".local"), [])

    def test_the_companion_is_found_by_the_shell_and_by_the_manual(self):
        host = self.unpacked_by("ROOM12", "alice")
        (host.app / "users.txt").write_bytes(b"[ROOM07\\BOB]=BOB\r\n")
        self.add_to_menu(host)
        data = host.home / "data"
        for path in (
            "man/man1/vexlotap.1",
            "bash-completion/completions/vexlotap",
            "zsh/site-functions/_vexlotap",
            "fish/vendor_completions.d/vexlotap.fish",
        ):
            self.assertEqual((data / path).resolve(), (host.app / "share" / path).resolve())
            self.assertTrue((data / path).is_file())
        told = subprocess.run(
            [host.home / ".local" / "bin" / "vexlotap", "who", "--known"],
            env=host.environment(""), check=True, capture_output=True, text=True, timeout=60,
        )  # fmt: skip
        self.assertEqual(told.stdout, "Bob\t[ROOM07\\BOB]\n")
