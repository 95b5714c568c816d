"""The companion's manual and completions tell what the companion itself tells."""

import re
import shutil
import subprocess

import tap
from case import RealTest

# Answers as the shell would for a line that is cut into these words, the last one unfinished.
ASK_BASH = """
source "$1"; shift
COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
compopt() { :; }
_vexlotap
printf '%s\\n' "${COMPREPLY[@]}"
"""


def options_in_help(text):
    """["--for SECONDS", "--json"] of a command's help."""
    return re.findall(r"^  (--\S+(?: [A-Z]+)?)  ", text, re.MULTILINE)


def options_in_manual(section):
    """The same of a section of the manual's source."""
    heads = re.findall(r'^\.TP\n\.BI? (\\-\\-\S+(?: " [A-Z]+")?)$', section, re.MULTILINE)
    return [re.sub(r' " ([A-Z]+)"', r" \1", head.replace("\\-", "-")) for head in heads]


class TapManual(RealTest):
    def setUp(self):
        super().setUp()
        self.host = self.newcomer("ROOM12", "alice")
        self.share = self.host.app / "share"
        self.manual = self.share / "man" / "man1" / "vexlotap.1"

    def told(self, *arguments):
        return tap.run(self.host, *arguments).output

    def commands(self):
        return re.findall(r"^  ([a-z]+) ", self.told("--help"), re.MULTILINE)

    def sections(self):
        """The manual's sections and those of its commands, by name."""
        parts = re.split(r"^\.S[HS] (.+)\n", self.manual.read_text("utf-8"), flags=re.MULTILINE)
        return dict(zip(parts[1::2], parts[2::2]))

    def completed(self, *words):
        script = self.share / "bash-completion" / "completions" / "vexlotap"
        command = ["bash", "-c", ASK_BASH, "bash", script, self.host.app / "vexlotap", *words]
        ran = subprocess.run(
            command, env=self.host.environment(""), cwd=self.host.home,
            capture_output=True, text=True, timeout=60, check=False,
        )  # fmt: skip
        self.assertEqual((ran.returncode, ran.stderr), (0, ""))
        return ran.stdout.split("\n")[:-1]

    def test_the_manual_tells_every_option_of_every_command(self):
        sections = self.sections()
        common = options_in_manual(sections["OPTIONS"])
        self.assertGreater(len(self.commands()), 4)
        for command in self.commands():
            with self.subTest(command=command):
                wanted = options_in_help(self.told(command, "--help"))
                found = options_in_manual(sections[command])
                self.assertEqual(sorted(found + common), sorted(wanted))

    def test_the_help_fits_a_terminal_of_80_columns(self):
        for command in [[], *([name] for name in self.commands())]:
            with self.subTest(command=command):
                lines = self.told(*command, "--help").splitlines()
                self.assertEqual([line for line in lines if len(line) > 80], [])

    def test_the_manual_is_set_without_a_complaint(self):
        if not shutil.which("groff"):
            self.skipTest("missing here: groff")
        ran = subprocess.run(
            ["groff", "-ww", "-man", "-Tutf8", "-z", self.manual],
            capture_output=True, text=True, timeout=60, check=False,
        )  # fmt: skip
        self.assertEqual((ran.returncode, ran.stdout + ran.stderr), (0, ""))

    def test_the_shell_completes_commands_options_names_and_groups(self):
        (self.host.app / "users.txt").write_bytes(
            b"[ROOM07\\BOB]=BOB\r\n[ROOM12\\ALICE]=ALICE MEYER\r\n[ROOM13\\EVE]=$(touch owned)\r\n"
        )
        (self.host.app / "groups.txt").write_bytes(b"[Group01name  ]=SALES\r\n")
        self.assertEqual(self.completed("se"), ["send"])
        self.assertEqual(self.completed("send", "--g"), ["--group"])
        self.assertEqual(self.completed("send", "--to", "al"), ["Alice\\ Meyer"])
        self.assertEqual(self.completed("send", "--to", '"al'), ['"Alice Meyer"'])
        self.assertEqual(self.completed("send", "--to", "$"), ["\\$\\(Touch\\ Owned\\)"])
        self.assertEqual(self.completed("send", "--group", "s"), ["SALES"])
        self.assertFalse((self.host.home / "owned").exists())

    def test_fish_completes_commands_options_and_names(self):
        if not shutil.which("fish"):
            self.skipTest("missing here: fish")
        (self.host.app / "users.txt").write_bytes(b"[ROOM12\\ALICE]=ALICE MEYER\r\n")
        self.assertEqual(self.completed_by_fish("se"), ["send"])
        self.assertEqual(self.completed_by_fish("send --gr"), ["--group"])
        self.assertEqual(self.completed_by_fish("send --to al"), ["Alice Meyer"])

    def completed_by_fish(self, words):
        script = self.share / "fish" / "vendor_completions.d" / "vexlotap.fish"
        ask = f"source {script}; set PATH {self.host.app} $PATH; complete -C 'vexlotap {words}'"
        ran = subprocess.run(
            ["fish", "--no-config", "-c", ask], env=self.host.environment(""), cwd=self.host.home,
            capture_output=True, text=True, timeout=60, check=False,
        )  # fmt: skip
        self.assertEqual((ran.returncode, ran.stderr), (0, ""))
        return [line.split("\t")[0] for line in ran.stdout.splitlines()]

    def test_the_completions_know_which_options_take_a_value(self):
        helps = "".join(self.told(command, "--help") for command in self.commands())
        valued = {head.split()[0] for head in options_in_help(helps) if " " in head}
        for path in ("bash-completion/completions/vexlotap", "zsh/site-functions/_vexlotap",
                     "fish/vendor_completions.d/vexlotap.fish"):  # fmt: skip
            with self.subTest(path=path):
                words = set(re.findall(r"--[a-z-]+", (self.share / path).read_text("utf-8")))
                self.assertEqual(valued - words, set())

    def test_the_completions_are_read_by_their_shells(self):
        for shell, path in (
            ("bash", "bash-completion/completions/vexlotap"),
            ("zsh", "zsh/site-functions/_vexlotap"),
            ("fish", "fish/vendor_completions.d/vexlotap.fish"),
        ):
            if not shutil.which(shell):
                continue  # Bash is everywhere.
            with self.subTest(shell=shell):
                ran = subprocess.run(
                    [shell, "-n", self.share / path],
                    capture_output=True, text=True, timeout=60, check=False,
                )  # fmt: skip
                self.assertEqual((ran.returncode, ran.stderr), (0, ""))
