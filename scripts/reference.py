#!/usr/bin/env python3
"""Turns the public header into what Doxygen reads.

The contracts stay plain prose in the header; here their arguments, results and tables become
Doxygen's commands, its sections become groups, and pictures are put in.
"""

import argparse
import pathlib
import re

import interface

COMMENT = re.compile(r"[ \t]*/\*(.*?)\*/", re.DOTALL)
# Markers of the compiler that say nothing to readers.
MARKERS = re.compile(r"\bBRSL_API\s+|\bBRSL_CALL\b\s*")
MARKER_DEFINITIONS = re.compile(r"#if defined\((?:_WIN32|BRISAL_BUILD)\).*?#endif\n+", re.DOTALL)
CONVENTION_WIDTH = 14
SENTENCE = re.compile(r"(?<=\.) (?=[A-Z])(?!It )")
FIRST_SENTENCE = re.compile(r".*?[^.\s]\.(?=\s|$)", re.DOTALL)


# ---- Prose ------------------------------------------------------------------------------------

def escape(text):
    return re.sub(r"([\\@<>&#%])", r"\\\1", text)


def paragraph(text):
    return escape(text) + "\n\n"


def table(lines):
    indent = min(len(line) - len(line.lstrip()) for line in lines)
    return "@verbatim\n" + "".join(line[indent:] + "\n" for line in lines) + "@endverbatim\n\n"


def blocks_of(text):
    """Pairs of 'prose' or 'table' and lines: tables are what is indented."""
    blocks, after_gap = [], True
    for line in text.split("\n"):
        if not line.strip():
            after_gap = True
            continue
        kind = "table" if line.startswith("  ") else "prose"
        if after_gap or blocks[-1][0] != kind:
            blocks.append((kind, []))
        blocks[-1][1].append(line)
        after_gap = False
    return blocks


def statements_of(lines, arguments):
    """The lines of prose, joined where a line only breaks a sentence."""
    statements = []
    for line in lines:
        opens = re.match(r"Returns\b|The caller guarantees\b|Not clipped\b", line)
        opens = opens or argument_pattern(arguments).match(line)
        if not statements or opens and statements[-1].endswith("."):
            statements.append(line)
        elif statements[-1].endswith(".") and argument_pattern(arguments).search(statements[-1]):
            statements.append(line)
        else:
            statements[-1] += " " + line
    return statements


def argument_pattern(arguments):
    """Matches 'x1, y1: ', 'x0 .. y2: ' and 'colour1 to colour4: ' at the start of a sentence."""
    names = "|".join(re.escape(name) for name in arguments) or "(?!)"
    return re.compile(rf"(?:^|(?<=[.;] ))((?:{names})(?:(?:, | \.\. | to )(?:{names}))*): ")


def named_arguments(names, arguments):
    """All arguments that a list such as 'x, y' or 'x0 .. y2' names."""
    found = []
    for part in names.split(", "):
        ends = re.split(r" \.\. | to ", part)
        stems = {end.rstrip("0123456789") for end in ends}
        span = arguments[arguments.index(ends[0]):arguments.index(ends[-1]) + 1]
        found += [name for name in span if name.rstrip("0123456789") in stems]
    return ", ".join(found)


def render_statement(statement, arguments):
    if statement.startswith("Returns "):
        text = statement.removeprefix("Returns ")
        return "@return " + paragraph(text[0].upper() + text[1:])
    if statement.startswith("The caller guarantees"):
        return "@pre " + paragraph(statement)
    pieces = argument_pattern(arguments).split(statement)
    rendered = paragraph(pieces[0].strip()) if pieces[0].strip() else ""
    for names, text in zip(pieces[1::2], pieces[2::2]):
        about, *more = SENTENCE.split(text.strip(), maxsplit=1)
        rendered += f"@param {named_arguments(names, arguments)} {escape(about)}\n"
        rendered += "".join("\n" + paragraph(sentence) for sentence in more)
    return rendered.rstrip("\n") + "\n\n"


def render(text, arguments=()):
    rendered = ""
    for kind, lines in blocks_of(text):
        if kind == "table":
            rendered = rendered.rstrip("\n")
            # In the list of arguments it would be squeezed.
            in_arguments = rendered.rpartition("\n")[2].startswith("@param")
            rendered += ("\n\n" if in_arguments else "\n") + table(lines)
        elif len(lines) == 1 and lines[0].isupper():
            rendered += f"@par {escape(lines[0].capitalize())}\n\n"
        else:
            for statement in statements_of(lines, arguments):
                rendered += render_statement(statement, arguments)
    return rendered


def comment(text):
    return "/**\n" + text.rstrip() + "\n */"


# ---- The header -------------------------------------------------------------------------------

def render_function(function, pictures):
    """The first sentence stands in lists of functions, beside the picture above the others."""
    arguments = [argument["name"] for argument in function["arguments"]]
    contract = function["comment"]
    image = ""
    if (pictures / f"{function['name']}.png").exists():
        image = f"@image html {function['name']}.png\n\n"
    return comment(image + render_brief(contract, arguments))


def render_brief(contract, arguments):
    first = FIRST_SENTENCE.match(contract)
    if not first or "\n  " in first.group() or argument_pattern(arguments).match(contract):
        return render(contract, arguments)
    brief = "@brief " + paragraph(" ".join(first.group().split()))
    return brief + render(contract[first.end():].lstrip(" ").removeprefix("\n"), arguments)


def slug(title):
    return re.sub(r"\W+", "_", title.lower())


def open_group(title, text):
    return comment(f"@defgroup {slug(title)} {escape(title)}\n{render(text)}") + "\n/** @{ */"


def render_conventions(text):
    """The table of conventions as a page: each begins at the margin, and goes on indented."""
    entries = []
    for line in text.split("\n"):
        name, about = line[:CONVENTION_WIDTH].strip(), line[CONVENTION_WIDTH:]
        if name:
            entries.append((name, []))
        entries[-1][1].append(about)
    parts = [f"@par {escape(name)}\n{render(chr(10).join(lines))}" for name, lines in entries]
    return "".join(parts)


def render_head(text):
    """The file's own comment: an introduction, then the conventions."""
    introduction, conventions = text.split("CONVENTIONS\n\n")
    first, rest = introduction.split("\n\n", 1)
    brief = escape(first.partition(" - ")[2])
    return (comment(f"@file\n@brief {brief}\n\n{render(rest)}") + "\n" +
            comment(f"@page conventions Conventions\n{render_conventions(conventions)}"))


class Filter:
    """Walks over the comments of the header; code between them passes almost unchanged."""

    def __init__(self, header, pictures):
        self.header = header
        self.pictures = pictures
        self.functions = {f["name"]: f for f in interface.read_functions(header)}
        self.group_open = False
        self.list_open = False
        self.out = []

    def run(self):
        position = 0
        for match in COMMENT.finditer(self.header):
            self.add_code(self.header[position:match.start()])
            self.add_comment(match)
            position = match.end()
        self.add_code(self.header[position:])
        return self.link("".join(self.out))

    def link(self, text):
        """Makes references of the names of functions and constants in prose."""
        names = set(self.functions) | {name for name, _, _ in interface.CONSTANT.findall(text)}
        prose = re.compile(r"@verbatim.*?@endverbatim|@image.*?$|\b\w+\b", re.DOTALL | re.MULTILINE)

        def reference(word):
            name = word.group()
            return f'@ref {name} "{name}"' if name in names else name

        return re.sub(r"/\*\*.*?\*/", lambda part: prose.sub(reference, part.group()), text,
                      flags=re.DOTALL)

    def add_code(self, code):
        if self.list_open and "\n\n" in code:
            before, after = code.split("\n\n", 1)
            code = before + "\n/** @} */\n\n" + after
            self.list_open = False
        if self.group_open:
            code = code.replace("#ifdef __cplusplus\n}", "/** @} */\n#ifdef __cplusplus\n}")
        code = MARKERS.sub("", MARKER_DEFINITIONS.sub("", code))
        code = re.sub(r"^(\w+ ?)\((\w+)\)\(", r"\1\2(", code, flags=re.MULTILINE)
        self.out.append(code)

    def add_comment(self, match):
        text = interface.comment_text(match.group(1))
        following = self.header[match.end():]
        line_start = self.header.rfind("\n", 0, match.start()) + 1
        section = interface.SECTION.match(self.header, match.start())
        prototype = interface.PROTOTYPE.match(following.lstrip())
        if match.start() == 0:
            self.out.append(render_head(text))
        elif section:
            self.open_section(section.group(1), text)
        elif prototype:
            self.out.append(render_function(self.functions[prototype.group("name")], self.pictures))
        elif self.header[line_start:match.start()].strip():
            self.out.append(" /**< " + escape(" ".join(text.split())) + " */")
        elif following.startswith("\n#define"):
            self.open_list(text)
        else:
            self.out.append(comment(render(text)))

    def open_section(self, title, text):
        if self.group_open:
            self.out.append("/** @} */\n\n")
        text = re.sub(r"^.*?-{2,}\s*", "", text, count=1, flags=re.DOTALL) if "--" in text else ""
        self.out.append(open_group(title, text) + "\n")
        self.group_open = True

    def open_list(self, text):
        """A row of constants under one name, up to the next empty line."""
        name, _, rest = re.sub(r"\s+", " ", text).partition(".")
        if ":" in name:
            name, _, rest = text.partition(":")
        if not self.group_open:
            self.out.append(open_group("Constants and types", "") + "\n")
            self.group_open = True
        about = rest.strip()
        about = about[:1].upper() + about[1:]
        self.out.append(comment(f"@name {escape(name)}\n{escape(about)}") + "\n/** @{ */")
        self.list_open = True


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("header", type=pathlib.Path)
    parser.add_argument("--pictures", type=pathlib.Path, required=True, metavar="DIR",
                        help="pictures named after functions")
    arguments = parser.parse_args()
    header = arguments.header.read_text(encoding="utf-8")
    print(Filter(header, arguments.pictures).run(), end="")


if __name__ == "__main__":
    main()
