"""Builds the wheel and the source archive, with nothing but Python, CMake, Ninja and a compiler.

The library is built from the tree that this folder belongs to, or, in a source archive, from the
copy of it in library/.
"""

import base64
import hashlib
import io
import json
import pathlib
import subprocess
import sys
import sysconfig
import tarfile
import tempfile
import zipfile

import generate

HERE = pathlib.Path(__file__).resolve().parent.parent
TREE = HERE / "library" if (HERE / "library").is_dir() else HERE.parent.parent
PACKAGE_PARTS = ("pyproject.toml", "README.md", "build_backend", "src", "tests", "examples")
LIBRARY_PARTS = ("CMakeLists.txt", "LICENSE", "cmake", "include", "src", "scripts/interface.py")
SUMMARY = "A software rasteriser that draws into memory of yours"


def run(*command):
    try:
        subprocess.run([str(part) for part in command], check=True, stdout=sys.stderr)
    except FileNotFoundError:
        sys.exit(f"brisal: {command[0]} is missing; the library is built with cmake and ninja")


def build_library(folder):
    run("cmake", "-S", TREE, "-B", folder, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
        "-DBRISAL_TOOLS=OFF", "-DBRISAL_TESTS=OFF", f"-DPython3_EXECUTABLE={sys.executable}")
    run("cmake", "--build", folder, "--target", "brisal")
    return (folder / "src" / "libbrisal.so").resolve()


def read_interface():
    with tempfile.TemporaryDirectory() as folder:
        run(sys.executable, TREE / "scripts" / "interface.py",
            TREE / "include" / "brisal" / "brisal.h", "--out", folder)
        return json.loads(pathlib.Path(folder, "brisal.json").read_text(encoding="utf-8"))


def metadata(version):
    return (f"Metadata-Version: 2.1\nName: brisal\nVersion: {version}\nSummary: {SUMMARY}\n"
            "License: MIT\nRequires-Python: >=3.9\nDescription-Content-Type: text/markdown\n\n"
            + (HERE / "README.md").read_text(encoding="utf-8"))


def package_files(interface, library):
    """What the wheel holds of the package, by name."""
    sources = sorted((HERE / "src" / "brisal").iterdir())
    files = {f"brisal/{file.name}": file.read_bytes() for file in sources
             if file.suffix == ".py" or file.name == "py.typed"}
    files["brisal/_interface.py"] = generate.module_text(interface).encode()
    files["brisal/_interface.pyi"] = generate.stub_text(interface).encode()
    files["brisal/brisal.json"] = (json.dumps(interface, indent=1) + "\n").encode()
    files["brisal/libbrisal.so"] = library.read_bytes()
    return files


def record_line(name, content):
    digest = base64.urlsafe_b64encode(hashlib.sha256(content).digest()).rstrip(b"=").decode()
    return f"{name},sha256={digest},{len(content)}\n"


def write_wheel(path, files, info):
    files = dict(files)
    record = "".join(record_line(name, content) for name, content in files.items())
    files[f"{info}/RECORD"] = (record + f"{info}/RECORD,,\n").encode()
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as wheel:
        for name, content in files.items():
            entry = zipfile.ZipInfo(name)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = (0o100755 if name.endswith(".so") else 0o100644) << 16
            wheel.writestr(entry, content)


def build_wheel(wheel_directory, config_settings=None, metadata_directory=None):
    interface = read_interface()
    version = interface["version"]
    platform = sysconfig.get_platform().replace("-", "_").replace(".", "_")
    tag = f"py3-none-{platform}"
    info = f"brisal-{version}.dist-info"
    library = build_library(TREE / "build" / "wheel")
    files = package_files(interface, library)
    files[f"{info}/METADATA"] = metadata(version).encode()
    files[f"{info}/LICENSE"] = (TREE / "LICENSE").read_bytes()
    files[f"{info}/WHEEL"] = (f"Wheel-Version: 1.0\nGenerator: brisal\n"
                              f"Root-Is-Purelib: false\nTag: {tag}\n").encode()
    name = f"brisal-{version}-{tag}.whl"
    write_wheel(pathlib.Path(wheel_directory, name), files, info)
    return name


def build_sdist(sdist_directory, config_settings=None):
    version = read_interface()["version"]
    base = f"brisal-{version}"
    with tarfile.open(pathlib.Path(sdist_directory, f"{base}.tar.gz"), "w:gz") as archive:
        for name in PACKAGE_PARTS:
            archive.add(HERE / name, f"{base}/{name}", filter=without_caches)
        for name in LIBRARY_PARTS:
            archive.add(TREE / name, f"{base}/library/{name}", filter=without_caches)
        content = metadata(version).encode()
        entry = tarfile.TarInfo(f"{base}/PKG-INFO")
        entry.size = len(content)
        archive.addfile(entry, io.BytesIO(content))
    return f"{base}.tar.gz"


def without_caches(entry):
    return None if "__pycache__" in entry.name else entry
