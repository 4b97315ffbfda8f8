"""Raster fonts: the services that the font functions call, and a font as an object."""

from __future__ import annotations

import ctypes
import os
import struct
import weakref
from collections.abc import Mapping
from typing import Any

from . import _interface as api

_blocks: dict = {}
_files: dict = {}
_failures: list = []
_HERE = -1


def _alloc(size):
    if size < 0:
        return 0
    block = ctypes.create_string_buffer(max(size, 1))
    _blocks[ctypes.addressof(block)] = block, size
    return ctypes.addressof(block)


def _free(block):
    _blocks.pop(block, None)


def _same_text(a, b):
    return int(ctypes.string_at(a) == ctypes.string_at(b))


def _open(name, mode):
    try:
        file = open(os.fsdecode(ctypes.string_at(name)), mode)
    except OSError as error:
        _failures.append(error)
        return 0
    return _adopt(file)


def _adopt(file):
    handle = max(_files, default=0) + 1
    _files[handle] = file
    return handle


def _remembering(work):
    """Services cannot report that they failed; the call that caused it does so afterwards."""
    def service(file, *arguments):
        try:
            return work(_files[file], *arguments)
        except (OSError, EOFError) as error:
            _failures.append(error)
            return 0
    return service


def _go(file, position):
    if position != _HERE:
        file.seek(position)


def _read(file, position, count):
    _go(file, position)
    content = file.read(count)
    if len(content) < count:
        raise EOFError("the font's file is cut")
    return content


def _read_number(count):
    return _remembering(lambda file, position: int.from_bytes(_read(file, position, count),
                                                              "little"))


def _write_number(count):
    def write(file, position, value):
        _go(file, position)
        file.write((value & (1 << 8 * count) - 1).to_bytes(count, "little"))
    return _remembering(write)


def _read_memory(file, position, address, count):
    ctypes.memmove(address, _read(file, position, count), count)


def _write_memory(file, position, start, end):
    _go(file, position)
    file.write(ctypes.string_at(start, end - start))


_SERVICES = {
    "memory": {"AllocMemory": _alloc, "FreeMemory": _free, "FreeMemoryAddress": _free},
    "block": {
        "MemoryAddress": lambda block: block,
        "MemorySize": lambda block: _blocks[block][1] if block else 0,
        "CopyMemoryBlock": lambda source, at, count, destination, to:
            ctypes.memmove(destination + to, source + at, max(count, 0)) and None,
        "PokeLong": lambda block, offset, value:
            ctypes.memmove(block + offset, struct.pack("<i", value), 4) and None},
    "string": {
        "AllocString": _alloc,
        "PokeBytes": lambda buffer, source, count:
            ctypes.memmove(buffer, source, max(count, 0)) and None,
        "CompareStrings": _same_text},
    "file": {
        "OpenFileRead": lambda name: _open(name, "rb"),
        "OpenFileWrite": lambda name: _open(name, "wb"),
        "CloseFile": lambda file: _files.pop(file).close(),
        "FilePos": _remembering(lambda file: file.tell()),
        "SeekFile": _remembering(lambda file, position: file.seek(position) and None),
        "ReadWord": _read_number(2),
        "ReadLong": _read_number(4),
        "ReadToBuffer": _remembering(_read_memory),
        "ReadToMemory": _remembering(_read_memory),
        "WriteWord": _write_number(2),
        "WriteLong": _write_number(4),
        "WriteMemory": _remembering(_write_memory)},
}


def install_services() -> None:
    """Lets the library have memory and files of Python; fonts below do it by themselves."""
    record = api.BRSL_HostRecord()
    for group, services in _SERVICES.items():
        call = getattr(record, group).call
        types = dict(call._fields_)
        for name, service in services.items():
            setattr(call, name, types[name](service))
    api.GCF_Retrieve(record)


def _raise_failure():
    failures = _failures[:]
    _failures.clear()
    if failures:
        raise failures[0]


class Font:
    """A font; it takes the place of a pointer to one."""

    def __init__(self, pointer: Any) -> None:
        if not pointer:
            raise ValueError("not a font, or one that is damaged")
        self._as_parameter_ = pointer
        weakref.finalize(self, api.CRF_Free, pointer)

    @classmethod
    def load(cls, path: str | os.PathLike[str]) -> Font:
        """Reads a font's file, as `save` and the brisal tool write it."""
        install_services()
        _failures.clear()
        pointer = api.CRF_Load(os.fsencode(path))
        if not pointer:
            _raise_failure()
        return cls(pointer)

    @classmethod
    def of_glyphs(cls, glyphs: Mapping[str, Any],
                  advances: Mapping[str, int] | None = None) -> Font:
        """A font of intensities (uint8, rows and columns) by character.

        advances: how far the pen moves after a character where that is not its glyph's width.
        """
        install_services()
        views = {ord(character): memoryview(glyph) for character, glyph in glyphs.items()}
        widest = max((view.shape[1] for view in views.values()), default=0)
        highest = max((view.shape[0] for view in views.values()), default=0)
        font = cls(api.CRF_Alloc(max(views, default=0) + 1))
        api.CRF_SetChrDepth(font, 8)
        api.CRF_DrawMode(font, 1)
        api.CRF_SetMaxChrSize(font, widest, highest)
        for code, view in views.items():
            font._set_glyph(code, view, (advances or {}).get(chr(code), view.shape[1]))
        return font

    def _set_glyph(self, code, view, advance):
        if view.ndim != 2 or view.format != "B":
            raise TypeError("glyphs are rows and columns of uint8")
        rows, columns = view.shape
        block = api.CRF_CompressChr(struct.pack("<iiii", columns, rows, 8, 0) + view.tobytes())
        if not block:
            raise ValueError(f"the glyph of {chr(code)!r} cannot be compressed")
        api.CRF_SetChrBmp(self, code, block)
        api.CRF_GetChrInfoPtr(self, code).contents.width = advance

    def save(self, path: str | os.PathLike[str]) -> None:
        _failures.clear()
        api.CRF_Save(self, os.fsencode(path))
        _raise_failure()

    def draw(self, text: str | bytes, x: int, y: int, colour: int) -> None:
        """Draws text; colour is 0xAARRGGBB, and its alpha counts."""
        text = text.encode("latin-1") if isinstance(text, str) else text
        if text:
            api.CRF_Draw(self, text, len(text), x, y, colour)

    def width(self, text: str | bytes) -> int:
        text = text.encode("latin-1") if isinstance(text, str) else text
        return api.CRF_TextWidth(self, text, len(text)) if text else 0
