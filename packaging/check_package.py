#!/usr/bin/python3
"""Releases the sources as they are, without a tag, and builds the packages a second time elsewhere and
under other conditions: the bytes are the same, lintian finds nothing, the installed game can be played,
and nothing stays behind when it is removed.

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

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.append(str(ROOT / "tests/support"))
from processes import expect, script

# What only an upload can settle: the number of the bug that asks for the package.
UPLOAD = {"initial-upload-closes-no-bugs"}
# A machine that has nothing in common with this one, and no network.
ELSEWHERE = {"LC_ALL": "C", "LANGUAGE": "de", "TZ": "<+14>-14", "DEB_BUILD_OPTIONS": "nocheck",
             "HOME": "/nonexistent"}


def run(*command, **options):
    """The output of a command; if it fails, its last lines are the failure."""
    process = subprocess.Popen(list(map(str, command)), stdout=subprocess.PIPE, text=True,
                               stderr=subprocess.STDOUT, errors="replace", start_new_session=True,
                               **options)
    try:
        output = process.communicate()[0]
    except BaseException:
        os.killpg(process.pid, signal.SIGTERM)
        raise
    expect(process.returncode == 0, f"{command}:\n" + "\n".join(output.splitlines()[-40:]))
    return output


def first_that_runs(*prefixes):
    return next((list(prefix) for prefix in prefixes if subprocess.run(
        [*prefix, "true"], stderr=subprocess.DEVNULL).returncode == 0), None)


def build_elsewhere(release, folder):
    """Builds the packages from the source package, and the tarball from what that holds."""
    tree = folder / "an/other/and/longer/place"
    tree.parent.mkdir(parents=True)
    (described,) = release.glob("*.dsc")
    run("dpkg-source", "--extract", described, tree)
    offline = first_that_runs(["unshare", "-n"], ["unshare", "-cn"])
    if offline is None:
        print("The network cannot be cut off here, so the build may have used it.")
    conditions = {"umask": 0o077, "env": {**os.environ, **ELSEWHERE}}
    run("tools/release", "--tarball", tree.parent, cwd=tree, **conditions)
    run(*offline or [], "dpkg-buildpackage", "--no-sign", "--build=binary", "--jobs=auto", cwd=tree, **conditions)
    return tree.parent


def same_needs():
    """The package depends on everything that ./play installs to build and play."""
    listed = run("bash", "-c", '. tools/packages.sh; printf "%s\\n" "${play_packages[@]}"', cwd=ROOT).split()
    asked = set(re.findall(r"[a-z0-9.+-]+", (ROOT / "debian/control").read_text()))
    missing = [entry for entry in listed if asked.isdisjoint(entry.split("|"))]
    expect(missing == ["build-essential", "ccache"], f"debian/control does not ask for {missing}")


def compare(one, other):
    names = sorted(path.name for pattern in ("*.deb", "*.orig.tar.xz") for path in one.glob(pattern))
    expect(len(names) == 5, f"tarball, game, its debug information, data and page: {names}")
    for name in names:
        expect(filecmp.cmp(one / name, other / name, shallow=False), f"the two {name} differ")


def judge(release):
    """Lintian's tags, of the packages and of their source."""
    (changes,) = release.glob("*.changes")
    judged = subprocess.run(["lintian", "-I", "--pedantic", "--fail-on", "none", "--no-cfg", changes],
                            capture_output=True, text=True)
    expect(judged.returncode == 0, judged.stderr)
    tags = [line for line in judged.stdout.splitlines() if line.split(": ")[2].split()[0] not in UPLOAD]
    expect(not tags, "\n".join(["lintian:", *tags]))


@contextlib.contextmanager
def installed(packages, root):
    """An empty root that lists the packages of this machine, so that dpkg can check dependencies."""
    state = root / "var/lib/dpkg"
    for name in ("info", "updates", "triggers"):
        (state / name).mkdir(parents=True)
    shutil.copy("/var/lib/dpkg/status", state)
    as_root = [] if os.geteuid() == 0 else first_that_runs(["unshare", "-r"])
    expect(as_root is not None, "only root can install, and nobody else may act as root here")
    dpkg = [*as_root, "dpkg", f"--root={root}", "--force-bad-path", "--no-triggers"]
    run(*dpkg, "--install", *packages)
    yield
    run(*dpkg, "--purge", "malvone", "malvone-data")
    left = [path for path in root.rglob("*") if not path.is_relative_to(root / "var")]
    expect(not left, f"what the removal leaves: {left}")


def main():
    folder = pathlib.Path(sys.argv[1]).resolve()
    shutil.rmtree(folder, ignore_errors=True)
    same_needs()
    release = folder / "release"
    run(ROOT / "tools/release", "--dry-run", release)
    compare(release, build_elsewhere(release, folder))
    judge(release)
    root = folder / "root"
    with installed([*release.glob("malvone_*.deb"), *release.glob("malvone-data_*.deb")], root):
        run(ROOT / "debian/tests/desktop", env={**os.environ, "PATH": f"{root}/usr/games:{os.environ['PATH']}"})


if __name__ == "__main__":
    script(main, 3600)
