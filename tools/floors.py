#!/usr/bin/env python3
"""Compares the game with the table of floors in docs/architecture.md.

    floors.py BUILD_FOLDER

A file may include what lies on its own floor or below, headers of the standard library and, where
the table says so, those of its platform; no two files include each other in a circle. The same
holds for calls: what an object file leaves undefined is defined on its own floor or below. The one
way up is a window's constructor, which connects its events to handlers that stand higher. No two
folders of one floor need each other.
"""
import collections
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
ROW = re.compile(r"^\| (\d+) \| ([^|]*) \| [^|]* \|([^|]*)\|$", re.M)
INCLUDE = re.compile(r'^#include ([<"])([^>"]+)[>"]', re.M)
CONSTRUCTOR = re.compile(r"_ZN(\w+)C[12]E")


def folder_of(name):
    return str(pathlib.PurePath(name).parent)


def circles(graph):
    """The ways through a graph that lead back to where they began."""
    found, done = [], set()

    def follow(node, trail):
        if node in trail:
            found.append("circle: " + " -> ".join([*trail[trail.index(node):], node]))
        elif node not in done:
            for following in sorted(graph.get(node, ())):
                follow(following, [*trail, node])
            done.add(node)

    for node in sorted(graph):
        follow(node, [])
    return found


def look_at_includes(floors, systems, rooms):
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
                rooms[folder].add(folder_of(wanted))
                if floors.get(folder_of(wanted), 99) > floors[folder]:
                    faults.append(f"{name}: {wanted} lies on a higher floor")
    return faults + circles(reach), len(reach)


def objects_in(build, floors):
    """Object files by source. A folder is built as a whole or not at all."""
    faults, found = [], {}
    for path in build.glob("CMakeFiles/*.dir/**/*.o"):
        source = str(path.relative_to(build)).split(".dir/", 1)[1][:-len(".o")]
        if folder_of(source) in floors and (ROOT / source).exists():
            found[source] = path
    for folder in sorted({folder_of(source) for source in found}):
        missing = {str(p.relative_to(ROOT)) for p in (ROOT / folder).glob("*.cpp")} - found.keys()
        faults += [f"{source} is not built in {build}" for source in sorted(missing)]
    if not found:
        faults.append(f"{build} holds no object files: build it first")
    return found, faults


def symbols_of(build, objects):
    """What each source defines (strong before weak), and what it leaves to others."""
    nm = re.search(r"^CMAKE_NM:\w+=(.+)$", (build / "CMakeCache.txt").read_text(), re.M)[1]
    lines = subprocess.run([nm, "-A", *map(str, objects.values())], check=True, text=True,
                           stdout=subprocess.PIPE).stdout.splitlines()
    source_of = {str(path): source for source, path in objects.items()}
    defined, weak = collections.defaultdict(set), collections.defaultdict(set)
    wanted = collections.defaultdict(set)
    for line in lines:
        place, kind, symbol = re.fullmatch(r"(.*?):[\s0-9a-f-]* ([A-Za-z]) (\S+)", line).groups()
        if kind in "Uwv":
            wanted[source_of[place]].add(symbol)
        elif kind.isupper() or kind == "u":
            (weak if kind in "WVu" else defined)[symbol].add(source_of[place])
    return {**weak, **defined}, wanted


def look_at_symbols(build, floors, rooms):
    objects, faults = objects_in(build, floors)
    if faults:
        return faults, 0
    defined, wanted = symbols_of(build, objects)
    constructed = collections.defaultdict(set)  # the classes whose constructors a source defines
    for symbol, sources in defined.items():
        if match := CONSTRUCTOR.match(symbol):
            for source in sources:
                constructed[source].add(match[1])
    for source, symbols in sorted(wanted.items()):
        for symbol in sorted(symbols & defined.keys()):
            target = min(defined[symbol], key=lambda name: floors[folder_of(name)])
            if any(re.match(rf"_ZNK?{name}\d", symbol) for name in constructed[source]):
                continue  # a handler of the window's own class
            rooms[folder_of(source)].add(folder_of(target))
            if floors[folder_of(target)] > floors[folder_of(source)]:
                faults.append(f"{source}: {symbol} is defined on a higher floor, in {target}")
    return faults, len(objects)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    floors, systems = {}, {}
    for floor, folders, allowed in ROW.findall((ROOT / "docs/architecture.md").read_text()):
        for folder in re.findall(r"`([^`]+)/`", folders):
            floors[folder] = int(floor)
            systems[folder] = re.findall(r"`<([^>]*)>`", allowed)
    rooms = collections.defaultdict(set)
    include_faults, files = look_at_includes(floors, systems, rooms)
    symbol_faults, objects = look_at_symbols(pathlib.Path(sys.argv[1]), floors, rooms)
    faults = include_faults + symbol_faults
    faults += circles({room: reached - {room} for room, reached in rooms.items()})
    text = "\n".join(faults) or (f"{files} files and {objects} object files in {len(floors)} "
                                 f"folders stand on {len(set(floors.values()))} floors.")
    print(subprocess.run(["c++filt"], input=text, text=True, check=True,
                         stdout=subprocess.PIPE).stdout)
    return bool(faults)


if __name__ == "__main__":
    sys.exit(main())
