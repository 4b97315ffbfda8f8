"""Writes the Python module of the interface, and its type stub, from what the header says."""

import textwrap

SCALARS = {
    "int16_t": "c_int16", "int32_t": "c_int32", "uint32_t": "c_uint32", "float": "c_float",
    "uintptr_t": "c_size_t", "unsigned char": "c_ubyte", "void *": "c_void_p",
    "const void *": "c_void_p", "const char *": "c_char_p"}
POINTERS = {
    "void *": "Address", "const void *": "ReadAddress", "const char *": "Text",
    "int32_t *": "Int32s", "const int32_t *": "ReadInt32s", "uint32_t *": "UInt32s",
    "float *": "Floats"}
STUB_POINTERS = {
    "void *": "_Address", "const void *": "_ReadAddress", "const char *": "_Text",
    "int32_t *": "_Elements", "const int32_t *": "_Elements | Sequence[int]",
    "uint32_t *": "_Elements", "float *": "_Elements"}
STUB_RESULTS = {"void": "None", "float": "float", "void *": "int | None", "const char *": "bytes"}

# Functions after whose return the library still goes to an argument's memory.
REMEMBERS = {
    "BRSL_SetBuffer": ["address"], "BRSL_SetSrcBuffer": ["address"],
    "BRSL_SetSrcBlendBuffer": ["address"], "Shape_Set_Buffers": ["rowTable", "nodePool"],
    "GCF_Retrieve": ["record"]}

MODULE_HEAD = '''\
"""Brisal's functions, records and constants under their names in C; made from brisal.h."""

from ctypes import (CFUNCTYPE, POINTER, Structure, Union, c_char_p, c_float, c_int16, c_int32,
                    c_size_t, c_ubyte, c_uint32, c_void_p)

from ._buffers import Address, Floats, Int32s, ReadAddress, ReadInt32s, Text, UInt32s, hold
from ._library import bind as _bind

_remembered = {}
'''

STUB_HEAD = '''\
import ctypes
from _typeshed import ReadableBuffer, WriteableBuffer
from collections.abc import Sequence
from ctypes import Structure, Union
from typing import Any, Protocol

_Address = WriteableBuffer | int | None
_ReadAddress = ReadableBuffer | int | None
_Text = ReadableBuffer | str | int | None
_Elements = WriteableBuffer | ctypes._Pointer[Any] | None

class _Wrapper(Protocol):
    @property
    def _as_parameter_(self) -> Any: ...
'''


def target_of(c_type):
    """The record that a pointer leads to, or None for pointers to anything else."""
    name = c_type.replace("const", "").replace("*", "").strip()
    return name if c_type.endswith("*") and name[0].isupper() else None


def value_type(c_type):
    if c_type == "void":
        return "None"
    record = target_of(c_type)
    return f"POINTER({record})" if record else SCALARS.get(c_type, c_type)


def argument_type(c_type):
    return POINTERS.get(c_type) or value_type(c_type)


def callback_type(callback):
    types = [callback["result"]] + [argument["type"] for argument in callback["arguments"]]
    return f"CFUNCTYPE({', '.join(map(value_type, types))})"


def field_type(field):
    name = callback_type(field["callback"]) if "callback" in field else value_type(field["type"])
    return f"{name} * {field['count']}" if "count" in field else name


def docstring(text, indent):
    text = text.replace("\\", "\\\\").replace('"""', "'''")
    body = textwrap.indent(text, " " * indent).strip()
    return f'{" " * indent}"""{body}\n{" " * indent}"""\n' if "\n" in text else (
        f'{" " * indent}"""{body}"""\n')


def record_doc(record):
    lines = [f"{field['name']}: {field['comment']}" for field in record["fields"]
             if field.get("comment")]
    return "\n\n".join(filter(None, [record.get("comment", ""), "\n".join(lines)]))


def record_text(record, base="Structure"):
    nested = [record_text({"name": f"{record['name']}_{field['name']}", **{
        "fields": field["fields"]}}, "Union" if field["kind"] == "union" else "Structure")
        for field in record["fields"] if "fields" in field]
    names = [(field["name"], f"{record['name']}_{field['name']}" if "fields" in field
              else field_type(field)) for field in record["fields"]]
    fields = "".join(f'        ("{name}", {type_}),\n' for name, type_ in names)
    doc = record_doc(record)
    return "".join(nested) + f"\n\nclass {record['name']}({base}):\n" + (
        docstring(doc, 4) + "\n" if doc else "") + f"    _fields_ = [\n{fields}    ]\n"


def wrapped(head, names, tail, indent):
    return textwrap.fill(head + ", ".join(names) + tail, 100, subsequent_indent=" " * indent,
                         break_long_words=False)


def function_text(function):
    name, arguments = function["name"], function["arguments"]
    names = [argument["name"] for argument in arguments]
    types = [argument_type(argument["type"]) for argument in arguments]
    tail = "," if len(types) == 1 else ""
    text = "\n\n" + wrapped(f'_{name} = _bind("{name}", {value_type(function["result"])}, (',
                            types, tail + "))", 4)
    text += "\n\n\n" + wrapped(f"def {name}(", names, "):", 8 if names else 0)
    text += "\n" + docstring(function["comment"], 4)
    call = wrapped(f"_{name}(", names, ")", 8)
    if function["result"] != "void":
        return text + textwrap.indent("return " + call, "    ") + "\n"
    kept = ", ".join(f"hold({argument})" for argument in REMEMBERS.get(name, []))
    memory = f'    _remembered["{name}"] = ({kept},)\n' if kept else ""
    return text + textwrap.indent(call, "    ") + "\n" + memory


def public_names(interface):
    names = [entry["name"] for kind in ("constants", "callbacks", "records", "functions")
             for entry in interface[kind]]
    return wrapped("__all__ = [", [f'"{name}"' for name in names], "]", 4) + "\n"


def module_text(interface):
    parts = [MODULE_HEAD, f'__version__ = "{interface["version"]}"\n', public_names(interface), "\n"]
    parts += [f"{constant['name']} = {constant['value']}\n" for constant in interface["constants"]]
    parts.append("\n")
    parts += [f"{callback['name']} = {callback_type(callback)}\n"
              for callback in interface["callbacks"]]
    parts += map(record_text, interface["records"])
    parts += map(function_text, interface["functions"])
    return "".join(parts)


def stub_argument(argument):
    c_type = argument["type"]
    record = target_of(c_type)
    scalar = "float" if c_type == "float" else "int"
    if record:
        return f"{argument['name']}: {record} | ctypes._Pointer[{record}] | _Wrapper | None"
    return f"{argument['name']}: {STUB_POINTERS.get(c_type, scalar)}"


def stub_result(c_type):
    record = target_of(c_type)
    return f"ctypes._Pointer[{record}]" if record else STUB_RESULTS.get(c_type, "int")


def stub_function(function):
    arguments = [stub_argument(argument) for argument in function["arguments"]]
    head = f"def {function['name']}("
    tail = f") -> {stub_result(function['result'])}: ..."
    if len(head) + len(", ".join(arguments)) + len(tail) <= 100:
        return head + ", ".join(arguments) + tail + "\n"
    return head + "\n" + "".join(f"    {argument},\n" for argument in arguments) + tail + "\n"


def stub_field(record, field):
    if "fields" in field:
        return f"{record['name']}_{field['name']}"
    if "callback" in field or "count" in field or field["type"] not in SCALARS:
        return "Any"
    if field["type"] in ("void *", "const void *"):
        return "int | None"
    return "float" if field["type"] == "float" else "int"


def stub_record(record, base="Structure"):
    nested = "".join(stub_record({"name": f"{record['name']}_{field['name']}",
                                  "fields": field["fields"]}, "Union")
                     for field in record["fields"] if "fields" in field)
    fields = "".join(f"    {field['name']}: {stub_field(record, field)}\n"
                     for field in record["fields"]) or "    ...\n"
    return f"{nested}\nclass {record['name']}({base}):\n{fields}"


def stub_text(interface):
    parts = [STUB_HEAD, "\n__version__: str\n", public_names(interface), "\n"]
    parts += [f"{constant['name']}: int\n" for constant in interface["constants"]]
    parts += [f"{callback['name']}: Any\n" for callback in interface["callbacks"]]
    parts += map(stub_record, interface["records"])
    parts.append("\n")
    parts += map(stub_function, interface["functions"])
    return "".join(parts)
