#!/usr/bin/env python3
"""Checks in the built library that the instruction sets stay in their columns.

Functions of the wide column must use 256-bit registers, all others must not: a kernel that was not
inlined into its wide wrapper runs slowly there, and a wide instruction anywhere else stops the
library on processors without it.
"""

import argparse
import re
import subprocess
import sys

HEADING = re.compile(r"^[0-9a-f]+ <(.*)>:$")
WIDE_INSTRUCTION = re.compile(r"%ymm|%zmm|\tvzero")
TOO_WIDE_INSTRUCTION = re.compile(r"%zmm")


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


def check(disassembly, marker):
    complaints, wide_count, plain_count = [], 0, 0
    for name, body in functions_of(disassembly):
        uses_wide = WIDE_INSTRUCTION.search(body)
        if not marker.search(own_name(name)):
            plain_count += 1
            if uses_wide:
                complaints.append(f"wide instructions outside the wide column: {name}")
            continue
        wide_count += "[clone .cold]" not in name
        if not uses_wide and "[clone .cold]" not in name:
            complaints.append(f"no wide instructions in the wide column: {name}")
        if TOO_WIDE_INSTRUCTION.search(body):
            complaints.append(f"512-bit registers: {name}")
    if wide_count == 0:
        complaints.append("no function of the wide column found: is the library stripped?")
    return complaints, wide_count, plain_count


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("library", help="libbrisal.so with its local symbols, a release build")
    parser.add_argument("--marker", default="RunWide", type=re.compile, metavar="RE",
                        help="what the names of wide functions contain (default: %(default)s)")
    arguments = parser.parse_args()
    if "x86-64" not in run("objdump", "-f", arguments.library):
        print("not a library for x86-64: there is no wide column")
        return
    disassembly = run("objdump", "-d", "-C", "--no-show-raw-insn", arguments.library)
    complaints, wide_count, plain_count = check(disassembly, arguments.marker)
    for complaint in complaints:
        print(complaint, file=sys.stderr)
    if complaints:
        sys.exit(1)
    print(f"{wide_count} wide functions, {plain_count} plain ones, each in its column")


if __name__ == "__main__":
    main()
