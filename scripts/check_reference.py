#!/usr/bin/env python3
"""Holds the reference that Doxygen made to the header.

Every function has to be there with every word of its contract, and with a picture where it draws.
"""

import argparse
import collections
import pathlib
import re
import sys
import xml.etree.ElementTree as xml

import interface

# Sections whose functions change pixels; elsewhere the contract says whether a function draws.
DRAWING_SECTIONS = {
    "Pixels and strips", "Boxes", "Circles and ellipses", "Lines", "Polygons", "Blits", "Strips",
    "Rectangle filters", "Scaling and map blocks", "Textured polygons", "Sprites"}
DRAWS = re.compile(r"(Draws|Plots|Fills the|Stores a colour at|Copies columns)\b")
STORES = re.compile(r"Stores .* draws nothing", re.DOTALL)


def drawing_functions(functions):
    names = []
    for function in functions:
        contract = function["comment"]
        by_section = function["section"] in DRAWING_SECTIONS and function["result"] == "void"
        varies = contract.split()[0] in names and function["result"] == "void"
        if (by_section or varies or DRAWS.match(contract)) and not STORES.match(contract):
            names.append(function["name"])
    return names


def words_of(text):
    """Without those that became a heading or a list of arguments."""
    words = re.findall(r"\w+", text.lower())
    return collections.Counter(word for word in words if word not in ("returns", "to"))


def documented_functions(folder):
    """For each function the words of its description, and whether it has an image."""
    found = {}
    for file in folder.glob("group__*.xml"):
        for member in xml.parse(file).iter("memberdef"):
            if member.get("kind") == "function":
                parts = [member.find("briefdescription"), member.find("detaileddescription")]
                text = " ".join(" ".join(part.itertext()) for part in parts)
                image = any(part.find(".//image") is not None for part in parts)
                found[member.findtext("name")] = (words_of(text), image)
    return found


def check(functions, folder):
    complaints = []
    documented = documented_functions(folder)
    drawing = drawing_functions(functions)
    for function in functions:
        name = function["name"]
        if name not in documented:
            complaints.append(f"{name}: not in the reference")
            continue
        words, image = documented[name]
        missing = words_of(function["comment"]) - words
        if missing:
            complaints.append(f"{name}: words of its contract are lost: {' '.join(missing)}")
        if name in drawing and not image:
            complaints.append(f"{name}: draws, but has no picture")
    complaints += [f"{name}: not in the header" for name in documented.keys() -
                   {function["name"] for function in functions}]
    return complaints, len(documented), len(drawing)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("header", type=pathlib.Path)
    parser.add_argument("folder", type=pathlib.Path, help="Doxygen's XML")
    arguments = parser.parse_args()
    functions = interface.read_functions(arguments.header.read_text(encoding="utf-8"))
    complaints, count, drawing = check(functions, arguments.folder)
    for complaint in complaints:
        print(complaint, file=sys.stderr)
    if complaints:
        sys.exit(1)
    print(f"{count} functions with their contracts, {drawing} of them with a picture")


if __name__ == "__main__":
    main()
