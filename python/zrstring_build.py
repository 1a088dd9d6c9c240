"""Builds the package for pip (PEP 517 and 660): a wheel of Python files, for any system."""

import base64
import gzip
import hashlib
import io
import pathlib
import re
import tarfile
import zipfile

HERE = pathlib.Path(__file__).resolve().parent
VERSION = re.search(r'"(.+)"', (HERE / "zrstring/_version.py").read_text("utf-8"))[1]
NAME = f"zrstring-{VERSION}"
METADATA = f"""\
Metadata-Version: 2.1
Name: zrstring
Version: {VERSION}
Summary: Strings of UTF-16 code units that Python shares with C and C++
Requires-Python: >=3.9
"""
WHEEL = "Wheel-Version: 1.0\nGenerator: zrstring_build\nRoot-Is-Purelib: true\nTag: py3-none-any\n"


def _sources():
    folder = HERE / "zrstring"
    return sorted([*folder.glob("*.py"), folder / "py.typed"])


def _write_wheel(folder, files):
    """A wheel of the files, which are given by their names, with what describes it."""
    info = f"{NAME}.dist-info"
    files = {**files, f"{info}/METADATA": METADATA.encode(), f"{info}/WHEEL": WHEEL.encode()}
    record = ""
    for name, data in files.items():
        digest = base64.urlsafe_b64encode(hashlib.sha256(data).digest()).rstrip(b"=").decode()
        record += f"{name},sha256={digest},{len(data)}\n"
    files[f"{info}/RECORD"] = f"{record}{info}/RECORD,,\n".encode()
    wheel = f"{NAME}-py3-none-any.whl"
    with zipfile.ZipFile(pathlib.Path(folder, wheel), "w", zipfile.ZIP_DEFLATED) as archive:
        for name, data in files.items():
            entry = zipfile.ZipInfo(name)  # of 1980: the same files make the same wheel
            entry.external_attr = 0o644 << 16
            archive.writestr(entry, data)
    return wheel


def build_wheel(wheel_directory, config_settings=None, metadata_directory=None):
    files = {f"zrstring/{path.name}": path.read_bytes() for path in _sources()}
    return _write_wheel(wheel_directory, files)


def build_editable(wheel_directory, config_settings=None, metadata_directory=None):
    return _write_wheel(wheel_directory, {"zrstring.pth": f"{HERE}\n".encode()})


def build_sdist(sdist_directory, config_settings=None):
    sdist = f"{NAME}.tar.gz"
    paths = [*_sources(), HERE / "pyproject.toml", pathlib.Path(__file__).resolve()]
    files = {str(path.relative_to(HERE)): path.read_bytes() for path in paths}
    packed = gzip.GzipFile(pathlib.Path(sdist_directory, sdist), "wb", mtime=0)
    with packed, tarfile.open(fileobj=packed, mode="w") as archive:
        for name, data in {**files, "PKG-INFO": METADATA.encode()}.items():
            entry = tarfile.TarInfo(f"{NAME}/{name}")  # of 1970, with no owner
            entry.size = len(data)
            archive.addfile(entry, io.BytesIO(data))
    return sdist
