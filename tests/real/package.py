"""The package: made from a build, and unpacked where a person would unpack it."""

import re
import subprocess
import tarfile


def _run(*command, **how):
    ran = subprocess.run(command, capture_output=True, text=True, timeout=120, check=False, **how)
    if ran.returncode != 0:
        raise AssertionError(f"{' '.join(map(str, command))}: {ran.stdout}{ran.stderr}")
    return ran.stdout


def packed(build, place):
    """Packs the build; gives the archive."""
    _run("cpack", "--config", build / "CPackConfig.cmake", "-B", place, cwd=place)
    (archive,) = place.glob("*.tar.gz")
    return archive


def installed(build, place):
    """Installs the build into the folder."""
    _run("cmake", "--install", build, "--prefix", place)
    return place


def unpacked(archive, place):
    """Unpacks the archive; gives the one folder that came out of it."""
    place.mkdir(parents=True)
    with tarfile.open(archive) as content:
        content.extractall(place)
    (folder,) = place.iterdir()
    return folder


def files_below(folder):
    """All files, with whether they may be run, and all links with where they lead."""
    return sorted(
        (str(path.relative_to(folder)), str(path.readlink()) if path.is_symlink() else mode(path))
        for path in folder.rglob("*")
        if path.is_symlink() or path.is_file()
    )


def mode(path):
    return oct(path.stat().st_mode & 0o777)


def entry_values(text):
    """What a desktop entry says, by key."""
    return dict(line.split("=", 1) for line in text.splitlines() if "=" in line)


def command_of(entry):
    """The one quoted word of an entry's command, as a desktop takes it apart."""
    value = entry_values(entry)["Exec"].replace("\\\\", "\\")
    quoted = re.fullmatch(r'"((?:[^"\\$`]|\\["\\$`])*)"', value)
    return re.sub(r"\\(.)", r"\1", quoted[1]).replace("%%", "%")
