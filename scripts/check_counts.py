#!/usr/bin/env python3
"""Compares how many instructions the library needs for a few fixed jobs with a committed table.

usage: check_counts.py PROGRAM LIBRARY TABLE COMPILER [--refresh]

Only instructions of LIBRARY itself count: what the C library chooses differs between processors.
"""
import re
import subprocess
import sys
import tempfile
from pathlib import Path

TOLERANCE = 0.03
TIMES = 8  # repetitions of a job in one part of the profile
OUTDATED = 3


def instructions_of(profile, library):
    """The self cost of all functions of the library in one part of a profile."""
    names = {}
    inside = False
    skip = False
    total = 0
    for line in profile.read_text().splitlines():
        if match := re.match(r"ob=\((\d+)\)(?: (.*))?", line):
            if match[2]:
                names[match[1]] = match[2]
            inside = Path(names[match[1]]).name.startswith(library)
        elif match := re.match(r"cob=\((\d+)\) (.*)", line):
            names[match[1]] = match[2]
        elif line.startswith("calls="):
            skip = True  # the next line is the cost of what is called
        elif match := re.match(r"[+*\d-]\S* (\d+)$", line):
            if inside and not skip:
                total += int(match[1])
            skip = False
    return total


def count(program, library, jobs):
    with tempfile.TemporaryDirectory() as folder:
        names = Path(folder) / "jobs"
        names.write_text("\n".join(jobs) + "\n")
        done = subprocess.run(
            ["valgrind", "--tool=callgrind", f"--callgrind-out-file={folder}/part",
             "--compress-pos=no", program, names], capture_output=True, text=True, check=False)
        if done.returncode != 0:
            sys.exit(done.stderr)
        counts = {}
        for part in Path(folder).glob("part.*"):
            if match := re.search(r"^desc: Trigger: Client Request: (.*)$", part.read_text(), re.M):
                counts[match[1]] = round(instructions_of(part, library) / TIMES)
        return counts


def read(table):
    lines = [line.split("\t") for line in table.read_text().splitlines() if not line.startswith("#")]
    return lines[0][0], {name: (int(wide), int(plain)) for name, wide, plain in lines[1:]}


def write(table, compiler, counts, jobs):
    head = [line for line in table.read_text().splitlines() if line.startswith("#")]
    rows = [f"{job}\t{counts['wide ' + job]}\t{counts['plain ' + job]}" for job in jobs]
    table.write_text("\n".join(head + [compiler] + rows) + "\n")


def main():
    program, library, table, compiler = sys.argv[1:5]
    table = Path(table)
    known, expected = read(table)
    refresh = "--refresh" in sys.argv
    if compiler != known and not refresh:
        print(f"Left out: the table is of {known}, this build is of {compiler}.")
        return 0
    if "avx2" not in Path("/proc/cpuinfo").read_text():
        print("Left out: this processor has no wide column.")
        return 0
    counts = count(program, library, expected)
    if refresh:
        write(table, compiler, counts, expected)
        print(f"Wrote {table}")
        return 0
    failed = False
    for job, (wide, plain) in expected.items():
        for column, before in (("wide", wide), ("plain", plain)):
            now = counts[f"{column} {job}"]
            change = now / before - 1
            if abs(change) > TOLERANCE:
                failed = True
                print(f"{job} ({column}): {before} -> {now} instructions ({change:+.1%})")
    if failed:
        print("Where a job grew, find out why. Where it shrank or had to grow, say so in the commit "
              "and refresh the table: ./dev counts --refresh")
        return OUTDATED
    print(f"{len(expected)} jobs need as many instructions as before on both columns")
    return 0


if __name__ == "__main__":
    sys.exit(main())
