#!/usr/bin/env python3
"""Installs a build into an empty folder, looks at it as a desktop would, and uninstalls it.

    check_install.py CMAKE BUILDDIR PREFIX
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

# Everything that an installed game consists of, below the prefix.
EXPECTED = {
    "games/malvone",
    "share/applications/malvone.desktop",
    "share/doc/malvone/copyright",
    "share/icons/hicolor/scalable/apps/malvone.svg",
    "share/man/man6/malvone.6",
    "share/metainfo/io.github.malvone.malvone.metainfo.xml",
} | {"share/games/malvone/" + name for name in (
    "TADA.WAV", "WHOOSH.WAV", "CHIMES.WAV", "FRAGE.WAV", "FEHLER.WAV", "BLIP.WAV", "ding.wav")}
for manual in ("Malvone.pdf", "Meldefenster.pdf", "Bestespieler.pdf"):
    EXPECTED |= {f"share/{folder}/malvone/{manual}" for folder in ("doc", "games")}
ICONS = {f"share/icons/hicolor/{size}x{size}/apps/malvone.png": size
         for size in (16, 22, 24, 32, 48, 64, 128, 256)}
EXPECTED |= ICONS.keys()

faults = []


def run_tool(*command):
    return subprocess.run(command, capture_output=True, text=True,
                          env={**os.environ, "LC_ALL": "C.UTF-8", "MANROFFSEQ": ""})


def main():
    cmake, build, prefix = sys.argv[1:]
    with tempfile.TemporaryDirectory() as top:
        def run_cmake(*arguments):
            subprocess.run([cmake, *arguments], check=True, stdout=subprocess.DEVNULL,
                           env={**os.environ, "DESTDIR": top})

        run_cmake("--install", build)
        root = pathlib.Path(top + prefix)
        there = {str(path.relative_to(root)) for path in root.rglob("*") if path.is_file()}
        faults.extend(f"missing: {name}" for name in sorted(EXPECTED - there))
        faults.extend(f"not expected: {name}" for name in sorted(there - EXPECTED))
        if not faults:
            look_at(root, prefix)
            if "CMAKE_BUILD_TYPE:STRING=Debug" not in pathlib.Path(build, "CMakeCache.txt").read_text():
                harden(root / "games/malvone")
        run_cmake("--build", build, "--target", "uninstall")
        faults.extend(f"stays: {path}" for path in root.rglob("*")
                      if not path.is_dir() or path.name == "malvone")
    print("\n".join(faults))
    return 1 if faults else 0


def look_at(root, prefix):
    """The tools exit with 0 on mere remarks too, so anything they print is a fault."""
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
    faults.extend(run_tool("mandoc", "-Tlint", root / "share/man/man6/malvone.6").stdout.splitlines())
    called = set(re.findall("^(?:Try)?Exec=(.*)", (root / "share/applications/malvone.desktop").read_text(),
                            re.MULTILINE))
    if called != {f"{prefix}/games/malvone"} or not os.access(root / "games/malvone", os.X_OK):
        faults.append(f"what the desktop starts cannot be run: {called}")
    for name, size in ICONS.items():
        if (root / name).read_bytes()[16:24] != size.to_bytes(4, "big") * 2:
            faults.append(f"{name} is not of {size} x {size} pixels")
    faults.extend(f"{path} leads nowhere" for path in root.rglob("*") if not path.exists())
    xml.etree.ElementTree.parse(root / "share/icons/hicolor/scalable/apps/malvone.svg")


def harden(program):
    """What compiler and linker have put into the executable to harden it."""
    look = run_tool("readelf", "--wide", "--dynamic", "--segments", "--dyn-syms", program).stdout
    wanted = {"immediate binding at drawn addresses": r"Flags:.*\bNOW\b.*\bPIE\b",
              "locked tables": "GNU_RELRO", "stack for data alone": r"GNU_STACK.* RW +0x",
              "guarded stacks": "__stack_chk_fail", "guarded calls": r"__(?!stack)\w+_chk@"}
    faults.extend(f"the executable has no {what}" for what, sign in wanted.items()
                  if not re.search(sign, look))
    # Every function that may be jumped to begins with endbr64; a program has hundreds.
    if os.uname().machine == "x86_64" and program.read_bytes().count(b"\xf3\x0f\x1e\xfa") < 100:
        faults.append("the executable has no control-flow protection")


if __name__ == "__main__":
    sys.exit(main())
