#!/usr/bin/env python3
"""Runs clang-tidy over all our sources in a build folder, and prints only findings.

A file is not checked again as long as it, the headers it includes and the checks stay the same.
"""
import argparse
import concurrent.futures
import hashlib
import json
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
# GCC's own warning flags stand in the commands too; clang need not know them.
TIDY = ["clang-tidy", "--quiet", "--extra-arg=-Wno-unknown-warning-option"]


def our_sources(build):
    """The sources of the build folder that lie in the repository, generated ones left out."""
    for entry in json.loads((build / "compile_commands.json").read_text()):
        path = pathlib.Path(entry["directory"], entry["file"]).resolve()
        if path.is_relative_to(ROOT) and not path.is_relative_to(build):
            yield path, entry["command"], entry.get("output", "")


def headers_of(build):
    """What ninja has learned of each object file: the headers of ours that it was made from."""
    listing = subprocess.run(["ninja", "-C", build, "-t", "deps"], capture_output=True, text=True,
                             check=True).stdout
    headers, target = {}, ""
    for line in listing.splitlines():
        if line.startswith("    "):
            path = (build / line.strip()).resolve()
            if path.is_relative_to(ROOT):
                headers[target].append(path)
        elif line:
            target = line.split(":")[0]
            headers[target] = []
    return headers


def fingerprint(basis, path, command, headers):
    state = hashlib.sha256(basis + command.encode())
    for file in sorted({path, *headers}):
        state.update(str(file).encode())
        state.update(file.read_bytes() if file.exists() else b"gone")
    return state.hexdigest()


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("build", type=pathlib.Path, help="a build folder that is built")
    parser.add_argument("-j", type=int, default=2, help="files at a time")
    args = parser.parse_args()
    build = args.build.resolve()
    clean = build / "tidy"
    clean.mkdir(exist_ok=True)

    version = subprocess.run(["clang-tidy", "--version"], capture_output=True, check=True).stdout
    rules = b"".join((ROOT / folder / ".clang-tidy").read_bytes() for folder in (".", "tests", "ui/qt"))
    basis = version + rules + repr(TIDY).encode()
    headers = headers_of(build)
    due, total = [], 0
    for path, command, output in our_sources(build):
        total += 1
        mark = clean / fingerprint(basis, path, command, headers.get(output, []))
        if not mark.exists():
            due.append((path, mark))

    def look(item):
        path, mark = item
        run = subprocess.run([*TIDY, "-p", build, path], capture_output=True, text=True)
        if run.returncode == 0:
            mark.touch()
            return True
        # With findings, standard error holds only the count of what was left out.
        print(f"{path.relative_to(ROOT)}:\n{run.stdout or run.stderr}", flush=True)
        return False

    with concurrent.futures.ThreadPoolExecutor(args.j) as pool:
        bad = [*pool.map(look, due)].count(False)
    print(f"clang-tidy: {total} files, {total - len(due)} unchanged since they were clean, "
          f"{bad} with findings")
    if total == 0:
        print("clang-tidy has seen no file", file=sys.stderr)
    return 1 if bad or total == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
