#!/usr/bin/env python3
"""Holds the includes of the tree to its floors: downwards or within a folder, never in a circle."""

import pathlib
import re
import sys

# What each folder of src/ stands on directly; it may include whatever those stand on, too.
STANDS_ON = {
    "core": [],
    "pixel": ["core"],
    "hostlang": ["core"],
    "raster": ["pixel"],
    "surface": ["raster", "hostlang"],
    "poly": ["surface"],
    "font": ["pixel"],
    "scene": ["poly"],
    "collide": ["poly"],
    "exports": ["font", "scene", "collide"],
}
PUBLIC = "include/brisal"
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


def below(floor):
    found = set()
    for lower in STANDS_ON[floor]:
        found |= {lower} | below(lower)
    return found


ALLOWED = {f"src/{floor}": {PUBLIC} | {f"src/{lower}" for lower in below(floor)}
           for floor in STANDS_ON}
ALLOWED |= {PUBLIC: set(), "host": {PUBLIC}, "tools": {PUBLIC, "host"}}


def place_of(root, file):
    """The folder that decides what a file may include."""
    parts = file.relative_to(root).parts
    return "/".join(parts[:2]) if parts[0] in ("src", "include") else parts[0]


def resolve(root, file, name):
    for folder in (file.parent, root / "src", root / "include", root):
        candidate = (folder / name).resolve()
        if candidate.is_file():
            return candidate
    return None


def read_includes(root, complaints):
    """For each file of the tree the files of the tree that it includes."""
    graph = {}
    for top in ("include", "src", "host", "tools"):
        for file in sorted((root / top).rglob("*")):
            if file.suffix not in (".h", ".cc", ".c"):
                continue
            graph[file] = []
            for mark, name in INCLUDE.findall(file.read_text(encoding="utf-8")):
                found = resolve(root, file, name)
                if found:
                    graph[file].append(found)
                elif mark == '"':
                    complaints.append(f"{file.relative_to(root)}: no such file: {name}")
    return graph


def check_direction(root, graph, complaints):
    for file, included in graph.items():
        place = place_of(root, file)
        if place not in ALLOWED:
            complaints.append(f"{file.relative_to(root)}: {place} is not one of the floors")
            continue
        for other in included:
            if place_of(root, other) not in ALLOWED[place] | {place}:
                complaints.append(
                    f"{file.relative_to(root)}: must not include {other.relative_to(root)}")


def check_circles(root, graph, complaints):
    done = set()

    def visit(file, trail):
        if file in trail:
            circle = trail[trail.index(file):] + [file]
            complaints.append("circle: " + " -> ".join(str(f.relative_to(root)) for f in circle))
            return
        if file in done:
            return
        for other in graph.get(file, []):
            visit(other, trail + [file])
        done.add(file)

    for file in graph:
        visit(file, [])


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: check_includes.py ROOT")
    root = pathlib.Path(sys.argv[1]).resolve()
    complaints = []
    graph = read_includes(root, complaints)
    check_direction(root, graph, complaints)
    check_circles(root, graph, complaints)
    for complaint in complaints:
        print(complaint, file=sys.stderr)
    if complaints:
        sys.exit(1)
    print(f"{len(graph)} files include in the right direction")


if __name__ == "__main__":
    main()
