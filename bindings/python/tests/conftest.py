import pathlib
import subprocess

import brisal
import pytest

TREE = pathlib.Path(__file__).resolve().parents[3]
LIBRARY = pathlib.Path(brisal.__file__).with_name("libbrisal.so")


@pytest.fixture
def compiled(tmp_path):
    """Builds a program against the header and the installed library, and returns what it prints."""
    def run(text, compiler="cc", *options):
        source = tmp_path / ("program.c" if compiler == "cc" else "program.cc")
        program = tmp_path / "program"
        source.write_text(text, encoding="utf-8")
        (tmp_path / "libbrisal.so.0").symlink_to(LIBRARY)
        subprocess.run([compiler, *options, f"-I{TREE / 'include'}", source, LIBRARY,
                        f"-Wl,-rpath,{tmp_path}", "-o", program], check=True)
        return subprocess.run([program], check=True, capture_output=True).stdout
    return run


@pytest.fixture(autouse=True)
def no_target():
    """Leaves nothing of a test's memory with the library."""
    yield
    for role in list(brisal.canvas._set):
        brisal.canvas._apply(role, None)
