"""What Python knows of the interface, held against what the compiler makes of the header."""

import ctypes
import inspect
import json
import pathlib

import brisal
import brisal._interface as interface

DESCRIPTION = json.loads(pathlib.Path(brisal.__file__).with_name("brisal.json").read_text())
FUNCTIONS = DESCRIPTION["functions"]
RECORDS = [getattr(brisal, record["name"]) for record in DESCRIPTION["records"]
           if record["fields"]]

DESCRIBE = """
#include <cstddef>
#include <cstdio>
#include <type_traits>
#include <brisal/brisal.h>

template <class T> void Describe() {
  if (std::is_void_v<T>) std::printf(" void");
  else if (std::is_pointer_v<T>)
    std::printf(" %s", std::is_const_v<std::remove_pointer_t<T>> ? "reads" : "writes");
  else std::printf(" %s", std::is_floating_point_v<T> ? "float"
                          : std::is_signed_v<T> ? "int" : "unsigned");
}
template <class T> constexpr int SizeOf() {
  if constexpr (std::is_void_v<T>) return 0; else return int(sizeof(T));
}
template <class R, class... A> void Describe(const char *name, R (*)(A...)) {
  std::printf("%s", name);
  Describe<R>(), std::printf(" %d", SizeOf<R>());
  (..., (Describe<A>(), std::printf(" %d", SizeOf<A>())));
  std::printf("\\n");
}
int main() {
"""


def kind_of(type_):
    if type_ is None:
        return "void 0"
    if hasattr(type_, "c_type"):
        return ("writes" if type_.writable else "reads") + " 8"
    if issubclass(type_, (ctypes._Pointer, ctypes.c_void_p, ctypes.c_char_p)):
        return "pointer 8"
    signed = type_(-1).value == -1
    kind = "float" if type_ is ctypes.c_float else "int" if signed else "unsigned"
    return f"{kind} {ctypes.sizeof(type_)}"


def agrees(ours, theirs):
    return ours == theirs or ours == "pointer 8" and theirs in ("reads 8", "writes 8")


def test_every_function_has_the_compilers_types(compiled):
    calls = "".join(f'Describe("{f["name"]}", &{f["name"]});\n' for f in FUNCTIONS)
    text = DESCRIBE + calls + "}"
    lines = compiled(text, "c++", "-std=c++20").decode().splitlines()
    assert len(lines) == 216
    for line in lines:
        name, *words = line.split()
        theirs = [" ".join(pair) for pair in zip(words[::2], words[1::2])]
        bound = getattr(interface, "_" + name)
        ours = [kind_of(type_) for type_ in (bound.restype, *bound.argtypes)]
        assert len(ours) == len(theirs) and all(map(agrees, ours, theirs)), (name, ours, theirs)
        assert len(inspect.signature(getattr(brisal, name)).parameters) == len(theirs) - 1
        assert len(inspect.getdoc(getattr(brisal, name))) >= 20


def test_records_lie_in_memory_as_the_compiler_lays_them_out(compiled):
    places = [(record.__name__, field[0]) for record in RECORDS for field in record._fields_]
    prints = [f'printf("{r.__name__} %zu\\n", sizeof({r.__name__}));' for r in RECORDS]
    prints += [f'printf("{r}.{f} %zu %zu\\n", offsetof({r}, {f}), sizeof((({r} *)0)->{f}));'
               for r, f in places]
    output = compiled("#include <stddef.h>\n#include <stdio.h>\n#include <brisal/brisal.h>\n"
                      "int main(void) {\n" + "\n".join(prints) + "\nreturn 0;\n}\n")
    ours = [f"{record.__name__} {ctypes.sizeof(record)}" for record in RECORDS]
    for record, field in places:
        place = getattr(getattr(brisal, record), field)
        ours.append(f"{record}.{field} {place.offset} {place.size}")
    assert output.decode().splitlines() == ours
    assert len(places) > 80


def test_arguments_that_cannot_be_meant_are_refused():
    import numpy
    import pytest
    integers = numpy.zeros(4, numpy.int32)
    for call, error in [
            (lambda: brisal.BRSL_Circle(1, 2, 3, 0xFFFFFF), "missing 1 required"),
            (lambda: brisal.BRSL_Circle(1.5, 2, 3, 4, 5), "wrong type"),
            (lambda: brisal.FillMemory(b"constant", 4, 0, 1), "read-only"),
            (lambda: brisal.FillMemory("text", 4, 0, 1), "text as bytes"),
            (lambda: brisal.TQ_FastCalc(integers, [0], 0), "c_float"),
            (lambda: brisal.TQ_FastCalc([1.0], [0], 0), "not list"),
            (lambda: brisal.BRSL_MirrorRect(integers.astype(numpy.int64), 1, 0), "c_int"),
            (lambda: brisal.BRSL_MirrorRect(numpy.zeros(8, numpy.int32)[::2], 1, 0), "gaps")]:
        with pytest.raises((TypeError, ctypes.ArgumentError), match=error):
            call()
    brisal.BRSL_MirrorRect([0, 0, 4, 4], numpy.int64(0), 0)
    floats = numpy.array([2.5, 4], numpy.float32)
    assert brisal.TQ_FastCalc(floats, numpy.array([0, 3, 1, 5, 0], numpy.int32), 2) == 10
    assert floats[0] == 10
    assert brisal.TQ_TestString() == b"0123456789abcdef" * 2
