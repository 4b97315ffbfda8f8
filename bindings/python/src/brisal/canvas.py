"""Pixels of the program as a target, a source or a surface of the library."""

from __future__ import annotations

import contextlib
import os
import struct
import weakref
import zlib
from typing import Any

from . import _interface as api
from ._buffers import address_of

# Of each format the element, its size, how many make a pixel, and their name.
_LAYOUTS = {
    api.BRSL_FORMAT_565: ("HS", 2, 1, "16-bit unsigned"),
    api.BRSL_FORMAT_555: ("HS", 2, 1, "16-bit unsigned"),
    api.BRSL_FORMAT_RGB: ("B", 1, 3, "8-bit unsigned"),
    api.BRSL_FORMAT_X32: ("IL", 4, 1, "32-bit unsigned"),
    api.BRSL_FORMAT_A32: ("IL", 4, 1, "32-bit unsigned"),
}
_CODES = {2: "H", 1: "B", 4: "I"}

_SETTERS = {
    "target": api.BRSL_SetBuffer,
    "source": api.BRSL_SetSrcBuffer,
    "blend source": api.BRSL_SetSrcBlendBuffer,
}

# The canvas that each of the library's buffers lies in, with the rest of what was set.
_set: dict[str, Any] = {"target": None, "source": None, "blend source": None}


class Canvas:
    """Pixels in memory of yours, for instance a numpy array. Nothing is copied.

    pixels: rows and columns of uint16 (formats 565 and 555) or uint32 (X32 and A32), or rows,
    columns and three channels of uint8 (RGB). Rows may have gaps between them, or run backwards, as
    those of slices do; the pixels of a row may not. The memory stays alive, and in place, for as
    long as the canvas or the library uses it.
    """

    def __init__(self, pixels: Any, format: int) -> None:
        if format not in _LAYOUTS:
            raise ValueError(f"format {format!r} is none of BRSL_FORMAT_*")
        try:
            view = memoryview(pixels)
        except TypeError:
            raise TypeError(f"{type(pixels).__name__} has no memory to draw into") from None
        if view.readonly:
            raise ValueError("the pixels are read-only")
        self.pitch = _pitch_of(view, format)
        self.format = format
        self.height, self.width = view.shape[:2]
        self.pixels = pixels
        self._view = view
        self.address = address_of(view, writable=True)

    @classmethod
    def new(cls, width: int, height: int, format: int) -> Canvas:
        """A canvas over memory of its own, all 0; `pixels` is a memoryview of rows and columns."""
        if width < 1 or height < 1:
            raise ValueError(f"a canvas of {width} x {height} pixels has none")
        return cls.over(bytearray(width * height * bytes_per_pixel(format)), width, height, format)

    @classmethod
    def over(cls, memory: Any, width: int, height: int, format: int) -> Canvas:
        """A canvas over plain bytes, such as a bytearray or a memory map, without gaps."""
        _, size, channels, _ = _LAYOUTS[format]
        shape = (height, width) if channels == 1 else (height, width, channels)
        flat = memoryview(memory).cast("B")
        needed = width * height * size * channels
        if len(flat) < needed:
            raise ValueError(f"{width} x {height} pixels need {needed} bytes, not {len(flat)}")
        return cls(flat[:needed].cast(_CODES[size], shape), format)

    def target(self, left: int = 0, top: int = 0, right: int | None = None,
               bottom: int | None = None) -> _Use:
        """Makes this the target, clipped to a viewport, by default all of it.

        As a context manager it gives the library its former target back.
        """
        right = self.width if right is None else right
        bottom = self.height if bottom is None else bottom
        if not (0 <= left <= right <= self.width and 0 <= top <= bottom <= self.height):
            raise ValueError(f"viewport ({left}, {top}, {right}, {bottom}) is not inside "
                             f"{self.width} x {self.height} pixels")
        return _Use("target", self, (left, top, right, bottom))

    def source(self) -> _Use:
        """Makes this the source of blits; as a context manager only for its block."""
        return _Use("source", self)

    def blend_source(self) -> _Use:
        """Makes this the blend source of effects; as a context manager only for its block."""
        return _Use("blend source", self)

    def surface(self, mask_colour: int = 0) -> Surface:
        """A surface descriptor of these pixels, for functions that take one."""
        return Surface(self, mask_colour)

    def rgb(self) -> bytes:
        """The picture as bytes, three to a pixel, widened as BRSL_Point does."""
        copy = Canvas.new(self.width, self.height, api.BRSL_FORMAT_RGB)
        with copy.target(), self.source():
            api.BRSL_Blit(0, 0, self.width, self.height, 0, 0, 0, 0)
        return bytes(copy.pixels)

    def save(self, path: str | os.PathLike[str]) -> None:
        """Writes the picture as a PNG file."""
        rgb, row = self.rgb(), self.width * 3
        lines = b"".join(b"\0" + rgb[at:at + row] for at in range(0, len(rgb), row))
        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n"
                       + _chunk(b"IHDR", struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0,
                                                     0, 0))
                       + _chunk(b"IDAT", zlib.compress(lines, 9)) + _chunk(b"IEND", b""))


class Surface:
    """A surface descriptor; it takes the place of a pointer to one, and keeps the pixels alive."""

    def __init__(self, canvas: Canvas, mask_colour: int = 0) -> None:
        self.canvas = canvas
        pointer = api.BRSL_AllocSurfaceDesc(canvas.format, canvas.address, canvas.pitch,
                                            canvas.width, canvas.height)
        if not pointer:
            raise MemoryError("no memory for a surface descriptor")
        self._as_parameter_ = pointer
        weakref.finalize(self, api.BRSL_FreeSurfaceDesc, pointer)
        api.BRSL_SetSurfaceDescMaskColour(pointer, mask_colour)

    @property
    def desc(self) -> api.BRSL_SurfaceDesc:
        """The descriptor's fields."""
        return self._as_parameter_.contents


def bytes_per_pixel(format: int) -> int:
    if format not in _LAYOUTS:
        raise ValueError(f"format {format!r} is none of BRSL_FORMAT_*")
    _, size, channels, _ = _LAYOUTS[format]
    return size * channels


def _pitch_of(view, format):
    """The bytes from row to row of pixels whose layout is that of the format."""
    codes, size, channels, name = _LAYOUTS[format]
    shape = "(rows, columns)" if channels == 1 else f"(rows, columns, {channels})"
    if view.itemsize != size or view.format.lstrip("@=<") not in codes:
        raise TypeError(f"format {format} takes {name} elements, not '{view.format}' of "
                        f"{view.itemsize} bytes")
    if view.ndim != (2 if channels == 1 else 3) or channels > 1 and view.shape[2] != channels:
        raise ValueError(f"format {format} takes the shape {shape}, not {view.shape}")
    if 0 in view.shape:
        raise ValueError(f"the shape {view.shape} has no pixels")
    pixel = (size,) if channels == 1 else (size * channels, size)
    if view.shape[1] > 1 and view.strides[1] != pixel[0] or view.strides[2:] != pixel[1:]:
        raise ValueError(f"the pixels of a row must lie side by side, {pixel[0]} bytes apart, not "
                         f"{view.strides[1]}")
    if not -2**31 <= view.strides[0] < 2**31:
        raise ValueError(f"rows are {view.strides[0]} bytes apart, which is too far")
    return view.strides[0]


def _apply(role, state):
    canvas, viewport = state or (None, (0, 0, 0, 0))
    if role == "target":
        api.BRSL_SetBufferViewPort(*viewport)
    if canvas:
        _SETTERS[role](canvas.address, canvas.pitch, canvas.format)
    else:
        _SETTERS[role](None, 0, 0)
    _set[role] = state


class _Use(contextlib.AbstractContextManager):
    """Sets one of the library's buffers at once, and sets it back where a with block ends."""

    def __init__(self, role: str, canvas: Canvas,
                 viewport: tuple[int, int, int, int] | None = None) -> None:
        self._role, self._canvas, self._former = role, canvas, _set[role]
        _apply(role, (canvas, viewport))

    def __enter__(self) -> Canvas:
        return self._canvas

    def __exit__(self, *error: object) -> None:
        _apply(self._role, self._former)


def _chunk(kind, content):
    return (struct.pack(">I", len(content)) + kind + content
            + struct.pack(">I", zlib.crc32(kind + content)))
