"""Holds the built library, its header and the generated list of exports against each other."""
import re
import subprocess
import sys

SKIPPED = 77
NEEDED = {"libc.so.6", "libm.so.6"}


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def exported(library):
    lines = run("nm", "-D", "--defined-only", library).splitlines()
    return sorted(name.split("@")[0] for _, kind, name in (line.split() for line in lines)
                  if kind != "A")


def declared(header):
    text = re.sub(r"/\*.*?\*/", "", open(header, encoding="utf-8").read(), flags=re.S)
    return sorted(re.findall(r"BRSL_API[^;()]*?BRSL_CALL\s*\(?(\w+)\)?\s*\(", text))


def differences(what, actual, expected):
    for name in sorted(set(actual) - set(expected)):
        yield f"{what}: {name} is too much"
    for name in sorted(set(expected) - set(actual)):
        yield f"{what}: {name} is missing"


def main():
    library, header, listed, sanitized = sys.argv[1:]
    prototypes = declared(header)
    faults = [f"{header}: no prototypes"] if not prototypes else []
    faults += differences(listed, open(listed, encoding="utf-8").read().split(), prototypes)
    if sanitized != "1":
        faults += differences(library, exported(library), prototypes)
        needed = re.findall(r"NEEDED.*\[(.*)\]", run("readelf", "-d", library))
        faults += [f"{library}: needs {name}" for name in needed if name not in NEEDED]
    print("\n".join(faults) or f"{len(prototypes)} exports, as declared and listed")
    if not faults and sanitized == "1":
        print("skipped: a sanitised library exports and needs more than its own")
        return SKIPPED
    return 1 if faults else 0


sys.exit(main())
