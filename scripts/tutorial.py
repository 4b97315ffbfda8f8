#!/usr/bin/env python3
"""Takes the programs out of the tutorial, so that they can be built and run as a reader would.

The C blocks of a page, one after the other, are one program; its sh blocks build and run it.
"""

import argparse
import pathlib
import re
import sys

FENCE = re.compile(r"^```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
KINDS = ("c", "sh")


def extract(page, folder):
    """Writes NAME.c and NAME.sh of a page N-NAME.md; compilers' messages name lines of the page."""
    text = page.read_text(encoding="utf-8")
    parts = {kind: "" for kind in KINDS}
    for match in FENCE.finditer(text):
        kind, block = match.groups()
        if kind not in KINDS:
            sys.exit(f"{page}: a block of '{kind}', which nothing checks")
        if kind == "c":
            line = text.count("\n", 0, match.start(2)) + 1
            parts[kind] += f'#line {line} "{page}"\n'
        parts[kind] += block
    name = re.sub(r"^\d+-", "", page.stem)
    for kind, content in parts.items():
        if not content:
            sys.exit(f"{page}: no block of '{kind}'")
        (folder / f"{name}.{kind}").write_text(content, encoding="utf-8")
    print(name)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("folder", type=pathlib.Path, help="where the programs go")
    parser.add_argument("pages", type=pathlib.Path, nargs="+")
    arguments = parser.parse_args()
    arguments.folder.mkdir(parents=True, exist_ok=True)
    for page in arguments.pages:
        extract(page, arguments.folder)


if __name__ == "__main__":
    main()
