"""Finds and loads the library that the package calls."""

import ctypes
import ctypes.util
import os
import pathlib
import sys
from typing import Iterator

_VARIABLE = "ZRSTRING_LIBRARY"
_NAME = "ZRString.dll" if sys.platform == "win32" else "libZRString.so.1"
_ADVICE = f"install the library, or set {_VARIABLE} to its file"


def _below_prefixes() -> Iterator[pathlib.Path]:
    """Where the library is if it was installed below the same prefix as the package or Python."""
    package = pathlib.Path(__file__).resolve().parent
    for folder in [*package.parents, pathlib.Path(sys.prefix, "lib")]:
        if folder.name.startswith("lib"):
            yield folder / _NAME


def _file() -> str:
    """The file to load; a name without a folder is left to the system's loader."""
    named = os.environ.get(_VARIABLE)
    if named:
        return named
    if sys.platform == "win32":
        return ctypes.util.find_library("ZRString") or _NAME
    return next((str(path) for path in _below_prefixes() if path.exists()), _NAME)


def _loaded() -> ctypes.PyDLL:
    # PyDLL keeps the interpreter's lock during a call; CDLL would release it. Strings that share
    # their text must not be copied, edited or destroyed by two threads at once.
    if not getattr(sys, "_is_gil_enabled", lambda: True)():
        raise ImportError("zrstring needs the interpreter's global lock, which is turned off")
    if sys.platform != "win32":
        # A host that embeds Python has the library already. Its strings must not meet a second one.
        try:
            return ctypes.PyDLL(_NAME, mode=os.RTLD_NOLOAD)
        except OSError:
            pass
    file = _file()
    if os.path.isdir(file):
        raise ImportError(f"cannot load the ZRString library: {file} is a folder; {_ADVICE}")
    try:
        return ctypes.PyDLL(file)
    except OSError as error:
        raise ImportError(f"cannot load the ZRString library ({error}); {_ADVICE}") from None


library = _loaded()
