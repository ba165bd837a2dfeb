#!/usr/bin/env python3
"""Checks that no room includes one that stands above it: check_rooms.py ROOT.

A room is a folder; the list goes from the lowest floor to the highest. What stands in one line shares a floor
and may not include each other, but for the rooms of one folder that the second list orders."""
import pathlib
import re
import sys

FLOORS = [
    ["platform", "platform/fonts", "resources"],
    ["platform/widgets"],
    ["engine"],
    ["model"],
    ["render", "style"],
    ["editors/preview"],
    ["editors/framework"],
    ["editors/colour", "editors/font"],
    ["editors/fields"],
    ["editors/layout", "editors/xy", "editors/pie", "editors/finance", "editors/meter", "editors/polar"],
    ["editors/entry"],
    ["demo", "tools", "bench"],
]
# The rooms of the engine, in the order of its list; the kinds of charts stand side by side.
ENGINE = re.search(r"foreach\(room (.*)\)", pathlib.Path(sys.argv[1], "engine/CMakeLists.txt").read_text()).group(1).split()
ENGINE_PEERS = [{"scale", "paint"}, set(ENGINE[ENGINE.index("axis") + 1 : -1])]
PUBLIC = {"chartdraw": "engine", "charteditors": "model", "chartrender": "render", "chartstyle": "style"}
# What a host's program may include of this project: public headers alone.
HOSTS = ["demo", "tools"]


def floor_of(path):
    """The floor and the room of a file, the longest name that fits."""
    best = (None, None)
    for number, rooms in enumerate(FLOORS):
        for room in rooms:
            if path.startswith(room + "/") and (best[1] is None or len(room) > len(best[1])):
                best = (number, room)
    return best


def fault(path, included, public):
    here, room = floor_of(path)
    there, other = floor_of(included)
    if there is None or here is None:
        return "an include outside the rooms" if there is None else None
    if room == other == "engine":
        mine, its = path.split("/")[1], included.split("/")[1]
        if "include" in (mine, its) or mine == its:
            return None
        if any({mine, its} <= peers for peers in ENGINE_PEERS) or ENGINE.index(its) > ENGINE.index(mine):
            return f"engine/{mine} stands below or beside engine/{its}"
        return None
    if room == other:
        return None
    if room in HOSTS and not public:
        return f"{room} is a host: public headers only"
    if room == "engine" and other != "platform/fonts" and not public or there >= here:
        return f"{room} stands below or beside {other}"
    return None


def main():
    root = pathlib.Path(sys.argv[1])
    faults = 0
    for folder in {room.split("/")[0] for rooms in FLOORS for room in rooms}:
        for file in sorted((root / folder).rglob("*")):
            if file.suffix not in (".h", ".cpp"):
                continue
            path = file.relative_to(root).as_posix()
            for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
                match = re.match(r'#include ["<]([^">]+)[">]', line)
                if not match:
                    continue
                name = match.group(1)
                first = name.split("/")[0]
                if first in PUBLIC:
                    included = f"{PUBLIC[first]}/include/{name}"
                elif line.startswith('#include "'):
                    included = name if (root / name).exists() else (file.parent / name).relative_to(root).as_posix()
                else:
                    continue
                if message := fault(path, included, first in PUBLIC):
                    print(f"{path}:{number}: {name}: {message}")
                    faults += 1
    sys.exit(faults > 0)


main()
