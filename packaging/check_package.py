#!/usr/bin/python3
"""Builds the Debian package twice, in places and conditions that differ, and lives with it: the same
bytes, nothing that lintian has to say, a game that starts where it is installed, and no trace of it
after its removal.

    check_package.py FOLDER     an empty or missing folder to work in, which is left for a look
"""
import contextlib
import filecmp
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tarfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path += [str(ROOT / "tests" / name) for name in ("support", "sound")]
from desktop import YES, Desktop, Game
from listening import Server
from processes import expect, script, until

# What only a real upload can settle: the number of the bug that asks for the package, and a place
# where new releases can be watched.
UPLOAD = {"initial-upload-closes-no-bugs", "debian-watch-file-is-missing"}
# Two machines that have nothing in common; the second has no network.
HERE = {"LC_ALL": "C.UTF-8", "TZ": "UTC"}, 0o022, "a/malvone"
ELSEWHERE = {"LC_ALL": "C", "LANGUAGE": "de", "TZ": "<+14>-14"}, 0o077, "an/other/and/longer/place"


def run(*command, **options):
    """The output of a command; a command that fails is a fault, and its last lines tell which."""
    process = subprocess.Popen(list(map(str, command)), stdout=subprocess.PIPE, text=True,
                               stderr=subprocess.STDOUT, errors="replace", start_new_session=True,
                               **options)
    try:
        told = process.communicate()[0]
    except BaseException:
        os.killpg(process.pid, signal.SIGTERM)
        raise
    expect(process.returncode == 0, f"{command}:\n" + "\n".join(told.splitlines()[-40:]))
    return told


def first_that_runs(*prefixes):
    return next((list(prefix) for prefix in prefixes if subprocess.run(
        [*prefix, "true"], stderr=subprocess.DEVNULL).returncode == 0), None)


def copy(folder):
    """The sources as they are now, without what builds have left in them."""
    shutil.copytree(ROOT, folder, copy_function=shutil.copy, ignore=shutil.ignore_patterns(
        "build", "node_modules", ".git", ".cache", "__pycache__", "obj-*", ".debhelper"))


def build(source, folder, conditions, kind, prefix=()):
    """Builds a copy of the sources and returns the folder of the packages."""
    environment, umask, place = conditions
    tree = folder / place
    shutil.copytree(source, tree, copy_function=shutil.copy)
    version = run("dpkg-parsechangelog", "-S", "Version", cwd=tree).split("-")[0]
    expect(f"(malvone VERSION {version} " in (tree / "CMakeLists.txt").read_text(),
           f"the package is called {version}, the game is not")
    with tarfile.open(tree.parent / f"malvone_{version}.orig.tar.xz", "w:xz", preset=0) as source:
        source.add(tree, "malvone", filter=lambda entry: None if entry.name == "malvone/debian" else entry)
    kept = {name: value for name, value in os.environ.items()
            if name not in ("CI", "CFLAGS", "CXXFLAGS", "SOURCE_DATE_EPOCH")}
    log = run(*prefix, "dpkg-buildpackage", "-us", "-uc", kind, cwd=tree, umask=umask,
              env={**kept, **environment})
    (tree.parent / "build.log").write_text(log)
    return tree.parent


def same_needs():
    """What ./play installs to build and play, the package asks for too."""
    listed = run("bash", "-c", '. tools/packages.sh; printf "%s\\n" "${play_packages[@]}"', cwd=ROOT).split()
    asked = set(re.findall(r"[a-z0-9.+-]+", (ROOT / "debian/control").read_text()))
    missing = [entry for entry in listed if asked.isdisjoint(entry.split("|"))]
    expect(missing == ["build-essential", "ccache"], f"debian/control does not ask for {missing}")


def compare(one, other):
    names = sorted(path.name for path in one.glob("*.deb"))
    expect(len(names) == 2, f"one package and its debug information: {names}")
    for name in names:
        expect(filecmp.cmp(one / name, other / name, shallow=False), f"the two {name} differ")


def judge(packages):
    """Lintian's tags, of the package and of its source."""
    (changes,) = packages.glob("*.changes")
    told = subprocess.run(["lintian", "-I", "--pedantic", "--fail-on", "none", "--no-cfg", changes],
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    expect(told.returncode == 0, told.stderr)
    tags = [line for line in told.stdout.splitlines() if line.split(": ")[2].split()[0] not in UPLOAD]
    expect(not tags, "\n".join(["lintian:", *tags]))


@contextlib.contextmanager
def installed(package, root):
    """An empty root that knows what the machine has, so that dpkg holds the dependencies against it."""
    state = root / "var/lib/dpkg"
    for name in ("info", "updates", "triggers"):
        (state / name).mkdir(parents=True)
    shutil.copy("/var/lib/dpkg/status", state)
    as_root = [] if os.geteuid() == 0 else first_that_runs(["unshare", "-r"])
    expect(as_root is not None, "only root can install, and the system lets nobody else act as root")
    dpkg = [*as_root, "dpkg", f"--root={root}", "--force-bad-path", "--no-triggers"]
    run(*dpkg, "--install", package)
    yield
    run(*dpkg, "--purge", "malvone")
    left = [path for path in root.rglob("*") if not path.is_relative_to(root / "var")]
    expect(not left, f"what the removal leaves: {left}")


def play(root, folder):
    """The installed game says hello and opens its manual, with nothing in the session's path."""
    place = root / "usr/share/games/malvone"
    asked = folder / "asked"
    viewer = folder / "bin/xdg-open"
    viewer.parent.mkdir()
    viewer.write_text(f'#!/bin/sh\nprintf %s "$1" >"{asked}.new" && mv "{asked}.new" "{asked}"\n')
    viewer.chmod(0o755)
    with Server() as server, \
            Desktop(folder=server.folder, PATH=f"{viewer.parent}:/usr/bin:/bin") as desktop:
        with Game(desktop, program=[root / "usr/games/malvone"]) as game:
            server.hears("TADA")
            leave_after_manual(game, asked, place)
        # Every file there may be missing.
        (place / "TADA.WAV").unlink()
        with Game(desktop, program=[root / "usr/games/malvone"]) as game:
            leave_after_manual(game, asked, place)


def leave_after_manual(game, asked, place):
    asked.unlink(missing_ok=True)
    game.key("F1")
    until(asked.exists, "the viewer of the manual")
    manual = pathlib.Path(asked.read_text().removeprefix("file://"))
    expect(manual == place / "Malvone.pdf" and manual.read_bytes().startswith(b"%PDF"),
           f"the manual: {manual}")
    game.key("alt+F4")
    game.click(YES, game.message())
    game.end()


def main():
    folder = pathlib.Path(sys.argv[1]).resolve()
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    offline = first_that_runs(["unshare", "-n"], ["unshare", "-cn"])
    if offline is None:
        print("The system lets nobody do without a network: it may have been used.")
    same_needs()
    source = folder / "source"
    copy(source)
    packages = build(source, folder, HERE, "--build=full")
    compare(packages, build(source, folder, ELSEWHERE, "-b", offline or []))
    judge(packages)
    (package,) = packages.glob("malvone_*.deb")
    root = folder / "root"
    with installed(package, root):
        play(root, folder)


if __name__ == "__main__":
    script(main, 3600)
