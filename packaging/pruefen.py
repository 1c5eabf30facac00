#!/usr/bin/env python3
"""Installs a build into an empty folder and looks at what lies there, as a desktop would.

    pruefen.py CMAKE BUILDDIR PREFIX
"""
import os
import pathlib
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

# Everything that an installed game consists of, below the prefix.
EXPECTED = {
    "games/malvone",
    "share/applications/malvone.desktop",
    "share/doc/malvone/copyright",
    "share/icons/hicolor/48x48/apps/malvone.png",
    "share/icons/hicolor/scalable/apps/malvone.svg",
    "share/man/man6/malvone.6",
    "share/metainfo/io.github.malvone.malvone.metainfo.xml",
} | {"share/games/malvone/" + name for name in (
    "TADA.WAV", "WHOOSH.WAV", "CHIMES.WAV", "FRAGE.WAV", "FEHLER.WAV", "BLIP.WAV", "ding.wav",
    "Malvone.pdf", "Meldefenster.pdf", "Bestespieler.pdf")}

faults = []


def run_tool(*command):
    return subprocess.run(command, capture_output=True, text=True,
                          env={**os.environ, "LC_ALL": "C.UTF-8", "MANROFFSEQ": ""})


def main():
    cmake, build, prefix = sys.argv[1:]
    with tempfile.TemporaryDirectory() as top:
        subprocess.run([cmake, "--install", build], check=True, stdout=subprocess.DEVNULL,
                       env={**os.environ, "DESTDIR": top})
        root = pathlib.Path(top + prefix)
        there = {str(path.relative_to(root)) for path in root.rglob("*") if path.is_file()}
        faults.extend(f"missing: {name}" for name in sorted(EXPECTED - there))
        faults.extend(f"not expected: {name}" for name in sorted(there - EXPECTED))
        if not faults:
            look_at(root)
    print("\n".join(faults))
    return 1 if faults else 0


def look_at(root):
    """The tools end with 0 on mere remarks too, so that any word of theirs is a fault."""
    entry = run_tool("desktop-file-validate", root / "share/applications/malvone.desktop")
    faults.extend((entry.stdout + entry.stderr).splitlines())
    metainfo = run_tool("appstreamcli", "validate", "--pedantic", "--no-net", "--no-color",
                        root / "share/metainfo/io.github.malvone.malvone.metainfo.xml")
    said = [line for line in metainfo.stdout.splitlines() if line]
    if metainfo.returncode or len(said) != 1:
        faults.extend(said)
    page = run_tool("man", "--warnings", "-E", "UTF-8", "-Tutf8", "-Z", "-l",
                    root / "share/man/man6/malvone.6")
    faults.extend(page.stderr.splitlines())
    if page.returncode:
        faults.append("the manual page cannot be set")
    if not os.access(root / "games/malvone", os.X_OK):
        faults.append("games/malvone cannot be run")
    icon = (root / "share/icons/hicolor/48x48/apps/malvone.png").read_bytes()
    if icon[16:24] != bytes([0, 0, 0, 48] * 2):
        faults.append("malvone.png is not of 48 x 48 pixels")
    xml.etree.ElementTree.parse(root / "share/icons/hicolor/scalable/apps/malvone.svg")


if __name__ == "__main__":
    sys.exit(main())
