#!/usr/bin/env python3
"""Holds every #include of the game against the table of floors in docs/architecture.md.

A file may include what lies on its own floor or on a lower one, headers of the standard library
and, where the table says so, those of its platform. No two files include each other in a circle.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
ROW = re.compile(r"^\| (\d+) \| ([^|]*) \| [^|]* \|([^|]*)\|$", re.M)
INCLUDE = re.compile(r'^#include ([<"])([^>"]+)[>"]', re.M)


def main():
    floors, systems = {}, {}
    for floor, folders, allowed in ROW.findall((ROOT / "docs/architecture.md").read_text()):
        for folder in re.findall(r"`([^`]+)/`", folders):
            floors[folder] = int(floor)
            systems[folder] = re.findall(r"`<([^>]*)>`", allowed)
    faults, reach = [], {}
    for path in (p for folder in floors for p in sorted((ROOT / folder).glob("*.[ch]*"))):
        name, folder = str(path.relative_to(ROOT)), str(path.parent.relative_to(ROOT))
        reach[name] = []
        for bracket, wanted in INCLUDE.findall(path.read_text()):
            if bracket == "<":
                known = ["[a-z_0-9]+", *(s.replace("*", ".*") for s in systems[folder])]
                if not any(re.fullmatch(k, wanted) for k in known):
                    faults.append(f"{name}: <{wanted}> belongs to no library of this floor")
            elif (ROOT / wanted).exists():
                reach[name].append(wanted)
                if floors.get(str(pathlib.PurePath(wanted).parent), 99) > floors[folder]:
                    faults.append(f"{name}: {wanted} lies on a higher floor")
    done = set()

    def follow(name, trail):
        if name in trail:
            faults.append("circle: " + " -> ".join([*trail[trail.index(name):], name]))
        elif name not in done:
            for wanted in reach.get(name, []):
                follow(wanted, [*trail, name])
            done.add(name)

    for name in reach:
        follow(name, [])
    print("\n".join(faults) or f"{len(reach)} files stand on {len(set(floors.values()))} floors.")
    return bool(faults) or not reach


if __name__ == "__main__":
    sys.exit(main())
