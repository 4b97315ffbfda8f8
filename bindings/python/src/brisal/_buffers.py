"""How arguments of Python become pointers: objects with the buffer protocol, without copies."""

import ctypes
import operator
from typing import Any

_WRITABLE = 0x1
_STRIDED_WITH_FORMAT = 0x1C


class _PyBuffer(ctypes.Structure):
    _fields_ = [
        ("buf", ctypes.c_void_p), ("obj", ctypes.c_void_p), ("len", ctypes.c_ssize_t),
        ("itemsize", ctypes.c_ssize_t), ("readonly", ctypes.c_int), ("ndim", ctypes.c_int),
        ("format", ctypes.c_void_p), ("shape", ctypes.c_void_p), ("strides", ctypes.c_void_p),
        ("suboffsets", ctypes.c_void_p), ("internal", ctypes.c_void_p)]


_get_buffer = ctypes.pythonapi.PyObject_GetBuffer
_get_buffer.argtypes = (ctypes.py_object, ctypes.POINTER(_PyBuffer), ctypes.c_int)
_release_buffer = ctypes.pythonapi.PyBuffer_Release
_release_buffer.argtypes = (ctypes.POINTER(_PyBuffer),)
_release_buffer.restype = None


def hold(value):
    """What keeps the memory of an argument in place for as long as the library remembers it.

    A view does more than a reference: while it lives, a bytearray refuses to change its size.
    """
    try:
        return memoryview(value)
    except TypeError:
        return value


def address_of(view, writable):
    """The address of a buffer's first element, be its strides as they may."""
    buffer = _PyBuffer()
    _get_buffer(view, buffer, _STRIDED_WITH_FORMAT | (_WRITABLE if writable else 0))
    address = buffer.buf
    _release_buffer(buffer)
    return address or 0


class _Held:
    """An address as ctypes takes it, with the view that keeps its memory during the call."""

    def __init__(self, view, writable):
        if writable and view.readonly:
            raise TypeError("the library writes there, but the buffer is read-only")
        self.view = view
        self._as_parameter_ = ctypes.c_void_p(address_of(view, writable))


class Address:
    """void *: None, a number, or any writable buffer (its first element)."""

    c_type = "void *"
    writable = True

    @classmethod
    def from_param(cls, value):
        if isinstance(value, str):
            raise TypeError("an address is a number or a buffer; give text as bytes")
        if value is None or hasattr(value, "__index__"):
            return ctypes.c_void_p(None if value is None else operator.index(value))
        try:
            view = memoryview(value)
        except TypeError:
            return ctypes.c_void_p.from_param(value)
        return _Held(view, cls.writable)


class ReadAddress(Address):
    """const void *: None, a number, or any buffer."""

    c_type = "const void *"
    writable = False


class Text(ReadAddress):
    """const char *: bytes or any buffer, or a str whose characters have codes below 256."""

    c_type = "const char *"

    @classmethod
    def from_param(cls, value):
        return super().from_param(value.encode("latin-1") if isinstance(value, str) else value)


class _Elements:
    """A pointer to numbers: a buffer that has such elements without gaps, or what ctypes takes."""

    element: Any = None
    codes = ""
    writable = True

    @classmethod
    def from_param(cls, value):
        try:
            return ctypes.POINTER(cls.element).from_param(value)
        except TypeError:
            pass
        try:
            view = memoryview(value)
        except TypeError:
            return cls._copied(value)
        size = ctypes.sizeof(cls.element)
        if view.itemsize != size or view.format.lstrip("@=<") not in cls.codes:
            raise TypeError(f"elements must be {cls.element.__name__}, not '{view.format}' of "
                            f"{view.itemsize} bytes")
        if not view.c_contiguous:
            raise TypeError("elements must lie without gaps")
        return _Held(view, cls.writable)

    @classmethod
    def _copied(cls, value):
        if cls.writable:
            raise TypeError(f"the library writes there: give a buffer of {cls.element.__name__}, "
                            f"not {type(value).__name__}")
        return (cls.element * len(value))(*value)


class Int32s(_Elements):
    c_type = "int32_t *"
    element, codes = ctypes.c_int32, "il"


class ReadInt32s(Int32s):
    c_type = "const int32_t *"
    writable = False


class UInt32s(_Elements):
    c_type = "uint32_t *"
    element, codes = ctypes.c_uint32, "IL"


class Floats(_Elements):
    c_type = "float *"
    element, codes = ctypes.c_float, "f"
