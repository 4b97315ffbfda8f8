#!/usr/bin/env python3
"""Checks in the built library that the instruction sets stay in their columns.

Functions of the wide and the widest column must use registers of their width, and those of the gathering
one must gather; all others must use no wide registers. A kernel that was not inlined into its wrapper runs
slowly there, and a wide instruction anywhere else stops the library on processors without it.
"""

import argparse
import re
import subprocess
import sys

HEADING = re.compile(r"^[0-9a-f]+ <(.*)>:$")
# The names of a column's functions, the registers that they must use, and those that they must not.
COLUMNS = {
    "gathering": (re.compile(r"RunGathering\b"), re.compile(r"gather"), None),
    "widest": (re.compile(r"RunWidest\b"), re.compile(r"%[yz]mm"), None),
    "wide": (re.compile(r"RunWide\b"), re.compile(r"%ymm"), re.compile(r"%zmm|%[xy]mm(1[6-9]|[23]\d)|%k\d")),
    "plain": (re.compile(""), None, re.compile(r"%[yz]mm|%k\d|\tvzero")),
}


def run(*command):
    try:
        return subprocess.run(command, check=True, capture_output=True, text=True).stdout
    except (OSError, subprocess.CalledProcessError) as error:
        sys.exit(f"{command[0]}: {getattr(error, 'stderr', None) or error}")


def own_name(demangled):
    """The function's qualified name, without the arguments of its templates and parameters."""
    name, depth = [], 0
    for sign in demangled.replace("(anonymous namespace)", ""):
        depth += sign in "<("
        if depth == 0:
            name.append(sign)
        depth -= sign in ">)"
    return "".join(name)


def functions_of(disassembly):
    """Pairs of a function's demangled name and its instructions."""
    name, lines = None, []
    for line in disassembly.splitlines():
        heading = HEADING.match(line)
        if not heading:
            lines.append(line)
            continue
        if name:
            yield name, "\n".join(lines)
        name, lines = heading.group(1), []
    if name:
        yield name, "\n".join(lines)


def column_of(name):
    return next(column for column, (marker, _, _) in COLUMNS.items() if marker.search(own_name(name)))


def check(disassembly):
    complaints, counts = [], dict.fromkeys(COLUMNS, 0)
    for name, body in functions_of(disassembly):
        column = column_of(name)
        _, needed, forbidden = COLUMNS[column]
        if forbidden and forbidden.search(body):
            complaints.append(f"too wide for the {column} column: {name}")
        if "[clone .cold]" in name:
            continue
        counts[column] += 1
        if needed and not needed.search(body):
            complaints.append(f"no wide instructions in the {column} column: {name}")
    complaints += [f"no function of the {column} column found: is the library stripped?"
                   for column, count in counts.items() if count == 0]
    return complaints, counts


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("library", help="libbrisal.so with its local symbols, a release build")
    arguments = parser.parse_args()
    if "x86-64" not in run("objdump", "-f", arguments.library):
        print("not a library for x86-64: there are no wide columns")
        return
    disassembly = run("objdump", "-d", "-C", "--no-show-raw-insn", arguments.library)
    complaints, counts = check(disassembly)
    for complaint in complaints:
        print(complaint, file=sys.stderr)
    if complaints:
        sys.exit(1)
    print(", ".join(f"{count} {column} functions" for column, count in counts.items()) +
          ", each in its column")


if __name__ == "__main__":
    main()
