import gc
import mmap
import weakref

import brisal
import numpy
import pytest
from brisal import Canvas

WIDTH, HEIGHT = 96, 64
TYPES = {1: numpy.uint16, 2: numpy.uint16, 3: numpy.uint8, 4: numpy.uint32, 5: numpy.uint32}
CALLS = """\
BRSL_ShadeBox(0, 0, 96, 64, 0x102040, 0x203060, 0xF0B060, 0xE08040, 0);
BRSL_Circle(48, 32, 27, 0xFFE0A0, 2 | 32);
BRSL_TriG(48, -20, 0xFF4020, 110, 60, 0x20FF60, 9, 50, 0x4060FF, 64);
BRSL_Ellipse(20, 70, 40, 22, 0xFF306090, 1024);
BRSL_WriteLine(3, 60, 90, 5, 0xFFFFFF, 0);
"""
PROGRAM = f"""
#include <brisal/brisal.h>
#include <stdio.h>
static unsigned char pixels[5][{WIDTH * HEIGHT * 4}];
int main(void) {{
  static const int size[] = {{2, 2, 3, 4, 4}};
  BRSL_Init_Lib();
  BRSL_SetBufferViewPort(0, 0, {WIDTH}, {HEIGHT});
  for (int i = 0; i < 5; ++i) {{
    BRSL_SetBuffer(pixels[i], {WIDTH} * size[i], i + 1);
    {CALLS}
    fwrite(pixels[i], size[i], {WIDTH * HEIGHT}, stdout);
  }}
  return 0;
}}
"""


def array_of(format, rows=HEIGHT, columns=WIDTH):
    return numpy.zeros((rows, columns, 3) if format == 3 else (rows, columns), TYPES[format])


def draw():
    for line in CALLS.splitlines():
        exec(line, vars(brisal))


def test_arrays_get_the_picture_of_a_c_program(compiled):
    pictures = compiled(PROGRAM)
    for format in TYPES:
        whole = array_of(format)
        padded = array_of(format, HEIGHT + 4, WIDTH + 10)
        inner = padded[1:1 + HEIGHT, 7:7 + WIDTH]
        upside_down = array_of(format)[::-1]
        for pixels in (whole, inner, upside_down):
            with Canvas(pixels, format).target():
                draw()
        expected, pictures = pictures[:whole.nbytes], pictures[whole.nbytes:]
        assert whole.tobytes() == expected
        assert (inner == whole).all() and (upside_down == whole).all()
        padded[1:1 + HEIGHT, 7:7 + WIDTH] = 0
        assert not padded.any()
    assert not pictures


def test_memory_without_numpy():
    expected = array_of(brisal.BRSL_FORMAT_RGB)
    with Canvas(expected, brisal.BRSL_FORMAT_RGB).target():
        draw()
    for memory in (bytearray(expected.nbytes), mmap.mmap(-1, expected.nbytes)):
        with Canvas.over(memory, WIDTH, HEIGHT, brisal.BRSL_FORMAT_RGB).target():
            draw()
        assert memory[:] == expected.tobytes()
    words, own = array_of(4), Canvas.new(WIDTH, HEIGHT, brisal.BRSL_FORMAT_X32)
    for canvas in (own, Canvas(words, brisal.BRSL_FORMAT_X32)):
        with canvas.target():
            draw()
    channels = numpy.stack([words >> shift & 0xFF for shift in (16, 8, 0)], axis=-1)
    assert own.rgb() == channels.astype(numpy.uint8).tobytes()


@pytest.mark.parametrize("format, pixels, error", [
    (3, numpy.zeros((4, 4, 3), numpy.float32), "8-bit unsigned elements, not 'f'"),
    (1, numpy.zeros((4, 4), numpy.int16), "16-bit unsigned elements, not 'h'"),
    (4, numpy.zeros((4, 4), ">u4"), "not '>I'"),
    (3, numpy.zeros((4, 4), numpy.uint8), r"shape \(rows, columns, 3\), not \(4, 4\)"),
    (3, numpy.zeros((4, 4, 4), numpy.uint8), r"columns, 3\), not \(4, 4, 4\)"),
    (4, numpy.zeros((4, 4, 1), numpy.uint32), r"shape \(rows, columns\), not"),
    (4, numpy.zeros((4, 8), numpy.uint32)[:, ::2], "side by side, 4 bytes apart, not 8"),
    (3, numpy.zeros((4, 4, 3), numpy.uint8)[:, :, ::-1], "side by side"),
    (5, numpy.zeros((4, 4), numpy.uint32, order="F"), "side by side"),
    (2, numpy.zeros((0, 4), numpy.uint16), "no pixels"),
    (4, numpy.broadcast_to(numpy.uint32(0), (4, 4)), "read-only"),
    (3, [[1, 2, 3]], "list has no memory"),
    (6, numpy.zeros((4, 4), numpy.uint32), "format 6 is none"),
])
def test_pixels_that_do_not_fit_are_refused(format, pixels, error):
    with pytest.raises((TypeError, ValueError), match=error):
        Canvas(pixels, format)


def test_memory_outside_of_the_canvas_is_out_of_reach():
    canvas = Canvas.new(8, 8, brisal.BRSL_FORMAT_X32)
    for viewport in [(0, 0, 9, 8), (-1, 0, 8, 8), (0, 5, 8, 4), (0, 0, 8, 9)]:
        with pytest.raises(ValueError, match="is not inside 8 x 8"):
            canvas.target(*viewport)
    with pytest.raises(ValueError, match="need 256 bytes, not 255"):
        Canvas.over(bytearray(255), 8, 8, brisal.BRSL_FORMAT_X32)
    assert brisal.BRSL_Point(0, 0) == 0


def test_blocks_nest_and_set_back():
    outer, inner = Canvas.new(8, 8, 4), Canvas.new(4, 4, 1)
    with outer.target(1, 1, 3, 3):
        with inner.target():
            brisal.BRSL_Box(0, 0, 9, 9, 0xFFFFFF, brisal.BRSL_FILLED)
        brisal.BRSL_Box(0, 0, 9, 9, 7, brisal.BRSL_FILLED)
    brisal.BRSL_Box(0, 0, 9, 9, 9, brisal.BRSL_FILLED)
    assert inner.pixels.tolist() == [[0xFFFF] * 4] * 4
    rows = outer.pixels.tolist()
    assert sum(map(sum, rows)) == 4 * 7 and rows[1][1:3] == rows[2][1:3] == [7, 7]


def test_memory_lives_while_the_library_uses_it():
    pixels = array_of(4)
    alive = weakref.ref(pixels)
    Canvas(pixels, 4).target()
    del pixels
    gc.collect()
    assert alive() is not None
    brisal.BRSL_Box(0, 0, 4, 4, 1, brisal.BRSL_FILLED)
    assert alive().sum() == 16
    Canvas.new(4, 4, 4).target()
    gc.collect()
    assert alive() is None

    pixels = array_of(4)
    alive, surface = weakref.ref(pixels), Canvas(pixels, 4).surface()
    del pixels
    gc.collect()
    brisal.BRSL_PokeSurface(surface, 3, 2, 0x123456)
    assert alive()[2, 3] == 0x123456 and brisal.BRSL_PeekSurface(surface, 3, 2) == 0x123456
    assert (surface.desc.width, surface.desc.viewBottom) == (WIDTH, HEIGHT)
    del surface
    gc.collect()
    assert alive() is None

    memory = bytearray(64)
    brisal.BRSL_SetBuffer(memory, 16, 4)
    with pytest.raises(BufferError):
        memory.clear()
    brisal.BRSL_SetBuffer(None, 0, 0)
    memory.clear()


def test_png(tmp_path):
    canvas = Canvas.new(5, 3, brisal.BRSL_FORMAT_565)
    with canvas.target():
        brisal.BRSL_Box(0, 0, 5, 3, 0xF8FCF8, brisal.BRSL_FILLED)
        brisal.BRSL_Dot(4, 2, 0xF80400, brisal.DRAW_NORMAL)
    canvas.save(tmp_path / "picture.png")
    content = (tmp_path / "picture.png").read_bytes()
    assert content.startswith(b"\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\x05\0\0\0\x03\x08\x02")
    assert canvas.rgb() == b"\xF8\xFC\xF8" * 14 + b"\xF8\x04\x00"
