"""Holds a library for Windows against the list of its exports, and against the system's own libraries.

usage: check_library.py OBJDUMP LIBRARY EXPORTS.TXT
"""
import re
import subprocess
import sys

SYSTEM = {"kernel32.dll", "msvcrt.dll"}


def differences(library, actual, expected):
    for name in sorted(actual - expected):
        yield f"{library}: exports {name}, which is not declared"
    for name in sorted(expected - actual):
        yield f"{library}: does not export {name}"


def main():
    objdump, library, listed = sys.argv[1:]
    text = subprocess.run([objdump, "-p", library], check=True, capture_output=True, text=True).stdout
    table = text.partition("[Ordinal/Name Pointer] Table")[2]
    exported = set(re.findall(r"^\s*\[\s*\d+\].*?(\S+)$", table, re.MULTILINE))
    expected = set(open(listed, encoding="utf-8").read().split())
    needed = set(re.findall(r"DLL Name: (\S+)", text))
    faults = [] if expected else [f"{listed}: no names"]
    faults += differences(library, exported, expected)
    faults += [f"{library}: needs {name}" for name in needed if name.lower() not in SYSTEM]
    print("\n".join(faults) or f"{len(exported)} exports, as declared; needs {', '.join(sorted(needed))}")
    return 1 if faults else 0


sys.exit(main())
