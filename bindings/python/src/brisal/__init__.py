"""Brisal, a software rasteriser, in Python: its functions by their names in C, and over them
`Canvas`, `Surface` and `Font`, which keep memory of the program alive while the library uses it."""

from ._interface import *
from ._interface import BRSL_Init_Lib, __version__
from .canvas import Canvas, Surface
from .fonts import Font, install_services

BRSL_Init_Lib()
