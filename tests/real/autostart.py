"""A desktop's session, as far as it starts programs: it reads the entries of the autostart folder."""

import re

ESCAPED = {"s": " ", "n": "\n", "t": "\t", "r": "\r"}
NAME = "Vexlo IM AutoStart.desktop"


def entry(host):
    """Where the program's entry lies."""
    return host.home / "config" / "autostart" / NAME


def command(host):
    """The words of the command that the session starts for the entry."""
    lines = entry(host).read_text(encoding="utf-8").splitlines()
    if lines[0] != "[Desktop Entry]":
        raise AssertionError(f"no desktop entry begins so: {lines[0]!r}")
    keys = dict(line.split("=", 1) for line in lines[1:])
    if keys["Type"] != "Application":
        raise AssertionError(f"an entry of the type {keys['Type']}")
    return words(unescaped(keys["Exec"]))


def unescaped(value):
    """What a value of a key file means."""
    return re.sub(r"\\(.)", lambda found: ESCAPED.get(found[1], found[1]), value)


def words(line):
    """The arguments of a command line: blanks part them, but inside double quotes."""
    found = re.findall(r'"((?:[^"\\]|\\.)*)"|(\S+)', line)
    quoted = [re.sub(r"\\(.)", r"\1", inside) if inside else plain for inside, plain in found]
    return [word.replace("%%", "%") for word in quoted]
