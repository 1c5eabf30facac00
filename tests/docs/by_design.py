#!/usr/bin/env python3
"""Holds docs/by-design.md against the code: every entry has its remark at the line, every remark its
entry, and the test that both name exists and is the same."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
TEST = r"[A-Za-z0-9_.]+\.[A-Za-z0-9_]+"  # a played game is games.NAME


def entries():
    text = (ROOT / "docs/by-design.md").read_text(encoding="utf-8")
    for part in re.split(r"\n\n(?=\*\*)", text)[1:]:
        name = re.match(r"\*\*([a-z-]+)\.\*\*", part)[1]
        yield name, set(re.findall(rf"`({TEST})`", part.split("Test:")[1]))


def remarks():
    for folder in ("board", "game", "platform", "state", "storage", "ui"):
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            text = re.sub(r"\n\s*// ?", " ", path.read_text(encoding="utf-8"))
            for found in re.finditer(rf"By design \(([a-z-]+)\):.*?Test:\s+({TEST})", text):
                yield found[1], found[2], path.relative_to(ROOT)


def main():
    source = "".join(p.read_text(encoding="utf-8") for p in sorted((ROOT / "tests").rglob("*.cpp")))
    tests = {f"{a}.{b}" for a, b in re.findall(r"\bTEST(?:_F|_P)?\((\w+),\s*(\w+)\)", source)}
    tests |= {"games." + p.stem for p in (ROOT / "tests/games").glob("*.drehbuch")}
    tests |= {f"display.qt.{p.stem}" for p in (ROOT / "tests/qt").glob("*_e2e.py")}
    listed = dict(entries())
    faults = [f"{name}: no remark in the code" for name in listed.keys() - {r[0] for r in remarks()}]
    faults += [f"{name}: there is no test {test}"
               for name, wanted in listed.items() for test in wanted - tests]
    for name, test, path in remarks():
        if name not in listed:
            faults.append(f"{path}: {name} has no entry")
        elif test not in listed[name]:
            faults.append(f"{path}: {name} names {test}, the entry names {listed[name]}")
    print("\n".join(sorted(faults)) or f"{len(listed)} entries, each with its remark and its test")
    return 1 if faults or not listed else 0


if __name__ == "__main__":
    sys.exit(main())
