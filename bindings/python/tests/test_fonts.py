import brisal
import numpy
import pytest
from brisal import Canvas, Font

SLASH = numpy.array([[0, 0, 255], [0, 128, 0], [255, 0, 0]], numpy.uint8)
BAR = numpy.full((5, 2), 255, numpy.uint8)


def drawn(font, text):
    pixels = numpy.full((8, 24), 0x808080, numpy.uint32)
    with Canvas(pixels, brisal.BRSL_FORMAT_X32).target():
        font.draw(text, 2, 1, 0xFFFFFFFF)
    return pixels


def test_fonts_are_made_saved_loaded_and_drawn(tmp_path):
    font = Font.of_glyphs({"/": SLASH, "I": BAR}, {"I": 4})
    assert font.width("/I/") == 3 + 4 + 3
    picture = drawn(font, "/I")
    weight = numpy.zeros((8, 24), int)
    weight[1:4, 2:5], weight[1:6, 5:7] = SLASH, BAR
    expected = 0x80 + (0xFF - 0x80) * weight // 256
    assert (picture == expected * 0x10101).all()
    font.save(tmp_path / "font.crf")
    again = Font.load(tmp_path / "font.crf")
    assert (drawn(again, b"/I") == picture).all()


def test_failures_of_files_are_raised(tmp_path):
    with pytest.raises(FileNotFoundError):
        Font.load(tmp_path / "missing.crf")
    font = Font.of_glyphs({"I": BAR})
    with pytest.raises(OSError):
        font.save(tmp_path / "missing" / "font.crf")
    font.save(tmp_path / "font.crf")
    content = (tmp_path / "font.crf").read_bytes()
    (tmp_path / "cut.crf").write_bytes(content[:60])
    (tmp_path / "other.crf").write_bytes(b"something else" + content)
    with pytest.raises(EOFError, match="cut"):
        Font.load(tmp_path / "cut.crf")
    with pytest.raises(ValueError, match="not a font"):
        Font.load(tmp_path / "other.crf")
