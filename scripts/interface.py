#!/usr/bin/env python3
"""Reads the public header and writes everything that repeats its interface.

The header is the only place where the interface is written down. From its prototypes come the list
of exports, the linker's version script, the Windows module definition and a description for makers
of bindings. With --check the contracts themselves are held to account.
"""

import argparse
import json
import pathlib
import re
import sys

PROTOTYPE = re.compile(
    r"^BRSL_API\s+(?P<result>[\w\s*]+?)\s*\bBRSL_CALL\s*\(?\s*(?P<name>\w+)\s*\)?\s*"
    r"\((?P<arguments>.*?)\)\s*;",
    re.MULTILINE | re.DOTALL)
CONSTANT = re.compile(
    r"^#define[ \t]+(\w+)[ \t]+\(?(-?(?:0[xX][0-9a-fA-F]+|\d+))[uUlL]*\)?[ \t]*(?:/\*(.*?)\*/)?[ \t]*$",
    re.MULTILINE)
SECTION = re.compile(r"^/\* -{4} (.+?) -+", re.MULTILINE)
VERSION = re.compile(r"^BRSL_VERSION_(MAJOR|MINOR|PATCH)$")
SHORTEST_CONTRACT = 20


class HeaderError(Exception):
    pass


def comment_text(comment):
    """The text between the comment marks, without the stars at the start of its lines."""
    lines = [re.sub(r"^\s*\*? ?", "", line).rstrip() for line in comment.split("\n")]
    return "\n".join(lines).strip().strip("-").strip()


def comment_before(header, position):
    """The comment that ends directly before position, or an empty string."""
    before = header[:position].rstrip()
    if not before.endswith("*/"):
        return ""
    return comment_text(before[before.rindex("/*") + 2:-2])


def read_argument(text):
    match = re.fullmatch(r"(.*?)(\w+)", " ".join(text.split()))
    if not match or not match.group(1):
        raise HeaderError(f"argument without a type or a name: '{text.strip()}'")
    return {"name": match.group(2), "type": match.group(1).strip()}


def read_arguments(text):
    if text.strip() in ("", "void"):
        return []
    return [read_argument(part) for part in text.split(",")]


def section_at(header, position):
    """The title of the last section that begins before position."""
    titles = [match.group(1) for match in SECTION.finditer(header, 0, position)]
    return titles[-1] if titles else ""


def read_functions(header):
    functions = [{
        "name": match.group("name"),
        "section": section_at(header, match.start()),
        "result": " ".join(match.group("result").split()),
        "arguments": read_arguments(match.group("arguments")),
        "comment": comment_before(header, match.start()),
    } for match in PROTOTYPE.finditer(header)]
    declared = len(re.findall(r"^BRSL_API\b", header, re.MULTILINE))
    if declared != len(functions):
        raise HeaderError(f"{declared} prototypes, but only {len(functions)} of them can be read")
    names = [function["name"] for function in functions]
    twice = sorted({name for name in names if names.count(name) > 1})
    if twice:
        raise HeaderError("declared twice: " + ", ".join(twice))
    return functions


def read_interface(header):
    constants, version = [], {}
    for name, value, comment in CONSTANT.findall(header):
        part = VERSION.match(name)
        if part:
            version[part.group(1)] = value
            continue
        constants.append({"name": name, "value": int(value, 0), "comment": comment.strip()})
    if len(version) != 3:
        raise HeaderError("the version macros are missing")
    return {
        "version": ".".join(version[part] for part in ("MAJOR", "MINOR", "PATCH")),
        "constants": constants,
        "functions": read_functions(header),
    }


def write_files(interface, folder):
    names = sorted(function["name"] for function in interface["functions"])
    symbols = "".join(f"    {name};\n" for name in names)
    files = {
        "exports.txt": "".join(name + "\n" for name in names),
        "brisal.map": "{\n  global:\n" + symbols + "  local:\n    *;\n};\n",
        "brisal.def": 'LIBRARY "Brisal Library"\nEXPORTS\n' + symbols.replace(";", ""),
        "brisal.json": json.dumps(interface, indent=1) + "\n",
    }
    folder.mkdir(parents=True, exist_ok=True)
    for name, text in files.items():
        (folder / name).write_text(text, encoding="utf-8")


def contracts_of(name, comments):
    """The function's comment and, through the functions it names, those it leans on."""
    reached, waiting = [], [name]
    while waiting:
        current = waiting.pop()
        if current not in reached and current in comments:
            reached.append(current)
            waiting += re.findall(r"\w+", comments[current])
    return "\n".join(comments[current] for current in reached)


def mentions(text, argument):
    """Any member of a numbered row (x0 .. y2, colours) or its plural speaks for the whole row."""
    stem = argument.rstrip("0123456789")
    return re.search(rf"\b{stem}\d*s?\b", text)


def check_contracts(functions):
    comments = {function["name"]: function["comment"] for function in functions}
    complaints = []
    for name, comment in comments.items():
        if len(comment) < SHORTEST_CONTRACT:
            complaints.append(f"{name}: no contract comment directly before the prototype")
    for function in functions:
        contract = contracts_of(function["name"], comments)
        missing = [argument["name"] for argument in function["arguments"]
                   if not mentions(contract, argument["name"])]
        if missing:
            complaints.append(f"{function['name']}: contract does not mention {', '.join(missing)}")
    return complaints


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("header", type=pathlib.Path)
    parser.add_argument("--out", type=pathlib.Path, metavar="DIR",
                        help="write exports.txt, brisal.map, brisal.def and brisal.json here")
    parser.add_argument("--check", action="store_true",
                        help="demand a contract for every function and argument")
    arguments = parser.parse_args()
    try:
        interface = read_interface(arguments.header.read_text(encoding="utf-8"))
        if arguments.out:
            write_files(interface, arguments.out)
    except (OSError, HeaderError) as error:
        sys.exit(f"{arguments.header}: {error}")
    if not arguments.check:
        return
    complaints = check_contracts(interface["functions"])
    for complaint in complaints:
        print(f"{arguments.header}: {complaint}", file=sys.stderr)
    if complaints:
        sys.exit(1)
    print(f"{len(interface['functions'])} functions, each with its contract")


if __name__ == "__main__":
    main()
