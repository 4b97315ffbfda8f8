#!/usr/bin/env python3
"""Reads the public header and writes everything that repeats its interface.

The header is the only place where the interface is written down. From its prototypes come the list
of exports, the linker's version script, the Windows module definition and a description for makers
of bindings, which has the records and callbacks too. With --check the contracts themselves are held
to account.
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
RECORD = re.compile(r"^typedef struct (\w+) (?:\1;|\{(.*?)^\} \1;)", re.MULTILINE | re.DOTALL)
CALLBACK = re.compile(r"^typedef (\w+)\(BRSL_CALL \*(\w+)\)\(([^)]*)\);", re.MULTILINE)
NESTED = re.compile(r"(struct|union)\s*\{(.*?)\}\s*(\w+)\s*;", re.DOTALL)
FIELD = re.compile(r"(?P<type>[\w\s*]+?)(?P<name>\w+)(?:\[(?P<count>\w+)\])?;")
SERVICE = re.compile(r"(?P<result>\w+)\(BRSL_CALL \*(?P<name>\w+)\)\((?P<arguments>[^)]*)\);")
GAP = re.compile(r"(?:\s|/\*.*?\*/)*", re.DOTALL)
VERSION = re.compile(r"^BRSL_VERSION_(MAJOR|MINOR|PATCH)$")
SHORTEST_CONTRACT = 20


class HeaderError(Exception):
    pass


def comment_text(comment):
    """The text between the comment marks, without the stars at the start of its lines."""
    lines = [re.sub(r"^\s*\*? ?", "", line).rstrip() for line in comment.split("\n")]
    return "\n".join(lines).strip().strip("-").strip()


def comment_before(header, position):
    """The comment of its own that ends directly before position, or an empty string."""
    before = header[:position].rstrip()
    if not before.endswith("*/"):
        return ""
    start = before.rindex("/*")
    if before[before.rfind("\n", 0, start) + 1:start].strip():
        return ""
    return comment_text(before[start + 2:-2])


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


def read_callback(result, arguments):
    return {"result": result, "arguments": read_arguments(arguments)}


def comment_beside(body, position):
    """The comment behind a field on its line, or an empty string."""
    match = re.match(r"[ \t]*/\*(.*?)\*/", body[position:], re.DOTALL)
    return " ".join(comment_text(match.group(1)).split()) if match else ""


def read_field(body, match, constants):
    field = {"name": match.group("name")}
    if match.re is SERVICE:
        field["callback"] = read_callback(match.group("result"), match.group("arguments"))
    else:
        field["type"] = " ".join(match.group("type").split())
        count = match.group("count")
        if count:
            field["count"] = int(count) if count.isdigit() else constants[count]
    field["comment"] = comment_beside(body, match.end())
    if match.re is SERVICE and not field["comment"]:
        field["comment"] = comment_before(body, match.start())
    return field


def read_fields(body, constants):
    """The fields of a record in their order; of nested unions and records their fields in turn."""
    fields, position = [], 0
    while True:
        position = GAP.match(body, position).end()
        if position == len(body):
            return fields
        nested = NESTED.match(body, position)
        match = nested or SERVICE.match(body, position) or FIELD.match(body, position)
        if not match:
            raise HeaderError(f"cannot read the field '{body[position:].splitlines()[0].strip()}'")
        if nested:
            kind, inner, name = nested.groups()
            fields.append({"name": name, "kind": kind, "fields": read_fields(inner, constants)})
        else:
            fields.append(read_field(body, match, constants))
        position = match.end()


def read_records(header, constants):
    """Records without fields are opaque: the library alone knows what is in them."""
    values = {constant["name"]: constant["value"] for constant in constants}
    return [{
        "name": match.group(1),
        "fields": read_fields(match.group(2) or "", values),
        "comment": comment_before(header, match.start()),
    } for match in RECORD.finditer(header)]


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
        "callbacks": [{"name": name, **read_callback(result, arguments)}
                      for result, name, arguments in CALLBACK.findall(header)],
        "records": read_records(header, constants),
        "functions": read_functions(header),
    }


def stack_bytes(function):
    """What __stdcall decorates a name with: the bytes of the arguments where addresses have 32 bits."""
    return sum(8 if argument["type"] in ("double", "int64_t", "uint64_t") else 4
               for argument in function["arguments"])


def module_definition(names):
    return 'LIBRARY "Brisal Library.dll"\nEXPORTS\n' + "".join(f"    {name}\n" for name in names)


def write_files(interface, folder):
    functions = sorted(interface["functions"], key=lambda function: function["name"])
    names = [function["name"] for function in functions]
    symbols = "".join(f"    {name};\n" for name in names)
    files = {
        "exports.txt": "".join(name + "\n" for name in names),
        "brisal.map": "{\n  global:\n" + symbols + "  local:\n    *;\n};\n",
        "brisal.def": module_definition(names),
        "brisal_stdcall.def": module_definition(
            f"{function['name']}@{stack_bytes(function)}" for function in functions),
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
                        help="write exports.txt, brisal.map, brisal.def, brisal_stdcall.def and\n"
                             "brisal.json here")
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
