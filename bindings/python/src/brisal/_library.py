"""The library itself, which lies beside this file."""

import ctypes
import pathlib

# Calls must not overlap. PyDLL keeps the interpreter's lock, so that they do not even from threads.
_library = ctypes.PyDLL(str(pathlib.Path(__file__).with_name("libbrisal.so")))


def bind(name, result, arguments):
    function = _library[name]
    function.restype = result
    function.argtypes = arguments
    return function
