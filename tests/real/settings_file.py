"""The settings file: how a saved one and a default one read, byte for byte."""

VERSION_LINE = "Vexlo Instant Messaging v1.5.3"

SAVED_ORDER = [
    ("MY NAME", ""),
    ("LISTENINGPORT", "4111"),
    ("SENDINGPORT", "4112"),
    ("PLAYSOUND", "1"),
    ("REPLYTOALL", "0"),
    ("SHOWOWN", "0"),
    ("AUTORESPONSEMSG", "I'm away from my desk"),
    ("AUTORESPONSEMSG1", "I'm out of the office"),
    ("AUTORESPONSEMSG2", "I'm in a meeting"),
    ("AUTORESPONSEMSG3", ""),
    ("AUTORESPONSEFORWARD", "1"),
    ("AUTORESPONSEALLOW", "0"),
    ("SHOWMEINLIST", "1"),
    ("STARTWITHWINDOWS", "1"),
    ("MINIMIZEONSTART", "0"),
    ("KEEPINFRONT", "0"),
    ("MESSAGEFONTSIZE", "10"),
    ("USERLISTFONT", "0"),
    ("STARTCLEARUSERCACHE", "0"),
    ("RESETPORTS", "0"),
    ("ENTERSEND", "0"),
    ("HIDEENTERSENDTIP", "0"),
    ("WAVEFILE", ""),
    ("WINPOSX", "0"),
    ("WINPOSY", "0"),
    ("AUTOCHECKUSERS", "0"),
]


def line(key, value):
    return f"[{key:<20}]={value}"


def key_value(text, key):
    """The value behind a key in the bytes of a settings file."""
    start = line(key, "").encode("cp1252")
    values = [row[len(start) :] for row in text.split(b"\r\n") if row.startswith(start)]
    if len(values) != 1:
        raise AssertionError(f"{key} stands {len(values)} times in {text!r}")
    return values[0].decode("cp1252")


def saved(values):
    """The bytes of a saved file; a key that is not given has the value of a fresh program."""
    rows = [VERSION_LINE, "Settings file"]
    rows += [line(key, values.get(key, fresh)) for key, fresh in SAVED_ORDER]
    rows.append("End")
    return "".join(row + "\r\n" for row in rows).encode("cp1252")


def write(folder, name, changes):
    values = {"MY NAME": name, "WAVEFILE": str(folder / "vexlo.wav")}
    values.update(changes)
    unknown = set(values) - {key for key, _ in SAVED_ORDER}
    if unknown:
        raise ValueError(f"no such keys: {unknown}")
    (folder / "settings.txt").write_bytes(saved(values))


DEFAULT_ORDER = [
    ("MY NAME", ""),
    ("LISTENINGPORT", "4111"),
    ("SENDINGPORT", "4112"),
    ("PLAYSOUND", "1"),
    ("REPLYTOALL", "0"),
    ("SHOWOWN", "0"),
    ("AUTORESPONSEALLOW", "0"),
    ("SHOWMEINLIST", "1"),
    ("STARTWITHWINDOWS", "1"),
    ("MINIMIZEONSTART", "0"),
    ("KEEPINFRONT", "0"),
    ("AUTORESPONSEMSG", "I'm away from my desk"),
    ("AUTORESPONSEMSG1", "I'm out of the office"),
    ("AUTORESPONSEMSG2", "I'm in a meeting"),
    ("AUTORESPONSEMSG3", ""),
    ("AUTORESPONSEFORWARD", "1"),
    ("MESSAGEFONTSIZE", "10"),
    ("USERLISTFONT", "0"),
    ("USEWATCHDOG", "1"),
    ("STARTCLEARUSERCACHE", "0"),
    ("RESETPORTS", "0"),
    ("ENTERSEND", "0"),
    ("HIDEENTERSENDTIP", "0"),
    ("WAVESOUND", ""),
    ("WINPOSX", "0"),
    ("WINPOSY", "0"),
    ("AUTOCHECKUSERS", "0"),
]


def default(values):
    """The bytes of the file that a first start writes."""
    rows = [VERSION_LINE]
    rows += [line(key, values.get(key, fresh)) for key, fresh in DEFAULT_ORDER]
    rows.append("")
    return "".join(row + "\r\n" for row in rows).encode("cp1252")
